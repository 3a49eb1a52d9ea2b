// SPDX-License-Identifier: MIT
#include "app/Receipt.h"
#include "tests/app/PrintedReceipt.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <stdexcept>

class TestReceipt : public QObject
{
    Q_OBJECT

private slots:
    void aWholeReceiptIsTheseBytes()
    {
        const Shop shop;
        shop.sql("update Config set valeur = 20 where param = 'TVA'");
        writeHeader(shop, "titre:Chez Paul\n12 rue X");
        writeFooter(shop, "Merci !\n");
        putOnTicket(shop, "Thé", "2.5");
        putOnTicket(shop, "Thé", "2.5");
        putOnTicket(shop, "Thé", "2.5");
        COMPARE_BYTES(printedReceipt(),
            "\x1b\x21\x30\x1b\x61\x01"
            "Chez Paul\r\n"
            "\x1b\x21\x02\x1b\x61\x30"
            "\x1b\x45\x01"
            "                   12 rue X                   \r\n"
            "\x1b\x45\x02"
            "\r\n"
            "\r\n"
            "Produit\t\t\t     05/03/2024 09:07:03\r\n"
            "\r\n"
            "Qtit\x82  Article\t\tPrix U   Prix * Qtit\x82\r\n"
            "\r\n"
            "3  Th\x82           \t$2.50       $7.50\r\n"
            "\r\n"
            "->  Total ticket\t\t    $7.50\r\n"
            "->  TVA 20.00%\t\t\t    $1.50\r\n"
            "------------------------------------------------\r\n"
            "\x1b\x21\x20\x1b\x45\x01"
            "->  TOTAL \t    $9.01\r\n"
            "\x1b\x45\x02\x1b\x21\x02"
            "\r\n"
            "                    Merci !                    \r\n"
            "                                              \r\n");
    }

    void withoutHeaderAndFooterOnlyTheSaleRemains()
    {
        const Shop shop;
        putOnTicket(shop, "Eau", "7.5");
        COMPARE_BYTES(printedReceipt(),
            "\r\n"
            "\r\n"
            "Produit\t\t\t     05/03/2024 09:07:03\r\n"
            "\r\n"
            "Qtit\x82  Article\t\tPrix U   Prix * Qtit\x82\r\n"
            "\r\n"
            "1  Eau            \t$7.50       $7.50\r\n"
            "\r\n"
            "->  Total ticket\t\t    $7.50\r\n"
            "->  TVA 0.00%\t\t\t    $0.00\r\n"
            "------------------------------------------------\r\n"
            "\x1b\x21\x20\x1b\x45\x01"
            "->  TOTAL \t    $7.51\r\n"
            "\x1b\x45\x02\x1b\x21\x02"
            "\r\n");
    }

    void threeUnitsAreOneLine()
    {
        const Shop shop;
        putOnTicket(shop, "Croissant", "2.5");
        putOnTicket(shop, "Croissant", "2.5");
        putOnTicket(shop, "Croissant", "2.5");
        COMPARE_BYTES(printedItems(), "3  Croissant      \t$2.50       $7.50\r\n");
    }

    void unitsAtAnotherPriceAreALineOfTheirOwn()
    {
        const Shop shop;
        putOnTicket(shop, "Eau", "3");
        putOnTicket(shop, "Bière", "4");
        putOnTicket(shop, "Eau", "2");
        putOnTicket(shop, "Eau", "3");
        COMPARE_BYTES(printedItems(),
            "1  Bi\x8are         \t$4.00       $4.00\r\n"
            "1  Eau            \t$2.00       $2.00\r\n"
            "2  Eau            \t$3.00       $6.00\r\n");
    }

    void articlesThatDifferInCaseAreOneLine()
    {
        const Shop shop;
        putOnTicket(shop, "Cafe", "2");
        putOnTicket(shop, "CAFE", "2");
        // Which of the two spellings stands there is SQLite's choice.
        COMPARE_BYTES(printedItems().toLower(), "2  cafe           \t$2.00       $4.00\r\n");
    }

