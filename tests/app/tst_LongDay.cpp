// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/TestMain.h"

#include <QDir>
#include <QElapsedTimer>
#include <QPixmapCache>
#include <QtGlobal>

#include <malloc.h>

class TestLongDay : public QObject
{
    Q_OBJECT

private slots:
    void aDayOfManySalesLeavesNothingBehind();
};

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

Held held(const FormVendel& window)
{
    const QDir descriptors(QStringLiteral("/proc/self/fd"));
    return {heapBytes(),
        int(descriptors.entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size()),
        int(QApplication::topLevelWidgets().size()), int(window.findChildren<QObject*>().size())};
}

/// One sale by mouse: two articles, the total, payment, the receipt looked at and closed.
void sellTwoArticles(Till& till)
{
    clickCell(till.window, "tableView1", 0, 2);
    clickCell(till.window, "tableView1", 1, 2);
    click(till.window, "btn_Total_Ticket");
    till.pay();
    till.takeReceipt();
    QCoreApplication::processEvents();
}
} // namespace

void TestLongDay::aDayOfManySalesLeavesNothingBehind()
{
    bool isLong = false;
    const int asked = qEnvironmentVariableIntValue("VENDEL_SALES", &isLong);
    const int sales = isLong ? asked : 60;
    const int warmUp = sales / 3;
    // The style keeps pictures of buttons, ten megabytes at the most, which are no sale's.
    QPixmapCache::setCacheLimit(0);
    Till till;
    till.run("insert into Article (article, prix) values ('Café', 1.5), ('Thé', 2.25)");
    click(till.window, "btn_Afficher");

    QElapsedTimer timer;
    timer.start();
    for (int sale = 0; sale < warmUp; ++sale) {
        sellTwoArticles(till);
    }
    const qint64 firstMs = timer.restart();
    const Held before = held(till.window);
    for (int sale = 0; sale < 2 * warmUp; ++sale) {
        sellTwoArticles(till);
    }
    const qint64 nextMs = timer.elapsed();
    const Held after = held(till.window);

    QCOMPARE(till.history().size(), 3 * warmUp * 2);
    QCOMPARE(till.ticket(), QStringList());
    QCOMPARE(after.descriptors, before.descriptors);
    QCOMPARE(after.windows, before.windows);
    QCOMPARE(after.objects, before.objects);
    qInfo("%d sales; first third %.2f ms a sale, the rest %.2f ms", 3 * warmUp,
        double(firstMs) / warmUp, double(nextMs) / (2 * warmUp));
    qInfo("held after a third: %.1f MB, %d descriptors, %d windows", double(before.bytes) / 1e6,
        before.descriptors, before.windows);
    qInfo("held at the end: %.1f MB, %d descriptors, %d windows", double(after.bytes) / 1e6,
        after.descriptors, after.windows);
    // The heap's own rounding; a receipt kept for each sale would be ten times that.
    const qint64 grown = after.bytes - before.bytes;
    QVERIFY2(grown < 200000, qPrintable(QString::number(grown)));
}

VENDEL_TEST_MAIN(TestLongDay)
#include "tst_LongDay.moc"
