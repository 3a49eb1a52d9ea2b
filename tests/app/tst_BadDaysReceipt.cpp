// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/Captured.h"
#include "tests/support/EmulatedPrinter.h"
#include "tests/support/TestProgram.h"

#include <sys/stat.h>

namespace {
/// A header that nobody writes to, and a footer of a terabyte.
void makeUnreadableFrames(const Till& till)
{
    QVERIFY(mkfifo("EnteteFormulaire.dat", 0600) == 0);
    till.shop.write(QString("PiedFormulaire.dat"), "Merci");
    QVERIFY(QFile::resize(QString("PiedFormulaire.dat"), 1LL << 40));
}

QStringList linesAboutFrames()
{
    return {QString("EnteteFormulaire.dat is not read: it is not a regular file"),
        QString("PiedFormulaire.dat is not read: it is larger than 4 MB")};
}
} // namespace

class TestBadDaysReceipt : public QObject
{
    Q_OBJECT

private slots:
    void anyNameIsSoldOnTheScreen_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("10,000 letters") << QString(10'000, 'x');
        QTest::newRow("10,000 quotes") << QString(10'000, '\'');
        QTest::newRow("quotes and semicolons") << QString("l'eau\";'); drop table Ticket; --");
        QTest::newRow("an emoji") << QString("Bière 🍺");
        QTest::newRow("right-to-left text") << QString("قهوة");
        QTest::newRow("a ligature") << QString("cœur");
        QTest::newRow("HTML") << QString("<b>Thé</b>&amp;");
        QTest::newRow("a percent sign") << QString("100 %1 %n %s");
    }

    void anyNameIsSoldOnTheScreen()
    {
        QFETCH(QString, name);
        Till till;
        QByteArray quoted = name.toUtf8();
        till.run("insert into Article (article, prix) values ('" + quoted.replace("'", "''")
            + "', 2.5)");
        click(till.window, "btn_Afficher");
        clickCell(till.window, "tableView1", 0, 2);
        till.pay();
        QCOMPARE(till.history(), QStringList(QLatin1String("1 ") + name + QLatin1String(" 2.5")));
        QVERIFY(till.takeReceipt().contains(QLatin1String("\n1  ") + name));
        QCOMPARE(till.ticket(), QStringList());
        QVERIFY(till.sellsOnScreen());
    }

    void controlCharactersAreBlanksOnTheScreen()
    {
        Till till;
        till.shop.write(QString("EnteteFormulaire.dat"), "titre:Chez\x1bp0 Paul\n12\x1drue X");
        till.shop.write(QString("PiedFormulaire.dat"), "Merci\x7f!");
        till.sell("a\x01\x1b\x7f\tz", "2.5");
        till.pay();
        const QString receipt = till.takeReceipt();
        QVERIFY(receipt.startsWith(
            QString("Chez p0 Paul\n                   12 rue X                   \n")));
        QVERIFY(receipt.contains(QString("\n1  a   \tz         \t$2.50       $2.50\n")));
        QVERIFY(receipt.contains(QString("\n                    Merci !                    \n")));
        // The history keeps the name as it was sold.
        QCOMPARE(till.history(), QStringList(QString("7 a\x01\x1b\x7f\tz 2.5")));
    }

    void controlCharactersAreBlanksOnPaper()
    {
        const EmulatedPrinter printer;
        Till till;
        till.setSwitch("1");
        till.shop.write(QString("EnteteFormulaire.dat"), "titre:Chez\x1bp0 Paul\n12\x1drue X");
        till.shop.write(QString("PiedFormulaire.dat"), "Merci\x7f!");
        till.sell("\x1bp0zz", "2.5");
        till.pay();
        QCOMPARE(printer.transfers().size(), 2U);
        const QByteArray bytes = QByteArray::fromStdString(printer.transfers().at(0).bytes);
        QVERIFY(bytes.startsWith("\x1b\x21\x30\x1b\x61\x01"
                                 "Chez p0 Paul\r\n\x1b\x21\x02\x1b\x61\x30\x1b\x45\x01"
                                 "                   12 rue X                   \r\n\x1b\x45\x02"));
        QVERIFY(bytes.contains("\r\n1   p0zz          \t$2.50       $2.50\r\n"));
        QVERIFY(bytes.endsWith("\r\n                    Merci !                    \r\n"));
        QCOMPARE(till.history(), QStringList(QString("7 \x1bp0zz 2.5")));
    }

