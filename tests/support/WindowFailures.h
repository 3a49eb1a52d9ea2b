// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QEvent>
#include <QStandardItemModel>

#include <stdexcept>

/// While it lives, the first event of a type that reaches an object of a class fails with the
/// exception "trouble".
class FailingEvent : public QObject
{
public:
    FailingEvent(QEvent::Type type, const char* className)
        : type_(type)
        , className_(className)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (!isOver_ && event->type() == type_ && watched->inherits(className_)) {
            isOver_ = true;
            throw std::runtime_error("trouble");
        }
        return false;
    }

private:
    QEvent::Type type_;
    const char* className_;
    bool isOver_ = false;
};

/// A list of two rows and five columns whose cells cannot be read: "trouble".
class FailingModel : public QStandardItemModel
{
public:
    FailingModel()
        : QStandardItemModel(2, 5)
    { }

    QVariant data(const QModelIndex&, int) const override { throw std::runtime_error("trouble"); }
};
