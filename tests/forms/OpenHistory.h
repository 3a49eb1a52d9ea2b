// SPDX-License-Identifier: MIT
#pragma once

#include "forms/FormVendelHistorique.h"
#include "tests/support/Shop.h"
#include "tests/support/Widgets.h"

#include <QLineEdit>

#include <initializer_list>

/// A shop with its history window open.
class OpenHistory
{
public:
    OpenHistory()
    {
        window.show();
    }

    /// Writes one sale into the journal; \a price as SQL.
    void sell(const char* article, const char* price, const char* moment) const
    {
        const QString sql
            = QString("insert into Historique values (1, '%1', %2, '%3')")
                  .arg(QString::fromUtf8(article).replace(QString("'"), QString("''")),
                      QString::fromUtf8(price), QString::fromUtf8(moment));
        QVERIFY(Db::DbTransact({sql.toStdString()}));
    }

    /// Puts the two dates into their fields.
    void type(const char* first, const char* second)
    {
        child<QLineEdit>(window, "txt_First_Date").setText(QString::fromUtf8(first));
        child<QLineEdit>(window, "txt_Second_Date").setText(QString::fromUtf8(second));
    }

    QString first()
    {
        return child<QLineEdit>(window, "txt_First_Date").text();
    }

    QString second()
    {
        return child<QLineEdit>(window, "txt_Second_Date").text();
    }

    /// The number of sales in the journal.
    QString sold() const
    {
        return shop.cell("select count(*) from Historique");
    }

    Shop shop;
    FormVendelHistorique window;
};

/// The UTF-8 texts of \a list.
inline QStringList texts(std::initializer_list<const char*> list)
{
    QStringList result;
    for (const char* text : list) {
        result << QString::fromUtf8(text);
    }
    return result;
}
