// SPDX-License-Identifier: MIT
#pragma once

#include "forms/FormVendelSaisieArticle.h"
#include "tests/forms/OpenDialog.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QTableView>

#include <string>

/// A shop with the given articles, "('Cafe', 1), ('The', 2)", and its article editor on the screen.
struct OpenArticleEditor : OpenDialog<FormVendelSaisieArticle>
{
    QTableView& list = child<QTableView>(window, "tableView");

    explicit OpenArticleEditor(const std::string& articles = std::string())
        : OpenDialog(
            articles.empty() ? "" : "insert into Article (article, prix) values " + articles)
    { }

    QString text(const char* field) { return child<QLineEdit>(window, field).text(); }

    /// Puts ASCII \a text in the place of what the field holds, key by key.
    void type(const char* field, const QString& text)
    {
        auto& edit = child<QLineEdit>(window, field);
        edit.setFocus();
        QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&edit, Qt::Key_Delete);
        QTest::keyClicks(&edit, text);
    }

    /// Types both fields.
    void typeArticle(const QString& article, const QString& amount)
    {
        type("txt_Article", article);
        type("txt_Montant", amount);
    }

    /// Adds \a text to what the field holds, in one go.
    void paste(const char* field, const QString& text)
    {
        auto& edit = child<QLineEdit>(window, field);
        edit.setFocus();
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    }

    /// Clicks a row's name; with Ctrl held, the other rows stay selected and this one toggles.
    void select(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseClick(
            list.viewport(), Qt::LeftButton, modifiers, centreOf("tableView", row, 2));
    }

    bool hasSelection() const { return list.selectionModel()->hasSelection(); }

    /// The list from top to bottom, "key|mark|name|price" each.
    QStringList rows() { return ::rows(window, "tableView"); }

    /// The names in the list from top to bottom.
    QStringList names()
    {
        QStringList names = rows();
        for (QString& row : names) {
            row = row.section('|', 2, 2);
        }
        return names;
    }

    /// The keys of the rows marked as duplicates, "1 2".
    QString marked()
    {
        QStringList ids = rows().filter("|X|");
        for (QString& row : ids) {
            row = row.section('|', 0, 0);
        }
        ids.sort();
        return ids.join(' ');
    }

    /// What the table holds: key, name and price of each article in the order of the keys.
    QString stored() const
    {
        return shop.cell("select group_concat(id || ' ' || article || ' ' || prix, '; ') from "
                         "(select * from Article order by id)");
    }
};

/// The same with the menu listed.
struct ListedMenu : OpenArticleEditor
{
    explicit ListedMenu(const std::string& articles)
        : OpenArticleEditor(articles)
    {
        push("btn_Afficher");
    }
};
