// SPDX-License-Identifier: MIT
#include "common/Messages.h"
#include "tests/support/ListLook.h"
#include "tests/support/TestProgram.h"
#include "widgets/ListModel.h"
#include "widgets/Lists.h"

#include <QHeaderView>
#include <QTableView>

namespace {
constexpr Texts texts{"FormVendelMessages"};

/// A list like the menu's, with the rows that a test begins with.
struct List
{
    QTableView view;
    ListModel model;

    explicit List(const std::vector<QStringList>& rows = {})
    {
        QFont font = view.font();
        font.setPointSize(18);
        view.setFont(font);
        setUpList(view, model, texts, Messages::Messages97, {50, 25, 210, 110}, {0});
        ListFiller filler(view, model);
        for (const QStringList& row : rows) {
            filler.add(row);
        }
    }

    QStringList column(int number) const
    {
        QStringList cells;
        for (int row = 0; row < model.rowCount(); ++row) {
            cells << model.index(row, number).data().toString();
        }
        return cells;
    }

    std::vector<QBrush> grounds(int row) const
    {
        return {model.item(row, 0)->background(), model.item(row, 1)->background(),
            model.item(row, 2)->background(), model.item(row, 3)->background()};
    }
};

const QStringList tea{"1", "", "Thé", "1.00$"};
const QStringList water{"2", "", "Eau", "1.00$"};
} // namespace

/// What fills the lists; the look that each of them has is tested with their windows.
class TestLists : public QObject
{
    Q_OBJECT

private slots:
    void aNarrowColumnKeepsItsWidth()
    {
        QTableView view;
        ListModel model;
        setUpList(view, model, texts, Messages::Messages127, {11});
        QCOMPARE(view.columnWidth(0), 11);
        QCOMPARE(view.horizontalHeader()->minimumSectionSize(), 10);
    }

    void labelsStayInTheMiddleOfTheHeadersHeight()
    {
        const List list;
        QCOMPARE(list.model.rowCount(), 0);
        for (int column = 0; column < 4; ++column) {
            QCOMPARE(list.model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt(),
                static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter));
        }
    }

    void clearingKeepsHeadersAndWidths()
    {
        List list({tea, water});
        clearList(list.model);
        QCOMPARE(list.model.rowCount(), 0);
        QCOMPARE(labels(list.view), QStringList({"#", "X", "Article", "Prix"}));
        QCOMPARE(widths(list.view), (std::vector<int>{25, 210, 110}));
    }

    void rowsAreAppendedInOrder()
    {
        const List list({tea, water});
        QCOMPARE(list.column(0), QStringList({"1", "2"}));
        QCOMPARE(list.column(2), QStringList({"Thé", "Eau"}));
        QCOMPARE(list.column(3), QStringList({"1.00$", "1.00$"}));
    }

    void rowsAreAsHighAsTheirFont()
    {
        List list({tea});
        ListFiller(list.view, list.model).addTotal(water);
        const int letters = QFontMetrics(list.view.font()).height();
        QVERIFY(letters > 20);
        for (const int row : {0, 1}) {
            QVERIFY(list.view.rowHeight(row) >= letters);
            QVERIFY(list.view.rowHeight(row) <= letters + 10);
        }
        QCOMPARE(list.view.verticalHeader()->defaultSectionSize(), 10);
    }

    void onlyTotalsStandOnYellow()
    {
        List list({tea});
        ListFiller(list.view, list.model).addTotal({"0", "", "TOTAL ", "1.00$"});
        QCOMPARE(list.grounds(0), std::vector<QBrush>(4));
        QCOMPARE(list.grounds(1), std::vector<QBrush>(4, QBrush(Qt::yellow)));
    }

    void marksStandInTheRowsOfTheirIds()
    {
        List list({{"12", "", "Cafe", "1.00$"}, {"2", "", "cafe", "1.00$"}, tea});
        markIds(list.model, {}, 1, "X");
        markIds(list.model, {7}, 1, "X");
        QCOMPARE(list.column(1), QStringList({"", "", ""}));
        markIds(list.model, {1, 12}, 1, "X");
        QCOMPARE(list.column(1), QStringList({"X", "", "X"}));
    }

    void theListPaintsAgainAfterFilling()
    {
        const List list({tea});
        QVERIFY(list.view.updatesEnabled());
        QVERIFY(list.view.verticalHeader()->updatesEnabled());
    }
};

VENDEL_TEST(TestLists)
#include "tst_Lists.moc"
