// SPDX-License-Identifier: MIT
#include "tests/support/BoxGuard.h"

#include <QApplication>
#include <QTest>

namespace {
constexpr int tickMs = 100;
// Ticks are counted, not time: a stopped machine does not make a box old.
constexpr int patienceTicks = 30;
} // namespace

BoxGuard::BoxGuard()
{
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { watch(); });
    timer_.start(tickMs);
}

void BoxGuard::watch()
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || box != box_) {
        box_ = box;
        ticks_ = 0;
        return;
    }
    if (++ticks_ < patienceTicks) {
        return;
    }
    const QString text
        = QString("nobody answers the box \"%1\": %2").arg(box->windowTitle(), box->text());
    QTest::qFail(qPrintable(text), __FILE__, __LINE__);
    box->done(QMessageBox::NoButton);
}
