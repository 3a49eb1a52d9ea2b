// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"
#include "forms/FormVendelSaisieArticle.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/Translation.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTableView>

namespace {
const QStringList buttons{QString("btn_Effacer_Saisie"), QString("btn_Afficher"),
    QString("btn_Ajouter"), QString("btn_Supprimer"), QString("btn_Renommer"),
    QString("btn_Rechercher")};

QString textOf(QWidget& window, const char* label)
{
    return child<QLabel>(window, label).text();
}

QString captionOf(QWidget& window, const char* button)
{
    return child<QPushButton>(window, button).text();
}
} // namespace

class TestFormVendelSaisieArticle : public QObject
{
    Q_OBJECT

private slots:
    void looksLikeTheArticleEditor()
    {
        const Shop shop;
        const CapturedLog log;
        FormVendelSaisieArticle window;
        QCOMPARE(log.warnings(), QStringList());
        QCOMPARE(log.criticals(), QStringList());
        QCOMPARE(window.objectName(), QString("FormVendelSaisieArticle"));
        QCOMPARE(window.size(), QSize(641, 626));
        QCOMPARE(window.minimumSize(), QSize(641, 626));
        QCOMPARE(window.maximumSize(), QSize(641, 626));
        QCOMPARE(window.sizeIncrement(), QSize(641, 626));
        QCOMPARE(window.windowModality(), Qt::WindowModal);
        for (const char* label : {"lbl_Menu", "lbl_Article", "lbl_Montant"}) {
            QCOMPARE(child<QLabel>(window, label).font().pointSize(), 12);
        }
        for (const char* field : {"txt_Article", "txt_Montant"}) {
            QCOMPARE(child<QLineEdit>(window, field).font().pointSize(), 12);
            QCOMPARE(child<QLineEdit>(window, field).text(), QString());
        }
        for (const QString& name : buttons) {
            const auto& button = child<QPushButton>(window, name.toLatin1().constData());
            QCOMPARE(button.font().pointSize(), 12);
            QVERIFY(!button.autoDefault());
            QVERIFY(!button.isDefault());
            const bool isPlain = name == QLatin1String("btn_Effacer_Saisie")
                || name == QLatin1String("btn_Rechercher");
            QCOMPARE(button.styleSheet(),
                isPlain ? QString() : QString("background-color: rgb(114, 159, 207)"));
        }
    }

    void theListIsSetUp()
    {
        const Shop shop;
        FormVendelSaisieArticle window;
        const auto& list = child<QTableView>(window, "tableView");
        QCOMPARE(list.font().pointSize(), 18);
        QCOMPARE(list.styleSheet(),
            QString("alternate-background-color: LightBlue;background-color: White"));
        QVERIFY(list.alternatingRowColors());
        QCOMPARE(list.editTriggers(), QAbstractItemView::NoEditTriggers);
        QCOMPARE(list.selectionMode(), QAbstractItemView::ExtendedSelection);
        const QHeaderView& header = *list.horizontalHeader();
        QCOMPARE(header.defaultSectionSize(), 10);
        QCOMPARE(header.minimumSectionSize(), 10);
        QCOMPARE(header.defaultAlignment(), Qt::Alignment(Qt::AlignLeft));

        const auto* model = list.model();
        QCOMPARE(model->columnCount(), 4);
        QStringList labels;
        for (int column = 0; column < 4; ++column) {
            labels << model->headerData(column, Qt::Horizontal).toString();
        }
        QCOMPARE(
            labels, QStringList({QString("#"), QString("X"), QString("Article"), QString("Prix")}));
        QVERIFY(list.isColumnHidden(0));
        QCOMPARE(list.columnWidth(1), 25);
        QCOMPARE(list.columnWidth(2), 210);
        QCOMPARE(list.columnWidth(3), 110);
    }

    void captionsAreFrench()
    {
        const Shop shop;
        FormVendelSaisieArticle window;
        QCOMPARE(window.windowTitle(), QString("Saisie Article"));
        QCOMPARE(textOf(window, "lbl_Menu"), QString("Menu"));
        QCOMPARE(textOf(window, "lbl_Article"), QString("Article"));
        QCOMPARE(textOf(window, "lbl_Montant"), QString("Montant"));
        QCOMPARE(captionOf(window, "btn_Effacer_Saisie"), QString("Effacer Saisie"));
        QCOMPARE(captionOf(window, "btn_Afficher"), QString("Afficher"));
        QCOMPARE(captionOf(window, "btn_Ajouter"), QString("Ajouter"));
        QCOMPARE(captionOf(window, "btn_Supprimer"), QString("Supprimer"));
        QCOMPARE(captionOf(window, "btn_Renommer"), QString("Renommer"));
        QCOMPARE(captionOf(window, "btn_Rechercher"), QString("Rechercher"));
    }

