// SPDX-License-Identifier: MIT
#pragma once

#include "app/Receipt.h"

#include <QDialog>

#include <memory>

class Ui_FormVendelTicket;

/// The receipt on the screen, opened at its end when it is longer than the window.
class FormVendelTicket : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormVendelTicket)

public:
    explicit FormVendelTicket(const Receipt& receipt = {}, QWidget* parent = nullptr);
    ~FormVendelTicket() override;

    /// Whether the receipt could be shown.
    bool isFilled() const { return isFilled_; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void fill();
    void scrollToEnd();

    std::unique_ptr<Ui_FormVendelTicket> ui_;
    Receipt receipt_;
    /// The width that the sheet is fitted to, in pixels.
    int width_ = 0;
    bool isFilled_ = false;
};
