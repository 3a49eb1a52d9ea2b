// SPDX-License-Identifier: MIT
#include "tests/backoffice/window/OpenGestion.h"
#include "tests/support/TestProgram.h"

#include <QAction>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

class GestionWindow : public QObject
{
    Q_OBJECT

private slots:
    void opensOnTodaysSales()
    {
        OpenGestion gestion;
        QCOMPARE(gestion.window.windowTitle(), QStringLiteral("Vendel – Gestion"));
        QTRY_COMPARE(gestion.figure(QStringLiteral("Total HT")), QStringLiteral("30,00 €"));
        QVERIFY(gestion.subtitle().startsWith(QStringLiteral("Vendredi 20 novembre 2026")));
        QCOMPARE(gestion.sentence(), QString());
    }

    void aPeriodIsForAllPages()
    {
        OpenGestion gestion;
        gestion.choose("period", 1);
        QTRY_VERIFY(gestion.subtitle().startsWith(QStringLiteral("Jeudi 19 novembre 2026")));
        QTest::keyClick(&gestion.window, Qt::Key_2, Qt::ControlModifier);
        QTRY_VERIFY(gestion.subtitle().startsWith(QStringLiteral("Jeudi 19 novembre 2026")));
        QCOMPARE(gestion.pages().currentIndex(), 1);
    }

    void aKeyForEachPage()
    {
        OpenGestion gestion;
        for (int page = 4; page >= 0; --page) {
            QTest::keyClick(
                &gestion.window, static_cast<Qt::Key>(Qt::Key_1 + page), Qt::ControlModifier);
            QCOMPARE(gestion.pages().currentIndex(), page);
            QTRY_VERIFY(gestion.page().report() != nullptr);
        }
    }

    void anotherTaxRateChangesThePageAndNotTheTill()
    {
        OpenGestion gestion;
        QTRY_COMPARE(gestion.figure(QStringLiteral("TVA à 20 %")), QStringLiteral("6,00 €"));
        auto& rate = child<QDoubleSpinBox>(gestion.window, "taxRate");
        QCOMPARE(rate.value(), 20.0);
        rate.setFocus();
        rate.selectAll();
        QTest::keyClicks(&rate, QStringLiteral("5,5"));
        QTest::keyClick(&rate, Qt::Key_Return);
        QTRY_COMPARE(gestion.figure(QStringLiteral("TVA à 5,5 %")), QStringLiteral("1,65 €"));
    }

    void theBestAreByTakingsOrByNumber()
    {
        OpenGestion gestion;
        gestion.pages().setCurrentIndex(1);
        QTRY_COMPARE(gestion.cell(0, 1), QStringLiteral("Thé 60"));
        // 3 coffees are 30.00, which 30 teas at 1.00 are as well.
        QCOMPARE(gestion.cell(0, 2), QStringLiteral("60"));
        gestion.shop.lines = 59;
        gestion.choose("ranking", 1);
        QTRY_COMPARE(gestion.cell(1, 1), QStringLiteral("Café"));
    }

    void noColumnIsCutOffWhenFiguresGrow()
    {
        OpenGestion gestion;
        gestion.window.resize(1180, 700);
        for (const int page : {0, 1, 3}) {
            gestion.choose("period", 0);
            gestion.pages().setCurrentIndex(page);
            QTRY_VERIFY(gestion.page().report() != nullptr);
            gestion.shop.lines = 60;
            gestion.choose("period", 4);
            QTRY_VERIFY(gestion.subtitle().startsWith(QStringLiteral("Année 2026")));
            auto& tables = *gestion.page().findChild<QTabWidget*>();
            for (int at = 0; at < tables.count(); ++at) {
                tables.setCurrentIndex(at);
                QTRY_COMPARE(gestion.table().horizontalScrollBar()->maximum(), 0);
            }
            gestion.shop.lines = 3;
        }
    }

    void findsWithControlF()
    {
        OpenGestion gestion;
        gestion.pages().setCurrentIndex(1);
        QTRY_VERIFY(gestion.page().report() != nullptr);
        QTest::keyClick(&gestion.window, Qt::Key_F, Qt::ControlModifier);
        auto& search = child<QLineEdit>(gestion.page(), "search");
        QTRY_VERIFY(search.hasFocus());
        QTest::keyClicks(&search, QStringLiteral("cafe"));
        QCOMPARE(gestion.table().model()->rowCount(), 1);
        QCOMPARE(gestion.cell(0, 1), QStringLiteral("Café"));
    }

    void whatTakesLongShowsItsProgressAndCanBeStopped()
    {
        OpenGestion gestion;
        QTRY_VERIFY(gestion.page().report() != nullptr);
        auto& progress = child<QProgressBar>(gestion.window, "progress");
        QVERIFY(!progress.isVisible());
        gestion.shop.isSlow = true;
        gestion.choose("period", 4);
        QTRY_VERIFY(progress.isVisible());
        QCOMPARE(gestion.sentence(), QStringLiteral("Lecture des ventes…"));
        QTRY_COMPARE(progress.value() * 4, progress.maximum());

        click(gestion.window, "stop");
        QVERIFY(!progress.isVisible());
        QCOMPARE(gestion.sentence(), QStringLiteral("La lecture a été arrêtée."));
        auto& reload = child<QPushButton>(gestion.page(), "reload");
        QVERIFY(reload.isVisible());
        gestion.shop.isSlow = false;
        QTest::keyClick(&reload, Qt::Key_Space);
        QTRY_VERIFY(gestion.subtitle().startsWith(QStringLiteral("Année 2026")));
        QCOMPARE(gestion.sentence(), QString());
    }

