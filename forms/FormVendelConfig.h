// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class Ui_FormVendelConfig;

/// The settings: VAT rate and printer switch, each stored by its own button, and the way to the
/// receipt's header and footer.
class FormVendelConfig : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormVendelConfig)

public:
    explicit FormVendelConfig(QWidget* parent = nullptr);
    ~FormVendelConfig() override;

private slots:
    void on_btn_Maj_TVA_clicked();
    void on_btn_Maj_Epson_clicked();
    void on_btn_Maj_Formulaire_clicked();

private:
    void showSettings();
    void storeRate();

    std::unique_ptr<Ui_FormVendelConfig> ui_;
};
