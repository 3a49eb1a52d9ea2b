// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/ListLook.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>

#include <array>

namespace {
/// A button, from top to bottom.
struct Button
{
    const char* name;
    const char* caption;
    bool isBlue;
};

constexpr std::array<Button, 6> buttons{
    {{"btn_Effacer_Saisie", "Effacer Saisie", false}, {"btn_Afficher", "Afficher", true},
        {"btn_Ajouter", "Ajouter", true}, {"btn_Supprimer", "Supprimer", true},
        {"btn_Renommer", "Renommer", true}, {"btn_Rechercher", "Rechercher", false}}};
} // namespace

/// How the editor looks, and what its keys do.
class TestFormVendelSaisieArticleWindow : public QObject
{
    Q_OBJECT

private slots:
    void everySlotHasItsSignal()
    {
        const Shop shop;
        const CapturedLog log;
        const FormVendelSaisieArticle window;
        QCOMPARE(log.warnings(), QStringList());
        QCOMPARE(log.criticals(), QStringList());
    }

    void looksLikeTheArticleEditor()
    {
        OpenArticleEditor editor;
        auto& window = editor.window;
        QCOMPARE(window.objectName(), QString("FormVendelSaisieArticle"));
        QCOMPARE(window.windowTitle(), QString("Saisie Article"));
        QCOMPARE(window.size(), QSize(641, 626));
        QCOMPARE(window.minimumSize(), QSize(641, 626));
        QCOMPARE(window.maximumSize(), QSize(641, 626));
        QCOMPARE(window.sizeIncrement(), QSize(641, 626));
        QCOMPARE(window.windowModality(), Qt::WindowModal);
        for (const char* caption : {"Menu", "Article", "Montant"}) {
            const auto& label = child<QLabel>(window, qPrintable(QString("lbl_") + caption));
            QCOMPARE(label.text(), QString(caption));
            QCOMPARE(label.font().pointSize(), 12);
        }
        for (const char* field : {"txt_Article", "txt_Montant"}) {
            QCOMPARE(child<QLineEdit>(window, field).font().pointSize(), 12);
            QCOMPARE(editor.text(field), QString());
        }
        for (const Button& wanted : buttons) {
            const auto& button = child<QPushButton>(window, wanted.name);
            QCOMPARE(button.text(), QString(wanted.caption));
            QCOMPARE(button.font().pointSize(), 12);
            QVERIFY(!button.autoDefault());
            QVERIFY(!button.isDefault());
            QCOMPARE(button.styleSheet(),
                QString(wanted.isBlue ? "background-color: rgb(114, 159, 207)" : ""));
        }
        QCOMPARE(clippedTexts(window), QStringList());
    }

    void theListIsSetUp()
    {
        OpenArticleEditor editor;
        QCOMPARE(editor.list.horizontalHeader()->defaultSectionSize(), 10);
        QCOMPARE(labels(editor.list), QStringList({"#", "X", "Article", "Prix"}));
    }

    void labelsAndBoxesAreLookedUpInTheirContexts()
    {
        const ContextEcho translation;
        OpenArticleEditor editor;
        QCOMPARE(labels(editor.list).at(2), QString("FormVendelMessages"));
        QCOMPARE(editor.push("btn_Afficher"),
            QStringList("FormVendelSaisieArticleMessages: FormVendelSaisieArticleMessages"));
    }

    void fieldsStandBesideTheirLabels()
    {
        OpenArticleEditor editor;
        auto& window = editor.window;
        const QRect article = child<QLineEdit>(window, "txt_Article").geometry();
        const QRect amount = child<QLineEdit>(window, "txt_Montant").geometry();
        const auto& articleLabel = child<QLabel>(window, "lbl_Article");
        const auto& amountLabel = child<QLabel>(window, "lbl_Montant");
        QCOMPARE(articleLabel.geometry().center().y(), article.center().y());
        QCOMPARE(amountLabel.geometry().center().y(), amount.center().y());
        QVERIFY(articleLabel.geometry().right() < article.left());
        QCOMPARE(article.left(), amount.left());
        QCOMPARE(article.right(), amount.right());
        for (const Button& one : buttons) {
            const QRect button = child<QPushButton>(window, one.name).geometry();
            QCOMPARE(button.left(), articleLabel.x());
            QCOMPARE(button.right(), article.right());
        }
        QCOMPARE(child<QLabel>(window, "lbl_Menu").buddy(), &editor.list);
        QCOMPARE(articleLabel.buddy(), &child<QWidget>(window, "txt_Article"));
        QCOMPARE(amountLabel.buddy(), &child<QWidget>(window, "txt_Montant"));
    }

    void tabFollowsTheWork()
    {
        ListedMenu editor("('Cafe', 1), ('The', 2)");
        child<QLineEdit>(editor.window, "txt_Article").setFocus();
        QCOMPARE(tabOrder(editor.window),
            QStringList(
                {"txt_Article", "txt_Montant", "btn_Ajouter", "btn_Renommer", "btn_Rechercher",
                    "btn_Afficher", "tableView", "btn_Effacer_Saisie", "btn_Supprimer"}));
    }

    void returnPressesNoButtonAndEscapeCloses()
    {
        OpenArticleEditor editor;
        QCOMPARE(editor.window.focusWidget()->objectName(), QString("txt_Article"));
        const AnswerBox box;
        QTest::keyClicks(editor.window.focusWidget(), "The");
        QTest::keyClick(editor.window.focusWidget(), Qt::Key_Return);
        QTest::keyClick(editor.window.focusWidget(), Qt::Key_Tab);
        QTest::keyClicks(editor.window.focusWidget(), "2");
        QTest::keyClick(editor.window.focusWidget(), Qt::Key_Return);
        QVERIFY(!box.wasShown());
        QVERIFY(editor.window.isVisible());
        QCOMPARE(editor.stored(), QString());
        QTest::keyClick(&editor.window, Qt::Key_Escape);
        QVERIFY(!editor.window.isVisible());
    }
};

VENDEL_TEST(TestFormVendelSaisieArticleWindow)
#include "tst_FormVendelSaisieArticle_window.moc"
