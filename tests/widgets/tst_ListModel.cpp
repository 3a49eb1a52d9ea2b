// SPDX-License-Identifier: MIT
#include "common/Messages.h"
#include "tests/support/AccessTree.h"
#include "tests/support/TestProgram.h"
#include "widgets/HoverTip.h"
#include "widgets/ListModel.h"
#include "widgets/Lists.h"

#include <QAccessible>
#include <QTableView>

namespace {
constexpr Texts texts{"FormVendelMessages"};

/// A menu of one article, as a screen reader finds it.
struct Menu : QTableView
{
    ListModel model;

    Menu()
    {
        setUpList(*this, model, texts, Messages::Messages97, {50, 25, 210, 110}, {0});
        ListFiller(*this, model).add({"7", "", "Thé", "1.00$"});
        show();
    }

    QString said(int column, QAccessible::Text text)
    {
        auto* table = QAccessible::queryAccessibleInterface(this)->tableInterface();
        return table->cellAt(0, column)->text(text);
    }
};
} // namespace

/// What a screen reader says of the rows of a list.
class TestListModel : public QObject
{
    Q_OBJECT

private slots:
    void aCellIsCalledByItsTextAndAnEmptyOneByItsRow()
    {
        Menu menu;
        QCOMPARE(menu.said(2, QAccessible::Name), QString("Thé"));
        QCOMPARE(menu.said(3, QAccessible::Name), QString("1.00$"));
        QCOMPARE(menu.said(1, QAccessible::Name), QString("Thé, 1.00$"));
    }

    void eachCellTellsItsRowWithoutTheHiddenColumns()
    {
        Menu menu;
        for (const int column : {1, 2, 3}) {
            QCOMPARE(menu.said(column, QAccessible::Description), QString("Thé, 1.00$"));
        }
        menu.model.item(0, 1)->setText("X");
        QCOMPARE(menu.said(2, QAccessible::Description), QString("X, Thé, 1.00$"));
    }

    void whatTheMouseIsToldIsSaidWhole()
    {
        Menu menu;
        QWidget window;
        bool isWanted = true;
        {
            HoverTips tips(window, texts, [&](QPoint, const QString&) { return isWanted; });
            tips.add({menu, 2, Messages::Messages65, {}});
            const QString tip("Thé, 1.00$\nMenu\nClick sur : Thé\nPour l'ajouter au ticket");
            QCOMPARE(menu.said(2, QAccessible::Description), tip);
            QCOMPARE(menu.said(3, QAccessible::Description), tip);
            const QString longName(300, 'x');
            menu.model.item(0, 2)->setText(longName);
            QVERIFY(menu.said(2, QAccessible::Description).contains("Click sur : " + longName));
            menu.model.item(0, 2)->setText("Thé");
            isWanted = false;
            QCOMPARE(menu.said(2, QAccessible::Description), QString("Thé, 1.00$"));
            isWanted = true;
        }
        QCOMPARE(menu.said(2, QAccessible::Description), QString("Thé, 1.00$"));
    }

    void signsAboveTheColumnsAreSaidAsWords()
    {
        Menu menu;
        QCOMPARE(menu.model.headerData(1, Qt::Horizontal).toString(), QString("X"));
        const auto spoken = [&](int column) {
            return menu.model.headerData(column, Qt::Horizontal, Qt::AccessibleTextRole).toString();
        };
        QCOMPARE(spoken(0), QString("Numéro"));
        QCOMPARE(spoken(1), QString("Doublon"));
        QCOMPARE(spoken(2), QString());
    }

    void theChosenRowIsTold()
    {
        Menu menu;
        menu.setAccessibleName("Menu");
        menu.selectRow(0);
        auto* table = QAccessible::queryAccessibleInterface(&menu)->tableInterface();
        QVERIFY(table->cellAt(0, 2)->state().selected);
        QCOMPARE(namelessControls(menu), QStringList());
    }
};

VENDEL_TEST(TestListModel)
#include "tst_ListModel.moc"
