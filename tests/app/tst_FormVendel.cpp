// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"

#include <QAction>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTableView>

namespace {
QString actionText(const FormVendel& form, const char* name)
{
    return form.findChild<QAction*>(QString::fromLatin1(name))->text();
}

QString labels(const QTableView& view)
{
    QStringList texts;
    for (int column = 0; column < view.model()->columnCount(); ++column) {
        texts << view.model()->headerData(column, Qt::Horizontal).toString();
    }
    return texts.join('|');
}
} // namespace

class TestFormVendel : public QObject
{
    Q_OBJECT

private slots:
    void theWindowHasAFixedSize()
    {
        const Shop shop;
        FormVendel form;
        QCOMPARE(form.size(), QSize(1050, 626));
        QCOMPARE(form.minimumSize(), QSize(1050, 626));
        QCOMPARE(form.maximumSize(), QSize(1050, 626));
        QCOMPARE(form.baseSize(), QSize(0, 0));
        QCOMPARE(form.windowModality(), Qt::NonModal);
        QCOMPARE(form.font().pointSize(), 11);
        QCOMPARE(form.windowTitle(), QString("Vendel"));
        QVERIFY(form.parent() == nullptr);
        QVERIFY(!form.testAttribute(Qt::WA_DeleteOnClose));
        QCOMPARE(form.centralWidget()->objectName(), QString("centralWidget"));
    }

