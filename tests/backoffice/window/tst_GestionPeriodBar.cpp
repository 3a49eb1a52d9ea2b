// SPDX-License-Identifier: MIT
#include "backoffice/window/PeriodBar.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QComboBox>
#include <QDateEdit>
#include <QSignalSpy>

namespace {
class Bar
{
public:
    explicit Bar(const QLocale& locale = QLocale(QLocale::French, QLocale::France))
        : bar(locale, [this] { return today; })
        , chosen(&bar, &PeriodBar::chosen)
    {
        bar.show();
        if (!QTest::qWaitForWindowActive(&bar)) {
            qFatal("the window is not shown");
        }
    }

    QComboBox& presets() { return child<QComboBox>(bar, "period"); }
    QDateEdit& first() { return child<QDateEdit>(bar, "first"); }
    QDateEdit& last() { return child<QDateEdit>(bar, "last"); }

    QDate today{2026, 11, 20};
    PeriodBar bar;
    QSignalSpy chosen;
};
} // namespace

class GestionPeriodBar : public QObject
{
    Q_OBJECT

private slots:
    void beginsWithToday()
    {
        Bar bar;
        QCOMPARE(bar.bar.range(), (DayRange{{2026, 11, 20}, {2026, 11, 20}}));
        QCOMPARE(bar.first().text(), QStringLiteral("20/11/2026"));
    }

    void everyChoiceIsAPeriod_data()
    {
        QTest::addColumn<int>("keys");
        QTest::addColumn<QDate>("first");
        QTest::addColumn<QDate>("last");
        QTest::newRow("yesterday") << 1 << QDate(2026, 11, 19) << QDate(2026, 11, 19);
        QTest::newRow("week") << 2 << QDate(2026, 11, 16) << QDate(2026, 11, 22);
        QTest::newRow("month") << 3 << QDate(2026, 11, 1) << QDate(2026, 11, 30);
        QTest::newRow("year") << 4 << QDate(2026, 1, 1) << QDate(2026, 12, 31);
        QTest::newRow("last year") << 5 << QDate(2025, 1, 1) << QDate(2025, 12, 31);
    }

    void everyChoiceIsAPeriod()
    {
        QFETCH(const int, keys);
        QFETCH(const QDate, first);
        QFETCH(const QDate, last);
        Bar bar;
        bar.presets().setFocus();
        for (int press = 0; press < keys; ++press) {
            QTest::keyClick(&bar.presets(), Qt::Key_Down);
        }
        QCOMPARE(bar.bar.range(), (DayRange{first, last}));
        QCOMPARE(bar.first().date(), first);
        QCOMPARE(bar.last().date(), last);
        QCOMPARE(bar.chosen.size(), keys);
    }

    void aWeekBeginsAsInTheCountry()
    {
        Bar bar(QLocale(QLocale::English, QLocale::UnitedStates));
        bar.presets().setCurrentIndex(2);
        QCOMPARE(bar.bar.range(), (DayRange{{2026, 11, 15}, {2026, 11, 21}}));
        QCOMPARE(bar.first().text(), QStringLiteral("11/15/2026"));
    }

    void aTypedDateIsReadWhenItIsComplete()
    {
        Bar bar;
        bar.first().setFocus();
        bar.first().setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClicks(&bar.first(), QStringLiteral("02112026"));
        QTest::keyClick(&bar.first(), Qt::Key_Return);
        QCOMPARE(bar.bar.range(), (DayRange{{2026, 11, 2}, {2026, 11, 20}}));
        QCOMPARE(bar.presets().currentText(), QStringLiteral("Deux dates"));
        QCOMPARE(bar.chosen.size(), 1);
    }

    void theDatesStayInOrder()
    {
        Bar bar;
        bar.first().setDate({2026, 12, 24});
        QCOMPARE(bar.bar.range(), (DayRange{{2026, 12, 24}, {2026, 12, 24}}));
        bar.last().setDate({2026, 3, 1});
        QCOMPARE(bar.bar.range(), (DayRange{{2026, 3, 1}, {2026, 3, 1}}));
    }

    void twoDatesBeginWithWhatWasShown()
    {
        Bar bar;
        bar.presets().setCurrentIndex(3);
        bar.presets().setCurrentIndex(6);
        QCOMPARE(bar.bar.range(), (DayRange{{2026, 11, 1}, {2026, 11, 30}}));
        QVERIFY(bar.first().hasFocus());
    }

    void afterMidnightTodayIsAnotherDay()
    {
        Bar bar;
        bar.today = {2026, 11, 21};
        bar.bar.followTheDay();
        QCOMPARE(bar.first().date(), QDate(2026, 11, 21));
        QCOMPARE(bar.chosen.size(), 0);
    }
};

VENDEL_BARE_TEST(GestionPeriodBar)
#include "tst_GestionPeriodBar.moc"
