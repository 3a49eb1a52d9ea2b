// SPDX-License-Identifier: MIT
#include "forms/FormVendelHistorique.h"
#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelSaisieStockComposition.h"
#include "forms/FormVendelSaisieStockCutPaste.h"
#include "forms/FormVendelSaisieStockMaj.h"
#include "forms/FormVendelStockCalculation.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <memory>

namespace {
constexpr auto blue = "background-color: rgb(114, 159, 207)";
constexpr auto red = "background-color: rgb(204, 0, 0)";

/// The window with the given name on the screen.
std::unique_ptr<QWidget> open(const QString& name)
{
    std::unique_ptr<QWidget> window;
    if (name == QLatin1String("history")) {
        window = std::make_unique<FormVendelHistorique>();
    } else if (name == QLatin1String("editor")) {
        window = std::make_unique<FormVendelSaisieStock>();
    } else if (name == QLatin1String("composition")) {
        window = std::make_unique<FormVendelSaisieStockComposition>(QString("Café"), QString("1"));
    } else if (name == QLatin1String("update")) {
        window = std::make_unique<FormVendelSaisieStockMaj>();
    } else if (name == QLatin1String("transfer")) {
        window = std::make_unique<FormVendelSaisieStockCutPaste>();
    } else {
        const QString day = QString("05/01/2019");
        window = std::make_unique<FormVendelStockCalculation>(day, day);
    }
    window->show();
    return window;
}
} // namespace

/// Letters, sizes and colours of what is around the lists of the history and the stock.
class TestStockLook : public QObject
{
    Q_OBJECT

private slots:
    void lettersAreAsLargeAsElsewhere_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("widget");
        const auto add = [](const char* window, std::initializer_list<const char*> widgets) {
            for (const char* widget : widgets) {
                QTest::addRow("%s %s", window, widget)
                    << QString::fromLatin1(window) << QString::fromLatin1(widget);
            }
        };
        add("history",
            {"lbl_First_Date", "txt_First_Date", "lbl_Second_Date", "txt_Second_Date",
                "btn_Del_Seizure", "groupBox", "rb_First_Date", "rb_Second_Date", "btn_Show_Date",
                "btn_View_Historical", "btn_Total", "btn_Clear"});
        add("editor", {"btn_Display", "btn_Update", "btn_Remove", "btn_Cut_Paste"});
        add("composition",
            {"lbl_ArticleTitle", "lbl_Article", "lbl_Composition", "txt_Composition", "lbl_Dose",
                "txt_Dose", "lbl_Unit", "cbx_Unit", "btn_Add"});
        add("update", {"btn_Update"});
        add("transfer", {"cbx_Article", "btn_Modify"});
        add("consumption",
            {"lbl_Period", "lbl_Period_Date1", "lbl_To", "lbl_To_Date2", "btn_Display"});
    }

    void lettersAreAsLargeAsElsewhere()
    {
        QFETCH(const QString, window);
        QFETCH(const QString, widget);
        const Shop shop;
        const auto shown = open(window);
        const QFont font = child<QWidget>(*shown, qPrintable(widget)).font();
        QCOMPARE(font.pointSize(), 12);
        QCOMPARE(font.families().constFirst(), QString("Carlito"));
        QVERIFY(!font.bold());
    }

    void buttonsHaveTheirColourAndSize_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("style");
        QTest::addColumn<QSize>("least");
        const auto add
            = [](const char* window, const char* button, const char* style, QSize least) {
                  QTest::addRow("%s %s", window, button)
                      << QString::fromLatin1(window) << QString::fromLatin1(button)
                      << QString::fromLatin1(style) << least;
              };
        add("history", "btn_Del_Seizure", "", QSize(270, 36));
        add("history", "btn_Show_Date", blue, QSize(270, 36));
        add("history", "btn_View_Historical", blue, QSize(270, 36));
        add("history", "btn_Total", blue, QSize(270, 36));
        add("history", "btn_Clear", red, QSize(270, 36));
        add("editor", "btn_Display", blue, QSize(149, 52));
        add("editor", "btn_Update", blue, QSize(149, 52));
        add("editor", "btn_Remove", blue, QSize(149, 52));
        add("editor", "btn_Cut_Paste", blue, QSize(149, 52));
        add("composition", "btn_Add", blue, QSize(110, 40));
        add("update", "btn_Update", blue, QSize(120, 43));
        add("transfer", "btn_Modify", blue, QSize(149, 32));
        add("consumption", "btn_Display", blue, QSize(149, 36));
    }

    void buttonsHaveTheirColourAndSize()
    {
        QFETCH(const QString, window);
        QFETCH(const QString, button);
        QFETCH(const QString, style);
        QFETCH(const QSize, least);
        const Shop shop;
        const auto shown = open(window);
        const auto& widget = child<QWidget>(*shown, qPrintable(button));
        QCOMPARE(widget.styleSheet(), style);
        QCOMPARE(widget.size(), least);
    }

    void fieldsAreHighEnoughToBeHit_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("field");
        QTest::addColumn<int>("height");
        const auto add = [](const char* window, const char* field, int height) {
            QTest::addRow("%s %s", window, field)
                << QString::fromLatin1(window) << QString::fromLatin1(field) << height;
        };
        add("history", "txt_First_Date", 30);
        add("history", "txt_Second_Date", 30);
        add("transfer", "cbx_Article", 32);
    }

    void fieldsAreHighEnoughToBeHit()
    {
        QFETCH(const QString, window);
        QFETCH(const QString, field);
        const Shop shop;
        const auto shown = open(window);
        QTEST(child<QWidget>(*shown, qPrintable(field)).height(), "height");
    }

    void windowsHaveTheSizeOfTheirForm_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("editor") << QSize(904, 531);
        QTest::newRow("composition") << QSize(495, 86);
        QTest::newRow("update") << QSize(563, 261);
        QTest::newRow("transfer") << QSize(845, 393);
        QTest::newRow("consumption") << QSize(751, 566);
    }

    void windowsHaveTheSizeOfTheirForm()
    {
        QFETCH(const QSize, size);
        const Shop shop;
        const auto shown = open(QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(shown->size(), size);
        QCOMPARE(shown->minimumSize(), size);
        QCOMPARE(shown->maximumSize(), size);
    }
};

VENDEL_TEST(TestStockLook)
#include "tst_StockLook.moc"
