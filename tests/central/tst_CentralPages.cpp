// SPDX-License-Identifier: MIT
#include "tests/central/BookServer.h"
#include "tests/central/SoldTill.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {
BookServer& server() { return BookServer::get(); }

/// Two tills that sold on a Saturday and a Sunday, and their book.
struct TwoTills
{
    TwoTills()
    {
        for (const SoldTill* till : {&bar, &cave}) {
            till->sql("delete from Historique; delete from Article; delete from ArticleStock; "
                      "delete from DoseStock; update Config set valeur = 20 where param = 'TVA';"
                      "insert into Article (article, prix) values ('Café', 2.5);"
                      "insert into ArticleStock values (1, 'Café');"
                      "insert into DoseStock values (1, 1, 'Café moulu', 7, 'g')");
        }
        bar.sell("2020-02-01 09:10:00.000", "Café", "2.5");
        bar.sell("2020-02-01 09:59:59.999", "Café", "2.5");
        cave.sell("2020-02-01 09:30:00.000", "Café", "2.5");
        cave.sell("2020-02-02 11:00:00.000", "Kir", "4.5");
        QCOMPARE(bar.command({"--envoyer", uri(), "--nom", "Bar"}).errors, QString());
        QCOMPARE(cave.command({"--envoyer", uri(), "--nom", "=Cave"}).errors, QString());
    }

    QString uri() const { return QString::fromStdString(server().uri(book)); }

    const SoldTill bar;
    const SoldTill cave;
    const std::string book = server().newBook();
};

/// Runs vendel-gestion, or \a program, with \a arguments.
Said gestion(const QStringList& arguments, const QString& program = VENDEL_GESTION)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("DISPLAY");
    environment.remove("QT_QPA_PLATFORM");
    environment.insert("LC_ALL", "C.UTF-8");
    process.setProcessEnvironment(environment);
    process.start(program, arguments + QStringList{"--langue", "fr"});
    process.waitForFinished();
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
        QString::fromUtf8(process.readAllStandardOutput()),
        QString::fromUtf8(process.readAllStandardError()).replace(QChar(0xa0), ' ')};
}

/// The lines of the CSV file that \a arguments ask for.
QStringList csv(const TwoTills& tills, const QStringList& arguments)
{
    const Said said = gestion(
        QStringList{"--central", tills.uri(), "--csv", "-", "--csv-format", "fr"} + arguments);
    return said.errors.isEmpty() ? said.output.mid(1).remove('"').trimmed().split("\r\n")
                                 : QStringList(said.errors);
}
} // namespace

