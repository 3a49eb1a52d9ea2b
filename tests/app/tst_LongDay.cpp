// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QPixmapCache>
#include <QtGlobal>

#include <ctime>

#include <malloc.h>

namespace {
/// What a till holds between two sales.
struct Held
{
    qint64 bytes;
    int descriptors;
    int windows;
    int objects;
};

/// Bytes of the heap in use. Pictures of buttons that the style keeps, ten megabytes at the most,
/// do not count.
qint64 heapBytes()
{
    const auto heap = mallinfo2();
    return qint64(heap.uordblks) + qint64(heap.hblkhd);
}

/// Milliseconds that the processor worked for this process; what else the machine does is no
/// sale's.
double workedMs() { return double(std::clock()) * 1000 / CLOCKS_PER_SEC; }

Held held(const FormVendel& window)
{
    const QDir descriptors("/proc/self/fd");
    return {heapBytes(),
        int(descriptors.entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size()),
        int(QApplication::topLevelWidgets().size()), int(window.findChildren<QObject*>().size())};
}

/// Sells by mouse: two articles, the total, payment, the receipt looked at and closed. Returns the
/// milliseconds that one sale took.
double sell(Till& till, int sales)
{
    const double begin = workedMs();
    for (int sale = 0; sale < sales; ++sale) {
        clickCell(till.window, "tableView1", 0, 2);
        clickCell(till.window, "tableView1", 1, 2);
        click(till.window, "btn_Total_Ticket");
        till.pay();
        till.takeReceipt();
        QCoreApplication::processEvents();
    }
    return (workedMs() - begin) / sales;
}
} // namespace

class TestLongDay : public QObject
{
    Q_OBJECT

private slots:
    void aDayOfManySalesLeavesNothingBehind()
    {
        bool isLong = false;
        const int asked = qEnvironmentVariableIntValue("VENDEL_SALES", &isLong);
        const int sales = isLong ? asked : 60;
        const int warmUp = sales / 3;
        // The style keeps pictures of buttons, ten megabytes at the most, which are no sale's.
        QPixmapCache::setCacheLimit(0);
        OpenTill till("insert into Article (article, prix) values ('Café', 1.5), ('Thé', 2.25)");

        const double firstMs = sell(till, warmUp);
        const Held before = held(till.window);
        const double nextMs = sell(till, 2 * warmUp);
        const Held after = held(till.window);

        QCOMPARE(till.history().size(), 3 * warmUp * 2);
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(after.descriptors, before.descriptors);
        QCOMPARE(after.windows, before.windows);
        QCOMPARE(after.objects, before.objects);
        qInfo("%d sales; first third %.2f ms of the processor a sale, the rest %.2f ms", 3 * warmUp,
            firstMs, nextMs);
        qInfo("held after a third: %.1f MB, at the end: %.1f MB; %d descriptors, %d windows",
            double(before.bytes) / 1e6, double(after.bytes) / 1e6, after.descriptors,
            after.windows);
        // The heap's own rounding; a receipt kept for each sale would be ten times that.
        const qint64 grown = after.bytes - before.bytes;
        QVERIFY2(grown < 200000, qPrintable(QString::number(grown)));
    }
};

VENDEL_TEST(TestLongDay)
#include "tst_LongDay.moc"
