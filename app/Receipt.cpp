// SPDX-License-Identifier: MIT
#include "app/Receipt.h"

#include "app/TicketTotals.h"
#include "common/Messages.h"
#include "common/Money.h"
#include "common/ReceiptFiles.h"
#include "common/Texts.h"
#include "common/Tools.h"
#include "store/Settings.h"

#include <QLocale>
#include <QStringList>

namespace {
using Style = ReceiptLine::Style;

constexpr Texts texts{"FormVendelTicketMessages"};
const auto& titleLabel = Messages::Messages62;
const auto& saleLabel = Messages::Messages7;
const auto& datePattern = Messages::Messages98;
const auto& headings = Messages::Messages64;
const auto& sumLabel = Messages::Messages9;
const auto& taxLabel = Messages::Messages10;
const auto& grandTotalLabel = Messages::Messages11;
constexpr int columns = 47;
constexpr int quantityColumns = 2;
constexpr int priceColumns = 9;

/// \a text with a blank for each control character but the tab and the carriage return: sent to the
/// printer, the others are commands, and a name could open the drawer.
QString withoutCommands(QString text)
{
    constexpr char16_t firstPrintable = 0x20;
    constexpr char16_t del = 0x7f;
    for (QChar& character : text) {
        const char16_t code = character.unicode();
        const bool isControl = code < firstPrintable || code == del;
        if (isControl && code != u'\t' && code != u'\r') {
            character = QLatin1Char(' ');
        }
    }
    return text;
}

class Composer
{
public:
    Receipt lines;

    void add(const QString& text, Style style = Style::Plain) { lines.push_back({style, text}); }
    void addBlank() { add(QString()); }

    /// The lines of a header or footer: titles get a style of their own, all others \a plain.
    void addFrame(const std::optional<QString>& frame, Style plain)
    {
        if (!frame) {
            return;
        }
        const QString titleMark = texts(titleLabel[0]);
        const QStringList parts = frame->split(QLatin1Char('\n'));
        for (const QString& line : parts) {
            const QString part = withoutCommands(line);
            if (part.contains(titleMark)) {
                add(part.section(QLatin1Char(':'), 1, 1), Style::Title);
            } else {
                add(part, plain);
            }
        }
    }

    void addHeadings(const QDateTime& time)
    {
        // The system may write other digits, which the printer lacks.
        const QLocale digits = QLocale::c();
        add(texts(saleLabel[0]) + QLatin1String("\t\t\t     ")
            + digits.toString(time, texts(datePattern[0])) + QLatin1Char(' ')
            + digits.toString(time, QStringLiteral("hh:mm:ss")));
        addBlank();
        add(texts(headings[0]) + texts(headings[1]) + QLatin1String("\t\t") + texts(headings[2])
            + QLatin1String("   ") + texts(headings[3]));
        addBlank();
    }

    void addItem(const TicketGroup& item)
    {
        // Widths are in bytes: an accented letter counts twice.
        const auto padded = [](const QString& text, int width) {
            return QString::fromStdString(Tools::Padding(text.toStdString(), width, ' '));
        };
        add(withoutCommands(padded(item.count, quantityColumns) + QLatin1Char(' ')
            + padded(item.article, Tools::NbrChar) + QLatin1Char('\t')
            + padded(QLatin1Char('$') + formatAmount(item.price), priceColumns)
            + QLatin1String("   $") + formatAmount(item.amount)));
    }

    void addTotals(const TicketTotals& totals)
    {
        const QLatin1String arrow("->  ");
        add(arrow + texts(sumLabel[0]) + QLatin1String("\t\t    $") + totals.sum);
        for (const TicketTotals::Tax& tax : totals.taxes) {
            add(arrow + texts(taxLabel[0]) + tax.rate + QLatin1String("%\t\t\t    $") + tax.amount);
        }
        add(QString(48, QLatin1Char('-')));
        add(arrow + texts(grandTotalLabel[0]) + QLatin1String("\t    $") + totals.grandTotal,
            Style::GrandTotal);
    }
};
} // namespace

Sale readSale(const QDateTime& time)
{
    return {Ticket::groups(), Ticket::sum(), Settings::taxRates(),
        ReceiptFiles::read(ReceiptFiles::header), ReceiptFiles::read(ReceiptFiles::footer), time};
}

Receipt composeReceipt(const Sale& sale)
{
    Composer composer;
    composer.addFrame(sale.header, Style::Header);
    composer.addBlank();
    composer.addBlank();
    composer.addHeadings(sale.time);
    for (const TicketGroup& item : sale.items) {
        composer.addItem(item);
    }
    composer.addBlank();
    composer.addTotals(totalTicket(sale.sum, sale.taxRates));
    composer.addBlank();
    composer.addFrame(sale.footer, Style::Footer);
    return std::move(composer.lines);
}

std::string centredLine(const QString& text)
{
    return Tools::PaddingCenter(text.toStdString(), columns, ' ');
}
