// SPDX-License-Identifier: MIT
#include "forms/FormVendelConfig.h"
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

void type(const char* text)
{
    QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text));
}

QString focused()
{
    const QWidget* widget = QApplication::focusWidget();
    return widget != nullptr ? widget->objectName() : QString();
}

/// Answers the message boxes with Return while it lives and remembers what they said.
class ReturnOnBoxes
{
public:
    ReturnOnBoxes()
    {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box != nullptr && box->isVisible() && box->focusWidget() != nullptr) {
                texts_ << box->text();
                QTest::keyClick(box->focusWidget(), Qt::Key_Return);
            }
        });
        timer_.start(1);
    }

    QStringList texts() const
    {
        return texts_;
    }

private:
    QTimer timer_;
    QStringList texts_;
};

/// An article editor that lists its menu, the focus on the list.
struct ListedArticles : OpenArticleEditor
{
    ListedArticles()
        : OpenArticleEditor("('Cafe', 1), ('The', 2), ('Vin', 3)")
    {
        press(Qt::Key_Tab, 3);
        press(Qt::Key_Space);
        press(Qt::Key_Tab, 5);
    }
};

/// The settings on the screen with the focus where it opens.
struct OpenSettings
{
    Shop shop;
    FormVendelConfig window;

    OpenSettings()
    {
        window.show();
        if (!QTest::qWaitForWindowActive(&window)) {
            qFatal("the settings do not become active");
        }
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
        type("Vin");
        press(Qt::Key_Tab);
        type("3,5");
        press(Qt::Key_Tab, 3);
        QCOMPARE(focused(), QString("btn_Ajouter"));
        press(Qt::Key_Space);
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 Vin 3.5"));
        QCOMPARE(editor.names(), QStringList({QString("Cafe"), QString("Vin")}));
    }

    void anArticleIsRenamed()
    {
        ListedArticles editor;
        QCOMPARE(focused(), QString("tableView"));
        press(Qt::Key_Down);
        press(Qt::Key_Tab);
        type("The vert");
        press(Qt::Key_Tab);
        type("2,5");
        press(Qt::Key_Tab, 5);
        QCOMPARE(focused(), QString("btn_Renommer"));
        const ReturnOnBoxes boxes;
        press(Qt::Key_Space);
        QCOMPARE(boxes.texts(), QStringList(QString("Voulez-vous renommer : The ...")));
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The vert 2.5; 3 Vin 3"));
    }

    void anArticleIsRemoved()
    {
        ListedArticles editor;
        press(Qt::Key_Down, 2);
        press(Qt::Key_Backtab, 3);
        QCOMPARE(focused(), QString("btn_Supprimer"));
        const ReturnOnBoxes boxes;
        press(Qt::Key_Space);
        QCOMPARE(boxes.texts(), QStringList(QString("Voulez-vous supprimer : Vin ...")));
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The 2"));
    }

    void anArticleIsSearched()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2)");
        type("th");
        press(Qt::Key_Backtab, 2);
        QCOMPARE(focused(), QString("btn_Rechercher"));
        press(Qt::Key_Space);
        QCOMPARE(editor.names(), QStringList(QString("The")));
        press(Qt::Key_Escape);
        QVERIFY(!editor.window.isVisible());
    }

    void theFieldsAreEmptied()
    {
        OpenArticleEditor editor;
        type("Vin");
        press(Qt::Key_Tab);
        type("3");
        press(Qt::Key_Tab);
        QCOMPARE(focused(), QString("btn_Effacer_Saisie"));
        press(Qt::Key_Space);
        QCOMPARE(editor.text("txt_Article"), QString());
        QCOMPARE(editor.text("txt_Montant"), QString());
    }

    void aRateIsTypedOverTheOldOne()
    {
        OpenSettings settings;
        QCOMPARE(focused(), QString("txt_TVA"));
        type("5,5");
        QCOMPARE(rateOf(settings.window), QString("5,5"));
        press(Qt::Key_Tab);
        const ReturnOnBoxes boxes;
        press(Qt::Key_Space);
        QCOMPARE(boxes.texts(), QStringList());
        QVERIFY(!settings.window.isVisible());
        QCOMPARE(storedRate(settings.shop), QString("5.5"));
        FormVendelConfig reopened;
        QCOMPARE(rateOf(reopened), QString("5.50"));
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
        QCOMPARE(storedSwitch(settings.shop), QString("1"));
        FormVendelConfig reopened;
        QCOMPARE(switchOf(reopened), QString("ON"));
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
        OpenReceiptTexts editor("Paris", "Merci");
        QVERIFY(QTest::qWaitForWindowActive(&editor.window));
        type("Chez Paul");
        press(Qt::Key_Return);
        press(Qt::Key_Tab);
        QCOMPARE(focused(), QString("btn_Entete_Page"));
        const ReturnOnBoxes boxes;
        press(Qt::Key_Space);
        QCOMPARE(boxes.texts(), QStringList(QString("Sauvegarde")));
        QCOMPARE(editor.shop.read(headerFile), QByteArray("Chez Paul\nParis"));
        QCOMPARE(editor.shop.read(footerFile), QByteArray("Merci"));
    }

    void theMenuShowsTheFooter()
    {
        OpenReceiptTexts editor("Chez Paul", "Merci");
        QVERIFY(QTest::qWaitForWindowActive(&editor.window));
        QTest::keyClick(editor.window.windowHandle(), Qt::Key_Alt, Qt::AltModifier);
        QCOMPARE(focused(), QString("menubar"));
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        QCOMPARE(editor.label(), QString("Pied de page"));
        QCOMPARE(editor.text(), QString("Merci"));
    }
};

VENDEL_TEST(TestShopkeeperKeyboard)
#include "tst_ShopkeeperKeyboard.moc"
