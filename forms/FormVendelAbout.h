// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class QAbstractButton;
class Ui_FormVendelAbout;

/// Shows the till's name, version and licence, and where the shop's data is.
class FormVendelAbout : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormVendelAbout)

public:
    explicit FormVendelAbout(QWidget* parent = nullptr);
    ~FormVendelAbout() override;

private slots:
    void on_btn_buttonBox_clicked(QAbstractButton* button);

private:
    std::unique_ptr<Ui_FormVendelAbout> ui_;
};
