// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/Translation.h"
#include "tests/support/TestProgram.h"
#include "tests/support/WindowFailures.h"

#include <QDateTime>
#include <QPointer>
#include <QPushButton>
#include <QWindow>

namespace {
/// Presses and releases the mouse on \a name as the window system does it, which keeps the press
/// from a window that another one blocks.
void clickThroughTheScreen(QWidget& window, const char* name)
{
    const auto& button = child<QWidget>(window, name);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
        button.mapTo(&window, button.rect().center()));
}
} // namespace

class TestPayment : public QObject
{
    Q_OBJECT

private slots:
    void aShownReceiptEmptiesTheTicket()
    {
        Till till;
        till.sell("Thé", "2.5");
        till.pay();
        QVERIFY(till.receipt()->isFilled());
        QCOMPARE(till.ticket(), QStringList());
    }

    void aReceiptThatCannotBeComposedKeepsTheTicket()
    {
        Till till;
        till.sell("Thé", "2.5");
        const FailingText failing("Produit");
        const CapturedLog log;
        CapturedOutput output;
        till.pay();
        QCOMPARE(
            log.criticals(), QStringList(QString("Errors FormVendelTicket Constructor : no text")));
        QVERIFY(!output.text().contains("delete"));
        QCOMPARE(child<QTextEdit>(*till.receipt(), "txt_Ticket").toPlainText(), QString());
        QCOMPARE(till.ticket(), QStringList(QString("Thé 2.5")));
    }

    void aReceiptThatCannotBeShownKeepsTheTicket()
    {
        Till till;
        till.sell("Thé", "2.5");
        const FailingEvent trouble(QEvent::WindowTitleChange, "FormVendelTicket");
        const CapturedLog log;
        till.pay();
        QCOMPARE(
            log.criticals(), QStringList(QString("Errors FormVendelTicket Constructor : trouble")));
        QCOMPARE(till.ticket(), QStringList(QString("Thé 2.5")));
    }

