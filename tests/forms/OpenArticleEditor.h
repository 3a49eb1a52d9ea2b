// SPDX-License-Identifier: MIT
#pragma once

#include "forms/FormVendelSaisieArticle.h"
#include "tests/support/Shop.h"
#include "tests/support/Widgets.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>

#include <string>

/// A shop with the given articles, "('Cafe', 1), ('The', 2)", and its article editor on the screen.
struct OpenArticleEditor
{
    Shop shop;
    FormVendelSaisieArticle window;

    explicit OpenArticleEditor(const std::string& articles = std::string())
    {
        if (!articles.empty()) {
            shop.sql(("insert into Article (article, prix) values " + articles).c_str());
        }
        window.show();
        // The window's activation takes any tip away.
        if (!QTest::qWaitForWindowActive(&window)) {
            qFatal("the article editor does not become active");
        }
    }

    QString text(const char* field)
    {
        return child<QLineEdit>(window, field).text();
    }

    /// Puts ASCII \a text in the place of what the field holds, key by key.
    void type(const char* field, const char* text)
    {
        auto& edit = child<QLineEdit>(window, field);
        edit.setFocus();
        QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&edit, Qt::Key_Delete);
        QTest::keyClicks(&edit, QString::fromLatin1(text));
    }

    /// Adds \a text to what the field holds, in one go.
    void paste(const char* field, const QString& text)
    {
        auto& edit = child<QLineEdit>(window, field);
        edit.setFocus();
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    }

    /// The names in the list from top to bottom.
    QStringList names()
    {
        QStringList names;
        for (int row = 0; row < rowCount(window, "tableView"); ++row) {
            names << rowTexts(window, "tableView", row).at(2);
        }
        return names;
    }

    /// The keys of the rows marked as duplicates.
    QStringList marked()
    {
        QStringList ids;
        for (int row = 0; row < rowCount(window, "tableView"); ++row) {
            const QStringList cells = rowTexts(window, "tableView", row);
            if (cells.at(1) == QLatin1String("X")) {
                ids << cells.at(0);
            }
        }
        ids.sort();
        return ids;
    }

    /// What the table holds: key, name and price of each article in the order of the keys.
    QString stored() const
    {
        return shop.cell("select group_concat(id || ' ' || article || ' ' || prix, '; ') from "
                         "(select * from Article order by id)");
    }
};