    void everyWidgetHasItsPlace_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QRect>("place");
        const auto row = [](const char* name, const char* type, QRect place) {
            QTest::newRow(name) << QString::fromLatin1(type) << place;
        };
        row("tableView1", "QTableView", {12, 32, 400, 560});
        row("tableView2", "QTableView", {420, 32, 400, 560});
        row("btn_Payer", "QPushButton", {829, 546, 162, 46});
        row("lbl_DateTime", "QLabel", {827, 8, 211, 21});
        row("lbl_Menu", "QLabel", {14, 12, 46, 17});
        row("lbl_Ticket", "QLabel", {422, 12, 46, 17});
        row("txt_montant", "QLineEdit", {829, 52, 149, 26});
        row("lbl_Montant", "QLabel", {829, 32, 59, 17});
        row("btn_Effacer_Saisie", "QPushButton", {829, 80, 149, 30});
        row("btn_Afficher", "QPushButton", {829, 124, 149, 43});
        row("btn_Ticket", "QPushButton", {829, 172, 149, 43});
        row("btn_Effacer_Ticket", "QPushButton", {829, 220, 149, 43});
        row("btn_Total_Ticket", "QPushButton", {829, 268, 149, 43});
        row("btn_1", "QPushButton", {829, 320, 50, 50});
        row("btn_2", "QPushButton", {885, 320, 50, 50});
        row("btn_3", "QPushButton", {941, 320, 50, 50});
        row("btn_4", "QPushButton", {829, 375, 50, 50});
        row("btn_5", "QPushButton", {885, 375, 50, 50});
        row("btn_6", "QPushButton", {941, 375, 50, 50});
        row("btn_7", "QPushButton", {829, 430, 50, 50});
        row("btn_8", "QPushButton", {885, 430, 50, 50});
        row("btn_9", "QPushButton", {941, 430, 50, 50});
        row("btn_10", "QPushButton", {885, 485, 50, 50});
        row("btn_11", "QPushButton", {941, 485, 50, 50});
        row("btn_13", "QPushButton", {996, 320, 50, 105});
        row("btn_12", "QPushButton", {996, 430, 50, 105});
        row("lbl_ToolTip", "QLabel", {978, 32, 67, 17});
        row("chkbx_ToolTip", "QCheckBox", {1003, 52, 26, 26});
        row("menuBar", "QMenuBar", {0, 0, 1050, 22});
    }

    void everyWidgetHasItsPlace()
    {
        QFETCH(QString, type);
        const Shop shop;
        FormVendel form;
        const auto& widget = child<QWidget>(form, QTest::currentDataTag());
        QCOMPARE(QString::fromLatin1(widget.metaObject()->className()), type);
        QTEST(widget.geometry(), "place");
    }

    void everyWidgetHasItsText_data()
    {
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const char* text) {
            QTest::newRow(name) << QString::fromUtf8(text);
        };
        row("btn_Payer", "Payer");
        row("lbl_Menu", "Menu");
        row("lbl_Ticket", "Ticket");
        row("txt_montant", "");
        row("lbl_Montant", "Montant");
        row("btn_Effacer_Saisie", "Effacer Saisie");
        row("btn_Afficher", "Afficher");
        row("btn_Ticket", "Ticket");
        row("btn_Effacer_Ticket", "Effacer Ticket");
        row("btn_Total_Ticket", "Total Ticket");
        row("btn_1", "1");
        row("btn_2", "2");
        row("btn_3", "3");
        row("btn_4", "4");
        row("btn_5", "5");
        row("btn_6", "6");
        row("btn_7", "7");
        row("btn_8", "8");
        row("btn_9", "9");
        row("btn_10", "0");
        row("btn_11", ",");
        row("btn_12", "+");
        row("btn_13", "-");
        row("lbl_ToolTip", "InfoBulle");
        row("lbl_DateTime", "DateTime");
        row("chkbx_ToolTip", "");
    }

    void everyWidgetHasItsText()
    {
        const Shop shop;
        FormVendel form;
        QTEST(child<QWidget>(form, QTest::currentDataTag()).property("text").toString(), "text");
    }

    void everyWidgetHasItsFont_data()
    {
        QTest::addColumn<int>("points");
        QTest::newRow("tableView1") << 18;
        QTest::newRow("tableView2") << 18;
        QTest::newRow("btn_Payer") << 20;
        QTest::newRow("lbl_DateTime") << 16;
        QTest::newRow("txt_montant") << 12;
        for (const auto* name :
            {"btn_Effacer_Saisie", "btn_Afficher", "btn_Ticket", "btn_Effacer_Ticket",
                "btn_Total_Ticket", "btn_1", "btn_2", "btn_3", "btn_4", "btn_5", "btn_6", "btn_7",
                "btn_8", "btn_9", "btn_10", "btn_11", "btn_12", "btn_13"}) {
            QTest::newRow(name) << 12;
        }
        for (const auto* name : {"lbl_Menu", "lbl_Ticket", "lbl_Montant", "lbl_ToolTip"}) {
            QTest::newRow(name) << 11;
        }
    }

    void everyWidgetHasItsFont()
    {
        const Shop shop;
        FormVendel form;
        QTEST(child<QWidget>(form, QTest::currentDataTag()).font().pointSize(), "points");
    }

    void buttonsHaveTheirColours()
    {
        const Shop shop;
        FormVendel form;
        QCOMPARE(child<QPushButton>(form, "btn_Payer").styleSheet(),
            QString("background-color: rgb(204, 0, 0)"));
        for (const auto* name :
            {"btn_Afficher", "btn_Ticket", "btn_Effacer_Ticket", "btn_Total_Ticket"}) {
            QCOMPARE(child<QPushButton>(form, name).styleSheet(),
                QString("background-color: rgb(114, 159, 207)"));
        }
    }

    void otherButtonsHaveNoColour()
    {
        const Shop shop;
        FormVendel form;
        for (const auto* name : {"btn_Effacer_Saisie", "btn_1", "btn_10", "btn_12", "btn_13"}) {
            QCOMPARE(child<QPushButton>(form, name).styleSheet(), QString());
        }
    }

    void tipsAreSwitchedOn()
    {
        const Shop shop;
        FormVendel form;
        QVERIFY(child<QCheckBox>(form, "chkbx_ToolTip").isChecked());
    }

    void theMenusHoldTheirActions()
    {
        const Shop shop;
        FormVendel form;
        const auto bar = form.menuBar()->actions();
        QCOMPARE(bar.size(), 2);
        QCOMPARE(bar.at(0)->menu()->objectName(), QString("menuVendel"));
        QCOMPARE(bar.at(0)->text(), QString("Vendel"));
        QCOMPARE(bar.at(1)->menu()->objectName(), QString("menu"));
        QCOMPARE(bar.at(1)->text(), QString("?"));
        QStringList texts;
        QStringList names;
        for (const QAction* menu : bar) {
            const auto actions = menu->menu()->actions();
            for (const QAction* action : actions) {
                texts << action->text();
                names << action->objectName();
            }
        }
        QCOMPARE(texts,
            (QStringList{QString("Config"), QString("Saisie Article"), QString("Historique"),
                QString("A propos de")}));
        QCOMPARE(names,
            (QStringList{QString("actionConfig"), QString("actionSaisie_Article"),
                QString("actionHistorique"), QString("actionA_propos_de")}));
        QCOMPARE(bar.at(0)->menu()->actions().size(), 3);
    }

    void theListsAreSetUpAlike()
    {
        const Shop shop;
        FormVendel form;
        for (const auto* name : {"tableView1", "tableView2"}) {
            const auto& view = child<QTableView>(form, name);
            QCOMPARE(view.styleSheet(),
                QString("alternate-background-color: LightBlue;background-color: White"));
            QCOMPARE(view.editTriggers(), QAbstractItemView::NoEditTriggers);
            QVERIFY(view.alternatingRowColors());
            QCOMPARE(view.verticalHeader()->defaultSectionSize(), 10);
            QCOMPARE(view.verticalHeader()->minimumSectionSize(), 10);
            QCOMPARE(view.horizontalHeader()->defaultAlignment(), Qt::Alignment(Qt::AlignLeft));
            QCOMPARE(view.columnWidth(2), 210);
            QCOMPARE(view.columnWidth(3), 110);
            QCOMPARE(view.model()->parent(), &form);
        }
    }

    void theMenuListShowsMarkNameAndPrice()
    {
        const Shop shop;
        FormVendel form;
        auto& view = child<QTableView>(form, "tableView1");
        QCOMPARE(labels(view), QString("#|X|Article|Prix"));
        QCOMPARE(view.columnWidth(1), 25);
        QVERIFY(view.isColumnHidden(0));
        QVERIFY(!view.isColumnHidden(1) && !view.isColumnHidden(2) && !view.isColumnHidden(3));
        view.showColumn(0);
        QCOMPARE(view.columnWidth(0), 50);
    }

    void theTicketListShowsNameAndPrice()
    {
        const Shop shop;
        FormVendel form;
        auto& view = child<QTableView>(form, "tableView2");
        QCOMPARE(labels(view), QString("#|Id|Article|Prix"));
        QVERIFY(view.isColumnHidden(0) && view.isColumnHidden(1));
        QVERIFY(!view.isColumnHidden(2) && !view.isColumnHidden(3));
        view.showColumn(0);
        view.showColumn(1);
        QCOMPARE(view.columnWidth(0), 50);
        QCOMPARE(view.columnWidth(1), 50);
    }

    void theListsReportMouseMoves()
    {
        const Shop shop;
        FormVendel form;
        for (const auto* name : {"tableView1", "tableView2"}) {
            QVERIFY(child<QTableView>(form, name).viewport()->testAttribute(Qt::WA_MouseTracking));
        }
    }

    void theListsStartEmpty()
    {
        const Shop shop;
        shop.sql("insert into Article (article, prix) values ('Thé', 2.5)");
        shop.sql("insert into Ticket (id, article, prix) values (1, 'Thé', 2.5)");
        FormVendel form;
        form.show();
        QCOMPARE(rowCount(form, "tableView1"), 0);
        QCOMPARE(rowCount(form, "tableView2"), 0);
    }

    void captionsAreTranslatedInTheWindowsContext()
    {
        Translation translation;
        const QString context = QString("FormVendel");
        for (const auto* source : {"Menu", "Ticket", "Montant", "Effacer Saisie", "Afficher",
                 "Effacer Ticket", "Total Ticket", ",", "Payer", "Vendel", "Config",
                 "Saisie Article", "Historique", "?", "A propos de", "InfoBulle"}) {
            translation.add(
                context, QString::fromLatin1(source), QString::fromLatin1(source).toUpper() + '!');
        }
        const Shop shop;
        FormVendel form;
        const QHash<const char*, const char*> texts{{"lbl_Menu", "MENU!"},
            {"lbl_Ticket", "TICKET!"}, {"lbl_Montant", "MONTANT!"},
            {"btn_Effacer_Saisie", "EFFACER SAISIE!"}, {"btn_Afficher", "AFFICHER!"},
            {"btn_Ticket", "TICKET!"}, {"btn_Effacer_Ticket", "EFFACER TICKET!"},
            {"btn_Total_Ticket", "TOTAL TICKET!"}, {"btn_11", ",!"}, {"btn_Payer", "PAYER!"},
            {"lbl_ToolTip", "INFOBULLE!"}};
        for (auto text = texts.begin(); text != texts.end(); ++text) {
            QCOMPARE(child<QWidget>(form, text.key()).property("text").toString(),
                QString::fromLatin1(text.value()));
        }
        QCOMPARE(form.windowTitle(), QString("VENDEL!"));
        QCOMPARE(child<QMenu>(form, "menuVendel").title(), QString("VENDEL!"));
        QCOMPARE(child<QMenu>(form, "menu").title(), QString("?!"));
        QCOMPARE(actionText(form, "actionConfig"), QString("CONFIG!"));
        QCOMPARE(actionText(form, "actionSaisie_Article"), QString("SAISIE ARTICLE!"));
        QCOMPARE(actionText(form, "actionHistorique"), QString("HISTORIQUE!"));
        QCOMPARE(actionText(form, "actionA_propos_de"), QString("A PROPOS DE!"));
    }

    void theCatalogueTranslatesCaptionsToo()
    {
        Translation translation;
        translation.add(QString("FormVendelMessages"), QString("Payer"), QString("Pay"));
        const Shop shop;
        FormVendel form;
        QCOMPARE(child<QPushButton>(form, "btn_Payer").text(), QString("Pay"));
    }

    void headersAreTranslated()
    {
        Translation translation;
        translation.add(QString("FormVendelMessages"), QString("Prix"), QString("Price"));
        const Shop shop;
        FormVendel form;
        for (const auto* name : {"tableView1", "tableView2"}) {
            QCOMPARE(
                child<QTableView>(form, name).model()->headerData(3, Qt::Horizontal).toString(),
                QString("Price"));
        }
    }

    void everySlotFindsItsWidget()
    {
        const Shop shop;
        const CapturedLog log;
        const FormVendel form;
        QCOMPARE(log.warnings(), QStringList());
        QCOMPARE(log.criticals(), QStringList());
    }
};

VENDEL_TEST(TestFormVendel)
#include "tst_FormVendel.moc"
