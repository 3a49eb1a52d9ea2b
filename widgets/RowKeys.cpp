// SPDX-License-Identifier: MIT
#include "widgets/RowKeys.h"

#include "widgets/HeldKey.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QShortcut>
#include <QTableView>

#include <algorithm>
#include <utility>

namespace {
/// Whether the last press of a key in a list is one that the keyboard repeats.
class LastPress : public QObject
{
public:
    LastPress(Qt::Key key, QTableView& view)
        : QObject(&view)
        , key_(key)
    {
        view.installEventFilter(this);
    }

    bool isRepeated() const { return isRepeated_; }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::KeyRelease || event->type() == QEvent::ShortcutOverride) {
            const auto& key = static_cast<const QKeyEvent&>(*event);
            if (key.key() == key_) {
                isRepeated_ = held_.repeats(key);
            }
        }
        return false;
    }

private:
    Qt::Key key_;
    HeldKey held_;
    bool isRepeated_ = false;
};

/// Moves the keyboard's frame of a list that was filled again back to \a row, or to the last one;
/// nothing is marked.
void returnTo(const QTableView& view, int row, int column)
{
    const int last = view.model()->rowCount() - 1;
    if (!view.currentIndex().isValid() && last >= 0) {
        view.selectionModel()->setCurrentIndex(
            view.model()->index(std::min(row, last), column), QItemSelectionModel::NoUpdate);
    }
}
} // namespace

void onKey(QTableView& view, Qt::Key key, RowAction action)
{
    auto* shortcut = new QShortcut(QKeySequence(key), &view);
    shortcut->setContext(Qt::WidgetShortcut);
    shortcut->setAutoRepeat(false);
    const auto* press = new LastPress(key, view);
    QObject::connect(
        shortcut, &QShortcut::activated, &view, [&view, press, run = std::move(action)] {
            const QModelIndex current = view.currentIndex();
            if (current.isValid() && !press->isRepeated()) {
                const int row = current.row();
                const int column = current.column();
                run(current);
                returnTo(view, row, column);
            }
        });
}

void onRowKeys(QTableView& view, const RowAction& action)
{
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        onKey(view, key, action);
    }
}
