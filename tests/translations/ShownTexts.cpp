// SPDX-License-Identifier: MIT
#include "tests/translations/ShownTexts.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTableView>
#include <QTextEdit>

#include <algorithm>

namespace {
/// How far \a needed goes beyond \a room in its worse direction.
int lack(const QSize& needed, const QSize& room)
{
    return std::max(needed.width() - room.width(), needed.height() - room.height());
}

/// The pixels of \a text's ink: a line's height without its leading.
QSize inkSize(const QWidget& widget, const QString& text)
{
    const QFontMetrics metrics = widget.fontMetrics();
    const QSize whole = metrics.size(Qt::TextShowMnemonic, text);
    const int lines = int(text.count('\n'));
    return {
        whole.width(), metrics.tightBoundingRect(text).height() + lines * metrics.lineSpacing()};
}

int lackOf(const QLabel& label)
{
    return label.wordWrap() ? label.heightForWidth(label.width()) - label.height()
                            : lack(inkSize(label, label.text()), label.contentsRect().size());
}

int lackOf(const QAbstractButton& button)
{
    if (qobject_cast<const QPushButton*>(&button) == nullptr) {
        return button.sizeHint().width() - button.width();
    }
    QStyleOptionButton option;
    option.initFrom(&button);
    const QRect room
        = button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button);
    return lack(inkSize(button, button.text()), room.size());
}

int lackOf(const QComboBox& box, const QString& item)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    const QRect room = box.style()->subControlRect(
        QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box);
    return lack(inkSize(box, item), room.size());
}

class Collector
{
public:
    QVector<ShownText> texts;

    void visit(const QWidget& widget)
    {
        add(widget, "title", widget.windowTitle());
        add(widget, "tip", widget.toolTip());
        add(widget, "accessible name", widget.accessibleName());
        add(widget, "accessible description", widget.accessibleDescription());
        if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
            add(widget, "text", label->text(), lackOf(*label));
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
            add(widget, "text", button->text(), lackOf(*button));
        } else if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
            add(widget, "text", group->title(),
                inkSize(widget, group->title()).width() - group->width());
        } else if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
            visitChoices(*box);
        } else if (const auto* view = qobject_cast<const QTableView*>(&widget)) {
            visitList(*view);
        } else if (const auto* document = qobject_cast<const QTextEdit*>(&widget)) {
            add(widget, "document", document->toPlainText());
        } else if (const auto* bar = qobject_cast<const QMenuBar*>(&widget)) {
            visitMenu(*bar, bar->rect());
        } else if (const auto* menu = qobject_cast<const QMenu*>(&widget)) {
            visitMenu(*menu, QRect());
        }
    }

private:
    void add(const QWidget& widget, const char* place, const QString& text, int missing = 0)
    {
        if (!text.isEmpty()) {
            texts.push_back({widget.objectName() + ' ' + place, text, missing});
        }
    }

    void visitChoices(const QComboBox& box)
    {
        for (int item = 0; item < box.count(); ++item) {
            add(box, "choice", box.itemText(item), lackOf(box, box.itemText(item)));
        }
    }

    void visitList(const QTableView& view)
    {
        const QHeaderView& header = *view.horizontalHeader();
        const QAbstractItemModel& model = *view.model();
        for (int column = 0; column < model.columnCount(); ++column) {
            if (view.isColumnHidden(column)) {
                continue;
            }
            const QString caption = model.headerData(column, Qt::Horizontal).toString();
            add(view, "header", caption,
                header.fontMetrics().horizontalAdvance(caption) - header.sectionSize(column));
            for (int row = 0; row < model.rowCount(); ++row) {
                add(view, "cell", model.index(row, column).data().toString());
            }
        }
    }

    template <class Menu> void visitMenu(const Menu& menu, const QRect& room)
    {
        const auto actions = menu.actions();
        for (const QAction* action : actions) {
            const QRect place = menu.actionGeometry(const_cast<QAction*>(action));
            add(menu, "action", action->text(), room.isNull() ? 0 : place.right() - room.right());
        }
    }
};
} // namespace

QVector<ShownText> shownTexts(const QWidget& window)
{
    Collector collector;
    collector.visit(window);
    const auto widgets = window.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        collector.visit(*widget);
    }
    return collector.texts;
}
