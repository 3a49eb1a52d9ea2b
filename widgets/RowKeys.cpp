// SPDX-License-Identifier: MIT
#include "widgets/RowKeys.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QShortcut>
#include <QTableView>

#include <algorithm>
#include <utility>

namespace {
/// Whether a press of a key is the keyboard's own repetition. X11 repeats a held key as a release
/// and a press at the same time, and Qt does not always see that the two belong together.
class HeldKey : public QObject
{
public:
    HeldKey(Qt::Key key, QTableView& view)
        : QObject(&view)
        , key_(key)
    {
        view.installEventFilter(this);
    }

    bool isRepeating() const { return isRepeating_; }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        const bool isRelease = event->type() == QEvent::KeyRelease;
        if (isRelease || event->type() == QEvent::ShortcutOverride) {
            const auto& key = static_cast<const QKeyEvent&>(*event);
            if (key.key() == key_) {
                note(key.timestamp(), isRelease);
            }
        }
        return false;
    }

private:
    void note(quint64 moment, bool isRelease)
    {
        // No finger is up for as short as that.
        constexpr quint64 shortestMs = 10;
        isRepeating_ = !isRelease && moment != 0 && moment - released_ < shortestMs;
        if (isRelease) {
            released_ = moment;
        }
    }

    Qt::Key key_;
    quint64 released_ = 0;
    bool isRepeating_ = false;
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
    const auto* held = new HeldKey(key, view);
    QObject::connect(
        shortcut, &QShortcut::activated, &view, [&view, held, run = std::move(action)] {
            const QModelIndex current = view.currentIndex();
            if (current.isValid() && !held->isRepeating()) {
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
