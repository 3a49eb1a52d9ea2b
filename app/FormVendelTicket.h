// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class Ui_FormVendelTicket;

/// The receipt on the screen; making it empties the ticket.
class FormVendelTicket : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormVendelTicket)

public:
    explicit FormVendelTicket(QWidget* parent);
    ~FormVendelTicket() override;

private:
    std::unique_ptr<Ui_FormVendelTicket> ui_;
};
