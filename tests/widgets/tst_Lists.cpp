// SPDX-License-Identifier: MIT
#include "common/Messages.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "widgets/Lists.h"

#include <QHeaderView>
#include <QStandardItemModel>
#include <QTableView>

namespace {
constexpr Texts texts{"FormVendelMessages"};

struct List
{
    QTableView view;
    QStandardItemModel model;

    List()
    {
        QFont font = view.font();
        font.setPointSize(18);
        view.setFont(font);
        setUpList(view, model, texts, Messages::Messages97, {50, 25, 210, 110}, {0});
    }

    QString header(int column) const
    {
        return model.headerData(column, Qt::Horizontal).toString();
    }

    QString cell(int row, int column) const
    {
        return model.index(row, column).data().toString();
    }
};

QStringList row(const char* id, const char* name)
{
    return {QString::fromUtf8(id), QString(), QString::fromUtf8(name), QString("1.00$")};
}
} // namespace

class TestLists : public QObject
{
    Q_OBJECT

private slots:
    void labelsStandInColumnOrder()
    {
        const List list;
        QCOMPARE(list.model.columnCount(), 4);
        QCOMPARE(list.model.rowCount(), 0);
        QCOMPARE(list.header(0), QString("#"));
        QCOMPARE(list.header(1), QString("X"));
        QCOMPARE(list.header(2), QString("Article"));
        QCOMPARE(list.header(3), QString("Prix"));
    }

    void labelsAreTranslated()
    {
        Translation translation;
        translation.add(QString("FormVendelMessages"), QString("Prix"), QString("Price"));
        const List list;
        QCOMPARE(list.header(3), QString("Price"));
    }

    void columnsHaveTheirWidths()
    {
        const List list;
        QCOMPARE(list.view.columnWidth(1), 25);
        QCOMPARE(list.view.columnWidth(2), 210);
        QCOMPARE(list.view.columnWidth(3), 110);
    }

    void aNarrowColumnKeepsItsWidth()
    {
        QTableView view;
        QStandardItemModel model;
        setUpList(view, model, texts, Messages::Messages127, {11});
        QCOMPARE(view.columnWidth(0), 11);
        QCOMPARE(view.horizontalHeader()->minimumSectionSize(), 10);
    }

    void hiddenColumnsAreHidden()
    {
        const List list;
        QVERIFY(list.view.isColumnHidden(0));
        QVERIFY(!list.view.isColumnHidden(1));
        QVERIFY(!list.view.isColumnHidden(2));
        QVERIFY(!list.view.isColumnHidden(3));
    }

    void coloursAlternate()
    {
        const List list;
        QVERIFY(list.view.alternatingRowColors());
        QCOMPARE(list.view.styleSheet(),
            QString("alternate-background-color: LightBlue;background-color: White"));
    }

    void cellsAreNotEdited()
    {
        const List list;
        QCOMPARE(list.view.editTriggers(), QAbstractItemView::NoEditTriggers);
    }

    void headersAreLeftAligned()
    {
        const List list;
        QCOMPARE(list.view.horizontalHeader()->defaultAlignment(), Qt::Alignment(Qt::AlignLeft));
        // Labels stay in the middle of the header's height.
        for (int column = 0; column < 4; ++column) {
            QCOMPARE(list.model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt(),
                static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter));
        }
    }

    void rowsMayBeTenPixelsHigh()
    {
        const List list;
        QCOMPARE(list.view.verticalHeader()->defaultSectionSize(), 10);
        QCOMPARE(list.view.verticalHeader()->minimumSectionSize(), 10);
    }

    void clearingKeepsHeadersAndWidths()
    {
        List list;
        {
            ListFiller filler(list.view, list.model);
            filler.add(row("1", "Thé"));
            filler.add(row("2", "Eau"));
        }
        clearList(list.model);
        QCOMPARE(list.model.rowCount(), 0);
        QCOMPARE(list.header(2), QString("Article"));
        QCOMPARE(list.view.columnWidth(2), 210);
        QVERIFY(list.view.isColumnHidden(0));
    }

    void rowsAreAppendedInOrder()
    {
        List list;
        ListFiller filler(list.view, list.model);
        filler.add(row("1", "Thé"));
        filler.add(row("2", "Eau"));
        QCOMPARE(list.model.rowCount(), 2);
        QCOMPARE(list.cell(0, 2), QString("Thé"));
        QCOMPARE(list.cell(1, 0), QString("2"));
        QCOMPARE(list.cell(1, 2), QString("Eau"));
        QCOMPARE(list.cell(1, 3), QString("1.00$"));
    }

    void rowsAreAsHighAsTheirFont()
    {
        List list;
        {
            ListFiller filler(list.view, list.model);
            filler.add(row("1", "Thé"));
            filler.addTotal(row("2", "Total"));
        }
        const int letters = QFontMetrics(list.view.font()).height();
        QVERIFY(letters > 20);
        for (const int line : {0, 1}) {
            QVERIFY(list.view.rowHeight(line) >= letters);
            QVERIFY(list.view.rowHeight(line) <= letters + 10);
        }
        QCOMPARE(list.view.verticalHeader()->defaultSectionSize(), 10);
    }

    void totalsStandOnYellow()
    {
        List list;
        ListFiller filler(list.view, list.model);
        filler.addTotal(row("0", "TOTAL "));
        for (int column = 0; column < 4; ++column) {
            QCOMPARE(list.model.item(0, column)->background(), QBrush(Qt::yellow));
        }
    }

    void ordinaryRowsHaveNoColourOfTheirOwn()
    {
        List list;
        ListFiller filler(list.view, list.model);
        filler.add(row("1", "Thé"));
        for (int column = 0; column < 4; ++column) {
            QCOMPARE(list.model.item(0, column)->background(), QBrush());
        }
    }

    void marksStandInTheRowsOfTheirIds()
    {
        List list;
        {
            ListFiller filler(list.view, list.model);
            filler.add(row("12", "Cafe"));
            filler.add(row("2", "cafe"));
            filler.add(row("1", "Eau"));
        }
        markIds(list.model, {1, 12}, 1, QString("X"));
        QCOMPARE(list.cell(0, 1), QString("X"));
        QCOMPARE(list.cell(1, 1), QString());
        QCOMPARE(list.cell(2, 1), QString("X"));
    }

    void marksOfUnknownIdsStandNowhere()
    {
        List list;
        {
            ListFiller filler(list.view, list.model);
            filler.add(row("1", "Eau"));
        }
        markIds(list.model, {}, 1, QString("X"));
        markIds(list.model, {7}, 1, QString("X"));
        QCOMPARE(list.cell(0, 1), QString());
    }

    void theListPaintsAgainAfterFilling()
    {
        List list;
        {
            ListFiller filler(list.view, list.model);
            filler.add(row("1", "Eau"));
        }
        QVERIFY(list.view.updatesEnabled());
        QVERIFY(list.view.verticalHeader()->updatesEnabled());
    }
};

VENDEL_TEST(TestLists)
#include "tst_Lists.moc"
