// SPDX-License-Identifier: MIT
#include "app/Clock.h"
#include "forms/FormVendelHistorique.h"
#include "tests/app/PrintedReceipt.h"
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"

#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QRegularExpression>

namespace {
const QRegularExpression moment("^[0-9]{2}/[0-9]{2}/[0-9]{4} [0-9]{2}[: ][0-9]{2}[: ][0-9]{2}$");

QLineEdit& firstDate(QWidget& window) { return child<QLineEdit>(window, "txt_First_Date"); }

QLineEdit& secondDate(QWidget& window) { return child<QLineEdit>(window, "txt_Second_Date"); }

/// The history of two days, opened from the till's menu.
FormVendelHistorique& openHistory(Till& till)
{
    till.run("insert into Historique values (1, 'Thé', 2.5, '2019-05-01 10:20:30.123'), "
             "(2, 'Eau', 2, '2019-05-02 11:00:00.000')");
    chooseMenu(till.window, "menuVendel", "actionHistorique");
    return *till.window.findChild<FormVendelHistorique*>();
}
} // namespace

/// The till on a system that writes numbers with other digits than 0 to 9: ctest runs these tests
/// once with each such locale.
class TestForeignDigits : public QObject
{
    Q_OBJECT

private slots:
    void theSystemWritesOtherDigits()
    {
        QVERIFY(QLocale::system().toString(7) != QString("7"));
        QVERIFY(QLocale().toString(7) != QString("7"));
    }

    void theClockKeepsItsDigits()
    {
        const QDateTime time({2019, 3, 5}, {14, 7, 31});
        QCOMPARE(clockText(time, "dd/MM/yyyy"), QString("05/03/2019 14:07:31"));
        Till till;
        const auto& label = child<QLabel>(till.window, "lbl_DateTime");
        QTRY_VERIFY2(moment.match(label.text()).hasMatch(), qPrintable(label.text()));
    }

    void theReceiptOnPaperKeepsItsDigits()
    {
        const Shop shop;
        putOnTicket(shop, "Eau", "1234.5");
        const QByteArray receipt = printedReceipt();
        QVERIFY(receipt.startsWith("\r\n\r\nProduit\t\t\t     05/03/2024 09:07:03\r\n\r\n"));
        QVERIFY(receipt.contains("\r\n1  Eau            \t$1,234.50   $1,234.50\r\n"));
        QVERIFY(receipt.contains("\r\n->  Total ticket\t\t    $1,234.50\r\n"));
    }

    void theReceiptOnTheScreenKeepsItsDigits()
    {
        Till till;
        till.setSwitch("0");
        till.sell("Eau", "2");
        till.pay();
        const QString heading = till.takeReceipt().section('\n', 2, 2);
        const QString time = heading.mid(heading.indexOf("     ") + 5);
        QVERIFY2(moment.match(time).hasMatch(), qPrintable(heading));
    }

    void theHistoryIsBrowsedAndPurgedByDate()
    {
        Till till;
        const AnswerBox boxes = AnswerBox::agreeing();
        FormVendelHistorique& history = openHistory(till);
        click(history, "btn_Show_Date");
        QCOMPARE(rowTexts(history, "tableView2", 0), QStringList("05/01/2019"));
        clickCell(history, "tableView2", 0, 0);
        QTest::keyClicks(&secondDate(history), "05/02/2019");
        click(history, "btn_View_Historical");
        QCOMPARE(boxes.said(), QStringList());
        QCOMPARE(rowCount(history, "tableView1"), 1);
        QCOMPARE(rowTexts(history, "tableView1", 0),
            QStringList({"Thé", "2.50$", "05/01/2019 10:20:30.123"}));
        click(history, "btn_Clear");
        QCOMPARE(boxes.said().value(0),
            QString("Purger: Voulez-vous purger de 05/01/2019 au 05/02/2019"));
        QCOMPARE(till.history(), QStringList("2 Eau 2"));
    }

    void theHistoryIsBrowsedByTimeOfDay()
    {
        Till till;
        const AnswerBox box;
        FormVendelHistorique& history = openHistory(till);
        QTest::keyClicks(&firstDate(history), "05/01/2019 10:20:30.123");
        QTest::keyClicks(&secondDate(history), "05/02/2019 11:00:00.000");
        click(history, "btn_Total");
        QCOMPARE(box.text(), QString());
        QCOMPARE(
            rowTexts(history, "tableView1", 2), QStringList({"Total historique", "4.50$", "<-"}));
    }

    void aDateInTheSystemsDigitsIsNone()
    {
        Till till;
        FormVendelHistorique& history = openHistory(till);
        const auto zero = QLocale::system().toString(0).at(0).unicode();
        QString typed = "05/01/2019";
        for (QChar& character : typed) {
            if (character.isDigit()) {
                character = QChar(static_cast<char16_t>(zero + character.digitValue()));
            }
        }
        firstDate(history).setText(typed);
        secondDate(history).setText("05/02/2019");
        const AnswerBox box;
        click(history, "btn_View_Historical");
        QCOMPARE(box.text(), QString("Saisir une date valide"));
        QCOMPARE(rowCount(history, "tableView1"), 0);
    }

    void countsKeepTheirDigits()
    {
        Till till;
        till.run("insert into Article (article, prix) values ('Thé', 2.5), ('Thé', 2.5), "
                 "('Thé', 2.5)");
        const AnswerBox box;
        click(till.window, "btn_Afficher");
        QCOMPARE(box.text(),
            QString("Supprimer le(s) 2 doublon(s) note(s) X...\n"
                    "Allez dans le menu Vendel Saisie Article"));
        QCOMPARE(rowTexts(till.window, "tableView1", 0).constLast(), QString("2.50$"));
    }
};

VENDEL_TEST(TestForeignDigits)
#include "tst_ForeignDigits.moc"
