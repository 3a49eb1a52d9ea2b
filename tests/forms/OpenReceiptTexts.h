// SPDX-License-Identifier: MIT
#pragma once

#include "forms/FormVendelFormulaireTicket.h"
#include "tests/support/Shop.h"
#include "tests/support/Widgets.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTextEdit>

inline const QString headerFile = QString("EnteteFormulaire.dat");
inline const QString footerFile = QString("PiedFormulaire.dat");

/// A folder that holds the shop's two files, where they are not null, made before anything reads
/// them.
struct ShopWithTexts : Shop
{
    ShopWithTexts(const QByteArray& header, const QByteArray& footer)
        : Shop(Database::None)
    {
        if (!header.isNull()) {
            write(headerFile, header);
        }
        if (!footer.isNull()) {
            write(footerFile, footer);
        }
    }
};

/// The editor of the receipt's texts on the screen, in a folder with the given files.
struct OpenReceiptTexts
{
    ShopWithTexts shop;
    FormVendelFormulaireTicket window;

    explicit OpenReceiptTexts(const QByteArray& header = {}, const QByteArray& footer = {})
        : shop(header, footer)
    {
        window.show();
    }

    QString text()
    {
        return child<QTextEdit>(window, "txt_Form").toPlainText();
    }

    QString label()
    {
        return child<QLabel>(window, "lbl_Formulaire").text();
    }

    /// Types ASCII \a text behind what the editor shows, key by key.
    void typeAtEnd(const char* text)
    {
        auto& edit = child<QTextEdit>(window, "txt_Form");
        edit.setFocus();
        QTest::keyClick(&edit, Qt::Key_End, Qt::ControlModifier);
        for (const char* key = text; *key != '\0'; ++key) {
            if (*key == '\n') {
                QTest::keyClick(&edit, Qt::Key_Return);
            } else {
                QTest::keyClick(&edit, *key);
            }
        }
    }
};
