// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>
#include <QStringList>
#include <QTimer>

#include <functional>

/// Stays on watch for message boxes and remembers what each said.
class AnswerBox
{
public:
    using Look = std::function<void(QMessageBox&)>;

    /// Presses \a button on the first box, after \a look has seen it, unless \a look has closed it;
    /// sends any other away.
    explicit AnswerBox(
        QMessageBox::StandardButton button = QMessageBox::Ok, Look look = [](QMessageBox&) {});

    /// Presses Yes or OK on every box, after \a look has seen it.
    static AnswerBox agreeing(Look look = [](QMessageBox&) {});

    /// Whether a box was answered.
    bool wasShown() const { return shown_ > 0; }
    QString title() const { return title_; }
    QString text() const { return text_; }
    Qt::TextFormat format() const { return format_; }
    QMessageBox::Icon icon() const { return icon_; }
    QMessageBox::StandardButtons buttons() const { return buttons_; }
    /// Whether the last box was a notice of \a window, with OK alone.
    bool isNoticeOf(const QObject& window) const { return isOf(window, QMessageBox::Ok); }
    /// Whether the last box was a question of \a window, with Yes and No.
    bool isQuestionOf(const QObject& window) const
    {
        return isOf(window, QMessageBox::Yes | QMessageBox::No);
    }
    /// The parent window of the first box.
    const QObject* parent() const { return parent_; }
    /// The titles and the texts of all boxes in order.
    QStringList titles() const { return titles_; }
    QStringList texts() const { return texts_; }
    /// What all boxes said in order, "title: text" each.
    QStringList said() const { return said_; }
    /// Number of boxes after the first.
    int strays() const { return shown_ > 1 ? shown_ - 1 : 0; }

private:
    AnswerBox(QMessageBox::StandardButton button, Look look, bool agrees);
    bool isOf(const QObject& window, QMessageBox::StandardButtons buttons) const
    {
        return icon_ == QMessageBox::Information && parent_ == &window && buttons_ == buttons;
    }
    void watch();

    QMessageBox::StandardButton button_;
    Look look_;
    bool agrees_ = false;
    QTimer timer_;
    int shown_ = 0;
    /// A look may wait for something.
    bool isLooking_ = false;
    QString title_;
    QString text_;
    QStringList titles_;
    QStringList texts_;
    QStringList said_;
    Qt::TextFormat format_ = Qt::AutoText;
    QMessageBox::Icon icon_ = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons_;
    const QObject* parent_ = nullptr;
};

/// What all boxes said, "title: text" each, when \a answer was pressed on the first one after a
/// click on the widget \a name of \a window.
QStringList saidAtClick(
    QWidget& window, const char* name, QMessageBox::StandardButton answer = QMessageBox::Ok);
