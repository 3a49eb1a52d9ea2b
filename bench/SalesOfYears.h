// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/DayRange.h"
#include "bench/Support.h"
#include "db/Db.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// As many days as it takes to sell 913 times on each: a million sales are three years. 40 articles
/// at one or two prices, three compositions in each recipe, in a temporary directory.
class SalesOfYears
{
public:
    static constexpr double secondsOfASale = 94.608;

    explicit SalesOfYears(int sales)
        : sales_(sales)
    {
        enter();
        Db::DbCreate();
        const QString insertion = QStringLiteral(
            "insert into Historique with recursive sale(n) as (select 0 union all select n + 1 "
            "from sale where n < %1 - 1) select n * 17 % 40, 'Boisson ' || (n * 17 % 40), 2 + (n "
            "% 7 = 0), strftime('%Y-%m-%d %H:%M:%f', '2021-01-01', (n * 94.608) || ' "
            "seconds') from sale");
        Db::DbLoad(insertion.arg(sales).toUtf8().constData());
        Db::DbLoad("insert into ArticleStock with recursive article(n) as (select 0 union all "
                   "select n + 1 from article where n < 39) select n, 'Boisson ' || n from "
                   "article");
        Db::DbLoad(
            "insert into DoseStock (id, composition, dose, unite) select id, 'Composition ' "
            "|| ((id * 3 + part) % 25), 1.5 + part, case part when 0 then 'oz' else 'cl' end "
            "from ArticleStock, (select 0 as part union select 1 union select 2)");
        rest();
    }

    /// Makes the last sale one of an hour ago, so that the till is not at work.
    void rest() const
    {
        constexpr int hour = 3600;
        QFile file(folder_.filePath(QStringLiteral("Vendel.db")));
        check(file.open(QIODevice::ReadWrite)
                && file.setFileTime(
                    QDateTime::currentDateTime().addSecs(-hour), QFileDevice::FileModificationTime),
            "the time of the last sale");
    }

    void enter() const { check(QDir::setCurrent(folder_.path()), "temporary directory"); }
    QString path() const { return folder_.path(); }
    int sales() const { return sales_; }
    /// All days with a sale.
    DayRange days() const
    {
        const QDateTime first(QDate(2021, 1, 1), QTime(0, 0), Qt::UTC);
        return {first.date(), first.addSecs(qint64(sales_ * secondsOfASale)).date()};
    }

private:
    QTemporaryDir folder_;
    int sales_;
};