    void aNameOfTenThousandLettersIsPrinted()
    {
        const EmulatedPrinter printer;
        Till till;
        till.setSwitch("1");
        till.sell(QByteArray(10'000, 'x'), "2.5");
        till.pay();
        QCOMPARE(printer.transfers().size(), 2U);
        const QByteArray bytes = QByteArray::fromStdString(printer.transfers().at(0).bytes);
        QVERIFY(bytes.contains("\r\n1  " + QByteArray(10'000, 'x') + "\t$2.50       $2.50\r\n"));
        QCOMPARE(till.ticket(), QStringList());
    }

    void aHeaderThatIsNoUtf8KeepsTheTicketOnPaperAndNotOnTheScreen()
    {
        const EmulatedPrinter printer;
        Till till;
        till.shop.write(QString("EnteteFormulaire.dat"), "Caf\xe9");
        {
            CapturedLog log;
            till.sellOnPaper();
            QCOMPARE(log.criticals().size(), 1);
        }
        QVERIFY(printer.transfers().empty());
        QCOMPARE(till.ticket().size(), 1);
        till.setSwitch("0");
        till.pay();
        QVERIFY(till.takeReceipt().contains(QString("Caf\uFFFD")));
        QCOMPARE(till.ticket(), QStringList());
        QVERIFY(till.sellsOnScreen());
    }

    void aHeaderOfAMegabyteIsPrinted()
    {
        const EmulatedPrinter printer;
        Till till;
        till.shop.write(
            QString("EnteteFormulaire.dat"), QByteArray("123456789\n").repeated(100'000));
        CapturedOutput output;
        till.sellOnPaper();
        QCOMPARE(output.text(), QByteArray());
        QCOMPARE(printer.transfers().size(), 2U);
        const EmulatedTransfer receipt = printer.transfers().at(0);
        QCOMPARE(receipt.result, std::string("taken"));
        QCOMPARE(receipt.bytes.size(), receipt.requested);
        // 55 bytes for each line: 47 columns, the line's end, and emphasis on and off.
        QVERIFY(receipt.requested > 55 * 100'000U);
        QCOMPARE(till.ticket(), QStringList());
        QVERIFY(till.sellsOnScreen());
    }

    void framesThatMustNotBeReadAreLeftOutOnPaper()
    {
        const EmulatedPrinter printer;
        Till till;
        makeUnreadableFrames(till);
        const CapturedLog log;
        till.sellOnPaper();
        QCOMPARE(printer.transfers().size(), 2U);
        const QByteArray bytes = QByteArray::fromStdString(printer.transfers().at(0).bytes);
        QVERIFY(bytes.startsWith("\r\n\r\nProduit"));
        QVERIFY(bytes.endsWith("\x1b\x45\x02\x1b\x21\x02\r\n"));
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(log.criticals(), linesAboutFrames());
    }

    void framesThatMustNotBeReadAreLeftOutOnTheScreen()
    {
        Till till;
        makeUnreadableFrames(till);
        const CapturedLog log;
        till.sell("Thé", "2.5");
        till.pay();
        QVERIFY(till.takeReceipt().startsWith(QString("\n\nProduit")));
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(log.criticals(), linesAboutFrames());
    }
};

VENDEL_TEST(TestBadDaysReceipt)
#include "tst_BadDaysReceipt.moc"
