// SPDX-License-Identifier: MIT
#include "app/Receipt.h"
#include "common/ReceiptFiles.h"
#include "tests/app/PrintedReceipt.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"

#include <QDir>

#include <stdexcept>

namespace {
const QByteArray blank46(46, ' ');

QByteArray bold(const QByteArray& text) { return "\033E\001" + text + "\r\n\033E\002"; }

QByteArray title(const QByteArray& text)
{
    return "\033!0\033a\001" + text + "\r\n\033!\002\033a0";
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
            {"a plain line", "12 rue X", bold("                   12 rue X                   ")},
            {"a plain line of odd length", "75011 Paris",
                bold("                  75011 Paris                  ")},
            {"an empty line between two", "a\n\nb",
                bold("                       a                       ") + bold(blank46)
                    + bold("                       b                       ")},
            {"a line end at the end of the file", "12 rue X\n",
                bold("                   12 rue X                   ") + bold(blank46)},
            {"nothing but line ends", "\n\n", bold(blank46) + bold(blank46) + bold(blank46)},
            {"46 bytes", line46, bold(line46)},
            {"47 bytes", line47, bold(line47)},
            {"48 bytes", line48, bold(line48)},
            {"49 bytes", line49, bold("")},
            {"44 letters and 4 accented ones", QByteArray(40, 'x') + "éééé",
                bold(QByteArray(40, 'x') + "\x82\x82\x82\x82")},
            {"24 accented letters and one more byte", QByteArray("é").repeated(24) + "x", bold("")},
            {"Windows line ends", "ab\r\ntitre:Chez Paul\r\n",
                bold("                      ab\r                      ") + title("Chez Paul\r")
                    + bold(blank46)},
            {"a line end of 48 bytes with its carriage return", line47 + "\r\n" + line48 + "\r",
                bold(line47 + '\r') + bold("")},
            {"a euro sign", "3 €", bold("                     3 \xd5                     ")},
            {"accents", "À bientôt", bold("                  \xb7 bient\x93t                  ")},
            {"semicolons and angle brackets", "<b>;a;</b>",
                bold("                  <b>;a;</b>                  ")},
        });
    }

    void aTitleIsLarge()
    {
        compareHeaders({
            {"a title", "titre:Chez Paul", title("Chez Paul")},
            {"a title with a second colon", "titre:Ouvert : 8 h", title("Ouvert ")},
            {"an empty title", "titre:", title("")},
            {"a title with blanks", "titre: Chez Paul ", title(" Chez Paul ")},
            {"a title longer than the paper", "titre:" + QByteArray(60, 'x'),
                title(QByteArray(60, 'x'))},
            {"a title mark in the middle of a line", "Notre titre:Chez Paul", title("Chez Paul")},
            {"a colon before the title mark", "a:titre:Chez Paul", title("titre")},
            {"a euro sign in a title", "titre:3 €", title("3 \xd5")},
            {"a command in a title", "titre:Chez\x1bp0 Paul\x10\x14", title("Chez p0 Paul  ")},
            {"a capital in the title mark", "Titre:Chez Paul",
                bold("                Titre:Chez Paul                ")},
            {"a blank in the title mark", "titre :Chez Paul",
                bold("               titre :Chez Paul               ")},
            {"a command in the title mark", "titre\x1b:Chez Paul",
                bold("               titre :Chez Paul               ")},
        });
    }

    void aControlCharacterIsABlankAndANulEndsALine()
    {
        compareHeaders({
            {"a NUL in a line", QByteArray("ab\0cd\nef", 8),
                bold("                      ab                      ")},
            {"a NUL at the start of a line", QByteArray("ab\n\0cd", 6),
                bold("                      ab                      ") + bold(blank46)},
            {"a NUL at the start", QByteArray("\0ab", 3), bold(blank46)},
            {"a tab", "a\tb", bold("                      a\tb                      ")},
            {"a command that changes the printer's settings", "a\x1d(E\x03z",
                bold("                    a (E z                    ")},
            {"the first and the last control characters", "a\x01\x1f\x7fz",
                bold("                     a   z                     ")},
            {"those around the tab, the line feed and the carriage return", "a\x08\x0b\x0c\x0ez",
                bold("                    a    z                    ")},
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
        COMPARE_BYTES(printedFooter("titre:Merci"), title("Merci"));
    }

    void anEmptyFileIsAnEmptyLineAndAMissingOneIsNothing()
    {
        COMPARE_BYTES(printedHeader(""), bold(blank46));
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
        const QByteArray line = bold("                   123456789                   ");
        QVERIFY(header == line.repeated(lines) + bold(blank46));
    }

    void aLineOfAMegabyteDisappears()
    {
        COMPARE_BYTES(printedHeader(QByteArray(1'000'000, 'x') + "\na"),
            bold("") + bold("                       a                       "));
    }

    void aTextThatIsNoUtf8IsNotPrinted()
    {
        QVERIFY_EXCEPTION_THROWN(printedHeader("Caf\xe9"), std::runtime_error);
        QVERIFY_EXCEPTION_THROWN(printedFooter("\xc3"), std::runtime_error);
        // What disappears from the receipt does no harm.
        COMPARE_BYTES(printedHeader("\xff" + QByteArray(49, 'x')), bold(""));
    }

    void aCharacterThatThePrinterLacksIsNotPrinted()
    {
        for (const char* text : {"cœur", "🍺", "قهوة", "a\u200f", "l’eau"}) {
            const InRow inRow(text);
            QVERIFY_EXCEPTION_THROWN(printedHeader(text), std::runtime_error);
            QVERIFY_EXCEPTION_THROWN(
                printedHeader(QByteArray("titre:") + text), std::runtime_error);
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
        QVERIFY(printedReceipt().startsWith(title("Lundi")));
        writeHeader(shop, "titre:Mardi");
        QVERIFY(printedReceipt().startsWith(title("Mardi")));
        writeFooter(shop, "titre:Soir");
        QVERIFY(printedReceipt().endsWith(title("Soir")));
    }
};

VENDEL_TEST(TestReceiptFrame)
#include "tst_Receipt_frame.moc"
