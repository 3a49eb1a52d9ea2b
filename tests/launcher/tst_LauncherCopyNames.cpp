// SPDX-License-Identifier: MIT
#include "launcher/CopyName.h"
#include "tests/support/TestProgram.h"

#include <QStringList>

namespace {
std::vector<CopyName> copies(const QStringList& stems)
{
    std::vector<CopyName> all;
    for (const QString& stem : stems) {
        all.push_back(*CopyName::parse("Vendel-" + stem.toStdString() + ".db"));
    }
    return all;
}

QStringList gone(const QStringList& stems)
{
    QStringList names;
    for (const CopyName& name : superfluous(copies(stems))) {
        names.prepend(QString::fromStdString(name.stem));
    }
    return names;
}

/// The ten newest are kept anyway: these make others older.
QStringList withTenMore(QStringList stems)
{
    for (int count = 2; count <= 11; ++count) {
        stems.append(QString("2026-03-05-1459-%1").arg(count));
    }
    return stems;
}
} // namespace

class TestLauncherCopyNames : public QObject
{
    Q_OBJECT

private slots:
    void namesOfCopiesAreKnown()
    {
        QCOMPARE(CopyName::parse("Vendel-2026-03-05.db")->day, std::string("2026-03-05"));
        QVERIFY(!CopyName::parse("Vendel-2026-03-05.db")->isLater());
        QCOMPARE(CopyName::parse("Vendel-2026-03-05-1407.db")->minute, 847);
        QCOMPARE(CopyName::parse("Vendel-2026-03-05-1407-12.db")->number, 12L);
        QCOMPARE(CopyName::parse("Vendel-2026-03-05-1407-12.db")->file(),
            std::string("Vendel-2026-03-05-1407-12.db"));
    }

    void othersAreNot()
    {
        for (const char* name :
            {"Vendel-.db", "Vendel-2026-03-05", "Vendel-2026-03-05-.db", "Vendel-2026-03-05-140.db",
                "Vendel-2026-03-05-1407-.db", "Vendel-2026-03-05-1407-02.db",
                "Vendel-2026-03-05-1407-x.db", "Vendel-2026-3-5.db", "vendel-2026-03-05.db",
                "Vendel-remplacee-2026-03-05-140731.db", "Vendel-2026-03-05.db-journal",
                "Vendel-2026-03-05-1407-9999999999.db"}) {
            QVERIFY2(!CopyName::parse(name), name);
        }
    }

    void namesAreGivenInTurn()
    {
        const Moment moment{"2026-03-05", "140731"};
        QCOMPARE(copyFile(moment, 0), std::string("Vendel-2026-03-05.db"));
        QCOMPARE(copyFile(moment, 1), std::string("Vendel-2026-03-05-1407.db"));
        QCOMPARE(copyFile(moment, 2), std::string("Vendel-2026-03-05-1407-2.db"));
    }

    void theNameOrderIsThatOfTime()
    {
        const auto all = copies({QString("2026-03-05"), QString("2026-03-05-0900"),
            QString("2026-03-05-1000"), QString("2026-03-05-1000-2"), QString("2026-03-05-1000-10"),
            QString("2026-03-06")});
        for (std::size_t at = 1; at < all.size(); ++at) {
            QVERIFY(isEarlierByName(all[at - 1], all[at]));
            QVERIFY(!isEarlierByName(all[at], all[at - 1]));
        }
    }

    void theLastOfADayIsKept()
    {
        QCOMPARE(gone(withTenMore({QString("2026-02-01"), QString("2026-02-01-0900"),
                     QString("2026-02-01-1000"), QString("2026-02-02-1800")})),
            (QStringList{QString("2026-02-01"), QString("2026-02-01-0900")}));
    }

    void theLastOfEachHourOfTwoDaysIsKept()
    {
        QCOMPARE(
            gone(withTenMore({QString("2026-03-03-1300"), QString("2026-03-03-1458"),
                QString("2026-03-03-1500"), QString("2026-03-03-1530"), QString("2026-03-03-1559"),
                QString("2026-03-03-1700"), QString("2026-03-04-0900")})),
            (QStringList{QString("2026-03-03-1300"), QString("2026-03-03-1458"),
                QString("2026-03-03-1500"), QString("2026-03-03-1530")}));
    }

    void thirtyDaysAreKept()
    {
        QStringList stems;
        for (int day = 1; day <= 31; ++day) {
            stems.append(QString("2026-01-%1").arg(day, 2, 10, QLatin1Char('0')));
        }
        stems.append(QString("2026-03-05"));
        QCOMPARE(gone(stems), (QStringList{QString("2026-01-01"), QString("2026-01-02")}));
    }

    void copiesOfTheFutureCountByTheirOrder()
    {
        QStringList stems;
        for (int hour = 0; hour < 60; ++hour) {
            stems.append(QString("2099-01-%1-%2%3")
                             .arg(hour / 24 + 1, 2, 10, QLatin1Char('0'))
                             .arg(hour % 24, 2, 10, QLatin1Char('0'))
                             .arg(0, 2, 10, QLatin1Char('0')));
        }
        stems.append(QString("2026-03-05"));
        // 47 hours of the future and the present one; and the last copy of the first day.
        QStringList expected;
        for (int hour = 0; hour < 13; ++hour) {
            expected.append(QString("2099-01-01-%1").arg(hour * 100, 4, 10, QLatin1Char('0')));
        }
        QCOMPARE(gone(stems), expected);
    }

    void theNewestIsKeptWhateverItsName()
    {
        QStringList stems;
        for (int day = 1; day <= 31; ++day) {
            stems.append(QString("2099-01-%1").arg(day, 2, 10, QLatin1Char('0')));
        }
        stems.append(QString("1970-01-01"));
        QVERIFY(!gone(stems).contains(QString("1970-01-01")));
    }
};

VENDEL_TEST(TestLauncherCopyNames)
#include "tst_LauncherCopyNames.moc"
