// SPDX-License-Identifier: MIT
#include "backoffice/Order.h"
#include "tests/support/TestProgram.h"

namespace {
QString mistake(const QString& command)
{
    try {
        parseOrder(command.split(' ', Qt::SkipEmptyParts));
    } catch (const BadOrder& bad) {
        return bad.sentence().replace(QChar(0xa0), QLatin1Char(' '));
    }
    return QStringLiteral("none");
}
} // namespace

class TestGestionOrder : public QObject
{
    Q_OBJECT

private slots:
    void nothingAsksForTheWindow()
    {
        const Order order = parseOrder({});
        QCOMPARE(order.action, Order::Action::Window);
        QVERIFY(order.folder.isEmpty());
        QVERIFY(!order.language);
    }

    void aWindowMayHaveAFolderAndALanguage()
    {
        const Order order = parseOrder({"--dossier", "my shop", "--langue=en"});
        QCOMPARE(order.action, Order::Action::Window);
        QCOMPARE(order.folder, QStringLiteral("my shop"));
        QCOMPARE(*order.language, Language::English);
    }

    void aBookMayHaveTills()
    {
        const Order order = parseOrder({"--central", "postgresql://lea@serveur/livre", "--caisse",
            "Bar", "--caisse=Cave", "--caisse", "Bar"});
        QCOMPARE(order.action, Order::Action::Window);
        QCOMPARE(order.central, QStringLiteral("postgresql://lea@serveur/livre"));
        QVERIFY(
            order.tills == (std::vector<QString>{QStringLiteral("Bar"), QStringLiteral("Cave")}));
        QVERIFY(parseOrder({}).tills.empty());
    }

    void aPageIsAFile_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<int>("page");
        QTest::newRow("sales") << "--ventes" << static_cast<int>(Page::Sales);
        QTest::newRow("articles") << "--articles" << static_cast<int>(Page::Articles);
        QTest::newRow("hours") << "--heures" << static_cast<int>(Page::Hours);
        QTest::newRow("uses") << "--consommation" << static_cast<int>(Page::Uses);
        QTest::newRow("closing") << "--cloture" << static_cast<int>(Page::Closing);
    }

    void aPageIsAFile()
    {
        QFETCH(QString, option);
        QFETCH(int, page);
        const Order order
            = parseOrder({option, "--du", "2026-11-01", "--au", "2026-11-30", "--pdf", "a.pdf"});
        QCOMPARE(order.action, Order::Action::File);
        QCOMPARE(static_cast<int>(order.page), page);
        QVERIFY(order.range == (DayRange{{2026, 11, 1}, {2026, 11, 30}}));
        QCOMPARE(order.kind, Order::Kind::Pdf);
        QCOMPARE(order.file, QStringLiteral("a.pdf"));
        QVERIFY(!order.taxRate);
        QVERIFY(!order.csvFormat);
    }

    void theOrderOfTheOptionsIsFree()
    {
        const Order order = parseOrder(
            {"--csv-format=en", "--csv", "-", "--taux", "5,5", "--du=2026-11-01", "--ventes"});
        QCOMPARE(order.kind, Order::Kind::Csv);
        QCOMPARE(order.file, QStringLiteral("-"));
        QCOMPARE(*order.taxRate, 5.5);
        QCOMPARE(order.csvFormat->separator, QChar(','));
        QVERIFY(order.range == (DayRange{{2026, 11, 1}, {2026, 11, 1}}));
        QCOMPARE(parseOrder({"--ventes", "--du", "2026-11-01", "--png=--x"}).file,
            QStringLiteral("--x"));
    }

    void helpAndVersionNeedNothingElse()
    {
        QCOMPARE(parseOrder({"--aide"}).action, Order::Action::Help);
        QCOMPARE(parseOrder({"--help"}).action, Order::Action::Help);
        QCOMPARE(parseOrder({"--ventes", "--version"}).action, Order::Action::Version);
    }

    void aMistakeIsNamed_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("sentence");
        const auto row = [](const char* command, const char* sentence) {
            QTest::newRow(command) << QString(command) << QString::fromUtf8(sentence);
        };
        row("--vente", "L'option « --vente » n'existe pas.");
        row("bonjour", "L'option « bonjour » n'existe pas.");
        row("--du 2026-11-01 = ", "L'option « = » n'existe pas.");
        row("--dossier", "L'option « --dossier » attend une valeur.");
        row("--dossier=", "L'option « --dossier » attend une valeur.");
        row("--ventes --csv --du 2026-11-01", "L'option « --csv » attend une valeur.");
        row("--ventes=oui", "L'option « --ventes » n'attend pas de valeur.");
        row("--aide=oui", "L'option « --aide » n'attend pas de valeur.");
        row("--du 01/11/2026",
            "« 01/11/2026 » n'est pas une date : elle s'écrit comme 2026-11-30.");
        row("--du 2026-02-29",
            "« 2026-02-29 » n'est pas une date : elle s'écrit comme 2026-11-30.");
        row("--au 2026-11-1", "« 2026-11-1 » n'est pas une date : elle s'écrit comme 2026-11-30.");
        row("--ventes --csv - --du 2026-11-02 --au 2026-11-01",
            "Le premier jour demandé est après le dernier, 2026-11-01.");
        row("--taux beaucoup", "« beaucoup » n'est pas un taux de 0 à 100 pour cent.");
        row("--taux nan", "« nan » n'est pas un taux de 0 à 100 pour cent.");
        row("--taux -1", "« -1 » n'est pas un taux de 0 à 100 pour cent.");
        row("--taux 100.5", "« 100.5 » n'est pas un taux de 0 à 100 pour cent.");
        row("--langue de",
            "« de » n'est pas une langue de ce programme : il y a « fr » et « en ».");
        row("--csv-format de", "« de » n'est pas un format de CSV : il y a « fr » et « en ».");
        row("--ventes --heures", "Une seule page peut être demandée : « --heures » est de trop.");
        row("--csv a --pdf b", "Un seul fichier peut être demandé : « --pdf » est de trop.");
        row("--csv a",
            "« --csv » demande une page : --ventes, --articles, --heures, "
            "--consommation ou --cloture.");
        row("--du 2026-11-01",
            "« --du » demande une page : --ventes, --articles, --heures, "
            "--consommation ou --cloture.");
        row("--ventes --du 2026-11-01", "« --ventes » demande un fichier : --csv, --pdf ou --png.");
        row("--caisse Bar", "« --caisse » demande un livre central : --central ADRESSE.");
        row("--central", "L'option « --central » attend une valeur.");
        row("--ventes --csv -", "« --ventes » demande un premier jour : --du 2026-11-30.");
    }

    void aMistakeIsNamed()
    {
        QFETCH(QString, command);
        QFETCH(QString, sentence);
        QCOMPARE(mistake(command), sentence);
    }

    void theLanguageIsFoundInAWrongCommand()
    {
        QCOMPARE(*languageIn({"--oops", "--langue", "en"}), Language::English);
        QCOMPARE(*languageIn({"--langue=fr", "--oops"}), Language::French);
        QVERIFY(!languageIn({"--langue"}));
        QVERIFY(!languageIn({"--langue", "de"}));
        QVERIFY(!languageIn({}));
    }
};

VENDEL_TEST(TestGestionOrder)
#include "tst_GestionOrder.moc"
