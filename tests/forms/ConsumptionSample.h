// SPDX-License-Identifier: MIT
#pragma once

#include "forms/FormVendelStockCalculation.h"
#include "tests/support/Shop.h"
#include "tests/support/Widgets.h"

inline const QString mayFirst = "05/01/2019";
inline const QString juneFirst = "06/01/2019";

/// A shop that sells Café (1) at 2$, one dose of 2.5 cl Lait each.
struct Bar : Shop
{
    Bar()
    {
        sql("insert into Article (article, prix) values ('Café', 2), ('Thé', 3)");
        sql("insert into ArticleStock values (1, 'Café'), (2, 'Thé')");
        sql("insert into DoseStock values (1, 1, 'Lait', 2.5, 'cl')");
    }

    /// Sells \a article \a count times, once at least, on the given day and time.
    void sell(const char* article, int count, const char* price = "2",
        const char* when = "2019-05-10 10:00:00.000") const
    {
        const QString lines
            = QString("insert into Historique with recursive sale(n) as (select 1 union all select "
                      "n + 1 from sale where n < %4) select 1, '%1', %2, '%3' from sale");
        sql(lines.arg(article, price, when).arg(count).toUtf8().constData());
    }
};

/// The consumption window of May 2019, computed once.
struct Consumed
{
    explicit Consumed(const QString& from = mayFirst, const QString& to = juneFirst)
        : window(from, to, nullptr)
    {
        window.show();
        click(window, "btn_Display");
    }

    QStringList detail(int row) { return rowTexts(window, "tableView1", row); }
    QStringList total(int row) { return rowTexts(window, "tableView2", row); }
    int details() { return rowCount(window, "tableView1"); }
    int totals() { return rowCount(window, "tableView2"); }

    FormVendelStockCalculation window;
};
