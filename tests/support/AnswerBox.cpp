// SPDX-License-Identifier: MIT
#include "tests/support/AnswerBox.h"

#include <QApplication>
#include <QPushButton>

#include <utility>

AnswerBox::AnswerBox(QMessageBox::StandardButton button)
    : AnswerBox(button, [](QMessageBox&) {})
{ }

AnswerBox::AnswerBox(QMessageBox::StandardButton button, std::function<void(QMessageBox&)> look)
    : button_(button)
    , look_(std::move(look))
{
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { watch(); });
    timer_.start(1);
}

void AnswerBox::watch()
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible()) {
        return;
    }
    titles_ << box->windowTitle();
    texts_ << box->text();
    if (shown_++ > 0) {
        box->done(QMessageBox::NoButton);
        return;
    }
    title_ = box->windowTitle();
    text_ = box->text();
    format_ = box->textFormat();
    icon_ = box->icon();
    buttons_ = box->standardButtons();
    parent_ = box->parent();
    look_(*box);
    if (QAbstractButton* button = box->button(button_)) {
        button->click();
    } else {
        box->done(QMessageBox::NoButton);
    }
}
