// SPDX-License-Identifier: MIT
#include "backoffice/window/ReportReader.h"
#include "tests/backoffice/window/SampleSales.h"
#include "tests/support/TestProgram.h"

#include <QSignalSpy>

namespace {
ReportOrder order(QDate day)
{
    ReportOrder order;
    order.range = {day, day};
    order.today = day;
    return order;
}

const QDate friday(2026, 11, 20);
const QDate thursday(2026, 11, 19);

/// A reader of a sample shop, and what it said.
class Reader
{
public:
    Reader()
        : reader([this] { return std::make_unique<SampleSales>(shop); },
            [this](const ReportOrder& what, SalesSource& source, const Reading& reading) {
                thread = QThread::currentThread();
                Report report;
                report.title = what.range.first.toString(Qt::ISODate);
                report.subtitle = QString::number(source.hours(what.range, reading).front().lines);
                return report;
            })
    {
        QObject::connect(&reader, &ReportReader::finished, &reader, [this](const Report& report) {
            said += report.title + QLatin1Char(' ') + report.subtitle;
        });
        QObject::connect(&reader, &ReportReader::failed, &reader,
            [this](const QString& sentence) { said += sentence; });
        QObject::connect(&reader, &ReportReader::changed, &reader, [this] { ++changes; });
        QObject::connect(
            &reader, &ReportReader::progressed, &reader, [this](double done) { progress = done; });
        QObject::connect(
            &reader, &ReportReader::taxRateRead, &reader, [this](double rate) { taxRate = rate; });
        QObject::connect(&reader, &ReportReader::tillsRead, &reader,
            [this](const std::vector<QString>& names) { tills = names; });
    }

    SampleShop shop;
    std::atomic<QThread*> thread = nullptr;
    QStringList said;
    int changes = 0;
    double progress = 0;
    double taxRate = 0;
    std::vector<QString> tills;
    ReportReader reader;
};
} // namespace

class GestionReportReader : public QObject
{
    Q_OBJECT

private slots:
    void readsBesideTheWindow()
    {
        Reader reader;
        reader.reader.read(order(friday));
        QTRY_COMPARE(reader.said, QStringList{QStringLiteral("2026-11-20 3")});
        QVERIFY(reader.thread != QThread::currentThread());
        QCOMPARE(reader.taxRate, 20.0);
        QCOMPARE(reader.changes, 0);
    }

    void theLastOrderReplacesTheOthers()
    {
        Reader reader;
        reader.shop.isSlow = true;
        reader.reader.read(order(friday));
        QTRY_COMPARE(int(reader.shop.readings), 1);
        reader.reader.read(order(QDate(2026, 1, 1)));
        reader.reader.read(order(thursday));
        QTRY_COMPARE(int(reader.shop.readings), 2);
        reader.shop.isSlow = false;
        QTRY_COMPARE(reader.said, QStringList{QStringLiteral("2026-11-19 3")});
    }

    void saysHowFarItIs()
    {
        Reader reader;
        reader.shop.isSlow = true;
        reader.reader.read(order(friday));
        QTRY_COMPARE(reader.progress, 0.25);
    }

    void aStoppedReadingSaysNothingMore()
    {
        Reader reader;
        reader.shop.isSlow = true;
        reader.reader.read(order(friday));
        QTRY_COMPARE(int(reader.shop.readings), 1);
        reader.reader.stop();
        reader.shop.isSlow = false;
        reader.shop.isChanged = true;
        // Two looks later nothing was said, and the next order is read as ever.
        QTest::qWait(1200);
        QCOMPARE(reader.said, QStringList());
        QCOMPARE(reader.changes, 0);
        reader.reader.read(order(thursday));
        QTRY_COMPARE(reader.said, QStringList{QStringLiteral("2026-11-19 3")});
    }

    void whatIsSaidOnceIsSaidOfAReplacedOrderToo()
    {
        Reader reader;
        reader.shop.isSlow = true;
        reader.reader.read(order(friday));
        // Nothing is delivered before the order is out of date.
        while (reader.shop.readings == 0) {
            QThread::yieldCurrentThread();
        }
        reader.reader.read(order(thursday));
        reader.shop.isSlow = false;
        QTRY_COMPARE(reader.said, QStringList{QStringLiteral("2026-11-19 3")});
        QCOMPARE(reader.tills, std::vector<QString>{QStringLiteral("Caisse")});
        QCOMPARE(reader.taxRate, 20.0);
    }

    void newSalesAreNoticedWithinASecond()
    {
        Reader reader;
        reader.reader.read(order(friday));
        QTRY_COMPARE(reader.said.size(), 1);
        reader.shop.lines = 4;
        reader.shop.isChanged = true;
        QTRY_COMPARE_WITH_TIMEOUT(reader.changes, 1, 1000);
        reader.reader.read(order(friday));
        QTRY_COMPARE(reader.said.size(), 2);
        QCOMPARE(reader.said.at(1), QStringLiteral("2026-11-20 4"));
        QCOMPARE(reader.changes, 1);
    }

    void aMissingDatabaseIsASentenceUntilItIsBack()
    {
        Reader reader;
        reader.shop.isMissing = true;
        reader.reader.read(order(friday));
        QTRY_COMPARE(reader.said, QStringList{QStringLiteral("La base de la caisse manque.")});
        // Nobody is bothered while it is missing.
        QTest::qWait(1200);
        QCOMPARE(reader.changes, 0);
        reader.shop.isMissing = false;
        QTRY_VERIFY(reader.changes > 0);
        reader.reader.read(order(friday));
        QTRY_COMPARE(reader.said.size(), 2);
        QCOMPARE(reader.said.at(1), QStringLiteral("2026-11-20 3"));
    }

    void aDatabaseThatGoesAwayIsNoticed()
    {
        Reader reader;
        reader.reader.read(order(friday));
        QTRY_COMPARE(reader.said.size(), 1);
        reader.shop.isMissing = true;
        QTRY_COMPARE(reader.changes, 1);
    }

    void endsAtOnceInTheMiddleOfAReading()
    {
        SampleShop shop;
        shop.isSlow = true;
        {
            ReportReader reader([&] { return std::make_unique<SampleSales>(shop); },
                [](const ReportOrder& what, SalesSource& source, const Reading& reading) {
                    source.hours(what.range, reading);
                    return Report();
                });
            reader.read(order(friday));
            QTRY_COMPARE(int(shop.readings), 1);
            QCOMPARE(int(shop.sources), 1);
        }
        QCOMPARE(int(shop.sources), 0);
    }
};

VENDEL_BARE_TEST(GestionReportReader)
#include "tst_GestionReportReader.moc"
