// SPDX-License-Identifier: MIT
#include "forms/FormVendelAbout.h"
#include "forms/FormVendelConfig.h"
#include "forms/FormVendelHistorique.h"
#include "forms/FormVendelSaisieArticle.h"
#include "tests/app/Till.h"
#include "tests/support/TestProgram.h"

#include <QDialogButtonBox>
#include <QPointer>
#include <QPushButton>

/// The windows that the sales screen's menu opens, and that are gone once a button or Escape closes
/// them.
class TestFormVendelMenuWindows : public QObject
{
    Q_OBJECT

private:
    /// The window that the entry \a action of the menu \a menu opens over the sales screen.
    template <class Window>
    QPointer<Window> opened(Till& till, const char* menu, const char* action)
    {
        chooseMenu(till.window, menu, action);
        auto* window = till.window.findChild<Window*>();
        const bool isOver
            = window != nullptr && window->isVisible() && window->parentWidget() == &till.window;
        return isOver ? window : nullptr;
    }

private slots:
    void theSettings()
    {
        Till till;
        const auto settings = opened<FormVendelConfig>(till, "menuVendel", "actionConfig");
        QVERIFY(settings != nullptr);
        click(*settings, "btn_Maj_Epson");
        QTRY_VERIFY(settings.isNull());
    }

    void theArticleEditor()
    {
        Till till;
        const auto editor
            = opened<FormVendelSaisieArticle>(till, "menuVendel", "actionSaisie_Article");
        QVERIFY(editor != nullptr);
        QTest::keyClick(editor, Qt::Key_Escape);
        QTRY_VERIFY(editor.isNull());
    }

    void theHistory()
    {
        Till till;
        const auto history = opened<FormVendelHistorique>(till, "menuVendel", "actionHistorique");
        QVERIFY(history != nullptr);
        QTest::keyClick(history, Qt::Key_Escape);
        QTRY_VERIFY(history.isNull());
    }

    void theBoxAboutTheTill()
    {
        Till till;
        const auto about = opened<FormVendelAbout>(till, "menu", "actionA_propos_de");
        QVERIFY(about != nullptr);
        auto& buttons = child<QDialogButtonBox>(*about, "btn_buttonBox");
        QTest::mouseClick(buttons.button(QDialogButtonBox::Ok), Qt::LeftButton);
        QTRY_VERIFY(about.isNull());
    }
};

VENDEL_TEST(TestFormVendelMenuWindows)
#include "tst_FormVendel_menuWindows.moc"