    void everyTextIsLookedUpInItsContext()
    {
        const Shop shop;
        const ContextEcho translation;
        FormVendelSaisieArticle window;
        window.show();
        const QString own = QString("FormVendelSaisieArticle");
        QCOMPARE(window.windowTitle(), own);
        for (const char* label : {"lbl_Menu", "lbl_Article", "lbl_Montant"}) {
            QCOMPARE(textOf(window, label), own);
        }
        for (const QString& name : buttons) {
            QCOMPARE(captionOf(window, name.toLatin1().constData()), own);
        }
        const auto* model = child<QTableView>(window, "tableView").model();
        QCOMPARE(model->headerData(2, Qt::Horizontal).toString(), QString("FormVendelMessages"));
        const AnswerBox box;
        click(window, "btn_Afficher");
        QCOMPARE(box.text(), QString("FormVendelSaisieArticleMessages"));
        QCOMPARE(box.title(), QString("FormVendelSaisieArticleMessages"));
    }

    void fieldsStandBesideTheirLabels()
    {
        const Shop shop;
        FormVendelSaisieArticle window;
        window.show();
        const QRect article = child<QLineEdit>(window, "txt_Article").geometry();
        const QRect amount = child<QLineEdit>(window, "txt_Montant").geometry();
        const auto& articleLabel = child<QLabel>(window, "lbl_Article");
        const auto& amountLabel = child<QLabel>(window, "lbl_Montant");
        QCOMPARE(articleLabel.geometry().center().y(), article.center().y());
        QCOMPARE(amountLabel.geometry().center().y(), amount.center().y());
        QVERIFY(articleLabel.geometry().right() < article.left());
        QCOMPARE(article.left(), amount.left());
        QCOMPARE(article.right(), amount.right());
        for (const QString& name : buttons) {
            const QRect button = child<QPushButton>(window, name.toLatin1().constData()).geometry();
            QCOMPARE(button.left(), articleLabel.x());
            QCOMPARE(button.right(), article.right());
        }
        QCOMPARE(child<QLabel>(window, "lbl_Menu").buddy(),
            window.findChild<QWidget*>(QString("tableView")));
        QCOMPARE(articleLabel.buddy(), window.findChild<QWidget*>(QString("txt_Article")));
        QCOMPARE(amountLabel.buddy(), window.findChild<QWidget*>(QString("txt_Montant")));
    }

    void nothingIsClipped()
    {
        const Shop shop;
        FormVendelSaisieArticle window;
        window.show();
        QCOMPARE(clippedTexts(window), QStringList());
    }

    void tabFollowsTheEye()
    {
        const Shop shop;
        shop.sql("insert into Article (article, prix) values ('Cafe', 1), ('The', 2)");
        FormVendelSaisieArticle window;
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        click(window, "btn_Afficher");
        child<QLineEdit>(window, "txt_Article").setFocus();
        QCOMPARE(tabOrder(window),
            QStringList({QString("txt_Article"), QString("txt_Montant")}) + buttons
                + QStringList(QString("tableView")));
    }

    void returnPressesNoButton()
    {
        const Shop shop;
        FormVendelSaisieArticle window;
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCOMPARE(window.focusWidget()->objectName(), QString("txt_Article"));
        const AnswerBox box;
        QTest::keyClicks(window.focusWidget(), QString("The"));
        QTest::keyClick(window.focusWidget(), Qt::Key_Return);
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        QTest::keyClicks(window.focusWidget(), QString("2"));
        QTest::keyClick(window.focusWidget(), Qt::Key_Return);
        QVERIFY(!box.wasShown());
        QVERIFY(window.isVisible());
        QCOMPARE(shop.cell("select count(*) from Article"), QString("0"));
    }

    void escapeClosesTheWindow()
    {
        const Shop shop;
        FormVendelSaisieArticle window;
        window.show();
        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!window.isVisible());
    }

    void theMenuOpensAndClosingDeletesIt()
    {
        const Shop shop;
        FormVendel till;
        till.show();
        chooseMenu(till, "menuVendel", "actionSaisie_Article");
        QPointer<FormVendelSaisieArticle> editor = till.findChild<FormVendelSaisieArticle*>();
        QVERIFY(editor != nullptr);
        QVERIFY(editor->isVisible());
        QCOMPARE(editor->parentWidget(), &till);
        editor->close();
        QTRY_VERIFY(editor.isNull());
    }

    void opensWithAnEmptyList()
    {
        const Shop shop;
        shop.sql("insert into Article (article, prix) values ('Cafe', 1)");
        FormVendelSaisieArticle window;
        window.show();
        QCOMPARE(rowCount(window, "tableView"), 0);
    }

    void aFailingConstructorIsLogged()
    {
        const Shop shop;
        const CapturedLog log;
        const FailingText failure("Saisie Article");
        const FormVendelSaisieArticle window;
        QCOMPARE(log.criticals(),
            QStringList(QString("Errors FormVendelSaisieArticle Constructor : no text")));
    }
};

VENDEL_TEST(TestFormVendelSaisieArticle)
#include "tst_FormVendelSaisieArticle.moc"
