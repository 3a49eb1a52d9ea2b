// SPDX-License-Identifier: MIT
#include "backoffice/menu/WrittenNumber.h"
#include "tests/support/TestProgram.h"

namespace {
using Kind = WrittenNumber::Kind;

void addNumber(const char* written, const char* sql)
{
    QTest::newRow(written) << QString(written) << QString(sql);
}
} // namespace

class TestGestionWrittenNumber : public QObject
{
    Q_OBJECT

private slots:
    void aNumberWithOneMeaningIsRead_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("sql");
        addNumber("12", "12");
        addNumber("0", "0");
        addNumber("007", "7");
        addNumber("1,50", "1.5");
        addNumber("1.50", "1.5");
        addNumber("1234.5", "1234.5");
        addNumber("1234,567", "1234.567");
        addNumber("1 234,50 €", "1234.5");
        addNumber("1\u00a0234,50\u00a0€", "1234.5");
        addNumber("1\u202f234,50\u202f€", "1234.5");
        addNumber("1.234,50", "1234.5");
        addNumber("1,234.50", "1234.5");
        addNumber("1'234.50", "1234.5");
        addNumber("1’234", "1234");
        addNumber("1.234.567", "1234567");
        addNumber("1,234,567.89", "1234567.89");
        addNumber("$12.30", "12.3");
        addNumber("12,30 EUR", "12.3");
        addNumber("-2,5", "-2.5");
        addNumber("- 2,50 €", "-2.5");
        addNumber("−2.5", "-2.5");
        addNumber("€-3", "-3");
        addNumber("+3", "3");
        addNumber("-0,00", "0");
        addNumber("0,125", "0.125");
        addNumber("  4,20  ", "4.2");
        addNumber("999999999.99", "999999999.99");
    }

    void aNumberWithOneMeaningIsRead()
    {
        QFETCH(QString, written);
        QFETCH(QString, sql);
        const auto number = WrittenNumber::of(written);
        QVERIFY(number.isNumber());
        QCOMPARE(number.sql, sql);
    }

    void whatIsNoNumberIsNone_data()
    {
        QTest::addColumn<QString>("written");
        for (const char* written :
            {"", " ", "abc", "1,5O", "1,2,3", "1.2.3", "12,34,56", "1,50-", "--1", "-1-", "+-1",
                "1e5", "nan", "inf", "0x10", ",50", "5,", "1 23", "12 34,50", "1.23,4", "1,234,56",
                "$5€", "1 234.567,8x", "1,23.456", "٣", "½", "3,2.50", "€"}) {
            QTest::newRow(written) << QString(written);
        }
    }

    void whatIsNoNumberIsNone()
    {
        QFETCH(QString, written);
        QCOMPARE(WrittenNumber::of(written).kind, Kind::None);
    }

    void aThousandOrAFractionIsNotGuessed()
    {
        for (const char* written : {"1.234", "1,234", "12.345 €", "-999,000"}) {
            QCOMPARE(WrittenNumber::of(QString(written)).kind, Kind::TwoMeanings);
        }
    }

    void aKnownDecimalMarkDecides()
    {
        QCOMPARE(WrittenNumber::of("1.234", ',').sql, QString("1234"));
        QCOMPARE(WrittenNumber::of("1,234", ',').sql, QString("1.234"));
        QCOMPARE(WrittenNumber::of("1,234", ',').decimals, 3);
        QCOMPARE(WrittenNumber::of("-1,200", '.').sql, QString("-1200"));
        // What has one meaning only keeps it.
        QCOMPARE(WrittenNumber::of("1.50", ',').sql, QString("1.5"));
    }

    void theMarkIsWhatTheClearNumbersAgreeOn()
    {
        QCOMPARE(WrittenNumber::commonMark({"1,50", "1.234", "3", "abc"}), QChar(','));
        QCOMPARE(WrittenNumber::commonMark({"1,234.50"}), QChar('.'));
        QCOMPARE(WrittenNumber::commonMark({"1.234.567"}), QChar(','));
        QCOMPARE(WrittenNumber::commonMark({"1,50", "1.50"}), QChar());
        QCOMPARE(WrittenNumber::commonMark({"1.234", "12"}), QChar());
        QCOMPARE(WrittenNumber::commonMark({}), QChar());
    }

    void moreDigitsThanAPriceHasAreTooMany()
    {
        QCOMPARE(WrittenNumber::of("1234567890").kind, Kind::TooLong);
        QCOMPARE(WrittenNumber::of("0,1234567").kind, Kind::TooLong);
        QCOMPARE(WrittenNumber::of("0000000000012,10000000").sql, QString("12.1"));
        QCOMPARE(WrittenNumber::of(QString(100000, '9')).kind, Kind::TooLong);
    }
};

VENDEL_TEST(TestGestionWrittenNumber)
#include "tst_GestionWrittenNumber.moc"
