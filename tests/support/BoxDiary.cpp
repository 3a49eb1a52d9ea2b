// SPDX-License-Identifier: MIT
#include "tests/support/BoxDiary.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

BoxDiary::BoxDiary(std::function<void()> onBox)
{
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this, onBox = std::move(onBox)] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || !box->isVisible()) {
            return;
        }
        said << box->windowTitle() + QString(": ") + box->text();
        onBox();
        auto* yes = box->button(QMessageBox::Yes);
        (yes == nullptr ? box->button(QMessageBox::Ok) : yes)->click();
    });
    timer_.start(1);
}
