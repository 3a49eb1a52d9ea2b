// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>
#include <QStringList>
#include <QTimer>

#include <functional>

/// Stays on watch for message boxes: presses a given button on the first, remembers what it said,
/// sends any other away and counts it.
class AnswerBox
{
public:
    explicit AnswerBox(QMessageBox::StandardButton button = QMessageBox::Ok);

    /// Runs \a look on the first box before it is answered.
    AnswerBox(QMessageBox::StandardButton button, std::function<void(QMessageBox&)> look);

    /// Whether a box was answered.
    bool wasShown() const
    {
        return shown_ > 0;
    }
    QString title() const
    {
        return title_;
    }
    QString text() const
    {
        return text_;
    }
    Qt::TextFormat format() const
    {
        return format_;
    }
    QMessageBox::Icon icon() const
    {
        return icon_;
    }
    QMessageBox::StandardButtons buttons() const
    {
        return buttons_;
    }
    /// The parent window of the first box.
    const QObject* parent() const
    {
        return parent_;
    }
    /// The titles and the texts of all boxes in order.
    QStringList titles() const
    {
        return titles_;
    }
    QStringList texts() const
    {
        return texts_;
    }
    /// Number of boxes after the first.
    int strays() const
    {
        return shown_ > 1 ? shown_ - 1 : 0;
    }

private:
    void watch();

    QMessageBox::StandardButton button_;
    std::function<void(QMessageBox&)> look_;
    QTimer timer_;
    int shown_ = 0;
    QString title_;
    QString text_;
    QStringList titles_;
    QStringList texts_;
    Qt::TextFormat format_ = Qt::AutoText;
    QMessageBox::Icon icon_ = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons_;
    const QObject* parent_ = nullptr;
};
