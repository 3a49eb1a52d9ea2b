// SPDX-License-Identifier: MIT
#include "backoffice/window/TablePane.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>

namespace {
Table sample(qint64 coffees = 9)
{
    Table table{QStringLiteral("Articles"),
        {{QStringLiteral("Article"), CellKind::Text}, {QStringLiteral("Lignes"), CellKind::Count},
            {QStringLiteral("Dernier jour"), CellKind::Day}},
        {{QStringLiteral("Café"), coffees, QDate(2026, 11, 2)},
            {QStringLiteral("Thé"), qint64{1000}, QDate(2026, 2, 11)},
            {QStringLiteral("Éclair"), qint64{20}, QDate(2025, 12, 24)}}};
    for (int number = 100; number < 160; ++number) {
        table.rows.push_back({QStringLiteral("Plat %1").arg(number), qint64{number}, QVariant()});
    }
    return table;
}

class Pane
{
public:
    Pane()
        : pane(QLocale(QLocale::French, QLocale::France))
    {
        pane.setTable(sample());
        pane.resize(400, 300);
        pane.show();
        if (!QTest::qWaitForWindowActive(&pane)) {
            qFatal("the window is not shown");
        }
    }

    QStringList column(int column, int rows)
    {
        QStringList texts;
        for (int row = 0; row < std::min(rows, pane.model()->rowCount()); ++row) {
            texts += pane.model()->index(row, column).data().toString();
        }
        return texts;
    }

    void clickHeader(int column)
    {
        QHeaderView& header = *pane.horizontalHeader();
        QTest::mouseClick(header.viewport(), Qt::LeftButton, Qt::NoModifier,
            {header.sectionViewportPosition(column) + 10, header.height() / 2});
    }

    TablePane pane;
};
} // namespace

class GestionTable : public QObject
{
    Q_OBJECT

private slots:
    void rowsAreInTheOrderOfTheReport()
    {
        Pane pane;
        QCOMPARE(pane.column(0, 3),
            (QStringList{QStringLiteral("Café"), QStringLiteral("Thé"), QStringLiteral("Éclair")}));
    }

    void numbersAreSortedAsNumbers()
    {
        Pane pane;
        pane.clickHeader(1);
        QCOMPARE(pane.column(1, 3),
            (QStringList{QStringLiteral("9"), QStringLiteral("20"), QStringLiteral("100")}));
        pane.clickHeader(1);
        QCOMPARE(pane.column(0, 1), QStringList{QStringLiteral("Thé")});
    }

    void datesAreSortedAsDatesAndNoDateIsFirst()
    {
        Pane pane;
        pane.pane.sortByColumn(2, Qt::DescendingOrder);
        QCOMPARE(pane.column(0, 3),
            (QStringList{QStringLiteral("Café"), QStringLiteral("Thé"), QStringLiteral("Éclair")}));
        pane.pane.sortByColumn(2, Qt::AscendingOrder);
        QCOMPARE(pane.column(2, 1), QStringList{QString()});
    }

    void isSearchedWithoutAccentsAndCase()
    {
        Pane pane;
        pane.pane.search(QStringLiteral(" ECLAIR"));
        QCOMPARE(pane.column(0, 9), QStringList{QStringLiteral("Éclair")});
        pane.pane.search(QStringLiteral("02/2026"));
        QCOMPARE(pane.column(0, 9), QStringList{QStringLiteral("Thé")});
        pane.pane.search(QString());
        QCOMPARE(pane.pane.model()->rowCount(), 63);
    }

    void newFiguresLeaveWhatTheUserChose()
    {
        Pane pane;
        pane.pane.sortByColumn(1, Qt::DescendingOrder);
        pane.pane.search(QStringLiteral("a"));
        const QModelIndex chosen = pane.pane.model()->index(20, 1);
        const QString name = chosen.siblingAtColumn(0).data().toString();
        pane.pane.setCurrentIndex(chosen);
        pane.pane.verticalScrollBar()->setValue(40);
        pane.pane.setColumnWidth(0, 210);

        // Coffee is now the best.
        pane.pane.setTable(sample(5000));
        QCOMPARE(pane.column(0, 1), QStringList{QStringLiteral("Café")});
        const auto rows = pane.pane.selectionModel()->selectedRows();
        QCOMPARE(rows.size(), 1);
        QCOMPARE(rows.at(0).data().toString(), name);
        QCOMPARE(pane.pane.currentIndex().siblingAtColumn(0).data().toString(), name);
        QCOMPARE(pane.pane.currentIndex().column(), 1);
        QCOMPARE(pane.pane.verticalScrollBar()->value(), 40);
        QCOMPARE(pane.pane.columnWidth(0), 210);
        QVERIFY(pane.column(0, 99).filter(QStringLiteral("Thé")).isEmpty());
    }

    void aChosenRowThatIsGoneIsChosenNoMore()
    {
        Pane pane;
        pane.pane.setCurrentIndex(pane.pane.model()->index(2, 0));
        Table table = sample();
        table.rows.erase(table.rows.begin() + 2);
        pane.pane.setTable(table);
        QVERIFY(pane.pane.selectionModel()->selectedRows().isEmpty());
    }

    void anotherTableIsShownFromItsBeginning()
    {
        Pane pane;
        pane.pane.sortByColumn(1, Qt::DescendingOrder);
        pane.pane.setTable({QStringLiteral("Heures"),
            {{QStringLiteral("Heure"), CellKind::Hour}, {QStringLiteral("Total"), CellKind::Money}},
            {{9, qint64{12500}}, {10, qint64{90000}}}});
        QCOMPARE(pane.column(0, 2),
            (QStringList{QStringLiteral("9\u00a0h"), QStringLiteral("10\u00a0h")}));
    }

    void chosenRowsAreCopiedForASpreadsheet()
    {
        Pane pane;
        pane.pane.setFocus();
        pane.pane.selectRow(0);
        QTest::keyClick(&pane.pane, Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(&pane.pane, Qt::Key_C, Qt::ControlModifier);
        const QString copied = QGuiApplication::clipboard()->text();
        QCOMPARE(copied.split(QLatin1Char('\n')).size(), 2);
        QVERIFY(copied.startsWith(QStringLiteral("Café\t9\t02/11/2026\nThé\t1")));
    }

    void numbersStandOnTheRight()
    {
        Pane pane;
        const auto side = [&](int column) {
            return pane.pane.model()->index(0, column).data(Qt::TextAlignmentRole).toInt();
        };
        QCOMPARE(side(0), int(Qt::AlignLeft | Qt::AlignVCenter));
        QCOMPARE(side(1), int(Qt::AlignRight | Qt::AlignVCenter));
    }
};

VENDEL_BARE_TEST(GestionTable)
#include "tst_GestionTable.moc"
