// SPDX-License-Identifier: MIT
#include "tests/app/StartedTill.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QPoint>

namespace {
constexpr int menuBar = 22;

QRect wholeScreen()
{
    const QList<QByteArray> sides
        = outputOf("xdotool", {"getdisplaygeometry"}).trimmed().split(' ');
    return {0, 0, sides.value(0).toInt(), sides.value(1).toInt()};
}

/// Clicks a point of the sales screen's form, wherever the till has put it.
void clickForm(QPoint point)
{
    const QRect window = geometry("Vendel");
    const double factor = window.width() / 1050.0;
    const QPointF place = window.topLeft() + QPointF(point + QPoint(0, menuBar)) * factor;
    outputOf("xdotool",
        {"mousemove", QString::number(qRound(place.x())), QString::number(qRound(place.y())),
            "click", "1"});
}

const QPoint clearEntry(903, 95);
const QPoint showMenu(903, 145);
const QPoint clearTicket(903, 241);
const QPoint firstArticle(160, 75);
const QPoint plus(1021, 482);
const QPoint minus(1021, 372);
const QPoint pay(910, 569);
/// The keys 1 to 9, 0 and the comma.
const QList<QPoint> keys{{854, 345}, {910, 345}, {966, 345}, {854, 400}, {910, 400}, {966, 400},
    {854, 455}, {910, 455}, {966, 455}, {910, 510}, {966, 510}};
} // namespace

/// The program itself on a screen that has no room for the sales screen as it is.
class TestExecutableSmallScreen : public QObject
{
    Q_OBJECT

private slots:
    void theSalesScreenIsWithinTheScreen()
    {
        const Shop shop;
        const StartedTill till;
        QVERIFY(opens("Vendel"));
        const QRect window = geometry("Vendel");
        const QRect screen = wholeScreen();
        QVERIFY(screen.contains(window));
        // With its frame it is as large as the screen in one direction.
        QVERIFY(window.width() > screen.width() * 0.97 || window.height() > screen.height() * 0.88);
        QVERIFY(qAbs(window.height() * 1050 - window.width() * 626) < 2 * 1050);
    }

    void aSaleIsClickedFromTheFirstButtonToTheLast()
    {
        const Shop shop;
        shop.fill("insert into Article (article, prix) values ('Bière', 2)");
        StartedTill till;
        QVERIFY(opens("Dialog"));
        QVERIFY(closes("Dialog"));
        for (const QPoint& key : keys) {
            clickForm(key);
        }
        clickForm(keys.at(4));
        clickForm(plus);
        QTRY_COMPARE(shop.cell("select prix from Ticket"), QString("1234567890.5"));
        clickForm(minus);
        QTRY_COMPARE(shop.cell("select count(*) from Ticket"), QString("2"));
        clickForm(clearTicket);
        QTRY_COMPARE(shop.cell("select count(*) from Ticket"), QString("0"));

        clickForm(clearEntry);
        clickForm(showMenu);
        // The list may not be filled at the first click.
        QTRY_VERIFY_WITH_TIMEOUT(
            (clickForm(firstArticle), shop.cell("select article from Ticket") == "Bière"), 30000);
        clickForm(pay);
        QVERIFY(opens("Impression Ticket"));
        QCOMPARE(shop.cell("select article from Historique"), QString("Bière"));
        QVERIFY(!till.takeLog().contains("Errors"));
    }
};

VENDEL_BARE_TEST(TestExecutableSmallScreen)
#include "tst_ExecutableSmallScreen.moc"
