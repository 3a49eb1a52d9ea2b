// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QTimer>

#include <functional>

/// While it lives, answers every box that comes with its Yes or its OK, and remembers what each
/// said as "title: text". \a onBox is called while a box stands.
class BoxDiary
{
public:
    explicit BoxDiary(std::function<void()> onBox = [] {});

    QStringList said;

private:
    QTimer timer_;
};
