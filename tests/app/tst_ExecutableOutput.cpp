// SPDX-License-Identifier: MIT
#include "tests/app/StartedTill.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QCoreApplication>
#include <QDir>
#include <QTest>

namespace {
/// Whether \a till writes exactly \a report while it runs.
bool reports(StartedTill& till, const QByteArray& report)
{
    QByteArray written;
    const bool isWritten = QTest::qWaitFor(
        [&] {
            written += till.process.readAllStandardOutput();
            return written == report;
        },
        10000);
    return isWritten && till.process.state() == QProcess::Running;
}
} // namespace

/// What the program writes when its output is read through a pipe.
class TestExecutableOutput : public QObject
{
    Q_OBJECT

private slots:
    void aFailedStatementIsReportedAtOnce()
    {
        const Shop shop;
        shop.sql("drop table Config");
        StartedTill till;
        QVERIFY(reports(till,
            "Errors Db::DbLoad sqlite3_errmsg : select valeur from Config where param like 'Epson "
            "TM-T20II' no such table: Config\n"));
    }

    void aDatabaseThatCannotBeOpenedIsReportedAtOnce()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(QDir().mkdir(QString("Vendel.db")));
        StartedTill till;
        QVERIFY(reports(till,
            "Not open database successfully\n"
            "Errors Db::DbLoad sqlite3_errmsg : select valeur from Config where param like 'Epson "
            "TM-T20II' unable to open database file\n"));
    }
};

VENDEL_BARE_TEST(TestExecutableOutput)
#include "tst_ExecutableOutput.moc"
