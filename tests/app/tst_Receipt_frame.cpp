// SPDX-License-Identifier: MIT
#include "app/Receipt.h"
#include "common/ReceiptFiles.h"
#include "tests/app/PrintedReceipt.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"

#include <QDir>

#include <stdexcept>

namespace {
const QByteArray bold = "\033E\001";
const QByteArray notBold = "\033E\002";
const QByteArray bigAndCentred = "\033!0\033a\001";
const QByteArray normalAndLeft = "\033!\002\033a0";
const QByteArray blank46(46, ' ');

QByteArray boldLine(const QByteArray& text)
{
    return bold + text + "\r\n" + notBold;
}

QByteArray titleLine(const QByteArray& text)
{
    return bigAndCentred + text + "\r\n" + normalAndLeft;
}

/// What is printed above the sale for a header file of \a file.
QByteArray printedHeader(const QByteArray& file)
{
    const Shop shop;
    writeHeader(shop, file);
    const QByteArray receipt = printedReceipt();
    return receipt.left(receipt.indexOf("\r\n\r\nProduit"));
}

/// What is printed below the sale for a footer file of \a file.
QByteArray printedFooter(const QByteArray& file)
{
    const QByteArray endOfTotal = "\033E\002\033!\002\r\n";
    const Shop shop;
    writeFooter(shop, file);
    const QByteArray receipt = printedReceipt();
    return receipt.mid(receipt.indexOf(endOfTotal) + endOfTotal.size());
}

/// Compares what is printed of each header.
void compareHeaders(const Rows<QByteArray, QByteArray>& rows)
{
    for (const auto& [row, file, bytes] : rows) {
        const InRow inRow(row);
        COMPARE_BYTES(printedHeader(file), bytes);
    }
}
} // namespace

/// The texts above and below a sale.
class TestReceiptFrame : public QObject
{
    Q_OBJECT

private slots:
    void aLineIsCentredAndBold()
    {
        const QByteArray line46(46, 'x');
        const QByteArray line47(47, 'x');
        const QByteArray line48(48, 'x');
        const QByteArray line49(49, 'x');
        compareHeaders({
            {"a plain line", "12 rue X",
                boldLine("                   12 rue X                   ")},
            {"a plain line of odd length", "75011 Paris",
                boldLine("                  75011 Paris                  ")},
            {"an empty line between two", "a\n\nb",
                boldLine("                       a                       ") + boldLine(blank46)
                    + boldLine("                       b                       ")},
            {"a line end at the end of the file", "12 rue X\n",
                boldLine("                   12 rue X                   ") + boldLine(blank46)},
            {"nothing but line ends", "\n\n",
                boldLine(blank46) + boldLine(blank46) + boldLine(blank46)},
            {"46 bytes", line46, boldLine(line46)},
            {"47 bytes", line47, boldLine(line47)},
            {"48 bytes", line48, boldLine(line48)},
            {"49 bytes", line49, boldLine("")},
            {"44 letters and 4 accented ones", QByteArray(40, 'x') + "éééé",
                boldLine(QByteArray(40, 'x') + "\x82\x82\x82\x82")},
            {"24 accented letters and one more byte", QByteArray("é").repeated(24) + "x",
                boldLine("")},
            {"Windows line ends", "ab\r\ntitre:Chez Paul\r\n",
                boldLine("                      ab\r                      ")
                    + titleLine("Chez Paul\r") + boldLine(blank46)},
            {"a line end of 48 bytes with its carriage return", line47 + "\r\n" + line48 + "\r",
                boldLine(line47 + '\r') + boldLine("")},
            {"a euro sign", "3 €", boldLine("                     3 \xd5                     ")},
            {"accents", "À bientôt",
                boldLine("                  \xb7 bient\x93t                  ")},
            {"semicolons and angle brackets", "<b>;a;</b>",
                boldLine("                  <b>;a;</b>                  ")},
        });
    }

    void aTitleIsLarge()
    {
        compareHeaders({
            {"a title", "titre:Chez Paul", titleLine("Chez Paul")},
            {"a title with a second colon", "titre:Ouvert : 8 h", titleLine("Ouvert ")},
            {"an empty title", "titre:", titleLine("")},
            {"a title with blanks", "titre: Chez Paul ", titleLine(" Chez Paul ")},
            {"a title longer than the paper", "titre:" + QByteArray(60, 'x'),
                titleLine(QByteArray(60, 'x'))},
            {"a title mark in the middle of a line", "Notre titre:Chez Paul",
                titleLine("Chez Paul")},
            {"a colon before the title mark", "a:titre:Chez Paul", titleLine("titre")},
            {"a euro sign in a title", "titre:3 €", titleLine("3 \xd5")},
            {"a command in a title", "titre:Chez\x1bp0 Paul\x10\x14", titleLine("Chez p0 Paul  ")},
            {"a capital in the title mark", "Titre:Chez Paul",
                boldLine("                Titre:Chez Paul                ")},
            {"a blank in the title mark", "titre :Chez Paul",
                boldLine("               titre :Chez Paul               ")},
            {"a command in the title mark", "titre\x1b:Chez Paul",
                boldLine("               titre :Chez Paul               ")},
        });
    }

