// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/forms/OpenReceiptTexts.h"
#include "tests/forms/Settings.h"
#include "tests/support/TestProgram.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QWindow>

namespace {
/// Presses \a key \a times in whatever has the focus.
void press(Qt::Key key, int times = 1)
{
    for (int time = 0; time < times; ++time) {
        QWidget* popup = QApplication::activePopupWidget();
        QTest::keyClick(popup != nullptr ? popup : QApplication::focusWidget(), key);
    }
}

void type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), text); }

void typeArticle(const char* name, const char* price)
{
    type(name);
    press(Qt::Key_Tab);
    type(price);
}

QString focused()
{
    const QWidget* widget = QApplication::focusWidget();
    return widget != nullptr ? widget->objectName() : QString();
}

/// Presses the button that has the focus, and \a keys in the boxes that follow as soon as they take
/// keys; what they say.
QStringList pressButton(const QList<Qt::Key>& keys = {Qt::Key_Return})
{
    QStringList said;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box != nullptr && box->focusWidget() != nullptr) {
            said << box->text();
            for (const Qt::Key key : keys) {
                QTest::keyClick(box->focusWidget(), key);
            }
        }
    });
    timer.start(1);
    press(Qt::Key_Return);
    return said;
}

/// An article editor that lists its menu, the focus on the list.
struct ListedArticles : OpenArticleEditor
{
    ListedArticles()
        : OpenArticleEditor("('Cafe', 1), ('The', 2), ('Vin', 3)")
    {
        press(Qt::Key_Tab, 5);
        press(Qt::Key_Return);
        press(Qt::Key_Tab);
    }
};
} // namespace

/// The shopkeeper's windows without a mouse: each job is done from the first key to the last.
class TestShopkeeperKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void anArticleIsAdded()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        typeArticle("Vin", "3,5");
        press(Qt::Key_Tab);
        QCOMPARE(focused(), QString("btn_Ajouter"));
        press(Qt::Key_Return);
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 Vin 3.5"));
        QCOMPARE(editor.names(), QStringList({"Cafe", "Vin"}));
    }

    void theNextArticleIsTypedOverTheLastOne()
    {
        OpenArticleEditor editor;
        for (const char* name : {"Vin", "The"}) {
            QCOMPARE(focused(), QString("txt_Article"));
            typeArticle(name, "3");
            press(Qt::Key_Tab);
            press(Qt::Key_Enter);
        }
        QCOMPARE(editor.stored(), QString("1 Vin 3; 2 The 3"));
    }

    void anArticleThatIsRefusedIsTypedAgain()
    {
        OpenArticleEditor editor;
        typeArticle("Vin", "trois");
        press(Qt::Key_Tab);
        QCOMPARE(pressButton().size(), 1);
        QCOMPARE(editor.window.focusWidget()->objectName(), QString("txt_Article"));
        QCOMPARE(editor.stored(), QString());
    }

    void anArticleIsRenamed()
    {
        ListedArticles editor;
        QCOMPARE(focused(), QString("tableView"));
        press(Qt::Key_Down);
        press(Qt::Key_Tab, 3);
        typeArticle("The vert", "2,5");
        press(Qt::Key_Tab, 2);
        QCOMPARE(focused(), QString("btn_Renommer"));
        QCOMPARE(pressButton(), QStringList("Voulez-vous renommer : The ..."));
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The vert 2.5; 3 Vin 3"));
    }

    void anArticleIsRemoved()
    {
        ListedArticles editor;
        press(Qt::Key_Down, 2);
        press(Qt::Key_Tab, 2);
        QCOMPARE(focused(), QString("btn_Supprimer"));
        const QStringList question("Voulez-vous supprimer : Vin ...");
        QCOMPARE(pressButton(), question);
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The 2; 3 Vin 3"));
        editor.window.activateWindow();
        QTRY_COMPARE(focused(), QString("btn_Supprimer"));
        QCOMPARE(pressButton({Qt::Key_Backtab, Qt::Key_Return}), question);
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The 2"));
    }

    void anArticleIsSearched()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2)");
        type("th");
        press(Qt::Key_Tab, 4);
        QCOMPARE(focused(), QString("btn_Rechercher"));
        press(Qt::Key_Space);
        QCOMPARE(editor.names(), QStringList("The"));
        press(Qt::Key_Escape);
        QVERIFY(!editor.window.isVisible());
    }

    void theFieldsAreEmptied()
    {
        OpenArticleEditor editor;
        typeArticle("Vin", "3");
        press(Qt::Key_Backtab, 3);
        QCOMPARE(focused(), QString("btn_Effacer_Saisie"));
        press(Qt::Key_Space);
        QCOMPARE(editor.text("txt_Article"), QString());
        QCOMPARE(editor.text("txt_Montant"), QString());
        QCOMPARE(focused(), QString("txt_Article"));
    }

    void aRateIsTypedOverTheOldOne()
    {
        OpenSettings settings;
        QCOMPARE(focused(), QString("txt_TVA"));
        type("5,5");
        QCOMPARE(settings.rate.text(), QString("5,5"));
        press(Qt::Key_Tab);
        QCOMPARE(pressButton(), QStringList());
        QVERIFY(!settings.window.isVisible());
        QCOMPARE(settings.storedRate(), QString("5.5"));
        FormVendelConfig reopened;
        QCOMPARE(child<QLineEdit>(reopened, "txt_TVA").text(), QString("5.50"));
    }

    void thePrinterIsSwitchedOn()
    {
        OpenSettings settings;
        press(Qt::Key_Tab, 2);
        QCOMPARE(focused(), QString("cbx_Epson"));
        press(Qt::Key_Down);
        press(Qt::Key_Tab);
        press(Qt::Key_Space);
        QVERIFY(!settings.window.isVisible());
        QCOMPARE(settings.storedSwitch(), QString("1"));
        FormVendelConfig reopened;
        QCOMPARE(child<QComboBox>(reopened, "cbx_Epson").currentText(), QString("ON"));
    }

    void theSettingsLeadToTheReceiptsTexts()
    {
        OpenSettings settings;
        press(Qt::Key_Tab, 4);
        QCOMPARE(focused(), QString("btn_Maj_Formulaire"));
        press(Qt::Key_Space);
        auto* texts = settings.window.findChild<FormVendelFormulaireTicket*>();
        QVERIFY(texts != nullptr);
        QTRY_COMPARE(focused(), QString("txt_Form"));
        press(Qt::Key_Escape);
        QVERIFY(!texts->isVisible());
        QVERIFY(settings.window.isVisible());
    }

    void aHeaderIsSaved()
    {
        OpenReceiptTexts editor("Paris");
        type("Chez Paul");
        press(Qt::Key_Return);
        press(Qt::Key_Tab);
        QCOMPARE(focused(), QString("btn_Entete_Page"));
        QCOMPARE(pressButton(), QStringList("Sauvegarde"));
        QCOMPARE(editor.header(), QByteArray("Chez Paul\nParis"));
        QCOMPARE(editor.footer(), QByteArray("Merci"));
    }

    void theMenuShowsTheFooter()
    {
        OpenReceiptTexts editor;
        QTest::keyClick(editor.window.windowHandle(), Qt::Key_Alt, Qt::AltModifier);
        QCOMPARE(focused(), QString("menubar"));
        press(Qt::Key_Down, 2);
        press(Qt::Key_Return);
        QCOMPARE(editor.label(), QString("Pied de page"));
        QCOMPARE(editor.text(), QString("Merci"));
    }
};

VENDEL_TEST(TestShopkeeperKeyboard)
#include "tst_ShopkeeperKeyboard.moc"
