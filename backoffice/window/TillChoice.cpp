// SPDX-License-Identifier: MIT
#include "backoffice/window/TillChoice.h"

#include "widgets/QtNames.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>

#include <algorithm>

namespace {
/// A menu that stays open while several of its entries are checked.
class CheckMenu : public QMenu
{
public:
    using QMenu::QMenu;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        QAction* action = actionAt(QtNames::position(*event).toPoint());
        if (action != nullptr && action->isCheckable()) {
            action->trigger();
        } else {
            QMenu::mouseReleaseEvent(event);
        }
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        QAction* action = activeAction();
        if (event->key() == Qt::Key_Space && action != nullptr) {
            action->trigger();
        } else {
            QMenu::keyPressEvent(event);
        }
    }
};

/// In a button or a menu, "&" would mark a key.
QString plain(QString name) { return name.replace(QLatin1Char('&'), QStringLiteral("&&")); }
} // namespace

TillChoice::TillChoice(std::vector<QString> names, QWidget* parent)
    : QToolButton(parent)
    , menu_(new CheckMenu(this))
    , chosen_(std::move(names))
{
    setObjectName(QStringLiteral("tills"));
    setAccessibleName(tr("Caisses"));
    setFocusPolicy(Qt::StrongFocus);
    setPopupMode(QToolButton::InstantPopup);
    setMenu(menu_);
    all_ = menu_->addAction(tr("Toutes les caisses"));
    all_->setCheckable(true);
    connect(all_, &QAction::triggered, this, &TillChoice::takeAll);
    menu_->addSeparator();
    showChoice();
}

void TillChoice::offer(const std::vector<QString>& names)
{
    for (QAction* action : each_) {
        menu_->removeAction(action);
        action->deleteLater();
    }
    each_.clear();
    for (const QString& name : names) {
        QAction* action = menu_->addAction(plain(name));
        action->setCheckable(true);
        action->setData(name);
        connect(action, &QAction::triggered, this,
            [this, name](bool isWanted) { take(name, isWanted); });
        each_.push_back(action);
    }
    showChoice();
}

void TillChoice::takeAll()
{
    chosen_.clear();
    showChoice();
    emit chosen();
}

void TillChoice::take(const QString& name, bool isWanted)
{
    // A till that has another name by now could not be unchosen.
    chosen_.erase(std::remove_if(chosen_.begin(), chosen_.end(),
                      [this](const QString& one) { return !isOffered(one); }),
        chosen_.end());
    const auto place = std::find(chosen_.begin(), chosen_.end(), name);
    if (isWanted && place == chosen_.end()) {
        chosen_.push_back(name);
    } else if (!isWanted && place != chosen_.end()) {
        chosen_.erase(place);
    }
    showChoice();
    emit chosen();
}

bool TillChoice::isOffered(const QString& name) const
{
    return std::any_of(each_.begin(), each_.end(),
        [&name](const QAction* action) { return action->data().toString() == name; });
}

void TillChoice::showChoice()
{
    all_->setChecked(chosen_.empty());
    for (QAction* action : each_) {
        action->setChecked(
            std::find(chosen_.begin(), chosen_.end(), action->data().toString()) != chosen_.end());
    }
    const auto count = static_cast<int>(chosen_.size());
    setText(chosen_.empty() ? all_->text()
            : count == 1    ? plain(chosen_.front())
                            : tr("%1 caisses").arg(count));
}
