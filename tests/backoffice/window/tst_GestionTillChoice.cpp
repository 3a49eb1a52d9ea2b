// SPDX-License-Identifier: MIT
#include "backoffice/window/TillChoice.h"
#include "tests/backoffice/window/OpenGestion.h"
#include "tests/support/TestProgram.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>

namespace {
/// A book of two tills, of which "Bar" sells 10.00 a day and "R&D" 20.00.
class SampleBook : public SampleSales
{
public:
    SampleBook(SampleShop& shop, const std::atomic<bool>& isRenamed)
        : SampleSales(shop)
        , isRenamed_(isRenamed)
    { }

    std::vector<QString> allTills() const override
    {
        return {QStringLiteral("Bar"), isRenamed_ ? QStringLiteral("Labo") : QStringLiteral("R&D")};
    }
    std::vector<QString> tills() const override { return chosen_.empty() ? allTills() : chosen_; }
    void choose(const std::vector<QString>& names) override
    {
        const std::vector<QString> all = allTills();
        for (const QString& name : names) {
            if (std::find(all.begin(), all.end(), name) == all.end()) {
                throw SalesError(QStringLiteral("pas de caisse ") + name);
            }
        }
        chosen_ = names;
    }
    bool namesTills() const override { return true; }
    std::vector<HourSales> hours(const DayRange& range, const Reading&) override
    {
        std::vector<HourSales> sold;
        for (std::size_t till = 0; till < tills().size(); ++till) {
            const Amount takings = tills().at(till) == QStringLiteral("Bar") ? 100000 : 200000;
            sold.push_back({range.last, 9, 1, takings, static_cast<int>(till)});
        }
        return sold;
    }

private:
    const std::atomic<bool>& isRenamed_;
    std::vector<QString> chosen_;
};

struct OpenBook
{
    explicit OpenBook(std::vector<QString> tills = {})
        : window({[this] { return std::make_unique<SampleBook>(shop, isRenamed); }, makeReport,
            QLocale(QLocale::French, QLocale::France), [] { return QDate(2026, 11, 20); },
            QString(), std::nullopt, true, std::move(tills)})
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
        window.show();
    }

    QString total()
    {
        const auto labels = window.findChildren<QLabel*>(QStringLiteral("caption"));
        for (const QLabel* label : labels) {
            if (label->isVisible() && OpenGestion::plain(label->text()) == QString("Total HT")) {
                return OpenGestion::plain(
                    label->parentWidget()->findChild<QLabel*>(QStringLiteral("value"))->text());
            }
        }
        return {};
    }
    TillChoice& choice() { return child<TillChoice>(window, "tills"); }
    QMenu& open()
    {
        QMenu& menu = *choice().menu();
        menu.popup(QPoint(0, 0));
        return menu;
    }
    static void click(QMenu& menu, const QString& text)
    {
        const QList<QAction*> actions = menu.actions();
        for (QAction* action : actions) {
            if (action->text() == text) {
                QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
                return;
            }
        }
        QFAIL("no such till");
    }

    QTemporaryDir settings;
    SampleShop shop;
    /// "R&D" is "Labo" by now.
    std::atomic<bool> isRenamed = false;
    MainWindow window;
};
} // namespace

class TestGestionTillChoice : public QObject
{
    Q_OBJECT

private slots:
    void aTillByItselfHasNoChoice()
    {
        const OpenGestion gestion;
        QVERIFY(gestion.window.findChild<TillChoice*>() == nullptr);
    }

    void allTillsAreShownFirst()
    {
        OpenBook book;
        QTRY_COMPARE(book.total(), QString("30,00 €"));
        QCOMPARE(book.choice().text(), QString("Toutes les caisses"));
    }

    void oneTillAndSeveral()
    {
        OpenBook book;
        QTRY_COMPARE(book.total(), QString("30,00 €"));
        QMenu& menu = book.open();
        OpenBook::click(menu, "R&&D");
        QTRY_COMPARE(book.total(), QString("20,00 €"));
        QCOMPARE(book.choice().text(), QString("R&&D"));
        QVERIFY(menu.isVisible());
        OpenBook::click(menu, "Bar");
        QTRY_COMPARE(book.total(), QString("30,00 €"));
        QCOMPARE(book.choice().text(), QString("2 caisses"));
        OpenBook::click(menu, "R&&D");
        QTRY_COMPARE(book.total(), QString("10,00 €"));
        OpenBook::click(menu, "Toutes les caisses");
        QTRY_COMPARE(book.total(), QString("30,00 €"));
        QVERIFY(book.choice().tills().empty());
        menu.hide();
    }

    void theKeyboardChoosesToo()
    {
        OpenBook book;
        QTRY_COMPARE(book.total(), QString("30,00 €"));
        QMenu& menu = book.open();
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Space);
        QTRY_COMPARE(book.total(), QString("10,00 €"));
        QVERIFY(menu.isVisible());
        menu.hide();
    }

    void theCommandsTillsAreShownFirst()
    {
        OpenBook book({QStringLiteral("Bar")});
        QTRY_COMPARE(book.total(), QString("10,00 €"));
        QCOMPARE(book.choice().text(), QString("Bar"));
        QTRY_VERIFY(book.choice().menu()->actions().size() == 4);
        QVERIFY(book.choice().menu()->actions().at(2)->isChecked());
    }

    void aRenamedTillCanBeChosenByItsNewName()
    {
        OpenBook book({QStringLiteral("R&D")});
        QTRY_COMPARE(book.total(), QString("20,00 €"));
        book.isRenamed = true;
        book.shop.isChanged = true;
        QTRY_VERIFY(!book.choice().menu()->actions().isEmpty()
            && book.choice().menu()->actions().constLast()->text() == QString("Labo"));
        QTRY_VERIFY(book.total().isEmpty());
        QMenu& menu = book.open();
        OpenBook::click(menu, "Labo");
        QTRY_COMPARE(book.total(), QString("20,00 €"));
        QCOMPARE(book.choice().text(), QString("Labo"));
        menu.hide();
    }

    void aBookHasNoMenuToWrite()
    {
        const OpenBook book;
        QStringList titles;
        const QList<QAction*> actions = book.window.menuBar()->actions();
        for (const QAction* action : actions) {
            titles += action->text();
        }
        QCOMPARE(titles, (QStringList{"&Fichier", "&Affichage"}));
    }
};

VENDEL_TEST(TestGestionTillChoice)
#include "tst_GestionTillChoice.moc"
