// SPDX-License-Identifier: MIT
#include "common/Tools.h"
#include "tests/support/TestProgram.h"

class TestTools : public QObject
{
    Q_OBJECT

private slots:
    void numbersAreRecognised()
    {
        for (const char* number : {"12.50", " 3 ", "-2.5", "+2.5", ".5", "5.", "1e5", "1E-5", "inf",
                 "nan", "123456789012345678901234567890"}) {
            QVERIFY2(Tools::isNum(number), number);
        }
        for (const char* text : {"12,50", "", "  ", "3€", "3$", "-", "--1", ".", "1.2.3", "1e",
                 "0x10", "3a", "1,234.50", "1 000", "Thé"}) {
            QVERIFY2(!Tools::isNum(text), text);
        }
    }

    void singleQuotesAreDoubled()
    {
        QCOMPARE(Tools::StringDblRating("l'eau"), QString("l''eau"));
        QCOMPARE(Tools::StringDblRating("Bière"), QString("Bière"));
        QCOMPARE(Tools::StringDblRating(""), QString());
        QCOMPARE(Tools::StringDblRating("'''"), QString("''''''"));
        QCOMPARE(Tools::StringDblRating("\"l'eau\""), QString("\"l''eau\""));
        QCOMPARE(Tools::StringDblRating("l’eau`"), QString("l’eau`"));
        QCOMPARE(Tools::StringDblRating("a; b'"), QString("a; b''"));
    }

    void textIsPaddedOnTheRight()
    {
        QCOMPARE(Tools::Padding("abc", 6, ' '), std::string("abc   "));
        QCOMPARE(Tools::Padding("abc", 5, '*'), std::string("abc**"));
        QCOMPARE(Tools::Padding("abcdef", 6, ' '), std::string("abcdef"));
        QCOMPARE(Tools::Padding("abcdefgh", 6, ' '), std::string("abcdefgh"));
        QCOMPARE(Tools::Padding("", 3, ' '), std::string("   "));
        QCOMPARE(Tools::Padding("abc", 0, ' '), std::string("abc"));
        QCOMPARE(Tools::Padding("abc", -4, ' '), std::string("abc"));
        // Bytes count, not characters.
        QCOMPARE(Tools::Padding("été", 5, ' '), std::string("été"));
        QCOMPARE(Tools::Padding("été", 6, ' '), std::string("été "));
    }

    void textIsCentred()
    {
        QCOMPARE(Tools::PaddingCenter("ab", 6, '*'), std::string("**ab**"));
        // A spare byte is dropped.
        QCOMPARE(Tools::PaddingCenter("ab", 7, '*'), std::string("**ab**"));
        QCOMPARE(Tools::PaddingCenter("abc", 4, '*'), std::string("abc"));
        QCOMPARE(Tools::PaddingCenter("abc", 3, '*'), std::string("abc"));
        // A text may be one byte longer than the width.
        QCOMPARE(Tools::PaddingCenter("abc", 2, '*'), std::string("abc"));
        QCOMPARE(Tools::PaddingCenter("abcd", 2, '*'), std::string());
        QCOMPARE(Tools::PaddingCenter("abcde", 2, '*'), std::string());
        QCOMPARE(Tools::PaddingCenter("é", 4, ' '), std::string(" é "));
        QCOMPARE(Tools::PaddingCenter("", 47, ' '), std::string(46, ' '));
        QCOMPARE(Tools::PaddingCenter(std::string(48, 'x'), 47, ' '), std::string(48, 'x'));
        QCOMPARE(Tools::PaddingCenter(std::string(49, 'x'), 47, ' '), std::string());
        QCOMPARE(Tools::PaddingCenter("abc", -1, '*'), std::string());
    }

    void datesAreMovedIntoYearFirstOrder()
    {
        using Date = Tools::ConvDate;
        QCOMPARE(Date::ToUs("03/15/2020"), QString("2020-03-15"));
        QCOMPARE(Date::ToUs("03/15/2020 10:20:30.123"), QString("2020-03-15 10:20:30.123"));
        // Characters are moved, whatever they are.
        QCOMPARE(Date::ToUs("2020-03-15"), QString("3-15-20-0-"));
        QCOMPARE(Date::ToUs("éé/àà/çççç"), QString("çççç-éé-àà"));
        for (const char* text :
            {"15/3/2020", "03/15/2020 10:20:30", "03/15/2020 10:20:30.1234", ""}) {
            QCOMPARE(Date::ToUs(text), QString());
        }
    }

    void datesAreMovedIntoMonthFirstOrder()
    {
        using Date = Tools::ConvDate;
        QCOMPARE(Date::ToUs_mdy("2020-03-15"), QString("03/15/2020"));
        QCOMPARE(Date::ToUs_mdy("2020-03-15 10:20:30.123"), QString("03/15/2020 10:20:30.123"));
        QCOMPARE(Date::ToUs_mdy("03/15/2020"), QString("/2/20/03/1"));
        for (const char* text : {"2020-3-15", "2020-03-15 10:20:30", ""}) {
            QCOMPARE(Date::ToUs_mdy(text), QString());
        }
    }

    void namesHaveFifteenCharacters() { QCOMPARE(Tools::NbrChar, 15); }
};

VENDEL_TEST(TestTools)
#include "tst_Tools.moc"
