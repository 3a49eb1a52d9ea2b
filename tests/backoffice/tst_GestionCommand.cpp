// SPDX-License-Identifier: MIT
#include "tests/backoffice/GestionProcess.h"
#include "tests/support/TestProgram.h"

namespace {
const QStringList weekend{"--du", "2020-02-01", "--au", "2020-02-02"};
} // namespace

class TestGestionCommand : public QObject
{
    Q_OBJECT

private slots:
    void eachPageIsAFileForASpreadsheet_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("sales") << "--ventes"
                               << QByteArray(
                                      "\"Jour\";\"Lignes\";\"Total HT\";\"TVA\";\"Total TTC\";"
                                      "\"Avant\";\"Évolution (%)\"\r\n"
                                      "2020-02-01;3;4,00;0,80;4,80;0,00;\r\n"
                                      "2020-02-02;1;2,50;0,50;3,00;0,00;\r\n");
        QTest::newRow("articles")
            << "--articles"
            << QByteArray("\"Rang\";\"Article\";\"Lignes\";\"Total HT\";\"Part (%)\";"
                          "\"Part cumulée (%)\"\r\n"
                          "1;\"Café\";3;7,50;115,38;115,38\r\n"
                          "2;\"'----\";1;-1,00;-15,38;100,00\r\n");
        QTest::newRow("hours") << "--heures"
                               << QByteArray("\"Heure\";\"lundi\";\"mardi\";\"mercredi\";\"jeudi\";"
                                             "\"vendredi\";\"samedi\";\"dimanche\";\"Total\"\r\n"
                                             "9;0,00;0,00;0,00;0,00;0,00;5,00;0,00;5,00\r\n"
                                             "10;0,00;0,00;0,00;0,00;0,00;0,00;2,50;2,50\r\n"
                                             "11;0,00;0,00;0,00;0,00;0,00;0,00;0,00;0,00\r\n"
                                             "12;0,00;0,00;0,00;0,00;0,00;-1,00;0,00;-1,00\r\n");
        QTest::newRow("uses") << "--consommation"
                              << QByteArray("\"Composition\";\"Quantité\";\"Unité\"\r\n"
                                            "\"Café moulu\";21;\"g\"\r\n");
        QTest::newRow("closing") << "--cloture"
                                 << QByteArray("\"Article\";\"Lignes\";\"Total HT\"\r\n"
                                               "\"Café\";1;2,50\r\n");
    }

    void eachPageIsAFileForASpreadsheet()
    {
        QFETCH(QString, page);
        QFETCH(QByteArray, file);
        const Shop shop;
        sellAWeekend(shop);
        shop.fill("insert into ArticleStock (id, article) values (1, 'Café');"
                  "insert into DoseStock (id, composition, dose, unite) values"
                  " (1, 'Café moulu', 7, 'g')");
        GestionProcess command;
        command.run(QStringList{"--dossier", shop.path(), page, "--csv", "-"} + weekend);
        QCOMPARE(command.error, QString());
        QCOMPARE(command.status, 0);
        QCOMPARE(command.output, "\xef\xbb\xbf" + file);
    }

    void theFormatOfTheFileMayBeAskedFor()
    {
        const Shop shop;
        sellAWeekend(shop);
        GestionProcess command;
        command.run({"--dossier", shop.path(), "--ventes", "--du", "2020-02-02", "--taux", "10",
            "--csv", "-", "--csv-format", "en"});
        QVERIFY(command.output.contains("\r\n10,1,2.50,0.25,2.75,0.00,\r\n"));
    }

    void theFormatOfTheFileIsTheSystems()
    {
        const Shop shop;
        sellAWeekend(shop);
        GestionProcess command;
        command.environment.insert("LC_ALL", "en_GB.UTF-8");
        command.run({"--dossier", shop.path(), "--ventes", "--du", "2020-02-02", "--csv", "-"});
        QVERIFY(command.output.contains("\r\n10,1,2.50,0.50,3.00,0.00,\r\n"));
    }

    void theLanguageIsTheShopsOrTheOneAskedFor()
    {
        const Shop shop;
        sellAWeekend(shop);
        shop.write("langue", "en\n");
        GestionProcess command;
        const QStringList order
            = QStringList{"--dossier", shop.path(), "--heures", "--csv", "-"} + weekend;
        command.run(order);
        QVERIFY(command.output.contains("\"Hour\",\"Monday\""));
        QVERIFY(command.output.contains("9,0.00"));
        command.run(order + QStringList{"--langue", "fr"});
        QVERIFY(command.output.contains("\"Heure\";\"lundi\""));
        QVERIFY(command.output.contains("9;0,00"));
        command.run({"--zzz", "--langue", "en"});
        QCOMPARE(command.error, QStringLiteral("vendel-gestion: There is no option \"--zzz\".\n"));
    }

    void aPageIsPaperOrAPictureWithoutADisplay()
    {
        const Shop shop;
        sellAWeekend(shop);
        GestionProcess command;
        command.run(QStringList{"--dossier", shop.path(), "--ventes", "--pdf", "-"} + weekend);
        QCOMPARE(command.error, QString());
        QCOMPARE(command.status, 0);
        QVERIFY(command.output.startsWith("%PDF-"));
        command.run(QStringList{"--dossier", shop.path(), "--cloture", "--png", "-"} + weekend);
        QCOMPARE(command.error, QString());
        QVERIFY(command.output.startsWith("\x89PNG"));
    }

    void aFileIsRelativeToWhereTheCommandIsCalled()
    {
        const Shop shop;
        sellAWeekend(shop);
        QDir(shop.path()).mkdir("elsewhere");
        QDir::setCurrent(shop.path() + "/elsewhere");
        GestionProcess command;
        command.run(QStringList{"--dossier", "..", "--cloture", "--csv", "clôture.csv"} + weekend);
        QDir::setCurrent(shop.path());
        QCOMPARE(command.error, QString());
        QVERIFY(shop.read("elsewhere/clôture.csv").endsWith(";1;2,50\r\n"));
    }

    void aTimersJobHasNoLanguageAndStillWritesAccents()
    {
        const Shop shop;
        sellAWeekend(shop);
        GestionProcess command;
        command.environment.insert("LC_ALL", "C");
        command.run(
            QStringList{"--dossier", shop.path(), "--cloture", "--csv", "clôture.csv"} + weekend);
        QCOMPARE(command.error, QString());
        QCOMPARE(QDir(shop.path()).entryList({"*.csv"}), QStringList{"clôture.csv"});
        command.environment.remove("LC_ALL");
        command.environment.remove("LANG");
        command.run({"--clôture"});
        QCOMPARE(command.error,
            QStringLiteral("vendel-gestion: L'option « --clôture » n'existe pas.\n"));
    }

    void anExistingFileIsReplacedWhole()
    {
        const Shop shop;
        sellAWeekend(shop);
        shop.write("a.csv", QByteArray(100000, 'x'));
        GestionProcess command;
        command.run(QStringList{"--dossier", shop.path(), "--cloture", "--csv", "a.csv"} + weekend);
        QCOMPARE(command.status, 0);
        QVERIFY(!shop.read("a.csv").contains('x'));
    }

    void theFolderIsTheTillsOwn()
    {
        const Shop shop;
        sellAWeekend(shop);
        QDir(shop.path()).mkdir("data");
        QVERIFY(QFile::link(shop.path(), shop.path() + "/data/vendel"));
        GestionProcess command;
        command.environment.insert("XDG_DATA_HOME", shop.path() + "/data");
        command.run(QStringList{"--cloture", "--csv", "-"} + weekend);
        QCOMPARE(command.status, 0);
        QVERIFY(command.output.endsWith(";1;2,50\r\n"));
    }

    void helpAndVersionAreSaid()
    {
        GestionProcess command;
        command.environment.insert("XDG_DATA_HOME", "/nowhere");
        command.run({"--aide"});
        QCOMPARE(command.status, 0);
        QVERIFY(command.output.startsWith("Usage"));
        QVERIFY(command.output.contains("/nowhere/vendel"));
        const QList<QByteArray> lines = command.output.split('\n');
        for (const QByteArray& line : lines) {
            QVERIFY2(QString::fromUtf8(line).size() <= 90, line.constData());
        }
        command.run({"--version"});
        QCOMPARE(command.status, 0);
        QVERIFY(command.output.startsWith("Vendel – Gestion "));
    }
};

VENDEL_TEST(TestGestionCommand)
#include "tst_GestionCommand.moc"
