// SPDX-License-Identifier: MIT
#include "backoffice/menu/ImportFile.h"
#include "backoffice/menu/SheetText.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QElapsedTimer>
#include <QRegularExpression>

#include <sys/stat.h>

namespace {
/// The lines of a file as "line:cells=number", the cells between "|".
QStringList linesOf(const QByteArray& bytes, ImportKind kind = ImportKind::Menu)
{
    QStringList all;
    for (const ImportLine& line : ImportFile::of(bytes, kind).lines) {
        all += QString("%1:%2=%3%4")
                   .arg(line.line)
                   .arg(line.cells.join('|'), line.number.sql, line.isTooWide ? "!" : "");
    }
    return all;
}

/// Why \a bytes are no menu, empty when they are one.
QString refusalOf(const QByteArray& bytes, ImportKind kind = ImportKind::Menu)
{
    try {
        ImportFile::of(bytes, kind);
    } catch (const ImportError& error) {
        return error.sentence();
    }
    return {};
}

QByteArray utf16(const QString& text, bool isLittle)
{
    QByteArray bytes(isLittle ? "\xff\xfe" : "\xfe\xff");
    for (const QChar letter : text) {
        bytes += static_cast<char>(isLittle ? letter.cell() : letter.row());
        bytes += static_cast<char>(isLittle ? letter.row() : letter.cell());
    }
    return bytes;
}

const QStringList coffeeAndTea{"2:Café|1,50=1.5", "3:Thé|2=2"};
} // namespace

class TestGestionImportFile : public QObject
{
    Q_OBJECT

private slots:
    void everyEncodingIsFound()
    {
        const QString text("article;prix\nCafé;1,50\nThé;2\n");
        QCOMPARE(linesOf(text.toUtf8()), coffeeAndTea);
        QCOMPARE(linesOf("\xef\xbb\xbf" + text.toUtf8()), coffeeAndTea);
        QCOMPARE(linesOf(utf16(text, true)), coffeeAndTea);
        QCOMPARE(linesOf(utf16(text, false)), coffeeAndTea);
        QCOMPARE(linesOf("article;prix\nCaf\xe9;1,50\nTh\xe9;2\n"), coffeeAndTea);
        QCOMPARE(linesOf("\x8cuf;1,50 \x80\n"), QStringList{"1:Œuf|1,50 €=1.5"});
    }

    void whatIsNoTextIsRefused()
    {
        const QString said("Le fichier n'est pas un fichier texte\u00a0: enregistrez-le au format "
                           "CSV, en UTF-8.");
        QCOMPARE(refusalOf(QByteArray("a;1\0b;2\n", 8)), said);
        QCOMPARE(refusalOf(utf16(QString("a;1\n"), true).mid(2)), said);
        QCOMPARE(refusalOf(utf16(QString(QChar(0)), true)), said);
        QCOMPARE(refusalOf(utf16(QString(QChar(0xd800)), true)), said);
        QCOMPARE(refusalOf("\xff\xfe\x41"), said);
        QCOMPARE(refusalOf("\xef\xbb\xbf\xe9;1\n"), said);
        // A byte that no Windows code page for western Europe has.
        QCOMPARE(refusalOf("\x81;1\n"), said);
    }

    void everySeparatorIsFound()
    {
        QCOMPARE(linesOf("article;prix\nCafé;1,50\nThé;2\n"), coffeeAndTea);
        QCOMPARE(linesOf("article\tprix\nCafé\t1,50\nThé\t2\n"), coffeeAndTea);
        QCOMPARE(linesOf("article,prix\nCafé,\"1,50\"\nThé,2\n"), coffeeAndTea);
        QCOMPARE(linesOf("Menu;3,2.50\n"), QStringList{"1:Menu;3|2.50=2.5"});
        QCOMPARE(linesOf("sep=,\nThé,2\n"), QStringList{"2:Thé|2=2"});
    }

    void aDecimalCommaDoesNotPartAPrice()
    {
        QCOMPARE(
            linesOf("Café;1,50\nThé;2,00\n"), (QStringList{"1:Café|1,50=1.5", "2:Thé|2,00=2"}));
        QCOMPARE(linesOf("Café\t1,50\n"), QStringList{"1:Café|1,50=1.5"});
        // Without quotes nobody knows what this means: the price is not 1.
        QCOMPARE(
            linesOf("article,prix\nCafé,1,50\nThé,2\n"), (QStringList{"2:Café|1=1!", "3:Thé|2=2"}));
        QCOMPARE(refusalOf("Café,1,50\nThé,2,50\n"),
            QString("Sans ligne de titres, les colonnes doivent être\u00a0: Article, Prix."));
    }

    void columnsAreFoundByTheirHeadings()
    {
        QCOMPARE(linesOf("TVA;Prix TTC (€);N°;Désignation\n20;1,50;7;Café\n"),
            QStringList{"2:Café|1,50=1.5"});
        QCOMPARE(linesOf("Price,Name\n1.50,Tea\n"), QStringList{"2:Tea|1.50=1.5"});
        QCOMPARE(linesOf("unité;dose;ingrédient;article\ncl;25;Lait;Café\n", ImportKind::Recipes),
            QStringList{"2:Café|Lait|25|cl=25"});
    }

