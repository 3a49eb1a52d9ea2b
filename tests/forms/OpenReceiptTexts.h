// SPDX-License-Identifier: MIT
#pragma once

#include "forms/FormVendelFormulaireTicket.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Shop.h"
#include "tests/support/Widgets.h"

#include <QDir>
#include <QLabel>
#include <QTextEdit>

inline const QString headerFile = "EnteteFormulaire.dat";
inline const QString footerFile = "PiedFormulaire.dat";

/// The names of the files in the working directory, hidden ones too.
inline QStringList files()
{
    return QDir().entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
}

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
    const ShopWithTexts shop;
    FormVendelFormulaireTicket window;
    QTextEdit& edit = child<QTextEdit>(window, "txt_Form");

    explicit OpenReceiptTexts(
        const QByteArray& header = "Chez Paul", const QByteArray& footer = "Merci")
        : shop(header, footer)
    {
        window.show();
        if (!QTest::qWaitForWindowActive(&window)) {
            qFatal("the editor of the receipt's texts does not become active");
        }
    }

    QString text() const { return edit.toPlainText(); }

    QString label() { return child<QLabel>(window, "lbl_Formulaire").text(); }

    QByteArray header() const { return shop.read(headerFile); }
    QByteArray footer() const { return shop.read(footerFile); }

    void showHeader() { chooseMenu(window, "menuAfficher", "actionEntete_Page"); }
    void showFooter() { chooseMenu(window, "menuAfficher", "actionPied_Page"); }

    /// Saves as header and answers Yes; what is said then.
    QStringList saveHeader() { return saidAtClick(window, "btn_Entete_Page", QMessageBox::Yes); }
    QStringList saveFooter() { return saidAtClick(window, "btn_Pied_Page", QMessageBox::Yes); }

    /// Types ASCII \a text behind what the editor shows, key by key.
    void typeAtEnd(const char* text) const
    {
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