    void whatIsReadAgainStaysMeanwhile()
    {
        OpenGestion gestion;
        QTRY_VERIFY(gestion.page().report() != nullptr);
        gestion.shop.isSlow = true;
        QTest::keyClick(&gestion.window, Qt::Key_F5);
        QTRY_VERIFY(child<QProgressBar>(gestion.window, "progress").isVisible());
        QCOMPARE(gestion.sentence(), QString());
        QCOMPARE(gestion.figure(QStringLiteral("Total HT")), QStringLiteral("30,00 €"));
        gestion.shop.isSlow = false;
        QTRY_VERIFY(!child<QProgressBar>(gestion.window, "progress").isVisible());
    }

    void aSaleShowsWithinTwoSecondsWhereTheUserIs()
    {
        OpenGestion gestion;
        gestion.pages().setCurrentIndex(1);
        QTRY_COMPARE(gestion.cell(60, 1), QStringLiteral("Thé 1"));
        gestion.table().sortByColumn(1, Qt::DescendingOrder);
        gestion.table().setCurrentIndex(gestion.table().model()->index(40, 1));
        const QString chosen = gestion.cell(40, 1);
        const int scrolled = gestion.table().verticalScrollBar()->value();
        QVERIFY(scrolled > 0);

        gestion.shop.lines = 4;
        gestion.shop.isChanged = true;
        QTRY_COMPARE_WITH_TIMEOUT(
            gestion.figure(QStringLiteral("Lignes vendues")), QStringLiteral("1 834"), 2000);
        QCOMPARE(gestion.table().verticalScrollBar()->value(), scrolled);
        const auto rows = gestion.table().selectionModel()->selectedRows(1);
        QCOMPARE(rows.size(), 1);
        QCOMPARE(rows.at(0).data().toString(), chosen);
        QCOMPARE(gestion.table().horizontalHeader()->sortIndicatorSection(), 1);
    }

    void anErrorIsASentenceUntilItIsOver()
    {
        OpenGestion gestion;
        QTRY_VERIFY(gestion.page().report() != nullptr);
        gestion.shop.isMissing = true;
        QTRY_COMPARE(gestion.sentence(), QStringLiteral("La base de la caisse manque."));
        QVERIFY(!child<QPushButton>(gestion.page(), "reload").isVisible());
        QVERIFY(gestion.page().report() == nullptr);
        gestion.shop.isMissing = false;
        QTRY_COMPARE(gestion.figure(QStringLiteral("Total HT")), QStringLiteral("30,00 €"));
        QCOMPARE(gestion.sentence(), QString());
    }

    void filesAreForWhatIsSeen()
    {
        OpenGestion gestion;
        const auto isAllowed = [&] {
            const auto actions = gestion.window.findChildren<QAction*>();
            return std::any_of(actions.begin(), actions.end(), [](const QAction* action) {
                return action->text().contains(QStringLiteral("&PDF")) && action->isEnabled();
            });
        };
        QTRY_VERIFY(isAllowed());
        gestion.shop.isSlow = true;
        gestion.choose("period", 4);
        QVERIFY(!isAllowed());
        gestion.shop.isSlow = false;
        QTRY_VERIFY(isAllowed());
    }

    void afterMidnightTodayIsTheNewDay()
    {
        OpenGestion gestion;
        QTRY_VERIFY(gestion.page().report() != nullptr);
        gestion.today = QDate(2026, 11, 21);
        QTRY_VERIFY_WITH_TIMEOUT(
            gestion.subtitle().startsWith(QStringLiteral("Samedi 21 novembre 2026")), 3000);
    }

    void closesAtOnceInTheMiddleOfAReading()
    {
        auto gestion = std::make_unique<OpenGestion>();
        gestion->shop.isSlow = true;
        gestion->choose("period", 4);
        QTRY_VERIFY(gestion->shop.readings > 1);
        QElapsedTimer watch;
        watch.start();
        QVERIFY(gestion->window.close());
        gestion.reset();
        QVERIFY(watch.elapsed() < 500);
    }

    void remembersItsPlace()
    {
        OpenGestion gestion;
        gestion.window.resize(900, 640);
        gestion.window.close();
        SampleShop shop;
        const MainWindow again({[&] { return std::make_unique<SampleSales>(shop); }, makeReport,
            QLocale(), [] { return QDate(2026, 11, 20); }, QString()});
        QCOMPARE(again.size(), QSize(900, 640));
        const QSettings settings(QStringLiteral("Vendel"), QStringLiteral("Gestion"));
        QCOMPARE(settings.allKeys(), QStringList{QStringLiteral("window")});
    }

    void everyControlHasANameForAScreenReader()
    {
        OpenGestion gestion;
        for (const char* name : {"period", "first", "last", "taxRate", "progress"}) {
            QVERIFY2(!child<QWidget>(gestion.window, name).accessibleName().isEmpty(), name);
        }
        gestion.pages().setCurrentIndex(1);
        QTRY_VERIFY(gestion.page().report() != nullptr);
        for (const char* name : {"search", "ranking"}) {
            QVERIFY2(!child<QWidget>(gestion.page(), name).accessibleName().isEmpty(), name);
        }
        QVERIFY(!gestion.table().accessibleName().isEmpty());
    }
};

VENDEL_BARE_TEST(GestionWindow)
#include "tst_GestionWindow.moc"
