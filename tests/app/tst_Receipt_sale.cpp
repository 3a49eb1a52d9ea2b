// SPDX-License-Identifier: MIT
#include "app/Receipt.h"
#include "tests/app/PrintedReceipt.h"
#include "tests/support/Captured.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <stdexcept>
#include <utility>
#include <vector>

namespace {
using Line = std::pair<QByteArray, QByteArray>;
using Lines = std::vector<Line>;
using Amounts = std::vector<QByteArray>;
} // namespace

/// What is sold, and the totals below it.
class TestReceiptSale : public QObject
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
            "\033!0\033a\001Chez Paul\r\n"
            "\033!\002\033a0\033E\001                   12 rue X                   \r\n"
            "\033E\002\r\n\r\n"
            "Produit\t\t\t     05/03/2024 09:07:03\r\n\r\n"
            "Qtit\x82  Article\t\tPrix U   Prix * Qtit\x82\r\n\r\n"
            "3  Th\x82           \t$2.50       $7.50\r\n\r\n"
            "->  Total ticket\t\t    $7.50\r\n"
            "->  TVA 20.00%\t\t\t    $1.50\r\n"
            "------------------------------------------------\r\n"
            "\033! \033E\001->  TOTAL \t    $9.01\r\n"
            "\033E\002\033!\002\r\n"
            "                    Merci !                    \r\n"
            "                                              \r\n");
    }

    void withoutHeaderAndFooterOnlyTheSaleRemains()
    {
        const Shop shop;
        putOnTicket(shop, "Eau", "7.5");
        COMPARE_BYTES(printedReceipt(),
            "\r\n\r\n"
            "Produit\t\t\t     05/03/2024 09:07:03\r\n\r\n"
            "Qtit\x82  Article\t\tPrix U   Prix * Qtit\x82\r\n\r\n"
            "1  Eau            \t$7.50       $7.50\r\n\r\n"
            "->  Total ticket\t\t    $7.50\r\n"
            "->  TVA 0.00%\t\t\t    $0.00\r\n"
            "------------------------------------------------\r\n"
            "\033! \033E\001->  TOTAL \t    $7.51\r\n"
            "\033E\002\033!\002\r\n");
    }

    void articlesAreTheseLines()
    {
        const QByteArray longName(10'000, 'x');
        const QByteArray price = "\t$1.00       $1.00\r\n";
        const Rows<Lines, QByteArray> rows{
            {"three units are one line", Lines(3, {"Croissant", "2.5"}),
                "3  Croissant      \t$2.50       $7.50\r\n"},
            {"units at another price are a line of their own",
                {{"Eau", "3"}, {"Bière", "4"}, {"Eau", "2"}, {"Eau", "3"}},
                "1  Bi\x8are         \t$4.00       $4.00\r\n"
                "1  Eau            \t$2.00       $2.00\r\n"
                "2  Eau            \t$3.00       $6.00\r\n"},
            {"a free amount is a line", {{"----", "-2.5"}},
                "1  ----           \t$-2.50      $-2.50\r\n"},
            {"a long name pushes the rest of its line", {{"Assiette de fromages", "12"}},
                "1  Assiette de fromages\t$12.00      $12.00\r\n"},
            {"a name of 15 letters is not padded", {{"Croque-monsieur", "8"}},
                "1  Croque-monsieur\t$8.00       $8.00\r\n"},
            // Ten letters and three blanks: two of the fifteen bytes go to the second halves
            // of é and è.
            {"an accented name is one column short", {{"Café crème", "3"}},
                "1  Caf\x82 cr\x8ame   \t$3.00       $3.00\r\n"},
            {"a name of 10,000 letters is not cut", {{longName, "1"}},
                "1  " + longName + "\t$1.00       $1.00\r\n"},
            {"a semicolon and quotes are printed", {{"l''eau; \"100%\"", "1"}},
                "1  l'eau; \"100%\"  \t$1.00       $1.00\r\n"},
            {"ten units fill the quantity's column", Lines(10, {"Eau", "2"}),
                "10 Eau            \t$2.00       $20.00\r\n"},
            {"a hundred units push the rest of their line", Lines(100, {"Eau", "20"}),
                "100 Eau            \t$20.00      $2,000.00\r\n"},
            {"a long price pushes the rest of its line", {{"Voyage", "1234567.5"}},
                "1  Voyage         \t$1,234,567.50   $1,234,567.50\r\n"},
            // Only SQLite's own product reads the number that a text begins with.
            {"a price that is no number counts as 0",
                {{"Vide", "''"}, {"Texte", "'abc'"}, {"Virgule", "'2,5'"}},
                "1  Texte          \t$0.00       $0.00\r\n"
                "1  Vide           \t$0.00       $0.00\r\n"
                "1  Virgule        \t$0.00       $2.00\r\n"},
            // A control character is a blank, but for the tab and the carriage return.
            {"the command that opens the drawer", {{"\x1bp0zz", "1"}},
                "1   p0zz          " + price},
            {"the first and the last control characters", {{"a\x01\x1f\x7fz", "1"}},
                "1  a   z          " + price},
            {"those around the tab and the carriage return", {{"a\x08\x0a\x0c\x0ez", "1"}},
                "1  a    z         " + price},
            {"a tab", {{"a\tz", "1"}}, "1  a\tz            " + price},
            {"a carriage return", {{"a\rz", "1"}}, "1  a\rz            " + price},
        };
        for (const auto& [row, sold, printed] : rows) {
            const InRow inRow(row);
            const Shop shop;
            for (const Line& line : sold) {
                putOnTicket(shop, line.first, line.second);
            }
            COMPARE_BYTES(printedItems(), printed);
        }
    }

    void articlesThatDifferInCaseAreOneLine()
    {
        const Shop shop;
        putOnTicket(shop, "Cafe", "2");
        putOnTicket(shop, "CAFE", "2");
        // Which of the two spellings is printed is SQLite's choice.
        COMPARE_BYTES(printedItems().toLower(), "2  cafe           \t$2.00       $4.00\r\n");
    }

    void totals()
    {
        const Rows<QByteArray, Amounts, QByteArray, Amounts, QByteArray> rows{
            {"half a cent rounds up", "10", {"20"}, "10.00", {"20.00%\t\t\t    $2.01"}, "12.01"},
            {"half a cent rounds down", "16", {"20"}, "16.00", {"20.00%\t\t\t    $3.20"}, "19.20"},
            {"a broken rate", "8.25", {"19.6"}, "8.25", {"19.60%\t\t\t    $1.62"}, "9.87"},
            {"negative", "-10", {"20"}, "-10.00", {"20.00%\t\t\t    $-2.00"}, "-11.99"},
            {"over 1,000", "1234.5", {"20"}, "1,234.50", {"20.00%\t\t\t    $0.00"}, "0.00"},
            {"a million", "1234567.5", {"20"}, "1,234,567.50", {"20.00%\t\t\t    $0.00"}, "0.00"},
            {"nothing", "0", {"20"}, "0.00", {"20.00%\t\t\t    $0.00"}, "0.00"},
            {"a large rate", "10", {"1234.5"}, "10.00", {"1,234.50%\t\t\t    $0.00"}, "10.01"},
            {"no number", "7.5", {"'vingt'"}, "7.50", {"0.00%\t\t\t    $0.00"}, "7.51"},
            {"no rate, no tax", "7.5", {}, "7.50", {}, "7.50"},
            {"two rates, and the last tax counts", "10", {"20", "5.5"}, "10.00",
                {"20.00%\t\t\t    $2.01", "5.50%\t\t\t    $0.56"}, "10.56"},
        };
        for (const auto& [row, price, rates, sum, taxes, grandTotal] : rows) {
            const InRow inRow(row);
            const Shop shop;
            shop.sql("delete from Config where param = 'TVA'");
            for (const QByteArray& rate : rates) {
                shop.fill(("insert into Config (param, valeur) values ('TVA', " + rate + ")")
                              .constData());
            }
            putOnTicket(shop, "Eau", price);
            QByteArray lines = "->  Total ticket\t\t    $" + sum + "\r\n";
            for (const QByteArray& tax : taxes) {
                lines += "->  TVA " + tax + "\r\n";
            }
            const QByteArray receipt = printedReceipt();
            COMPARE_BYTES(receipt.mid(receipt.indexOf("->  Total ticket")),
                lines
                    + "------------------------------------------------\r\n"
                      "\033! \033E\001->  TOTAL \t    $"
                    + grandTotal + "\r\n\033E\002\033!\002\r\n");
        }
    }

    void theRateIsFoundInAnyCase()
    {
        const Shop shop;
        shop.sql("update Config set param = 'tva', valeur = 20 where param = 'TVA'");
        putOnTicket(shop, "Eau", "10");
        QVERIFY(printedReceipt().contains("\r\n->  TVA 20.00%\t\t\t    $2.01\r\n"));
    }

    void aTranslationChangesTheReceiptAndTheTitleMark()
    {
        const Shop shop;
        Translation english;
        for (const auto& [french, text] : {std::pair{"titre:", "title:"}, {"Produit", "Item"},
                 {"dd/MM/yyyy", "MM-dd-yyyy"}, {"Qtité  ", "Qty    "}, {"Article", "Name"},
                 {"Prix U", "Price"}, {"Prix * Qtité", "Price * Qty"}, {"Total ticket", "Ticket"},
                 {"TVA ", "VAT "}, {"TOTAL ", "SUM "}}) {
            english.add("FormVendelMessages", french, text);
        }
        writeHeader(shop, "title:Paul\ntitre:Anne");
        putOnTicket(shop, "Eau", "7.5");
        COMPARE_BYTES(printedReceipt(),
            "\033!0\033a\001Paul\r\n"
            "\033!\002\033a0\033E\001                  titre:Anne                  \r\n"
            "\033E\002\r\n\r\n"
            "Item\t\t\t     03-05-2024 09:07:03\r\n\r\n"
            "Qty    Name\t\tPrice   Price * Qty\r\n\r\n"
            "1  Eau            \t$7.50       $7.50\r\n\r\n"
            "->  Ticket\t\t    $7.50\r\n"
            "->  VAT 0.00%\t\t\t    $0.00\r\n"
            "------------------------------------------------\r\n"
            "\033! \033E\001->  SUM \t    $7.51\r\n"
            "\033E\002\033!\002\r\n");
    }

    void theReceiptsOwnTranslationComesFirst()
    {
        const Shop shop;
        Translation english;
        english.add("FormVendelMessages", "Produit", "Item");
        english.add("FormVendelTicketMessages", "Produit", "Product");
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

private:
    /// The lines between the headings and the blank line above the totals.
    static QByteArray printedItems()
    {
        const QByteArray headings = "Prix * Qtit\x82\r\n\r\n";
        const QByteArray receipt = printedReceipt();
        const auto begin = receipt.indexOf(headings) + headings.size();
        return receipt.mid(begin, receipt.indexOf("\r\n->  Total ticket") - begin);
    }
};

VENDEL_TEST(TestReceiptSale)
#include "tst_Receipt_sale.moc"
