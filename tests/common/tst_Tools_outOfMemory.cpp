// SPDX-License-Identifier: MIT
#include "common/Tools.h"
#include "tests/support/Allocations.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"

/// What the helpers say and return when memory runs out.
class TestToolsOutOfMemory : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!Allocations::areSeen) {
            QSKIP("memory does not run out under a sanitizer");
        }
    }

    void isNumSaysNo()
    {
        const QString number(300, '1');
        const CapturedLog log;
        Allocations::refuseFrom(300);
        const bool isNumber = Tools::isNum(number);
        QCOMPARE(log.criticals(), QStringList(QString("Errors Tools::isNum : std::bad_alloc")));
        QVERIFY(!isNumber);
        QVERIFY(Tools::isNum(number));
    }

    void stringDblRatingReturnsNothing()
    {
        const std::string name(10'000, 'x');
        const CapturedLog log;
        Allocations::refuseFrom(15'000);
        const QString text = Tools::StringDblRating(name);
        QCOMPARE(log.criticals(),
            QStringList(QString("Errors Tools::StringDblRating : std::bad_alloc")));
        QCOMPARE(text, QString());
    }

    void paddingReturnsNothing()
    {
        const CapturedLog log;
        Allocations::refuseFrom(10'000);
        const std::string text = Tools::Padding("x", 10'000, ' ');
        QCOMPARE(log.criticals(), QStringList(QString("Errors Padding : std::bad_alloc")));
        QCOMPARE(text, std::string());
    }

    void paddingCenterReturnsNothing()
    {
        const CapturedLog log;
        Allocations::refuseFrom(5'000);
        const std::string text = Tools::PaddingCenter("x", 10'001, ' ');
        QCOMPARE(log.criticals(), QStringList(QString("Errors PaddingCenter : std::bad_alloc")));
        QCOMPARE(text, std::string());
    }

    void toUsReturnsNothing()
    {
        const QString date = QString("03/15/2020");
        const CapturedLog log;
        Allocations::refuseFrom(1);
        const QString text = Tools::ConvDate::ToUs(date);
        QCOMPARE(log.criticals(), QStringList(QString("Errors ToUs : std::bad_alloc")));
        QCOMPARE(text, QString());
    }

    void toUsMdyReturnsNothing()
    {
        const QString date = QString("2020-03-15");
        const CapturedLog log;
        Allocations::refuseFrom(1);
        const QString text = Tools::ConvDate::ToUs_mdy(date);
        QCOMPARE(log.criticals(), QStringList(QString("Errors ToFr : std::bad_alloc")));
        QCOMPARE(text, QString());
    }
};

VENDEL_TEST(TestToolsOutOfMemory)
#include "tst_Tools_outOfMemory.moc"
