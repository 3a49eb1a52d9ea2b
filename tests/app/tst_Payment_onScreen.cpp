// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <QDateTime>
#include <QPointer>
#include <QPushButton>
#include <QWindow>

namespace {
/// The middle of the button that pays, in the window's coordinates.
QPoint placeOfPay(Till& till)
{
    const auto& button = child<QPushButton>(till.window, "btn_Payer");
    return button.mapTo(&till.window, button.rect().center());
}

/// Presses and releases the mouse as the window system does it, which keeps the press from a window
/// that another one blocks.
void payThroughTheScreen(Till& till)
{
    QTest::mouseClick(till.window.windowHandle(), Qt::LeftButton, Qt::NoModifier, placeOfPay(till));
}
} // namespace

/// A sale whose receipt is shown.
class TestPaymentOnScreen : public QObject
{
    Q_OBJECT

private slots:
    void theReceiptIsShownAndTheTicketEmptied()
    {
        Till till;
        const CapturedLog log;
        const AnswerBox box;
        till.sellTea();
        QVERIFY(till.receipt() != nullptr);
        QVERIFY(till.receipt()->isVisible());
        QVERIFY(till.receipt()->isFilled());
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(till.shownLines(), 0);
        const QString text = till.takeReceipt();
        QVERIFY(text.contains("\n1  Thé           \t$2.50       $2.50\n"));
        QVERIFY(text.contains("\n->  TOTAL \t    $2.51\n"));
        QVERIFY(!box.wasShown());
        QCOMPARE(log.criticals(), QStringList());
        QVERIFY(till.sellsOnScreen());
    }

    void theReceiptStandsOverTheSalesScreenAndIsDeleted()
    {
        Till till;
        till.sellTea();
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
        TillWithTea till;
        const MarkedContext marked("FormVendelMessages");
        till.pay();
        QVERIFY(till.receipt() != nullptr);
        QCOMPARE(till.receipt()->windowTitle(), QString("FormVendelMessages:Impression Ticket"));
    }

    void theListWithItsTotalsIsEmptied()
    {
        TillWithTea till;
        click(till.window, "btn_Total_Ticket");
        QCOMPARE(till.shownLines(), 4);
        till.pay();
        QCOMPARE(till.books(), QString("sold: 7 Thé 2.5; ticket: ; 0 shown"));
    }

    void eachLineGoesIntoTheHistory()
    {
        TillWithTea till;
        till.sell("Eau", "3");
        till.sell("Thé", "2.5");
        till.run("insert into Ticket (id, article, prix) values (0, '----', -1.25)");
        till.pay();
        QCOMPARE(
            till.history(), QStringList({"7 Thé 2.5", "7 Eau 3", "7 Thé 2.5", "0 ---- -1.25"}));
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
        const QDateTime time = QDateTime::fromString(stored, "yyyy-MM-dd hh:mm:ss.zzz");
        QVERIFY2(time >= before && time <= after, qPrintable(stored));
    }

    void anyNameIsSold()
    {
        const Rows<QString> rows{
            {"10,000 letters", QString(10'000, 'x')},
            {"10,000 quotes", QString(10'000, '\'')},
            {"quotes and semicolons", "l'eau\";'); drop table Ticket; --"},
            {"apostrophes and quotes", "l'eau d'\"ici\""},
            {"an emoji", "Bière 🍺"},
            {"right-to-left text", "قهوة"},
            {"a ligature", "cœur"},
            {"HTML", "<b>Thé</b>&amp;"},
            {"a percent sign", "100 %1 %n %s"},
        };
        for (const auto& [row, name] : rows) {
            const InRow inRow(row);
            Till till;
            const QByteArray quoted = name.toUtf8().replace("'", "''");
            till.run("insert into Article (article, prix) values ('" + quoted + "', 2.5)");
            click(till.window, "btn_Afficher");
            clickCell(till.window, "tableView1", 0, 2);
            till.pay();
            QCOMPARE(till.history(), QStringList("1 " + name + " 2.5"));
            QVERIFY(till.takeReceipt().contains("\n1  " + name));
            QCOMPARE(till.ticket(), QStringList());
            QVERIFY(till.sellsOnScreen());
        }
    }

    void controlCharactersAreBlanks()
    {
        Till till;
        till.shop.write("EnteteFormulaire.dat", "titre:Chez\x1bp0 Paul\n12\x1drue X");
        till.shop.write("PiedFormulaire.dat", "Merci\x7f!");
        till.sell("a\x01\x1b\x7f\tz", "2.5");
        till.pay();
        const QString receipt = till.takeReceipt();
        QVERIFY(
            receipt.startsWith("Chez p0 Paul\n                   12 rue X                   \n"));
        QVERIFY(receipt.contains("\n1  a   \tz         \t$2.50       $2.50\n"));
        QVERIFY(receipt.contains("\n                    Merci !                    \n"));
        // The history keeps the name as it was sold.
        QCOMPARE(till.history(), QStringList("7 a\x01\x1b\x7f\tz 2.5"));
    }

    void anEmptyTicketIsSaidAndNothingIsWritten()
    {
        Till till;
        const AnswerBox box;
        till.pay();
        QCOMPARE(box.said(), QStringList("Payer: Le ticket est vide"));
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.buttons(), QMessageBox::Ok);
        QCOMPARE(box.parent(), &till.window);
        QCOMPARE(till.history(), QStringList());
        QVERIFY(till.receipt() == nullptr);
        QVERIFY(till.sellsOnScreen());
    }

    void theSalesScreenTakesNoPressWhileTheReceiptStands()
    {
        Till till;
        const AnswerBox box;
        till.sell("Thé", "2.5");
        payThroughTheScreen(till);
        QVERIFY(till.receipt() != nullptr);
        till.run("insert into Ticket (id, article, prix) values (7, 'Eau', 3)");
        payThroughTheScreen(till);
        QVERIFY(!box.wasShown());
        QCOMPARE(till.books(), QString("sold: 7 Thé 2.5; ticket: Eau 3; 0 shown"));
        till.takeReceipt();
        payThroughTheScreen(till);
        QVERIFY(till.takeReceipt().contains("\n1  Eau            \t$3.00"));
        QCOMPARE(till.books(), QString("sold: 7 Thé 2.5, 7 Eau 3; ticket: ; 0 shown"));
    }

    void payingAgainWhileTheReceiptStandsSellsNothing()
    {
        Till till;
        const AnswerBox box;
        till.sellTea();
        till.pay();
        QCOMPARE(box.text(), QString("Le ticket est vide"));
        QCOMPARE(till.history().size(), 1);
        QCOMPARE(till.window.findChildren<FormVendelTicket*>().size(), 1);
    }

    void twoQuickPressesAreOneSale()
    {
        Till till;
        const AnswerBox box;
        till.sell("Thé", "2.5");
        const QPoint place = placeOfPay(till);
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
        QCoreApplication::processEvents();
        QCOMPARE(till.history(), QStringList("7 Thé 2.5"));
        QCOMPARE(till.window.findChildren<FormVendelTicket*>().size(), 1);
        QVERIFY(!box.wasShown());
        till.takeReceipt();
        QVERIFY(till.sellsOnScreen());
    }
};

VENDEL_TEST(TestPaymentOnScreen)
#include "tst_Payment_onScreen.moc"