    void aFreeAmountIsALine()
    {
        const Shop shop;
        putOnTicket(shop, "----", "-2.5");
        COMPARE_BYTES(printedItems(), "1  ----           \t$-2.50      $-2.50\r\n");
    }

    void aLongNamePushesTheRestOfItsLine()
    {
        const Shop shop;
        putOnTicket(shop, "Assiette de fromages", "12");
        COMPARE_BYTES(printedItems(), "1  Assiette de fromages\t$12.00      $12.00\r\n");
    }

    void aNameOfFifteenLettersStandsUnpadded()
    {
        const Shop shop;
        putOnTicket(shop, "Croque-monsieur", "8");
        COMPARE_BYTES(printedItems(), "1  Croque-monsieur\t$8.00       $8.00\r\n");
    }

    void anAccentedNameStandsOneColumnShort()
    {
        const Shop shop;
        putOnTicket(shop, "Café crème", "3");
        // Ten letters and three blanks: two of the fifteen bytes go to the second halves of é and
        // è.
        COMPARE_BYTES(printedItems(), "1  Caf\x82 cr\x8ame   \t$3.00       $3.00\r\n");
    }

    void aNameOfTenThousandLettersIsNotCut()
    {
        const Shop shop;
        const QByteArray name(10'000, 'x');
        putOnTicket(shop, name.constData(), "1");
        COMPARE_BYTES(printedItems(), "1  " + name + "\t$1.00       $1.00\r\n");
    }

    void aSemicolonAndQuotesArePrintedAsTheyStand()
    {
        const Shop shop;
        putOnTicket(shop, "l''eau; \"100%\"", "1");
        COMPARE_BYTES(printedItems(), "1  l'eau; \"100%\"  \t$1.00       $1.00\r\n");
    }

    void aControlCharacterInANameIsABlank_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("printed");
        QTest::newRow("the command that opens the drawer")
            << QByteArray("\x1bp0zz") << QByteArray(" p0zz          ");
        QTest::newRow("the first and the last of them")
            << QByteArray("a\x01\x1f\x7fz") << QByteArray("a   z          ");
        QTest::newRow("those around the tab and the carriage return")
            << QByteArray("a\x08\x0a\x0c\x0ez") << QByteArray("a    z         ");
        QTest::newRow("a tab") << QByteArray("a\tz") << QByteArray("a\tz            ");
        QTest::newRow("a carriage return") << QByteArray("a\rz") << QByteArray("a\rz            ");
    }

