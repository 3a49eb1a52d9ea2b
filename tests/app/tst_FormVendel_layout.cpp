// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"
#include "tests/support/Captured.h"
#include "tests/support/ListLook.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"

#include <QAction>
#include <QCheckBox>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTableView>

namespace {
/// The sales screen before it is shown.
struct NewScreen
{
    const Shop shop;
    FormVendel form;

    QTableView& list(const char* name) { return child<QTableView>(form, name); }
};
} // namespace

/// What stands where on the sales screen. What it shares with all lists is tested with them.
class TestFormVendelLayout : public QObject
{
    Q_OBJECT

private slots:
    void theWindowHasAFixedSize()
    {
        NewScreen at;
        QCOMPARE(at.form.size(), QSize(1050, 626));
        QCOMPARE(at.form.minimumSize(), QSize(1050, 626));
        QCOMPARE(at.form.maximumSize(), QSize(1050, 626));
        QCOMPARE(at.form.baseSize(), QSize(0, 0));
        QCOMPARE(at.form.windowModality(), Qt::NonModal);
        QCOMPARE(at.form.font().pointSize(), 11);
        QCOMPARE(at.form.windowTitle(), QString("Vendel"));
        QVERIFY(at.form.parent() == nullptr);
        QVERIFY(!at.form.testAttribute(Qt::WA_DeleteOnClose));
        QCOMPARE(at.form.centralWidget()->objectName(), QString("centralWidget"));
    }

