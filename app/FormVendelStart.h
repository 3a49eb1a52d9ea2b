// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QTimer>

#include <memory>

class Ui_FormVendelStart;

/// The splash: shown in front of the main window for about five seconds.
class FormVendelStart : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormVendelStart)

public:
    explicit FormVendelStart(QWidget* parent = nullptr);
    ~FormVendelStart() override;

private slots:
    void on_timeout();

private:
    std::unique_ptr<Ui_FormVendelStart> ui_;
    QTimer timer_;
    int ticks_ = 0;
};
