// SPDX-License-Identifier: MIT
#include "backoffice/output/PaperFile.h"

#include "backoffice/output/PaperPages.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>

#include <algorithm>

namespace {
constexpr int twipsInAnInch = 1440;
} // namespace

QByteArray pdf(const Report& report, const QLocale& locale)
{
    const PaperPages pages(report, locale);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(twipsInAnInch);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
    writer.setTitle(report.title);
    writer.setCreator(QCoreApplication::translate("PaperFile", "Vendel – Gestion"));
    QPainter painter(&writer);
    for (int page = 0; page < pages.count(); ++page) {
        if (page > 0) {
            writer.newPage();
        }
        pages.draw(painter, page);
    }
    painter.end();
    return bytes;
}

QByteArray png(const Report& report, const QLocale& locale)
{
    constexpr int dotsPerInch = 150;
    constexpr double scale = double{dotsPerInch} / twipsInAnInch;
    constexpr double dotsPerMeter = dotsPerInch / 0.0254;
    const QSize size = PaperPages::size() * scale;
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setDotsPerMeterX(qRound(dotsPerMeter));
    image.setDotsPerMeterY(qRound(dotsPerMeter));
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    PaperPages(report, locale).draw(painter, 0);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

bool print(const Report& report, QPrinter& printer, const QLocale& locale)
{
    const PaperPages pages(report, locale);
    printer.setFullPage(true);
    QPainter painter;
    if (!painter.begin(&printer)) {
        return false;
    }
    const QRectF paper = printer.pageLayout().fullRectPixels(printer.resolution());
    const QSizeF sheet = PaperPages::size();
    const double scale = std::min(paper.width() / sheet.width(), paper.height() / sheet.height());
    const int from = std::max(1, printer.fromPage());
    const int to = printer.toPage() > 0 ? std::min(printer.toPage(), pages.count()) : pages.count();
    for (int page = from; page <= to; ++page) {
        if (page > from) {
            printer.newPage();
        }
        painter.save();
        painter.scale(scale, scale);
        pages.draw(painter, page - 1);
        painter.restore();
    }
    return painter.end();
}