    void aControlCharacterIsABlankAndANulEndsALine()
    {
        compareHeaders({
            {"a NUL in a line", QByteArray("ab\0cd\nef", 8),
                boldLine("                      ab                      ")},
            {"a NUL at the start of a line", QByteArray("ab\n\0cd", 6),
                boldLine("                      ab                      ") + boldLine(blank46)},
            {"a NUL at the start", QByteArray("\0ab", 3), boldLine(blank46)},
            {"a tab", "a\tb", boldLine("                      a\tb                      ")},
            {"a command that changes the printer's settings", "a\x1d(E\x03z",
                boldLine("                    a (E z                    ")},
            {"the first and the last control characters", "a\x01\x1f\x7fz",
                boldLine("                     a   z                     ")},
            {"those around the tab, the line feed and the carriage return", "a\x08\x0b\x0c\x0ez",
                boldLine("                    a    z                    ")},
        });
    }

    void aFooterHasTheseBytes()
    {
        const Rows<QByteArray, QByteArray> rows{
            {"a plain line", "Merci !", "                    Merci !                    "},
            {"an empty line and the file's last line end", "\na\n",
                blank46 + "\r\n                       a                       \r\n" + blank46},
            {"48 bytes", QByteArray(48, 'x'), QByteArray(48, 'x')},
            {"49 bytes", QByteArray(49, 'x'), ""},
            {"a carriage return", "ab\r\n",
                "                      ab\r                      \r\n" + blank46},
            {"a command", "a\x1bp0z", "                     a p0z                     "},
            {"a NUL", QByteArray("ab\0cd", 5), "                      ab                      "},
        };
        for (const auto& [row, file, bytes] : rows) {
            const InRow inRow(row);
            COMPARE_BYTES(printedFooter(file), bytes + "\r\n");
        }
        COMPARE_BYTES(printedFooter("titre:Merci"), titleLine("Merci"));
    }

    void anEmptyFileIsAnEmptyLineAndAMissingOneIsNothing()
    {
        COMPARE_BYTES(printedHeader(""), boldLine(blank46));
        COMPARE_BYTES(printedFooter(""), blank46 + "\r\n");
        const Shop shop;
        QVERIFY(!ReceiptFiles::read(ReceiptFiles::header));
        QVERIFY(printedReceipt().startsWith("\r\n\r\nProduit"));
        QVERIFY(printedReceipt().endsWith("\033E\002\033!\002\r\n"));
    }

    void aFolderInAFilesPlaceIsNothing()
    {
        const Shop shop;
        QVERIFY(QDir().mkdir("EnteteFormulaire.dat"));
        QVERIFY(printedReceipt().startsWith("\r\n\r\nProduit"));
    }

    void aHeaderOfAMegabyteIsPrintedWhole()
    {
        constexpr int lines = 100'000;
        const QByteArray header = printedHeader(QByteArray("123456789\n").repeated(lines));
        const QByteArray line = boldLine("                   123456789                   ");
        QVERIFY(header == line.repeated(lines) + boldLine(blank46));
    }

    void aLineOfAMegabyteDisappears()
    {
        COMPARE_BYTES(printedHeader(QByteArray(1'000'000, 'x') + "\na"),
            boldLine("") + boldLine("                       a                       "));
    }

    void aTextThatIsNoUtf8IsNotPrinted()
    {
        QVERIFY_EXCEPTION_THROWN(printedHeader("Caf\xe9"), std::runtime_error);
        QVERIFY_EXCEPTION_THROWN(printedFooter("\xc3"), std::runtime_error);
        // What disappears from the receipt does no harm.
        COMPARE_BYTES(printedHeader("\xff" + QByteArray(49, 'x')), boldLine(""));
    }

    void aCharacterThatThePrinterLacksIsNotPrinted()
    {
        const Rows<QByteArray> rows{
            {"a ligature", "cœur"},
            {"an emoji", "🍺"},
            {"Arabic", "قهوة"},
            {"a right-to-left mark", "a\u200f"},
            {"a curly quote", "l’eau"},
        };
        for (const auto& [row, text] : rows) {
            const InRow inRow(row);
            QVERIFY_EXCEPTION_THROWN(printedHeader(text), std::runtime_error);
            QVERIFY_EXCEPTION_THROWN(printedHeader("titre:" + text), std::runtime_error);
            QVERIFY_EXCEPTION_THROWN(printedFooter(text), std::runtime_error);
            const Shop shop;
            putOnTicket(shop, text, "1");
            QVERIFY_EXCEPTION_THROWN(printedReceipt(), std::runtime_error);
        }
    }

    void bothFilesAreReadAtEachSale()
    {
        const Shop shop;
        writeHeader(shop, "titre:Lundi");
        QVERIFY(printedReceipt().startsWith(titleLine("Lundi")));
        writeHeader(shop, "titre:Mardi");
        QVERIFY(printedReceipt().startsWith(titleLine("Mardi")));
        writeFooter(shop, "titre:Soir");
        QVERIFY(printedReceipt().endsWith(titleLine("Soir")));
    }
};

VENDEL_TEST(TestReceiptFrame)
#include "tst_Receipt_frame.moc"
