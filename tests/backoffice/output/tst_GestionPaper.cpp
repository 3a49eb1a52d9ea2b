// SPDX-License-Identifier: MIT
#include "backoffice/output/PaperFile.h"
#include "backoffice/output/PaperPages.h"
#include "tests/support/TestProgram.h"

#include <QFile>
#include <QImage>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>

namespace {
const QLocale french(QLocale::French, QLocale::France);

Report sample(int rows)
{
    Report report;
    report.title = QStringLiteral("Ventes");
    report.subtitle = QStringLiteral("Novembre 2026");
    report.figures = {{QStringLiteral("Total HT"), qint64{12345000}, CellKind::Money,
        QStringLiteral("sur 30 jours")}};
    Table table{QStringLiteral("Détail"),
        {{QStringLiteral("Article"), CellKind::Text}, {QStringLiteral("Lignes"), CellKind::Count}},
        {}};
    for (int row = 1; row <= rows; ++row) {
        table.rows.push_back({QStringLiteral("Crème %1").arg(row), qint64{row}});
    }
    report.tables.push_back(std::move(table));
    report.notes = {QStringLiteral("Une remarque.")};
    return report;
}

BarChart chart()
{
    return {QStringLiteral("Recettes"), {QStringLiteral("lu"), QStringLiteral("ma")}, {},
        {{QStringLiteral("Période"), {1000000, 2000000}}}, {}, CellKind::Money, false};
}

/// The texts of the PDF file \a bytes, a string for each sheet.
QStringList sheets(const QByteArray& bytes)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.pdf")));
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
    file.close();
    QProcess reader;
    reader.start(QStringLiteral(PDFTOTEXT),
        {QStringLiteral("-layout"), QStringLiteral("-enc"), QStringLiteral("UTF-8"),
            file.fileName(), QStringLiteral("-")});
    reader.waitForFinished();
    QStringList pages = QString::fromUtf8(reader.readAllStandardOutput()).split(QLatin1Char('\f'));
    pages.removeLast();
    return pages;
}

QString words(const QString& text) { return text.simplified(); }
} // namespace

class GestionPaper : public QObject
{
    Q_OBJECT

private slots:
    void aPdfHasEveryTextOfTheReport()
    {
        Report report = sample(3);
        report.charts.push_back(chart());
        const QStringList pages = sheets(pdf(report, french));
        QCOMPARE(pages.size(), 1);
        const QString text = words(pages.at(0));
        for (const char* part :
            {"Ventes", "Novembre 2026", "Total HT", "234,50", "sur 30 jours", "Recettes", "lu",
                "ma", "Détail", "Article", "Lignes", "Crème 3", "Une remarque.", "1/1"}) {
            QVERIFY2(text.contains(QString::fromUtf8(part)), part);
        }
    }

    void aLongTableGoesOnUnderItsHeadings()
    {
        const QStringList pages = sheets(pdf(sample(130), french));
        QCOMPARE(pages.size(), 3);
        int rows = 0;
        for (int page = 0; page < 3; ++page) {
            const QString text = words(pages.at(page));
            QVERIFY(text.contains(QStringLiteral("Article Lignes")));
            QVERIFY(text.contains(QStringLiteral("%1/3").arg(page + 1)));
            rows += static_cast<int>(text.count(QStringLiteral("Crème")));
        }
        QCOMPARE(rows, 130);
        QVERIFY(words(pages.at(2)).contains(QStringLiteral("Crème 130 130")));
        QVERIFY(words(pages.at(2)).contains(QStringLiteral("Une remarque.")));
    }

    void whatHasOneSheetIsWrittenSmaller()
    {
        Report report = sample(100);
        QVERIFY(PaperPages(report, french).count() > 1);
        report.isOnePage = true;
        QCOMPARE(PaperPages(report, french).count(), 1);
        const QString text = words(sheets(pdf(report, french)).at(0));
        QCOMPARE(text.count(QStringLiteral("Crème")), 100);
        QVERIFY(text.contains(QStringLiteral("Une remarque.")));
        QVERIFY(text.contains(QStringLiteral("1/1")));
    }

    void aWideTableKeepsWithinTheSheet()
    {
        Report report = sample(1);
        Table& table = report.tables.front();
        for (int column = 0; column < 12; ++column) {
            table.columns.push_back({QStringLiteral("Quantité convertie"), CellKind::Money});
            table.rows.front().push_back(qint64{123456789000});
        }
        const QString text = words(sheets(pdf(report, french)).at(0));
        QCOMPARE(text.count(QStringLiteral("Quantité convertie")), 12);
        QCOMPARE(text.count(QStringLiteral("678,90")), 12);
    }

    void aReportOfNothingIsASheet() { QCOMPARE(sheets(pdf(Report(), french)).size(), 1); }

    void aPictureIsTheFirstSheetAt150DotsPerInch()
    {
        const QByteArray bytes = png(sample(130), french);
        const QImage image = QImage::fromData(bytes, "PNG");
        // 210 by 297 mm.
        QCOMPARE(image.size(), QSize(1240, 1754));
        QCOMPARE(image.dotsPerMeterX(), 5906);
        // Nothing is drawn on the margins, and something within.
        QImage within = image.copy(88, 88, 1064, 1578);
        QImage edge = image.copy(0, 0, 1240, 80);
        QImage white(edge.size(), edge.format());
        white.fill(Qt::white);
        QCOMPARE(edge, white);
        white = QImage(within.size(), within.format());
        white.fill(Qt::white);
        QVERIFY(within != white);
    }

    void chartsAreDrawnInTheirColours()
    {
        Report report = sample(0);
        report.charts.push_back(chart());
        const QImage image = QImage::fromData(png(report, french), "PNG");
        int bars = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                bars += image.pixelColor(x, y) == QColor(0x56, 0xb4, 0xe9) ? 1 : 0;
            }
        }
        // Two bars, one twice as high as the other, over a quarter of the sheet.
        QVERIFY2(bars > 100000, qPrintable(QString::number(bars)));
    }

    void aPrinterGetsTheSheetsThatItIsAskedFor()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("paper.pdf"));
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        printer.setPageSize(QPageSize(QPageSize::A4));
        printer.setFromTo(2, 3);
        QVERIFY(print(sample(130), printer, french));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList pages = sheets(file.readAll());
        QCOMPARE(pages.size(), 2);
        QVERIFY(words(pages.at(0)).contains(QStringLiteral("2/3")));
        QVERIFY(words(pages.at(1)).contains(QStringLiteral("3/3")));
    }

    void aPrinterThatDoesNotStartIsReported()
    {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QStringLiteral("/nowhere/paper.pdf"));
        QVERIFY(!print(sample(1), printer, french));
    }
};

VENDEL_BARE_TEST(GestionPaper)
#include "tst_GestionPaper.moc"
