// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QString>

#include <memory>
#include <string>

class Ui_FormVendelFormulaireTicket;

/// The editor of the two texts that frame a receipt. Either button saves what is on the screen,
/// whichever text was shown, and only into a file that is there already. A text that is not saved
/// is given up only after a question.
class FormVendelFormulaireTicket : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormVendelFormulaireTicket)

public:
    explicit FormVendelFormulaireTicket(QWidget* parent = nullptr);
    ~FormVendelFormulaireTicket() override;

    void reject() override;

private slots:
    void on_actionEntete_Page_triggered();
    void on_actionPied_Page_triggered();
    void on_btn_Entete_Page_clicked();
    void on_btn_Pied_Page_clicked();

private:
    void showFile(const QString& file, const std::string& label);
    void save(const QString& file);
    bool mayDropText();

    std::unique_ptr<Ui_FormVendelFormulaireTicket> ui_;
    /// What was shown last out of a file, or saved into one.
    QString savedText_;
};