/// The pages of a book, as the command writes them.
class TestCentralPages : public QObject
{
    Q_OBJECT

private slots:
    void eachRowOfAFileNamesItsTill_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QStringList>("file");
        QTest::newRow("sales")
            << "--ventes"
            << QStringList{"Caisse;Jour;Lignes;Total HT;TVA;Total TTC;Avant;Évolution (%)",
                   "'=Cave;2020-02-01;1;2,50;0,50;3,00;0,00;",
                   "'=Cave;2020-02-02;1;4,50;0,90;5,40;0,00;",
                   "Bar;2020-02-01;2;5,00;1,00;6,00;0,00;",
                   "Bar;2020-02-02;0;0,00;0,00;0,00;0,00;"};
        QTest::newRow("articles")
            << "--articles"
            << QStringList{"Caisse;Rang;Article;Lignes;Total HT;Part (%);Part cumulée (%)",
                   "'=Cave;1;Kir;1;4,50;64,29;64,29", "'=Cave;2;Café;1;2,50;35,71;100,00",
                   "Bar;1;Café;2;5,00;100,00;100,00"};
        QTest::newRow("hours") << "--heures"
                               << QStringList{
                                      "Caisse;Heure;lundi;mardi;mercredi;jeudi;vendredi;samedi;"
                                      "dimanche;Total",
                                      "'=Cave;9;0,00;0,00;0,00;0,00;0,00;2,50;0,00;2,50",
                                      "'=Cave;10;0,00;0,00;0,00;0,00;0,00;0,00;0,00;0,00",
                                      "'=Cave;11;0,00;0,00;0,00;0,00;0,00;0,00;4,50;4,50",
                                      "Bar;9;0,00;0,00;0,00;0,00;0,00;5,00;0,00;5,00"};
        QTest::newRow("uses") << "--consommation"
                              << QStringList{"Caisse;Composition;Quantité;Unité",
                                     "'=Cave;Café moulu;7;g", "Bar;Café moulu;14;g"};
        QTest::newRow("closing") << "--cloture"
                                 << QStringList{
                                        "Caisse;Article;Lignes;Total HT", "'=Cave;Kir;1;4,50"};
    }

    void eachRowOfAFileNamesItsTill()
    {
        QFETCH(QString, page);
        QFETCH(QStringList, file);
        const TwoTills tills;
        QCOMPARE(csv(tills, {page, "--du", "2020-02-01", "--au", "2020-02-02"}), file);
    }

    void oneTillIsNamed()
    {
        const TwoTills tills;
        QCOMPARE(csv(tills, {"--articles", "--du", "2020-02-01", "--caisse", "Bar"}),
            (QStringList{"Caisse;Rang;Article;Lignes;Total HT;Part (%);Part cumulée (%)",
                "Bar;1;Café;2;5,00;100,00;100,00"}));
    }

    void tillsAreNamedInTheOrderOfTheBook()
    {
        const TwoTills tills;
        const QStringList both = csv(tills,
            {"--consommation", "--du", "2020-02-01", "--caisse", "Bar", "--caisse", "=Cave"});
        QCOMPARE(both,
            (QStringList{"Caisse;Composition;Quantité;Unité", "'=Cave;Café moulu;7;g",
                "Bar;Café moulu;14;g"}));
    }

    void anUnknownTillIsSaid()
    {
        const TwoTills tills;
        const Said said = gestion({"--central", tills.uri(), "--caisse", "Salle", "--ventes",
            "--du", "2020-02-01", "--csv", "-"});
        QCOMPARE(said.status, 1);
        QCOMPARE(said.errors,
            QString("vendel-gestion: Le livre central n'a pas de caisse « Salle ». Il a : =Cave, "
                    "Bar.\n"));
        QCOMPARE(said.output, QString());
    }

    void aMissingDriverIsNamed()
    {
        // A copy of the program that finds Qt's platforms, and nothing else of Qt's.
        const QTemporaryDir folder;
        const QString program = folder.filePath("vendel-gestion");
        QVERIFY(QFile::copy(VENDEL_GESTION, program));
        QVERIFY(QDir(folder.path()).mkdir("plugins"));
        QString platforms;
        const QStringList paths = QCoreApplication::libraryPaths();
        for (const QString& path : paths) {
            platforms = QDir(path).exists("platforms") ? path + "/platforms" : platforms;
        }
        QVERIFY(QFile::link(platforms, folder.filePath("plugins/platforms")));
        QFile settings(folder.filePath("qt.conf"));
        QVERIFY(settings.open(QIODevice::WriteOnly));
        settings.write("[Paths]\nPlugins=" + folder.filePath("plugins").toUtf8() + '\n');
        settings.close();
        const Said said = gestion({"--central", QString::fromStdString(server().uri("postgres")),
                                      "--ventes", "--du", "2020-02-01", "--csv", "-"},
            program);
        QCOMPARE(said.status, 1);
        QCOMPARE(said.errors,
            QString("vendel-gestion: Il manque à ce système de quoi lire un livre central : "
                    "installez le paquet libqt%1sql%1-psql.\n")
                .arg(QT_VERSION_MAJOR));
    }

    void paperShowsTillsSideBySide()
    {
        const TwoTills tills;
        for (const char* page :
            {"--ventes", "--articles", "--heures", "--consommation", "--cloture"}) {
            const Said said = gestion({"--central", tills.uri(), "--caisse", "Bar", "--caisse",
                "=Cave", page, "--du", "2020-02-01", "--pdf", "-"});
            QCOMPARE(said.errors, QString());
            QVERIFY(said.output.startsWith("%PDF"));
        }
    }
};

VENDEL_TEST(TestCentralPages)
#include "tst_CentralPages.moc"
