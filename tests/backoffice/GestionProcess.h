// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Shop.h"

#include <QProcess>
#include <QTest>

/// The command itself, run to its end in an environment without a display.
class GestionProcess
{
public:
    GestionProcess()
    {
        environment.remove("DISPLAY");
        environment.remove("WAYLAND_DISPLAY");
        environment.remove("QT_QPA_PLATFORM");
        environment.remove("XDG_RUNTIME_DIR");
        environment.insert("LC_ALL", "C.UTF-8");
    }

    /// Runs it with \a arguments, or what else \a program is.
    void run(const QStringList& arguments, const QString& program = QStringLiteral(VENDEL_GESTION))
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(program, arguments);
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        status = process.exitCode();
        output = process.readAllStandardOutput();
        error = QString::fromUtf8(process.readAllStandardError())
                    .replace(QChar(0xa0), QLatin1Char(' '));
    }

    /// Runs \a script, in which "$0" is the command.
    void runShell(const QString& script)
    {
        run({"-c", script, VENDEL_GESTION}, QStringLiteral("/bin/bash"));
    }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    int status = -1;
    QByteArray output;
    QString error;
};

/// Fills \a shop with two days of February 2020, a Saturday and a Sunday.
inline void sellAWeekend(const Shop& shop)
{
    shop.fill("delete from Historique; delete from Article; delete from Config;"
              "insert into Config (param, valeur) values ('TVA', '20');"
              "insert into Article (article, prix) values ('Café', 2.5);"
              "insert into Article (article, prix) values ('Kir', 4.5);"
              "insert into Historique (id, article, prix, date_heure) values"
              " (1, 'Café', 2.5, '2020-02-01 09:10:00.000'),"
              " (1, 'Café', 2.5, '2020-02-01 09:59:59.999'),"
              " (0, '----', -1, '2020-02-01 12:00:00.000'),"
              " (1, 'Café', 2.5, '2020-02-02 10:00:00.000')");
}
