// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/Captured.h"
#include "tests/support/EmulatedPrinter.h"
#include "tests/support/TestMain.h"

class TestBadDaysReceipt : public QObject
{
    Q_OBJECT

private slots:
    void anyNameIsSoldOnTheScreen_data();
    void anyNameIsSoldOnTheScreen();
    void aNameOfTenThousandLettersIsPrinted();
    void aHeaderThatIsNoUtf8KeepsTheTicketOnPaperAndNotOnTheScreen();
    void aHeaderOfAMegabyteIsPrinted();
};

void TestBadDaysReceipt::anyNameIsSoldOnTheScreen_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("10,000 letters") << QString(10'000, QLatin1Char('x'));
    QTest::newRow("10,000 quotes") << QString(10'000, QLatin1Char('\''));
    QTest::newRow("quotes and semicolons") << QStringLiteral("l'eau\";'); drop table Ticket; --");
    QTest::newRow("control characters") << QStringLiteral("a\x01\x1b\x7f\tz");
    QTest::newRow("an emoji") << QStringLiteral("Bière 🍺");
    QTest::newRow("right-to-left text") << QStringLiteral("قهوة");
    QTest::newRow("a ligature") << QStringLiteral("cœur");
    QTest::newRow("HTML") << QStringLiteral("<b>Thé</b>&amp;");
    QTest::newRow("a percent sign") << QStringLiteral("100 %1 %n %s");
}

void TestBadDaysReceipt::anyNameIsSoldOnTheScreen()
{
    QFETCH(QString, name);
    Till till;
    QByteArray quoted = name.toUtf8();
    till.run(
        "insert into Article (article, prix) values ('" + quoted.replace("'", "''") + "', 2.5)");
    click(till.window, "btn_Afficher");
    clickCell(till.window, "tableView1", 0, 2);
    till.pay();
    QCOMPARE(till.history(), QStringList(QLatin1String("1 ") + name + QLatin1String(" 2.5")));
    QVERIFY(till.takeReceipt().contains(QLatin1String("\n1  ") + name));
    QCOMPARE(till.ticket(), QStringList());
    QVERIFY(till.sellsOnScreen());
}

void TestBadDaysReceipt::aNameOfTenThousandLettersIsPrinted()
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

void TestBadDaysReceipt::aHeaderThatIsNoUtf8KeepsTheTicketOnPaperAndNotOnTheScreen()
{
    const EmulatedPrinter printer;
    Till till;
    till.shop.write(QStringLiteral("EnteteFormulaire.dat"), "Caf\xe9");
    {
        CapturedLog log;
        till.sellOnPaper();
        QCOMPARE(log.criticals().size(), 1);
    }
    QVERIFY(printer.transfers().empty());
    QCOMPARE(till.ticket().size(), 1);
    till.setSwitch("0");
    till.pay();
    QVERIFY(till.takeReceipt().contains(QStringLiteral("Caf\uFFFD")));
    QCOMPARE(till.ticket(), QStringList());
    QVERIFY(till.sellsOnScreen());
}

void TestBadDaysReceipt::aHeaderOfAMegabyteIsPrinted()
{
    const EmulatedPrinter printer;
    Till till;
    till.shop.write(
        QStringLiteral("EnteteFormulaire.dat"), QByteArray("123456789\n").repeated(100'000));
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

VENDEL_TEST_MAIN(TestBadDaysReceipt)
#include "tst_BadDaysReceipt.moc"
