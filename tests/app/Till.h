// SPDX-License-Identifier: MIT
#pragma once

#include "app/FormVendel.h"
#include "app/FormVendelStart.h"
#include "app/FormVendelTicket.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Shop.h"
#include "tests/support/Widgets.h"

#include <QLineEdit>
#include <QTableView>
#include <QTextEdit>

/// A till ready to sell in a shop of its own: its splash is gone.
class Till
{
public:
    Shop shop;
    FormVendel window;

    /// The statements \a sql fill the shop's database before the sales screen opens.
    explicit Till(const char* sql = "")
    {
        shop.fill(sql);
        window.show();
        child<FormVendelStart>(window, "FormVendelStart").close();
        const bool isExposed = QTest::qWaitForWindowExposed(&window);
        window.activateWindow();
        if (!isExposed || !QTest::qWaitForWindowActive(&window)) {
            qFatal("the sales screen does not open");
        }
    }

    /// The list "tableView1" (menu) or "tableView2" (ticket).
    QTableView& list(const char* name) { return child<QTableView>(window, name); }

    /// The rows of a list, hidden columns included, "1;;Thé;2.50$" each.
    QStringList rows(const char* list)
    {
        QStringList texts;
        for (int row = 0; row < rowCount(window, list); ++row) {
            texts << rowTexts(window, list, row).join(';');
        }
        return texts;
    }

    /// The names in a list, parted by "|".
    QString names(const char* list) { return column(list, 2); }

    /// The marks of doubles in the menu, parted by "|".
    QString marks() { return column("tableView1", 1); }

    /// Whether a row of a list is seen whole.
    bool isInView(const char* name, int row)
    {
        const QTableView& view = list(name);
        return view.viewport()->rect().contains(view.visualRect(view.model()->index(row, 2)));
    }

    /// The field of the amount that the keypad types.
    QLineEdit& field() { return child<QLineEdit>(window, "txt_montant"); }

    /// What \a box said, "title: text", when it was a single notice with an OK over this window.
    QString notice(const AnswerBox& box) const
    {
        const bool isNotice = box.icon() == QMessageBox::Information
            && box.buttons() == QMessageBox::Ok && box.parent() == &window;
        return (isNotice ? "" : "no notice: ") + box.said().join(" | ");
    }

    /// The same of the box that a click on \a button opens.
    QString noticeOf(const char* button)
    {
        const AnswerBox box;
        click(window, button);
        return notice(box);
    }

    /// Sets the printer's switch.
    void setSwitch(const QByteArray& value)
    {
        run("update Config set valeur = '" + value + "' where param = 'Epson TM-T20II'");
    }

    /// Puts a line on the ticket, \a price as SQL writes it, and shows the ticket.
    void sell(const QByteArray& article, const QByteArray& price)
    {
        run("insert into Ticket (id, article, prix) values (7, '" + article + "', " + price + ")");
        click(window, "btn_Ticket");
    }

    void pay() { click(window, "btn_Payer"); }

    /// Sells a tea at 2.50.
    void sellTea()
    {
        sell("Thé", "2.5");
        pay();
    }

    /// The same with the printer switched on.
    void sellOnPaper()
    {
        setSwitch("1");
        sellTea();
    }

    /// Runs \a sql on the shop's database.
    void run(const QByteArray& sql) { shop.sql(sql.constData()); }

    /// The lines of the history, "id article price" each.
    QStringList history() const
    {
        return lines("select id || ' ' || article || ' ' || prix from Historique order by rowid");
    }

    /// The lines of the stored ticket, "article price" each.
    QStringList ticket() const
    {
        return lines("select article || ' ' || prix from Ticket order by idlig");
    }

    /// The history, the stored ticket and the shown one:
    /// "sold: 7 Thé 2.5, 7 Eau 3; ticket: Eau 3; 1 shown".
    QString books()
    {
        return "sold: " + history().join(", ") + "; ticket: " + ticket().join(", ") + "; "
            + QString::number(shownLines()) + " shown";
    }

    /// The number of lines that the ticket's list shows.
    int shownLines() { return rowCount(window, "tableView2"); }

    /// The receipt on the screen, null when there is none.
    FormVendelTicket* receipt() const { return window.findChild<FormVendelTicket*>(); }

    /// Closes the receipt on the screen and returns its text, which is empty without a receipt.
    QString takeReceipt()
    {
        FormVendelTicket* shown = receipt();
        if (shown == nullptr) {
            return {};
        }
        const QString text = child<QTextEdit>(*shown, "txt_Ticket").toPlainText();
        shown->close();
        QCoreApplication::sendPostedEvents(shown, QEvent::DeferredDelete);
        return text;
    }

    /// Sells a coffee at 2.00 from the menu, on the screen, all by mouse; whether that worked.
    bool sellsOnScreen()
    {
        setSwitch("0");
        run("delete from Ticket");
        run("delete from Article");
        run("insert into Article (article, prix) values ('Café', 2)");
        const auto before = history().size();
        click(window, "btn_Afficher");
        clickCell(window, "tableView1", 0, 2);
        if (shownLines() != 1) {
            return false;
        }
        pay();
        return takeReceipt().contains(QString("\n1  Café          \t$2.00       $2.00\n"))
            && history().size() == before + 1 && ticket().isEmpty() && shownLines() == 0;
    }

private:
    QString column(const char* list, int column)
    {
        QStringList texts;
        for (int row = 0; row < rowCount(window, list); ++row) {
            texts << rowTexts(window, list, row).at(column);
        }
        return texts.join('|');
    }

    QStringList lines(const char* sql) const
    {
        QStringList texts;
        for (const auto& row : shop.sql(sql)) {
            texts << QString::fromStdString(row.at(0));
        }
        return texts;
    }
};

/// A till with a tea at 2.50 on its ticket.
class TillWithTea : public Till
{
public:
    TillWithTea() { sell("Thé", "2.5"); }
};

/// A till whose lists show the menu and the ticket.
struct OpenTill : Till
{
    explicit OpenTill(const char* sql)
        : Till(sql)
    {
        if (!shop.sql("select 1 from Article").empty()) {
            click(window, "btn_Afficher");
        }
        if (!ticket().isEmpty()) {
            click(window, "btn_Ticket");
        }
    }
};

/// Whether \a box is the notice about the missing printer.
inline bool saysNotConnected(const AnswerBox& box, const Till& till)
{
    return till.notice(box) == "Payer: Imprimante non connectée";
}

/// Whether \a box is the notice that the sale is not in the history and the ticket is kept.
inline bool saysNotRecorded(const AnswerBox& box, const Till& till)
{
    return till.notice(box) == "Payer: La vente n'est pas enregistrée\nLe ticket est gardé";
}
