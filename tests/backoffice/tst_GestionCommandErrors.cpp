// SPDX-License-Identifier: MIT
#include "tests/backoffice/GestionProcess.h"
#include "tests/support/TestProgram.h"

#include <unistd.h>

namespace {
const QStringList closing{"--cloture", "--du", "2020-02-01", "--csv"};

QStringList files(const Shop& shop)
{
    return QDir(shop.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}
} // namespace

class TestGestionCommandErrors : public QObject
{
    Q_OBJECT

private slots:
    void aWrongCommandIsOneSentence()
    {
        GestionProcess command;
        command.run({"--ventes", "--du", "hier", "--csv", "-"});
        QCOMPARE(command.status, 2);
        QCOMPARE(command.output, QByteArray());
        QCOMPARE(command.error,
            QStringLiteral("vendel-gestion: « hier » n'est pas une date : elle s'écrit comme "
                           "2026-11-30.\n"));
    }

    void noDatabaseIsOneSentenceAndMakesNoFile()
    {
        const Shop shop(Shop::Database::None);
        GestionProcess command;
        command.run(QStringList{"--dossier", shop.path()} + closing + QStringList{"a.csv"});
        QCOMPARE(command.status, 1);
        QCOMPARE(command.error.count('\n'), 1);
        QVERIFY2(command.error.contains(shop.path()), qPrintable(command.error));
        QCOMPARE(files(shop), QStringList());
    }

    void aForeignDatabaseIsOneSentence()
    {
        const Shop shop(Shop::Database::None);
        shop.write("Vendel.db", QByteArray(4096, 'x'));
        GestionProcess command;
        command.run(QStringList{"--dossier", shop.path()} + closing + QStringList{"-"});
        QCOMPARE(command.status, 1);
        QCOMPARE(command.output, QByteArray());
        QCOMPARE(command.error.count('\n'), 1);
        QCOMPARE(files(shop), QStringList{"Vendel.db"});
    }

    void noHomeIsOneSentence()
    {
        GestionProcess command;
        command.environment.remove("XDG_DATA_HOME");
        command.environment.remove("HOME");
        command.run(closing + QStringList{"-"});
        QCOMPARE(command.status, 1);
        QCOMPARE(command.error,
            QStringLiteral(
                "vendel-gestion: Aucun dossier personnel n'est connu pour les données de "
                "la caisse : --dossier en donne un.\n"));
    }

    void aFileThatCannotBeWrittenIsNamed_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("no folder")
            << "none/a.csv"
            << "Le fichier « none/a.csv » ne peut pas être écrit (son dossier "
               "n'existe pas).";
        QTest::newRow("a folder") << "."
                                  << "Le fichier « . » ne peut pas être écrit (c'est un dossier).";
        QTest::newRow("a full device")
            << "/dev/full"
            << "Le fichier « /dev/full » ne peut pas être écrit (il n'y a plus de place).";
    }

    void aFileThatCannotBeWrittenIsNamed()
    {
        QFETCH(QString, file);
        QFETCH(QString, sentence);
        const Shop shop;
        sellAWeekend(shop);
        GestionProcess command;
        command.run(QStringList{"--dossier", shop.path()} + closing + QStringList{file});
        QCOMPARE(command.status, 1);
        QCOMPARE(command.error, "vendel-gestion: " + sentence + '\n');
        QCOMPARE(files(shop), QStringList{"Vendel.db"});
    }

    void whatIsForbiddenIsSaid()
    {
        if (geteuid() == 0) {
            QSKIP("nothing is forbidden to root");
        }
        const Shop shop;
        sellAWeekend(shop);
        QDir(shop.path()).mkdir("closed");
        QFile::setPermissions(shop.path() + "/closed", QFile::ReadOwner | QFile::ExeOwner);
        GestionProcess command;
        command.run(QStringList{"--dossier", shop.path()} + closing + QStringList{"closed/a.csv"});
        QFile::setPermissions(
            shop.path() + "/closed", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QCOMPARE(command.status, 1);
        QVERIFY2(command.error.contains("ce n'est pas permis"), qPrintable(command.error));
    }

    void aDiskThatIsFullLeavesTheOldFile()
    {
        const Shop shop;
        sellAWeekend(shop);
        shop.write("a.csv", "old");
        GestionProcess command;
        // No file may grow: it is as if the disk had no room.
        command.runShell("ulimit -f 0; \"$0\" --dossier . --cloture --du 2020-02-01 "
                         "--csv a.csv 2> /dev/stderr");
        QCOMPARE(command.status, 1);
        QCOMPARE(command.error,
            QStringLiteral("vendel-gestion: Le fichier « a.csv » ne peut pas être écrit (il n'y a "
                           "plus de place).\n"));
        QCOMPARE(shop.read("a.csv"), QByteArray("old"));
        QCOMPARE(files(shop), QStringList({"a.csv", "Vendel.db"}));
    }

    void standardOutputMayBeFullClosedOrUnread_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("sentence");
        const auto row = [](const char* name, const char* script, const char* sentence) {
            QTest::newRow(name) << QString(script) << QString(sentence);
        };
        row("full", "exec \"$0\" \"$@\" > /dev/full",
            "La sortie standard ne peut pas être écrite (il n'y a plus de place).");
        row("closed", "exec \"$0\" \"$@\" >&-",
            "La sortie standard ne peut pas être écrite (Bad file descriptor).");
        // The reader has ended before anything is written.
        row("unread", "mkfifo pipe; exec 3<>pipe; exec 4>pipe; exec 3<&-; exec \"$0\" \"$@\" >&4",
            "La sortie standard ne peut pas être écrite (personne ne la lit plus).");
    }

    void standardOutputMayBeFullClosedOrUnread()
    {
        QFETCH(QString, script);
        QFETCH(QString, sentence);
        const Shop shop;
        sellAWeekend(shop);
        GestionProcess command;
        command.runShell("set -- --dossier . --cloture --du 2020-02-01 --csv -; " + script);
        QCOMPARE(command.error, "vendel-gestion: " + sentence + '\n');
        QCOMPARE(command.status, 1);
    }

    void helpThatNobodyReadsIsAnError()
    {
        GestionProcess command;
        command.runShell("exec \"$0\" --aide > /dev/full");
        QCOMPARE(command.status, 1);
    }

    void aWindowWithoutADisplayIsOneSentence()
    {
        const Shop shop;
        GestionProcess command;
        command.run({"--dossier", shop.path()});
        QCOMPARE(command.status, 1);
        QCOMPARE(command.error,
            QStringLiteral(
                "vendel-gestion: Aucun écran n'est disponible pour ouvrir la fenêtre.\n"));
        command.environment.insert("DISPLAY", ":4711");
        command.run({"--dossier", shop.path(), "--langue", "en"});
        QCOMPARE(command.status, 1);
        QCOMPARE(command.error,
            QStringLiteral("vendel-gestion: There is no display to open the window on.\n"));
    }
};

VENDEL_TEST(TestGestionCommandErrors)
#include "tst_GestionCommandErrors.moc"
