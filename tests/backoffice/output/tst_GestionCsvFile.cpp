// SPDX-License-Identifier: MIT
#include "backoffice/output/CsvFile.h"
#include "tests/support/TestProgram.h"

namespace {
const CsvFormat french{QLatin1Char(';'), QLatin1Char(',')};
const CsvFormat english{QLatin1Char(','), QLatin1Char('.')};

/// A file of one text, without its mark and its title.
QByteArray cell(const QVariant& value, CellKind kind, const CsvFormat& format = french)
{
    const QByteArray bytes = csv({{}, {{QStringLiteral("x"), kind}}, {{value}}}, format);
    return bytes.mid(bytes.indexOf('\n') + 1).chopped(2);
}

QByteArray text(const char* utf8) { return cell(QString::fromUtf8(utf8), CellKind::Text); }
} // namespace

class TestGestionCsvFile : public QObject
{
    Q_OBJECT

private slots:
    void aTableIsWrittenToTheByte()
    {
        const Table table{QStringLiteral("not written"),
            {{QStringLiteral("Jour"), CellKind::Day}, {QStringLiteral("Mois"), CellKind::Month},
                {QStringLiteral("Heure"), CellKind::Hour},
                {QStringLiteral("Lignes"), CellKind::Count},
                {QStringLiteral("Total"), CellKind::Money},
                {QStringLiteral("Part"), CellKind::Percent},
                {QStringLiteral("Dose"), CellKind::Quantity},
                {QStringLiteral("Nom"), CellKind::Text}},
            {{QDate(2026, 11, 2), QDate(2026, 11, 1), 9, qint64{1234}, qint64{12345600}, 12.5,
                 0.125, QStringLiteral("Thé")},
                {{}, {}, {}, {}, {}, {}, {}, {}}}};
        QCOMPARE(csv(table, french),
            QByteArray("\xef\xbb\xbf\"Jour\";\"Mois\";\"Heure\";\"Lignes\";\"Total\";\"Part (%)\";"
                       "\"Dose\";\"Nom\"\r\n"
                       "2026-11-02;2026-11;9;1234;1234,56;12,50;0,125;\"Th\xc3\xa9\"\r\n"
                       ";;;;;;;\r\n"));
        QCOMPARE(csv(table, english).mid(60),
            QByteArray("\"Nom\"\r\n"
                       "2026-11-02,2026-11,9,1234,1234.56,12.50,0.125,\"Th\xc3\xa9\"\r\n"
                       ",,,,,,,\r\n"));
    }

    void moneyIsRoundedToTheCent()
    {
        QCOMPARE(cell(qint64{-50}, CellKind::Money), QByteArray("-0,01"));
        QCOMPARE(cell(qint64{-49}, CellKind::Money), QByteArray("0,00"));
        QCOMPARE(cell(qint64{70000}, CellKind::Money), QByteArray("7,00"));
        QCOMPARE(cell(qint64{-1230500}, CellKind::Money, english), QByteArray("-123.05"));
    }

    void aQuantityHasTheDecimalsThatItNeeds()
    {
        QCOMPARE(cell(12.0, CellKind::Quantity), QByteArray("12"));
        QCOMPARE(cell(0.1 + 0.2, CellKind::Quantity), QByteArray("0,3"));
        QCOMPARE(cell(-1e-9, CellKind::Quantity), QByteArray("0"));
        QCOMPARE(cell(100.0, CellKind::Quantity), QByteArray("100"));
    }

    void whatHasAMeaningInTheFileIsQuoted()
    {
        QCOMPARE(text("a;b"), QByteArray("\"a;b\""));
        QCOMPARE(text("12\" \"x\""), QByteArray("\"12\"\" \"\"x\"\"\""));
        QCOMPARE(text("two\r\nlines"), QByteArray("\"two\r\nlines\""));
        QCOMPARE(text(""), QByteArray("\"\""));
    }

    void aTextIsNoFormula()
    {
        QCOMPARE(text("=1+1"), QByteArray("\"'=1+1\""));
        QCOMPARE(text("+33 1"), QByteArray("\"'+33 1\""));
        QCOMPARE(text("----"), QByteArray("\"'----\""));
        QCOMPARE(text("@SUM(A1)"), QByteArray("\"'@SUM(A1)\""));
        QCOMPARE(text("\t=1"), QByteArray("\"'\t=1\""));
        QCOMPARE(text("\r=1"), QByteArray("\"'\r=1\""));
        QCOMPARE(text("\n=1"), QByteArray("\"'\n=1\""));
        // Whoever takes one apostrophe away has the name again.
        QCOMPARE(text("'=1"), QByteArray("\"''=1\""));
        QCOMPARE(text("'''-"), QByteArray("\"''''-\""));
        QCOMPARE(text("'tis"), QByteArray("\"'tis\""));
        QCOMPARE(text("''"), QByteArray("\"''\""));
        QCOMPARE(text("a=1"), QByteArray("\"a=1\""));
        // Numbers are none either: they keep their sign.
        QCOMPARE(cell(qint64{-10000}, CellKind::Money), QByteArray("-1,00"));
    }

    void aTitleIsNoFormulaEither()
    {
        QCOMPARE(csv({{}, {{QStringLiteral("=1"), CellKind::Text}}, {}}, french),
            QByteArray("\xef\xbb\xbf\"'=1\"\r\n"));
    }

    void theDecimalMarkDecidesOnTheSeparator()
    {
        const CsvFormat comma = CsvFormat::of(QLocale(QLocale::German, QLocale::Germany));
        QCOMPARE(comma.separator, QChar(';'));
        QCOMPARE(comma.decimalMark, QChar(','));
        const CsvFormat point = CsvFormat::of(QLocale(QLocale::English, QLocale::UnitedKingdom));
        QCOMPARE(point.separator, QChar(','));
        QCOMPARE(point.decimalMark, QChar('.'));
    }
};

VENDEL_TEST(TestGestionCsvFile)
#include "tst_GestionCsvFile.moc"
