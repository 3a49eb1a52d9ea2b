// SPDX-License-Identifier: MIT
#include "common/Tools.h"
#include "tests/support/TestProgram.h"

class TestTools : public QObject
{
    Q_OBJECT

private slots:
    void tellsNumbers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isNumber");
        QTest::newRow("a decimal point") << "12.50" << true;
        QTest::newRow("blanks around") << " 3 " << true;
        QTest::newRow("a decimal comma") << "12,50" << false;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("blanks alone") << "  " << false;
        QTest::newRow("a currency sign") << QString("3€") << false;
        QTest::newRow("a dollar sign") << "3$" << false;
        QTest::newRow("a minus") << "-2.5" << true;
        QTest::newRow("a plus") << "+2.5" << true;
        QTest::newRow("a minus alone") << "-" << false;
        QTest::newRow("two minuses") << "--1" << false;
        QTest::newRow("no digit before the point") << ".5" << true;
        QTest::newRow("no digit behind the point") << "5." << true;
        QTest::newRow("a point alone") << "." << false;
        QTest::newRow("two points") << "1.2.3" << false;
        QTest::newRow("an exponent") << "1e5" << true;
        QTest::newRow("a negative exponent") << "1E-5" << true;
        QTest::newRow("an exponent without digits") << "1e" << false;
        QTest::newRow("a hexadecimal number") << "0x10" << false;
        QTest::newRow("a trailing letter") << "3a" << false;
        QTest::newRow("a thousands separator") << "1,234.50" << false;
        QTest::newRow("a blank inside") << "1 000" << false;
        QTest::newRow("infinity") << "inf" << true;
        QTest::newRow("no number by name") << "nan" << true;
        QTest::newRow("a name") << QString("Thé") << false;
        QTest::newRow("a large number") << "123456789012345678901234567890" << true;
    }

    void tellsNumbers()
    {
        QFETCH(QString, text);
        QTEST(Tools::isNum(text), "isNumber");
    }

    void doublesSingleQuotes_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("result");
        QTest::newRow("a quote") << QByteArray("l'eau") << "l''eau";
        QTest::newRow("no quote") << QByteArray("Bière") << QString("Bière");
        QTest::newRow("empty") << QByteArray() << "";
        QTest::newRow("only quotes") << QByteArray("'''") << "''''''";
        QTest::newRow("double quotes stay") << QByteArray("\"l'eau\"") << "\"l''eau\"";
        QTest::newRow("other apostrophes stay") << QByteArray("l’eau`") << QString("l’eau`");
        QTest::newRow("a semicolon stays") << QByteArray("a; b'") << "a; b''";
    }

    void doublesSingleQuotes()
    {
        QFETCH(QByteArray, text);
        QTEST(Tools::StringDblRating(text.toStdString()), "result");
    }

    void padsOnTheRight_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("width");
        QTest::addColumn<char>("fill");
        QTest::addColumn<QByteArray>("result");
        QTest::newRow("shorter") << QByteArray("abc") << 6 << ' ' << QByteArray("abc   ");
        QTest::newRow("another fill") << QByteArray("abc") << 5 << '*' << QByteArray("abc**");
        QTest::newRow("exact") << QByteArray("abcdef") << 6 << ' ' << QByteArray("abcdef");
        QTest::newRow("longer") << QByteArray("abcdefgh") << 6 << ' ' << QByteArray("abcdefgh");
        QTest::newRow("bytes count") << QByteArray("été") << 5 << ' ' << QByteArray("été");
        QTest::newRow("one column short") << QByteArray("été") << 6 << ' ' << QByteArray("été ");
        QTest::newRow("empty") << QByteArray() << 3 << ' ' << QByteArray("   ");
        QTest::newRow("no width") << QByteArray("abc") << 0 << ' ' << QByteArray("abc");
        QTest::newRow("negative width") << QByteArray("abc") << -4 << ' ' << QByteArray("abc");
    }

    void padsOnTheRight()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, width);
        QFETCH(char, fill);
        QTEST(QByteArray::fromStdString(Tools::Padding(text.toStdString(), width, fill)), "result");
    }

    void centres_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("width");
        QTest::addColumn<char>("fill");
        QTest::addColumn<QByteArray>("result");
        QTest::newRow("a spare byte is dropped")
            << QByteArray("ab") << 7 << '*' << QByteArray("**ab**");
        QTest::newRow("even") << QByteArray("ab") << 6 << '*' << QByteArray("**ab**");
        QTest::newRow("one byte short") << QByteArray("abc") << 4 << '*' << QByteArray("abc");
        QTest::newRow("exact") << QByteArray("abc") << 3 << '*' << QByteArray("abc");
        QTest::newRow("one byte longer") << QByteArray("abc") << 2 << '*' << QByteArray("abc");
        QTest::newRow("two bytes longer") << QByteArray("abcd") << 2 << '*' << QByteArray();
        QTest::newRow("three bytes longer") << QByteArray("abcde") << 2 << '*' << QByteArray();
        QTest::newRow("bytes count") << QByteArray("é") << 4 << ' ' << QByteArray(" é ");
        QTest::newRow("empty") << QByteArray() << 47 << ' ' << QByteArray(46, ' ');
        QTest::newRow("48 bytes in 47") << QByteArray(48, 'x') << 47 << ' ' << QByteArray(48, 'x');
        QTest::newRow("49 bytes in 47") << QByteArray(49, 'x') << 47 << ' ' << QByteArray();
        QTest::newRow("negative width") << QByteArray("abc") << -1 << '*' << QByteArray();
    }

    void centres()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, width);
        QFETCH(char, fill);
        QTEST(QByteArray::fromStdString(Tools::PaddingCenter(text.toStdString(), width, fill)),
            "result");
    }

    void putsDatesInYearFirstOrder_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("result");
        QTest::newRow("a date") << "03/15/2020"
                                << "2020-03-15";
        QTest::newRow("date and time") << "03/15/2020 10:20:30.123"
                                       << "2020-03-15 10:20:30.123";
        QTest::newRow("year first already") << "2020-03-15"
                                            << "3-15-20-0-";
        QTest::newRow("nine characters") << "15/3/2020"
                                         << "";
        QTest::newRow("no milliseconds") << "03/15/2020 10:20:30"
                                         << "";
        QTest::newRow("24 characters") << "03/15/2020 10:20:30.1234"
                                       << "";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("characters, not bytes") << QString("éé/àà/çççç") << QString("çççç-éé-àà");
    }

    void putsDatesInYearFirstOrder()
    {
        QFETCH(QString, text);
        QTEST(Tools::ConvDate::ToUs(text), "result");
    }

    void putsDatesInMonthFirstOrder_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("result");
        QTest::newRow("a date") << "2020-03-15"
                                << "03/15/2020";
        QTest::newRow("date and time") << "2020-03-15 10:20:30.123"
                                       << "03/15/2020 10:20:30.123";
        QTest::newRow("month first already") << "03/15/2020"
                                             << "/2/20/03/1";
        QTest::newRow("nine characters") << "2020-3-15"
                                         << "";
        QTest::newRow("no milliseconds") << "2020-03-15 10:20:30"
                                         << "";
        QTest::newRow("empty") << ""
                               << "";
    }

    void putsDatesInMonthFirstOrder()
    {
        QFETCH(QString, text);
        QTEST(Tools::ConvDate::ToUs_mdy(text), "result");
    }

    void namesHaveFifteenCharacters()
    {
        QCOMPARE(Tools::NbrChar, 15);
    }
};

VENDEL_TEST(TestTools)
#include "tst_Tools.moc"
