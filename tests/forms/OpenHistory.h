// SPDX-License-Identifier: MIT
#pragma once

#include "forms/FormVendelHistorique.h"
#include "tests/forms/OpenDialog.h"

#include <QLineEdit>

#include <string>

/// A shop with the given sales, "('Thé', 2, '2019-05-01 10:00:00.000'), ...", and its history
/// window open, the given dates in the fields: 1 May 2019 unless another period is asked for.
struct OpenHistory : OpenDialog<FormVendelHistorique>
{
    explicit OpenHistory(const std::string& sales = std::string(),
        const QString& firstDate = "05/01/2019", const QString& secondDate = "05/02/2019")
        : OpenDialog(
            sales.empty() ? "" : "insert into Historique select 1, * from (values " + sales + ")")
    {
        type(firstDate, secondDate);
    }

    /// Puts the two dates into their fields.
    void type(const QString& firstDate, const QString& secondDate)
    {
        child<QLineEdit>(window, "txt_First_Date").setText(firstDate);
        child<QLineEdit>(window, "txt_Second_Date").setText(secondDate);
    }

    QString first() { return child<QLineEdit>(window, "txt_First_Date").text(); }

    QString second() { return child<QLineEdit>(window, "txt_Second_Date").text(); }

    /// The list of the sales, "article|price|moment" each.
    QStringList sales() { return rows(window, "tableView1"); }

    QStringList days() { return rows(window, "tableView2"); }

    /// The list of the sales by article and price, "count|article|price|amount" each.
    QStringList groups() { return rows(window, "tableView3"); }

    /// The number of sales in the journal.
    QString sold() const { return shop.cell("select count(*) from Historique"); }
};

/// A history of two days that shows the sales of the first with their total, and both days.
struct ListedHistory : OpenHistory
{
    /// What the three lists show at first, and the number of sales in the journal.
    const QStringList atFirst{"Thé|2.00$|05/01/2019 10:00:00.000",
        "Café|1.50$|05/01/2019 11:00:00.000", "Total historique|3.50$|<-", "05/01/2019",
        "05/09/2019", "1|Café|1.50$|1.50$", "1|Thé|2.00$|2.00$", "3"};

    ListedHistory()
        : OpenHistory(
            "('Thé', 2, '2019-05-01 10:00:00.000'), ('Café', 1.5, '2019-05-01 11:00:00.000'), "
            "('Vin', 3, '2019-05-09 10:00:00.000')")
    {
        push("btn_Show_Date");
        push("btn_Total");
    }

    /// The same now.
    QStringList now() { return sales() + days() + groups() + QStringList(sold()); }
};
