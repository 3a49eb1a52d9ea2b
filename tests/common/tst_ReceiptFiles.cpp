// SPDX-License-Identifier: MIT
#include "common/ReceiptFiles.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <optional>

namespace {
using Text = std::optional<QString>;

Text headerOf(const QByteArray& bytes)
{
    const Shop shop(Shop::Database::None);
    shop.write("EnteteFormulaire.dat", bytes);
    return ReceiptFiles::read(ReceiptFiles::header);
}
} // namespace

/// The texts above and below a sale.
class TestReceiptFiles : public QObject
{
    Q_OBJECT

private slots:
    void haveTheirNames()
    {
        QCOMPARE(QString(ReceiptFiles::header), QString("EnteteFormulaire.dat"));
        QCOMPARE(QString(ReceiptFiles::footer), QString("PiedFormulaire.dat"));
    }

    void aMissingFileIsNothingAndAnEmptyOneIsEmptyText()
    {
        const Shop shop(Shop::Database::None);
        QCOMPARE(ReceiptFiles::read(ReceiptFiles::header), Text());
        QCOMPARE(headerOf(""), Text(""));
    }

    void lineEndsStayAsTheyAre()
    {
        const Shop shop(Shop::Database::None);
        shop.write(ReceiptFiles::footer, "Merci à vous\r\ntitre:À bientôt €\n");
        QCOMPARE(
            ReceiptFiles::read(ReceiptFiles::footer), Text("Merci à vous\r\ntitre:À bientôt €\n"));
    }

    void textEndsAtTheFirstNul()
    {
        QCOMPARE(headerOf(QByteArray("Bar\nRue\0 du Port\nx\0y", 19)), Text("Bar\nRue"));
        QCOMPARE(headerOf(QByteArray("\0Bar", 4)), Text(""));
    }

    void invalidUtf8BecomesReplacementCharacters()
    {
        QCOMPARE(headerOf("Caf\xE9 noir"), Text("Caf\uFFFD noir"));
    }

    void aMegabyteIsReadWhole()
    {
        QCOMPARE(headerOf(QByteArray("12 rue X\n").repeated(120'000))->size(), 1'080'000);
    }
};

VENDEL_TEST(TestReceiptFiles)
#include "tst_ReceiptFiles.moc"
