// SPDX-License-Identifier: MIT
#include "tests/support/AnswerBox.h"

#include "tests/support/Widgets.h"

#include <QApplication>
#include <QPushButton>

#include <utility>

AnswerBox::AnswerBox(QMessageBox::StandardButton button, Look look)
    : AnswerBox(button, std::move(look), false)
{ }

AnswerBox::AnswerBox(QMessageBox::StandardButton button, Look look, bool agrees)
    : button_(button)
    , look_(std::move(look))
    , agrees_(agrees)
{
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { watch(); });
    timer_.start(1);
}

AnswerBox AnswerBox::agreeing(Look look) { return {QMessageBox::Yes, std::move(look), true}; }

void AnswerBox::watch()
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (isLooking_ || box == nullptr || !box->isVisible()) {
        return;
    }
    titles_ << box->windowTitle();
    texts_ << box->text();
    said_ << box->windowTitle() + ": " + box->text();
    if (shown_++ > 0 && !agrees_) {
        box->done(QMessageBox::NoButton);
        return;
    }
    title_ = box->windowTitle();
    text_ = box->text();
    format_ = box->textFormat();
    icon_ = box->icon();
    buttons_ = box->standardButtons();
    parent_ = box->parent();
    isLooking_ = true;
    look_(*box);
    isLooking_ = false;
    if (!box->isVisible()) {
        return;
    }
    QAbstractButton* button = box->button(button_);
    if (agrees_ && button == nullptr) {
        button = box->button(QMessageBox::Ok);
    }
    if (button != nullptr) {
        button->click();
    } else {
        box->done(QMessageBox::NoButton);
    }
}

QStringList saidAtClick(QWidget& window, const char* name, QMessageBox::StandardButton answer)
{
    const AnswerBox box(answer);
    click(window, name);
    return box.said();
}
