// SPDX-License-Identifier: MIT
#include "app/FormVendelStart.h"

#include "common/SlotGuard.h"
#include "ui_FormVendelStart.h"
#include "widgets/Captions.h"

namespace {
constexpr int tickMs = 1000;
constexpr int lastTick = 4;
} // namespace

FormVendelStart::FormVendelStart(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelStart>())
    , timer_(this)
{
    guarded("FormVendelStart Constructor", [this] {
        ui_->setupUi(this);
        translateCaptions(*this);
        connect(&timer_, &QTimer::timeout, this, &FormVendelStart::on_timeout);
        timer_.start(tickMs);
    });
}

FormVendelStart::~FormVendelStart() = default;

void FormVendelStart::on_timeout()
{
    guarded("FormVendelStart on_timeout", [this] {
        if (++ticks_ <= lastTick) {
            return;
        }
        timer_.stop();
        // Closing a dismissed splash would also hide a visible tip.
        if (isVisible()) {
            close();
        }
    });
}