    void everyWidgetHasItsPlaceFontAndText_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QRect>("place");
        QTest::addColumn<int>("points");
        QTest::addColumn<QString>("text");
        const auto row
            = [](const char* name, QByteArray type, QRect place, int points, const char* text) {
                  QTest::newRow(name) << type << place << points << QString(text);
              };
        const auto button = [&](const char* name, QRect place, const char* text) {
            row(name, "QPushButton", place, 12, text);
        };
        row("tableView1", "QTableView", {12, 32, 400, 560}, 18, "");
        row("tableView2", "QTableView", {420, 32, 400, 560}, 18, "");
        row("btn_Payer", "QPushButton", {829, 546, 162, 46}, 20, "Payer");
        row("lbl_DateTime", "QLabel", {827, 8, 211, 21}, 16, "DateTime");
        row("lbl_Menu", "QLabel", {14, 12, 46, 17}, 11, "Menu");
        row("lbl_Ticket", "QLabel", {422, 12, 46, 17}, 11, "Ticket");
        row("txt_montant", "QLineEdit", {829, 52, 149, 26}, 12, "");
        row("lbl_Montant", "QLabel", {829, 32, 59, 17}, 11, "Montant");
        button("btn_Effacer_Saisie", {829, 80, 149, 30}, "Effacer Saisie");
        button("btn_Afficher", {829, 124, 149, 43}, "Afficher");
        button("btn_Ticket", {829, 172, 149, 43}, "Ticket");
        button("btn_Effacer_Ticket", {829, 220, 149, 43}, "Effacer Ticket");
        button("btn_Total_Ticket", {829, 268, 149, 43}, "Total Ticket");
        button("btn_1", {829, 320, 50, 50}, "1");
        button("btn_2", {885, 320, 50, 50}, "2");
        button("btn_3", {941, 320, 50, 50}, "3");
        button("btn_4", {829, 375, 50, 50}, "4");
        button("btn_5", {885, 375, 50, 50}, "5");
        button("btn_6", {941, 375, 50, 50}, "6");
        button("btn_7", {829, 430, 50, 50}, "7");
        button("btn_8", {885, 430, 50, 50}, "8");
        button("btn_9", {941, 430, 50, 50}, "9");
        button("btn_10", {885, 485, 50, 50}, "0");
        button("btn_11", {941, 485, 50, 50}, ",");
        button("btn_13", {996, 320, 50, 105}, "-");
        button("btn_12", {996, 430, 50, 105}, "+");
        row("lbl_ToolTip", "QLabel", {978, 32, 67, 17}, 11, "InfoBulle");
        row("chkbx_ToolTip", "QCheckBox", {1003, 52, 26, 26}, 11, "");
        row("menuBar", "QMenuBar", {0, 0, 1050, 22}, 11, "");
    }

    void everyWidgetHasItsPlaceFontAndText()
    {
        NewScreen at;
        const auto& widget = child<QWidget>(at.form, QTest::currentDataTag());
        QTEST(QByteArray(widget.metaObject()->className()), "type");
        QTEST(widget.geometry(), "place");
        QTEST(widget.font().pointSize(), "points");
        QTEST(widget.property("text").toString(), "text");
    }

    void buttonsHaveTheirColours()
    {
        NewScreen at;
        const auto colour
            = [&](const char* name) { return child<QPushButton>(at.form, name).styleSheet(); };
        QCOMPARE(colour("btn_Payer"), QString("background-color: rgb(204, 0, 0)"));
        for (const auto* name :
            {"btn_Afficher", "btn_Ticket", "btn_Effacer_Ticket", "btn_Total_Ticket"}) {
            QCOMPARE(colour(name), QString("background-color: rgb(114, 159, 207)"));
        }
        for (const auto* name : {"btn_Effacer_Saisie", "btn_1", "btn_10", "btn_12", "btn_13"}) {
            QCOMPARE(colour(name), QString());
        }
    }

    void tipsAreSwitchedOn()
    {
        NewScreen at;
        QVERIFY(child<QCheckBox>(at.form, "chkbx_ToolTip").isChecked());
        for (const auto* name : {"tableView1", "tableView2"}) {
            QVERIFY(at.list(name).viewport()->testAttribute(Qt::WA_MouseTracking));
        }
    }

    void theMenusHoldTheirActions()
    {
        NewScreen at;
        QStringList entries;
        const auto menus = at.form.menuBar()->actions();
        for (const QAction* menu : menus) {
            entries << menu->menu()->objectName() + ": " + menu->text();
            const auto actions = menu->menu()->actions();
            for (const QAction* action : actions) {
                entries << action->objectName() + ": " + action->text();
            }
        }
        QCOMPARE(entries,
            QStringList({"menuVendel: Vendel", "actionConfig: Config",
                "actionSaisie_Article: Saisie Article", "actionHistorique: Historique", "menu: ?",
                "actionA_propos_de: A propos de"}));
    }

    void theListsHaveTheirLabelsAndGoWithTheWindow()
    {
        NewScreen at;
        QCOMPARE(labels(at.list("tableView1")), QStringList({"#", "X", "Article", "Prix"}));
        QCOMPARE(labels(at.list("tableView2")), QStringList({"#", "Id", "Article", "Prix"}));
        for (const auto* name : {"tableView1", "tableView2"}) {
            QCOMPARE(at.list(name).model()->parent(), &at.form);
        }
    }

    void theListsStartEmpty()
    {
        const Shop shop;
        shop.fill("insert into Article (article, prix) values ('Thé', 2.5);"
                  "insert into Ticket (id, article, prix) values (1, 'Thé', 2.5)");
        FormVendel form;
        form.show();
        QCOMPARE(rowCount(form, "tableView1"), 0);
        QCOMPARE(rowCount(form, "tableView2"), 0);
    }

    void theCatalogueTranslatesCaptionsAndLabels()
    {
        Translation translation;
        translation.add("FormVendelMessages", "Payer", "Pay");
        translation.add("FormVendelMessages", "Prix", "Price");
        NewScreen at;
        QCOMPARE(child<QPushButton>(at.form, "btn_Payer").text(), QString("Pay"));
        for (const auto* name : {"tableView1", "tableView2"}) {
            QCOMPARE(labels(at.list(name)).constLast(), QString("Price"));
        }
    }

    void everySlotFindsItsWidget()
    {
        const CapturedLog log;
        const NewScreen at;
        QCOMPARE(log.warnings(), QStringList());
        QCOMPARE(log.criticals(), QStringList());
    }
};

VENDEL_TEST(TestFormVendelLayout)
#include "tst_FormVendel_layout.moc"
