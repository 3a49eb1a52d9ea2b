// SPDX-License-Identifier: MIT
#pragma once

#include <QToolButton>

#include <vector>

class QAction;
class QMenu;

/// The choice of the tills of a book: all, one, or several side by side.
class TillChoice : public QToolButton
{
    Q_OBJECT

public:
    /// Begins with the tills \a names; none for all.
    explicit TillChoice(std::vector<QString> names, QWidget* parent = nullptr);

    /// The names; none for all.
    const std::vector<QString>& tills() const { return chosen_; }

    /// Offers the tills \a names.
    void offer(const std::vector<QString>& names);

signals:
    void chosen();

private:
    void takeAll();
    void take(const QString& name, bool isWanted);
    bool isOffered(const QString& name) const;
    void showChoice();

    QMenu* menu_;
    QAction* all_ = nullptr;
    std::vector<QAction*> each_;
    std::vector<QString> chosen_;
};
