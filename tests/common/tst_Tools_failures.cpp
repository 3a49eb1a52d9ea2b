// SPDX-License-Identifier: MIT
#include "common/Tools.h"
#include "tests/support/Allocations.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"

#include <functional>

/// What the helpers log and return when memory runs out.
class TestToolsFailures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!Allocations::areSeen) {
            QSKIP("memory does not run out under a sanitizer");
        }
    }

    void withoutMemoryNothingIsReturned()
    {
        const std::string name(10'000, 'x');
        compareFailure(
            [&] { return Tools::StringDblRating(name); }, 15'000, "Tools::StringDblRating");
        compareFailure([] { return QString::fromStdString(Tools::Padding("x", 10'000, ' ')); },
            10'000, "Padding");
        compareFailure(
            [] { return QString::fromStdString(Tools::PaddingCenter("x", 10'001, ' ')); }, 5'000,
            "PaddingCenter");
        const QString shown = "03/15/2020";
        compareFailure([&] { return Tools::ConvDate::ToUs(shown); }, 1, "ToUs");
        const QString stored = "2020-03-15";
        compareFailure([&] { return Tools::ConvDate::ToUs_mdy(stored); }, 1, "ToFr");
    }

    void withoutMemoryNothingIsANumber()
    {
        const QString number(300, '1');
        compareFailure(
            [&] { return QString(Tools::isNum(number) ? "a number" : ""); }, 300, "Tools::isNum");
        QVERIFY(Tools::isNum(number));
    }

private:
    /// Compares what \a helper returns and logs under \a name without so many \a bytes.
    static void compareFailure(
        const std::function<QString()>& helper, std::size_t bytes, const char* name)
    {
        const CapturedLog log;
        Allocations::refuseFrom(bytes);
        const QString text = helper();
        QCOMPARE(log.criticals(), QStringList(QString("Errors %1 : std::bad_alloc").arg(name)));
        QCOMPARE(text, QString());
    }
};

VENDEL_TEST(TestToolsFailures)
#include "tst_Tools_failures.moc"