    void aControlCharacterInANameIsABlank()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, printed);
        const Shop shop;
        putOnTicket(shop, name.constData(), "1");
        COMPARE_BYTES(printedItems(), "1  " + printed + "\t$1.00       $1.00\r\n");
    }

    void tenUnitsFillTheQuantityColumn()
    {
        const Shop shop;
        for (int unit = 0; unit < 10; ++unit) {
            putOnTicket(shop, "Eau", "2");
        }
        COMPARE_BYTES(printedItems(), "10 Eau            \t$2.00       $20.00\r\n");
    }

    void aHundredUnitsPushTheRestOfTheirLine()
    {
        const Shop shop;
        shop.sql("with recursive n(i) as (select 1 union all select i + 1 from n where i < 100) "
                 "insert into Ticket (id, article, prix) select 7, 'Eau', 20 from n");
        COMPARE_BYTES(printedItems(), "100 Eau            \t$20.00      $2,000.00\r\n");
    }

    void aLongPricePushesTheRestOfItsLine()
    {
        const Shop shop;
        putOnTicket(shop, "Voyage", "1234567.5");
        COMPARE_BYTES(printedItems(), "1  Voyage         \t$1,234,567.50   $1,234,567.50\r\n");
    }

    void aPriceThatIsNoNumberCountsAsZero()
    {
        const Shop shop;
        putOnTicket(shop, "Vide", "''");
        putOnTicket(shop, "Texte", "'abc'");
        putOnTicket(shop, "Virgule", "'2,5'");
        // Only SQLite's own product reads the number that a text begins with.
        COMPARE_BYTES(printedItems(),
            "1  Texte          \t$0.00       $0.00\r\n"
            "1  Vide           \t$0.00       $0.00\r\n"
            "1  Virgule        \t$0.00       $2.00\r\n");
    }

    void totals_data()
    {
        QTest::addColumn<QByteArray>("price");
        QTest::addColumn<QByteArray>("rate");
        QTest::addColumn<QByteArray>("sumText");
        QTest::addColumn<QByteArray>("taxText");
        QTest::addColumn<QByteArray>("grandTotalText");
        const auto row = [](const char* name, const char* price, const char* rate, const char* sum,
                             const char* tax, const char* grandTotal) {
            QTest::newRow(name) << QByteArray(price) << QByteArray(rate) << QByteArray(sum)
                                << QByteArray(tax) << QByteArray(grandTotal);
        };
        row("half a cent rounds up", "10", "20", "$10.00", "20.00%\t\t\t    $2.01", "$12.01");
        row("half a cent rounds down", "16", "20", "$16.00", "20.00%\t\t\t    $3.20", "$19.20");
        row("half a cent without a tax", "10", "0", "$10.00", "0.00%\t\t\t    $0.00", "$10.01");
        row("a broken rate", "8.25", "19.6", "$8.25", "19.60%\t\t\t    $1.62", "$9.87");
        row("below a thousand", "999.99", "20", "$999.99", "20.00%\t\t\t    $200.00", "$1,199.99");
        row("a thousand", "1000", "20", "$1,000.00", "20.00%\t\t\t    $0.00", "$0.00");
        row("above a thousand", "1234.5", "20", "$1,234.50", "20.00%\t\t\t    $0.00", "$0.00");
        row("a million", "1234567.5", "20", "$1,234,567.50", "20.00%\t\t\t    $0.00", "$0.00");
        row("a negative ticket", "-10", "20", "$-10.00", "20.00%\t\t\t    $-2.00", "$-11.99");
        row("nothing", "0", "20", "$0.00", "20.00%\t\t\t    $0.00", "$0.00");
        row("a rate beyond a thousand", "10", "1234.5", "$10.00", "1,234.50%\t\t\t    $0.00",
            "$10.01");
    }

    void totals()
    {
        QFETCH(QByteArray, price);
        QFETCH(QByteArray, rate);
        QFETCH(QByteArray, sumText);
        QFETCH(QByteArray, taxText);
        QFETCH(QByteArray, grandTotalText);
        const Shop shop;
        shop.sql(("update Config set valeur = " + rate + " where param = 'TVA'").constData());
        putOnTicket(shop, "Eau", price.constData());
        COMPARE_BYTES(printedTotals(),
            "->  Total ticket\t\t    " + sumText + "\r\n->  TVA " + taxText
                + "\r\n------------------------------------------------\r\n\x1b! \x1b"
                  "E\x01->  TOTAL \t    "
                + grandTotalText
                + "\r\n\x1b"
                  "E\x02\x1b!\x02\r\n");
    }

    void withoutARateThereIsNoTaxLine()
    {
        const Shop shop;
        shop.sql("delete from Config where param = 'TVA'");
        putOnTicket(shop, "Eau", "7.5");
        COMPARE_BYTES(printedTotals(),
            "->  Total ticket\t\t    $7.50\r\n"
            "------------------------------------------------\r\n"
            "\x1b\x21\x20\x1b\x45\x01"
            "->  TOTAL \t    $7.50\r\n"
            "\x1b\x45\x02\x1b\x21\x02"
            "\r\n");
    }

    void eachRateGivesATaxLineAndTheLastTaxCounts()
    {
        const Shop shop;
        shop.sql("update Config set valeur = 20 where param = 'TVA'");
        shop.sql("insert into Config (param, valeur) values ('TVA', 5.5)");
        putOnTicket(shop, "Eau", "10");
        COMPARE_BYTES(printedTotals(),
            "->  Total ticket\t\t    $10.00\r\n"
            "->  TVA 20.00%\t\t\t    $2.01\r\n"
            "->  TVA 5.50%\t\t\t    $0.56\r\n"
            "------------------------------------------------\r\n"
            "\x1b\x21\x20\x1b\x45\x01"
            "->  TOTAL \t    $10.56\r\n"
            "\x1b\x45\x02\x1b\x21\x02"
            "\r\n");
    }

    void aRateThatIsNoNumberIsZero()
    {
        const Shop shop;
        shop.sql("update Config set valeur = 'vingt' where param = 'TVA'");
        putOnTicket(shop, "Eau", "7.5");
        QVERIFY(printedTotals().contains("\r\n->  TVA 0.00%\t\t\t    $0.00\r\n"));
        QVERIFY(printedTotals().contains("->  TOTAL \t    $7.51\r\n"));
    }

    void theRateIsFoundInAnyCase()
    {
        const Shop shop;
        shop.sql("update Config set param = 'tva', valeur = 20 where param = 'TVA'");
        putOnTicket(shop, "Eau", "10");
        QVERIFY(printedTotals().contains("\r\n->  TVA 20.00%\t\t\t    $2.01\r\n"));
    }

    void theRuleIsFortyEightDashes()
    {
        const Shop shop;
        putOnTicket(shop, "Eau", "1");
        QVERIFY(printedReceipt().contains("\r\n" + QByteArray(48, '-') + "\r\n"));
    }

    void aTranslationChangesTheReceiptAndTheTitleMark()
    {
        const QString context = QString("FormVendelMessages");
        const Shop shop;
        Translation english;
        english.add(context, QString("titre:"), QString("title:"));
        english.add(context, QString("Produit"), QString("Item"));
        english.add(context, QString("dd/MM/yyyy"), QString("MM-dd-yyyy"));
        english.add(context, QString("Qtité  "), QString("Qty    "));
        english.add(context, QString("Article"), QString("Name"));
        english.add(context, QString("Prix U"), QString("Price"));
        english.add(context, QString("Prix * Qtité"), QString("Price * Qty"));
        english.add(context, QString("Total ticket"), QString("Ticket"));
        english.add(context, QString("TVA "), QString("VAT "));
        english.add(context, QString("TOTAL "), QString("SUM "));
        writeHeader(shop, "title:Paul\ntitre:Anne");
        putOnTicket(shop, "Eau", "7.5");
        COMPARE_BYTES(printedReceipt(),
            "\x1b\x21\x30\x1b\x61\x01"
            "Paul\r\n"
            "\x1b\x21\x02\x1b\x61\x30"
            "\x1b\x45\x01"
            "                  titre:Anne                  \r\n"
            "\x1b\x45\x02"
            "\r\n"
            "\r\n"
            "Item\t\t\t     03-05-2024 09:07:03\r\n"
            "\r\n"
            "Qty    Name\t\tPrice   Price * Qty\r\n"
            "\r\n"
            "1  Eau            \t$7.50       $7.50\r\n"
            "\r\n"
            "->  Ticket\t\t    $7.50\r\n"
            "->  VAT 0.00%\t\t\t    $0.00\r\n"
            "------------------------------------------------\r\n"
            "\x1b\x21\x20\x1b\x45\x01"
            "->  SUM \t    $7.51\r\n"
            "\x1b\x45\x02\x1b\x21\x02"
            "\r\n");
    }

    void theReceiptsOwnTranslationComesFirst()
    {
        const Shop shop;
        Translation english;
        english.add(QString("FormVendelMessages"), QString("Produit"), QString("Item"));
        english.add(QString("FormVendelTicketMessages"), QString("Produit"), QString("Product"));
        QVERIFY(printedReceipt().startsWith("\r\n\r\nProduct\t\t\t     05/03/2024"));
    }

    void withoutATicketTableThereIsNoReceipt()
    {
        const Shop shop;
        shop.sql("drop table Ticket");
        CapturedOutput output;
        QVERIFY_EXCEPTION_THROWN(printedReceipt(), std::out_of_range);
        QCOMPARE(output.text().count("no such table: Ticket"), 2);
    }
};

VENDEL_TEST(TestReceipt)
#include "tst_Receipt.moc"
