// SPDX-License-Identifier: MIT
#include "tests/backoffice/reports/FixedSales.h"
#include "tests/support/TestProgram.h"

class TestGestionFormat : public QObject
{
    Q_OBJECT

private slots:
    void aValueIsWrittenAsItsReaderWritesIt_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("french");
        QTest::addColumn<QString>("english");
        const auto row = [](const char* name, const QVariant& value, CellKind kind,
                             const char* french, const char* english) {
            QTest::newRow(name) << value << static_cast<int>(kind) << QString::fromUtf8(french)
                                << QString::fromUtf8(english);
        };
        const QDate day(2026, 11, 2);
        row("money", qint64{12345000}, CellKind::Money, "1\u202f234,50\u00a0€", "1,234.50\u00a0€");
        row("half a cent", qint64{-50}, CellKind::Money, "-0,01\u00a0€", "-0.01\u00a0€");
        row("less than half a cent", qint64{-49}, CellKind::Money, "0,00\u00a0€", "0.00\u00a0€");
        row("day", day, CellKind::Day, "02/11/2026", "02/11/2026");
        row("month", day, CellKind::Month, "novembre 2026", "November 2026");
        row("hour", 9, CellKind::Hour, "9\u00a0h", "9:00");
        row("count", qint64{1234567}, CellKind::Count, "1\u202f234\u202f567", "1,234,567");
        row("per cent", 12.25, CellKind::Percent, "12,3\u00a0%", "12.3%");
        row("hardly any per cent", -0.04, CellKind::Percent, "0,0\u00a0%", "0.0%");
        row("more", 12.25, CellKind::Change, "+12,3\u00a0%", "+12.3%");
        row("less", -12.25, CellKind::Change, "-12,3\u00a0%", "-12.3%");
        row("hardly more", 0.049, CellKind::Change, "0,0\u00a0%", "0.0%");
        row("just more", 0.05, CellKind::Change, "+0,1\u00a0%", "+0.1%");
        row("hardly less", -0.049, CellKind::Change, "0,0\u00a0%", "0.0%");
        row("quantity", 1234.5, CellKind::Quantity, "1\u202f234,50", "1,234.50");
        row("text", QStringLiteral("Thé"), CellKind::Text, "Thé", "Thé");
        row("no value", QVariant(), CellKind::Money, "", "");
    }

    void aValueIsWrittenAsItsReaderWritesIt()
    {
        QFETCH(QVariant, value);
        QFETCH(int, kind);
        QFETCH(QString, french);
        QFETCH(QString, english);
        QCOMPARE(format(value, static_cast<CellKind>(kind), Seen::french), french);
        QCOMPARE(format(value, static_cast<CellKind>(kind), Seen::english), english);
    }

    void aRateHasNoMoreDecimalsThanItNeeds()
    {
        QCOMPARE(percentInShort(20, Seen::french), QStringLiteral("20\u00a0%"));
        QCOMPARE(percentInShort(5.5, Seen::french), QStringLiteral("5,5\u00a0%"));
        QCOMPARE(percentInShort(5.5, Seen::english), QStringLiteral("5.5%"));
    }
};

VENDEL_TEST(TestGestionFormat)
#include "tst_GestionFormat.moc"
