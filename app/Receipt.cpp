// SPDX-License-Identifier: MIT
#include "app/Receipt.h"

#include "app/Configuration.h"
#include "app/TicketTable.h"
#include "app/TicketTotals.h"
#include "common/Messages.h"
#include "common/Money.h"
#include "common/ReceiptFiles.h"
#include "common/Texts.h"
#include "common/Tools.h"

#include <QStringList>

namespace {
using Style = ReceiptLine::Style;

constexpr Texts texts{"FormVendelTicketMessages"};
constexpr int columns = 47;
constexpr int quantityColumns = 2;
constexpr int priceColumns = 9;

class Composer
{
public:
    Receipt lines;

    void add(const QString& text, Style style = Style::Plain)
    {
        lines.push_back({style, text});
    }
    void addBlank()
    {
        add(QString());
    }

    /// The lines of a header or footer: titles stand out, all others have the style \a plain.
    void addFrame(const std::optional<QString>& frame, Style plain)
    {
        if (!frame) {
            return;
        }
        const QString titleMark = texts(Messages::Messages62[0]);
        const QStringList parts = frame->split(QLatin1Char('\n'));
        for (const QString& part : parts) {
            if (part.contains(titleMark)) {
                add(part.section(QLatin1Char(':'), 1, 1), Style::Title);
            } else {
                add(part, plain);
            }
        }
    }

    void addHeadings(const QDateTime& time)
    {
        add(texts(Messages::Messages7[0]) + QLatin1String("\t\t\t     ")
            + time.toString(texts(Messages::Messages98[0])) + QLatin1Char(' ')
            + time.toString(QStringLiteral("hh:mm:ss")));
        addBlank();
        const auto& labels = Messages::Messages64;
        add(texts(labels[0]) + texts(labels[1]) + QLatin1String("\t\t") + texts(labels[2])
            + QLatin1String("   ") + texts(labels[3]));
        addBlank();
    }

    void addItem(const std::vector<std::string>& item)
    {
        const std::string price = '$' + formatAmount(item.at(2)).toStdString();
        add(QString::fromStdString(Tools::Padding(item.at(0), quantityColumns, ' ') + ' '
            + Tools::Padding(item.at(1), Tools::NbrChar, ' ') + '\t'
            + Tools::Padding(price, priceColumns, ' ') + "   $"
            + formatAmount(item.at(3)).toStdString()));
    }

    void addTotals(const TicketTotals& totals)
    {
        const QLatin1String arrow("->  ");
        add(arrow + texts(Messages::Messages9[0]) + QLatin1String("\t\t    $") + totals.sum);
        for (const TicketTotals::Tax& tax : totals.taxes) {
            add(arrow + texts(Messages::Messages10[0]) + tax.rate + QLatin1String("%\t\t\t    $")
                + tax.amount);
        }
        add(QString(48, QLatin1Char('-')));
        add(arrow + texts(Messages::Messages11[0]) + QLatin1String("\t    $") + totals.grandTotal,
            Style::GrandTotal);
    }
};
} // namespace

Sale readSale(const QDateTime& time)
{
    return {TicketTable::groups(), TicketTable::sum(), Configuration::taxRates(),
        ReceiptFiles::read(ReceiptFiles::header), ReceiptFiles::read(ReceiptFiles::footer), time};
}

Receipt composeReceipt(const Sale& sale)
{
    Composer composer;
    composer.addFrame(sale.header, Style::Header);
    composer.addBlank();
    composer.addBlank();
    composer.addHeadings(sale.time);
    for (const auto& item : sale.items) {
        composer.addItem(item);
    }
    composer.addBlank();
    composer.addTotals(totalTicket(sale.sums, sale.taxRates));
    composer.addBlank();
    composer.addFrame(sale.footer, Style::Footer);
    return std::move(composer.lines);
}

std::string centredLine(const QString& text)
{
    return Tools::PaddingCenter(text.toStdString(), columns, ' ');
}
