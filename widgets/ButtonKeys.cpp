// SPDX-License-Identifier: MIT
#include "widgets/ButtonKeys.h"

#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

namespace {
bool isReturn(const QKeyEvent& press)
{
    return press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
}

/// Whether Return does nothing to \a button without us; Qt presses those of the message boxes.
bool isLeftToUs(const QPushButton& button) { return !button.autoDefault() && !button.isDefault(); }
} // namespace

ButtonKeys::ButtonKeys(QObject* application)
    : QObject(application)
{
    application->installEventFilter(this);
}

bool ButtonKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool isRepeated = held_.repeats(key);
    if (event->type() == QEvent::KeyRelease || !(isReturn(key) || key.key() == Qt::Key_Space)) {
        return false;
    }
    if (isRepeated) {
        // What a field leaves of Return, a dialog gives to its default button.
        return qobject_cast<QAbstractButton*>(watched) != nullptr
            || qobject_cast<QDialog*>(watched) != nullptr;
    }
    auto* button = qobject_cast<QPushButton*>(watched);
    const bool isPlain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (button == nullptr || !isPlain || !isReturn(key) || !isLeftToUs(*button)) {
        return false;
    }
    button->click();
    return true;
}