    void withoutAHeadingTheFirstLineCounts()
    {
        QCOMPARE(linesOf("Café;1,50\n"), QStringList{"1:Café|1,50=1.5"});
        QCOMPARE(linesOf("Prix;5\n"), QStringList{"1:Prix|5=5"});
        QCOMPARE(linesOf("Café;Lait;2,5;cl\n", ImportKind::Recipes),
            QStringList{"1:Café|Lait|2,5|cl=2.5"});
    }

    void aHeadingThatDoesNotFitIsRefused()
    {
        QCOMPARE(
            refusalOf("article;stock\nCafé;x\n"), QString("La colonne «\u00a0Prix\u00a0» manque."));
        QCOMPARE(refusalOf("article;prix;tarif\nCafé;1;2\n"),
            QString(
                "Le fichier a deux colonnes «\u00a0Prix\u00a0»\u00a0: laquelle est la bonne\u00a0?"));
        QCOMPARE(refusalOf(""), QString("Le fichier est vide."));
        QCOMPARE(refusalOf("\n;;\n \n"), QString("Le fichier est vide."));
        QCOMPARE(linesOf("article;prix\n"), QStringList());
    }

    void linesKeepTheirNumbers()
    {
        QCOMPARE(linesOf("article;prix\r\n\r\n\"Thé\r\nvert\";2\r\n;;\r\nLait;3\r\n"),
            (QStringList{"3:Thé\r\nvert|2=2", "6:Lait|3=3"}));
        QCOMPARE(
            linesOf("article;prix\rThé;2\r\rLait;3"), (QStringList{"2:Thé|2=2", "4:Lait|3=3"}));
    }

    void quotesAreRead()
    {
        QCOMPARE(linesOf("article;prix\n\"Jus; \"\"frais\"\"\";2\n\" Thé \";3\n"),
            (QStringList{"2:Jus; \"frais\"|2=2", "3: Thé |3=3"}));
        QCOMPARE(refusalOf("article;prix\nThé;2\n\"Lait;3\nJus;4\n"),
            QString("Le guillemet de la ligne 3 n'est jamais fermé."));
    }

    void theGuardAgainstFormulasIsTakenOff()
    {
        QCOMPARE(linesOf("article;prix\n'----;2\n''=A1;3\n'Thé;4\n@x;5\n"),
            (QStringList{"2:----|2=2", "3:'=A1|3=3", "4:'Thé|4=4", "5:@x|5=5"}));
    }

    void theClearPricesOfAFileDecideAboutTheOthers()
    {
        QCOMPARE(linesOf("a;1.234\nb;2,50\n"), (QStringList{"1:a|1.234=1234", "2:b|2,50=2.5"}));
        QCOMPARE(linesOf("a;1.234\nb;2\n"), (QStringList{"1:a|1.234=", "2:b|2=2"}));
        QCOMPARE(linesOf("a;1.234\nb;2,50\nc;2.50\n"),
            (QStringList{"1:a|1.234=", "2:b|2,50=2.5", "3:c|2.50=2.5"}));
    }

    void aLineOfManyColumnsIsNoMenu()
    {
        QCOMPARE(refusalOf("article;prix\n" + QByteArray(300, ';') + "x\n"),
            QString("Ligne 2\u00a0: trop de colonnes."));
    }

    void tenThousandLinesAreReadAtOnce()
    {
        QByteArray bytes("article;prix\n");
        for (int line = 0; line < 10000; ++line) {
            bytes += "Article " + QByteArray::number(line) + ";1 234,50 €\n";
        }
        QElapsedTimer time;
        time.start();
        QCOMPARE(ImportFile::of(bytes, ImportKind::Menu).lines.size(), std::size_t(10000));
        QVERIFY2(time.elapsed() < 2000, qPrintable(QString::number(time.elapsed())));
    }

    void whatIsNoSmallFileIsNotRead()
    {
        const Shop shop(Shop::Database::None);
        const auto said = [](const QString& path) {
            QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(QString(".* is not read: .*")));
            try {
                SheetText::bytesOf(path);
            } catch (const ImportError& error) {
                return error.sentence();
            }
            return QString();
        };
        shop.write(QString("grand.csv"), QByteArray(4 * 1024 * 1024 + 1, 'a'));
        QCOMPARE(said(QString("grand.csv")),
            QString("Le fichier «\u00a0grand.csv\u00a0» dépasse 4\u00a0Mo."));
        QCOMPARE(mkfifo("tube.csv", 0600), 0);
        QCOMPARE(
            said(QString("tube.csv")), QString("«\u00a0tube.csv\u00a0» n'est pas un fichier."));
        QCOMPARE(said(QString(".")), QString("«\u00a0.\u00a0» n'est pas un fichier."));
        shop.write(QString("petit.csv"), "a;1\n");
        QCOMPARE(SheetText::bytesOf(QString("petit.csv")), QByteArray("a;1\n"));
    }

    void aMissingFileIsSaidToBe()
    {
        const Shop shop(Shop::Database::None);
        QString said;
        try {
            SheetText::bytesOf(QString("rien.csv"));
        } catch (const ImportError& error) {
            said = error.sentence();
        }
        QCOMPARE(said, QString("Le fichier «\u00a0rien.csv\u00a0» n'existe pas."));
    }
};

VENDEL_TEST(TestGestionImportFile)
#include "tst_GestionImportFile.moc"
