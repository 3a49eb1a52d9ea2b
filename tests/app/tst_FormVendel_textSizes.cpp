// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStyleOptionViewItem>
#include <QTableView>

namespace {
/// Pixels that a cell of \a view needs for \a text, margins and grid line included.
int cellWidth(const QTableView& view, const QString& text)
{
    QStyleOptionViewItem option;
    option.initFrom(&view);
    option.font = view.font();
    option.fontMetrics = QFontMetrics(view.font());
    option.widget = &view;
    option.features = QStyleOptionViewItem::HasDisplay;
    option.text = text;
    return view.style()->sizeFromContents(QStyle::CT_ItemViewItem, &option, QSize(), &view).width()
        + (view.showGrid() ? 1 : 0);
}
} // namespace

/// What the sales screen shows while it sells fits its room, in the till's own typeface. The texts
/// of its form are measured with those of all windows.
class TestFormVendelTextSizes : public QObject
{
    Q_OBJECT

private slots:
    void textsFitTheirColumns_data()
    {
        QTest::addColumn<int>("column");
        QTest::newRow("999.50$") << 3;
        QTest::newRow("1,234.50$") << 3;
        QTest::newRow("Croque-monsieur") << 2;
        QTest::newRow("Bière à la mûre") << 2;
        QTest::newRow("TVA 20.00%") << 2;
        QTest::newRow("Total ticket") << 2;
        QTest::newRow("X") << 1;
    }

    void textsFitTheirColumns()
    {
        QFETCH(int, column);
        Till till;
        const auto& view = till.list("tableView1");
        const int needed = cellWidth(view, QTest::currentDataTag());
        QVERIFY2(needed > 10, qPrintable(QString::number(needed)));
        QVERIFY2(needed <= view.columnWidth(column), qPrintable(QString::number(needed)));
    }

    void columnsFitTheList()
    {
        OpenTill till(
            "with recursive n(i) as (select 1 union all select i + 1 from n where i < 999)"
            "insert into Article (article, prix) select 'Article ' || i, i from n");
        const auto& view = till.list("tableView1");
        QTRY_VERIFY2(view.viewport()->width() >= 25 + 210 + 110,
            qPrintable(QString::number(view.viewport()->width())));
    }

    void theClockFits()
    {
        Till till;
        auto& label = child<QLabel>(till.window, "lbl_DateTime");
        for (const auto* text : {"28/08/2028 20:48:58", "28/08/2028 20 48 58"}) {
            label.setText(text);
            QVERIFY2(label.sizeHint().width() <= label.width(), text);
            const QRect letters = label.fontMetrics().tightBoundingRect(text);
            QVERIFY2(letters.height() <= label.height(), text);
        }
    }

    void buttonsFit()
    {
        Till till;
        const auto buttons = till.window.findChildren<QPushButton*>();
        QVERIFY(buttons.size() >= 19);
        for (const QPushButton* button : buttons) {
            const QSize text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
            QVERIFY2(text.width() <= button->width() - 8, qPrintable(button->text()));
            QVERIFY2(text.height() <= button->height() - 4, qPrintable(button->text()));
        }
    }

    void headersFit()
    {
        Till till;
        for (const auto* name : {"tableView1", "tableView2"}) {
            const auto& view = till.list(name);
            for (int column = 1; column < 4; ++column) {
                QVERIFY(view.isColumnHidden(column)
                    || view.horizontalHeader()->sectionSizeHint(column)
                        <= view.columnWidth(column));
            }
        }
    }
};

VENDEL_TEST(TestFormVendelTextSizes)
#include "tst_FormVendel_textSizes.moc"
