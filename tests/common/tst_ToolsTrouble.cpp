// SPDX-License-Identifier: MIT
#include "common/Tools.h"
#include "tests/support/Captured.h"
#include "tests/support/CoreTestMain.h"

#include <cstddef>
#include <cstdlib>

namespace {
/// The next request for so many bytes or more finds no memory; at 0 each finds some.
std::size_t refusedSize = 0;
} // namespace

// A sanitizer keeps its own books of the memory.
#ifndef __SANITIZE_ADDRESS__
extern "C" {
void* __libc_malloc(std::size_t size);

/// The C library's, but for the one request that is to be refused.
void* malloc(std::size_t size) noexcept
{
    if (refusedSize != 0 && size >= refusedSize) {
        refusedSize = 0;
        return nullptr;
    }
    return __libc_malloc(size);
}
}
#endif

/// What the helpers say and return when memory runs out.
class TestToolsTrouble : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void isNumSaysNo();
    void stringDblRatingReturnsNothing();
    void paddingReturnsNothing();
    void paddingCenterReturnsNothing();
    void toUsReturnsNothing();
    void toUsMdyReturnsNothing();
};

void TestToolsTrouble::initTestCase()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("memory does not run out under a sanitizer");
#endif
}

void TestToolsTrouble::isNumSaysNo()
{
    const QString number(300, QLatin1Char('1'));
    const CapturedLog log;
    refusedSize = 300;
    const bool isNumber = Tools::isNum(number);
    QCOMPARE(log.criticals(), QStringList(QStringLiteral("Errors Tools::isNum : std::bad_alloc")));
    QVERIFY(!isNumber);
    QVERIFY(Tools::isNum(number));
}

void TestToolsTrouble::stringDblRatingReturnsNothing()
{
    const std::string name(10'000, 'x');
    const CapturedLog log;
    refusedSize = 15'000;
    const QString text = Tools::StringDblRating(name);
    QCOMPARE(log.criticals(),
        QStringList(QStringLiteral("Errors Tools::StringDblRating : std::bad_alloc")));
    QCOMPARE(text, QString());
}

void TestToolsTrouble::paddingReturnsNothing()
{
    const CapturedLog log;
    refusedSize = 10'000;
    const std::string text = Tools::Padding("x", 10'000, ' ');
    QCOMPARE(log.criticals(), QStringList(QStringLiteral("Errors Padding : std::bad_alloc")));
    QCOMPARE(text, std::string());
}

void TestToolsTrouble::paddingCenterReturnsNothing()
{
    const CapturedLog log;
    refusedSize = 5'000;
    const std::string text = Tools::PaddingCenter("x", 10'001, ' ');
    QCOMPARE(log.criticals(), QStringList(QStringLiteral("Errors PaddingCenter : std::bad_alloc")));
    QCOMPARE(text, std::string());
}

void TestToolsTrouble::toUsReturnsNothing()
{
    const QString date = QStringLiteral("03/15/2020");
    const CapturedLog log;
    refusedSize = 1;
    const QString text = Tools::ConvDate::ToUs(date);
    QCOMPARE(log.criticals(), QStringList(QStringLiteral("Errors ToUs : std::bad_alloc")));
    QCOMPARE(text, QString());
}

void TestToolsTrouble::toUsMdyReturnsNothing()
{
    const QString date = QStringLiteral("2020-03-15");
    const CapturedLog log;
    refusedSize = 1;
    const QString text = Tools::ConvDate::ToUs_mdy(date);
    QCOMPARE(log.criticals(), QStringList(QStringLiteral("Errors ToFr : std::bad_alloc")));
    QCOMPARE(text, QString());
}

VENDEL_CORE_TEST_MAIN(TestToolsTrouble)
#include "tst_ToolsTrouble.moc"
