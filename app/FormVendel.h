// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/HoverTip.h"
#include "widgets/ListModel.h"

#include <QMainWindow>
#include <QModelIndex>
#include <QTimer>

#include <memory>

class Ui_FormVendel;

/// The sales screen: menu, ticket, keypad and payment, and the menu bar that opens the other
/// windows.
class FormVendel : public QMainWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormVendel)

public:
    explicit FormVendel(QWidget* parent = nullptr);
    ~FormVendel() override;

    /// Puts the typed \a amount on the ticket as a line without an article, or says what is wrong
    /// with it; the amount field then contains \a amount without blanks around it.
    void operator_more_or_less(QString amount);

    bool eventFilter(QObject* watched, QEvent* event) override;

    void setVisible(bool visible) override;

protected:
    void showEvent(QShowEvent* event) override;

private slots:
    void on_timeout();
    void on_actionConfig_triggered();
    void on_actionSaisie_Article_triggered();
    void on_actionHistorique_triggered();
    void on_actionA_propos_de_triggered();

    void on_btn_Afficher_clicked();
    void on_tableView1_clicked(const QModelIndex& index);
    void on_tableView1_doubleClicked(const QModelIndex& index);
    void on_tableView2_clicked(const QModelIndex& index);
    void on_btn_Ticket_clicked();
    void on_btn_Effacer_Ticket_clicked();
    void on_btn_Total_Ticket_clicked();

    void on_btn_1_clicked();
    void on_btn_2_clicked();
    void on_btn_3_clicked();
    void on_btn_4_clicked();
    void on_btn_5_clicked();
    void on_btn_6_clicked();
    void on_btn_7_clicked();
    void on_btn_8_clicked();
    void on_btn_9_clicked();
    void on_btn_10_clicked();
    void on_btn_11_clicked();
    void on_btn_12_clicked();
    void on_btn_13_clicked();
    void on_btn_Effacer_Saisie_clicked();

    void on_btn_Payer_clicked();

private:
    void setUpLists();
    void showSplash();
    void notePress(const QEvent& event);

    void showMenu();
    void showTotal();
    void addToTicket(const QModelIndex& index);
    void removeFromTicket(const QModelIndex& index);
    bool refreshTicket();
    void putOnTicket(const QString& amount);
    void typeDigit(const char* slot, int digit);
    void type(const QString& text);
    void goToEmptyAmount();
    void pay();

    std::unique_ptr<Ui_FormVendel> ui_;
    QTimer clock_;
    ListModel* modelMenu_;
    ListModel* modelTicket_;
    HoverTips tips_;
    /// Whether the last press on a list ended a double click, and came from the left button.
    bool isSecondPress_ = false;
    bool isLeftPress_ = true;
};
