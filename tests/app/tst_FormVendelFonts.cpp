// SPDX-License-Identifier: MIT
#include "app/FormVendelStart.h"
#include "tests/app/Till.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QAbstractItemDelegate>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
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

class TestFormVendelFonts : public QObject
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
        Till counter;
        const auto& view = child<QTableView>(counter.window, "tableView1");
        const int needed = cellWidth(view, QString::fromUtf8(QTest::currentDataTag()));
        QVERIFY2(needed > 10, qPrintable(QString::number(needed)));
        QVERIFY2(needed <= view.columnWidth(column), qPrintable(QString::number(needed)));
    }

    void columnsFitTheList()
    {
        Till counter("with recursive n(i) as (select 1 union all select i + 1 from n where i < 999)"
                     "insert into Article (article, prix) select 'Article ' || i, i from n");
        click(counter.window, "btn_Afficher");
        const auto& view = child<QTableView>(counter.window, "tableView1");
        QTRY_VERIFY2(view.viewport()->width() >= 25 + 210 + 110,
            qPrintable(QString::number(view.viewport()->width())));
    }

    void labelsFit()
    {
        Till counter;
        for (const auto* name : {"lbl_Menu", "lbl_Ticket", "lbl_Montant", "lbl_ToolTip"}) {
            const auto& label = child<QLabel>(counter.window, name);
            QVERIFY2(label.sizeHint().width() <= label.width(), name);
            // The line's own leading may be cut, its letters may not.
            const QRect letters = label.fontMetrics().tightBoundingRect(label.text());
            QVERIFY2(letters.height() <= label.height(), name);
        }
    }

    void theClockFits()
    {
        Till counter;
        auto& label = child<QLabel>(counter.window, "lbl_DateTime");
        for (const auto* text : {"28/08/2028 20:48:58", "28/08/2028 20 48 58"}) {
            label.setText(QString::fromLatin1(text));
            QVERIFY2(label.sizeHint().width() <= label.width(), text);
            QVERIFY(label.fontMetrics().tightBoundingRect(label.text()).height() <= label.height());
        }
    }

    void buttonsFit()
    {
        Till counter;
        const auto buttons = counter.window.findChildren<QPushButton*>();
        QVERIFY(buttons.size() >= 19);
        for (const QPushButton* button : buttons) {
            const QSize text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
            QVERIFY2(text.width() <= button->width() - 8, qPrintable(button->text()));
            QVERIFY2(text.height() <= button->height() - 4, qPrintable(button->text()));
        }
    }

    void theSplashsTitleFits()
    {
        Till counter;
        const auto& title = child<QLabel>(counter.window, "lbl_Titre");
        const QRect ink = title.fontMetrics().tightBoundingRect(title.text());
        QVERIFY(ink.width() <= title.width());
        QVERIFY(ink.height() <= title.height());
    }

    void headersFit()
    {
        Till counter;
        for (const auto* name : {"tableView1", "tableView2"}) {
            const auto& view = child<QTableView>(counter.window, name);
            for (int column = 1; column < 4; ++column) {
                if (!view.isColumnHidden(column)) {
                    QVERIFY(view.horizontalHeader()->sectionSizeHint(column)
                        <= view.columnWidth(column));
                }
            }
        }
    }
};

VENDEL_TEST(TestFormVendelFonts)
#include "tst_FormVendelFonts.moc"