    void anEmptyTicketIsSaidAndNothingIsWritten()
    {
        Till till;
        AnswerBox box;
        till.pay();
        QCOMPARE(box.title(), QString("Payer"));
        QCOMPARE(box.text(), QString("Le ticket est vide"));
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.buttons(), QMessageBox::Ok);
        QCOMPARE(box.parent(), &till.window);
        QCOMPARE(box.strays(), 0);
        QCOMPARE(till.history(), QStringList());
        QVERIFY(till.receipt() == nullptr);
        QVERIFY(till.sellsOnScreen());
    }

    void eachLineGoesIntoTheHistory()
    {
        Till till;
        till.sell("Thé", "2.5");
        till.sell("Eau", "3");
        till.sell("Thé", "2.5");
        till.run("insert into Ticket (id, article, prix) values (0, '----', -1.25)");
        till.pay();
        QCOMPARE(till.history(),
            QStringList({QString("7 Thé 2.5"), QString("7 Eau 3"), QString("7 Thé 2.5"),
                QString("0 ---- -1.25")}));
    }

    void aLineIsDatedWithTheLocalTime()
    {
        Till till;
        till.sell("Eau", "3");
        // The last millisecond may be rounded up.
        const QDateTime before = QDateTime::currentDateTime().addMSecs(-1);
        till.pay();
        const QDateTime after = QDateTime::currentDateTime().addMSecs(1);
        const QString stored = till.shop.cell("select date_heure from Historique");
        QCOMPARE(stored.size(), 23);
        const QDateTime time = QDateTime::fromString(stored, QString("yyyy-MM-dd hh:mm:ss.zzz"));
        QVERIFY2(time >= before && time <= after, qPrintable(stored));
    }

    void anApostropheReachesTheHistory()
    {
        Till till;
        till.sell("l''eau d''\"ici\"", "3");
        till.pay();
        QCOMPARE(till.history(), QStringList(QString("7 l'eau d'\"ici\" 3")));
        QVERIFY(till.takeReceipt().contains(QString("\n1  l'eau d'\"ici\"  \t$3.00")));
    }

    void theReceiptIsShownAndTheTicketEmptied()
    {
        Till till;
        CapturedLog log;
        AnswerBox box;
        till.sell("Thé", "2.5");
        till.pay();
        QVERIFY(till.receipt() != nullptr);
        QVERIFY(till.receipt()->isVisible());
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(till.shownLines(), 0);
        const QString text = till.takeReceipt();
        QVERIFY(text.contains(QString("\n1  Thé           \t$2.50       $2.50\n")));
        QVERIFY(text.contains(QString("\n->  TOTAL \t    $2.51\n")));
        QVERIFY(!box.wasShown());
        QCOMPARE(log.criticals(), QStringList());
        QVERIFY(till.sellsOnScreen());
    }

    void theListWithItsTotalsIsEmptied()
    {
        Till till;
        till.sell("Thé", "2.5");
        click(till.window, "btn_Total_Ticket");
        QCOMPARE(till.shownLines(), 4);
        till.pay();
        QCOMPARE(till.shownLines(), 0);
        QCOMPARE(till.history().size(), 1);
    }

    void theReceiptStandsOverTheSalesScreenAndIsDeleted()
    {
        Till till;
        till.sell("Thé", "2.5");
        till.pay();
        const QPointer<FormVendelTicket> receipt = till.receipt();
        QCOMPARE(receipt->parentWidget(), &till.window);
        QVERIFY(receipt->isModal());
        QVERIFY(receipt->isWindow());
        receipt->close();
        QTRY_VERIFY(receipt.isNull());
        QVERIFY(till.window.isVisible());
    }

    void theReceiptsTitleIsTranslated()
    {
        Till till;
        till.sell("Thé", "2.5");
        const MarkedContext marked("FormVendelMessages");
        till.pay();
        QVERIFY(till.receipt() != nullptr);
        QCOMPARE(till.receipt()->windowTitle(), QString("FormVendelMessages:Impression Ticket"));
    }

    void theSalesScreenTakesNoPressWhileTheReceiptStands()
    {
        Till till;
        AnswerBox box;
        till.sell("Thé", "2.5");
        clickThroughTheScreen(till.window, "btn_Payer");
        QVERIFY(till.receipt() != nullptr);
        till.run("insert into Ticket (id, article, prix) values (7, 'Eau', 3)");
        clickThroughTheScreen(till.window, "btn_Payer");
        QVERIFY(!box.wasShown());
        QCOMPARE(till.history().size(), 1);
        QCOMPARE(till.ticket().size(), 1);
        till.takeReceipt();
        clickThroughTheScreen(till.window, "btn_Payer");
        QVERIFY(till.takeReceipt().contains(QString("\n1  Eau            \t$3.00")));
        QCOMPARE(till.history().size(), 2);
        QCOMPARE(till.ticket().size(), 0);
    }

    void payingAgainWhileTheReceiptStandsSellsNothing()
    {
        Till till;
        AnswerBox box;
        till.sell("Thé", "2.5");
        till.pay();
        till.pay();
        QCOMPARE(box.text(), QString("Le ticket est vide"));
        QCOMPARE(till.history().size(), 1);
        QCOMPARE(till.window.findChildren<FormVendelTicket*>().size(), 1);
    }

    void twoQuickPressesAreOneSale()
    {
        Till till;
        AnswerBox box;
        till.sell("Thé", "2.5");
        auto& button = child<QPushButton>(till.window, "btn_Payer");
        const QPoint place = button.mapTo(&till.window, button.rect().center());
        QWindow* screen = till.window.windowHandle();
        // Both presses are under way before the till sees the first.
        for (int press = 0; press < 2; ++press) {
            for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                qt_handleMouseEvent(screen, place, screen->mapToGlobal(place),
                    type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                    Qt::LeftButton, type, Qt::NoModifier, ++QTest::lastMouseTimestamp);
            }
        }
        QTRY_VERIFY(till.receipt() != nullptr);
        QTest::qWait(50);
        QCOMPARE(till.history(), QStringList(QString("7 Thé 2.5")));
        QCOMPARE(till.window.findChildren<FormVendelTicket*>().size(), 1);
        QVERIFY(!box.wasShown());
        till.takeReceipt();
        QVERIFY(till.sellsOnScreen());
    }

    void theSwitchIsReadUpToItsLastDigit_data()
    {
        QTest::addColumn<QByteArray>("value");
        for (const char* value : {"0", "-0", " 0", "0 ", "0.9", "0,5", "0x1", "00", "0 oui"}) {
            QTest::newRow(value) << QByteArray(value);
        }
    }

    void theSwitchIsReadUpToItsLastDigit()
    {
        QFETCH(QByteArray, value);
        Till till;
        till.setSwitch(value);
        till.sell("Thé", "2.5");
        till.pay();
        QVERIFY(till.receipt() != nullptr);
        QCOMPARE(till.ticket(), QStringList());
    }

    void withAnotherSwitchTheTicketIsKept_data()
    {
        QTest::addColumn<QByteArray>("value");
        for (const char* value : {"2", "-1", "10", "2147483647"}) {
            QTest::newRow(value) << QByteArray(value);
        }
    }

    void withAnotherSwitchTheTicketIsKept()
    {
        QFETCH(QByteArray, value);
        Till till;
        CapturedLog log;
        CapturedOutput output;
        AnswerBox box;
        till.setSwitch(value);
        till.sell("Thé", "2.5");
        till.pay();
        QVERIFY(till.receipt() == nullptr);
        QVERIFY(!box.wasShown());
        QCOMPARE(till.shownLines(), 0);
        QCOMPARE(till.ticket(), QStringList(QString("Thé 2.5")));
        QCOMPARE(till.history(), QStringList(QString("7 Thé 2.5")));
        till.pay();
        QCOMPARE(till.history(), QStringList({QString("7 Thé 2.5"), QString("7 Thé 2.5")}));
        QCOMPARE(log.criticals(), QStringList());
        QCOMPARE(output.text(), QByteArray());
        QVERIFY(till.sellsOnScreen());
    }

    void withoutAReadableSwitchTheTicketIsKept_data()
    {
        QTest::addColumn<QByteArray>("value");
        for (const char* value : {"", " ", "oui", "-", "99999999999", "é"}) {
            QTest::newRow(value) << QByteArray(value);
        }
    }

    void withoutAReadableSwitchTheTicketIsKept()
    {
        QFETCH(QByteArray, value);
        Till till;
        CapturedLog log;
        AnswerBox box;
        till.setSwitch(value);
        till.sell("Thé", "2.5");
        till.pay();
        QCOMPARE(
            log.criticals(), QStringList(QString("Errors FormVendel on_btn_Payer_clicked : stoi")));
        QVERIFY(till.receipt() == nullptr);
        QVERIFY(!box.wasShown());
        QCOMPARE(till.ticket(), QStringList(QString("Thé 2.5")));
        QCOMPARE(till.history(), QStringList(QString("7 Thé 2.5")));
        QCOMPARE(till.shownLines(), 0);
        QVERIFY(till.sellsOnScreen());
    }

    void withoutASwitchTheTicketIsKept()
    {
        Till till;
        CapturedLog log;
        till.run("delete from Config where param = 'Epson TM-T20II'");
        till.sell("Thé", "2.5");
        till.pay();
        QCOMPARE(
            log.criticals(), QStringList(QString("Errors FormVendel on_btn_Payer_clicked : stoi")));
        QCOMPARE(till.ticket(), QStringList(QString("Thé 2.5")));
        QCOMPARE(till.history(), QStringList(QString("7 Thé 2.5")));
        till.run("insert into Config (param, valeur) values ('Epson TM-T20II', 0)");
        QVERIFY(till.sellsOnScreen());
    }

    void theLastOfTwoSwitchesCounts()
    {
        Till till;
        till.setSwitch("2");
        till.run("insert into Config (param, valeur) values ('Epson TM-T20II', 0)");
        till.sell("Thé", "2.5");
        till.pay();
        QVERIFY(till.receipt() != nullptr);
        till.takeReceipt();
        till.run("insert into Config (param, valeur) values ('Epson TM-T20II', 3)");
        till.sell("Thé", "2.5");
        till.pay();
        QVERIFY(till.receipt() == nullptr);
        QCOMPARE(till.ticket().size(), 1);
    }

    void theSwitchIsFoundInAnyCase()
    {
        Till till;
        till.run("update Config set param = 'epson tm-T20ii' where param = 'Epson TM-T20II'");
        till.sell("Thé", "2.5");
        till.pay();
        QVERIFY(till.receipt() != nullptr);
    }
};

VENDEL_TEST(TestPayment)
#include "tst_Payment.moc"
