// SPDX-License-Identifier: MIT
#include "app/Configuration.h"
#include "app/FormVendel.h"
#include "app/FormVendelTexts.h"
#include "app/FormVendelTicket.h"
#include "app/ReceiptBytes.h"
#include "app/TicketTable.h"
#include "common/Lists.h"
#include "common/MessageBoxes.h"
#include "common/Messages.h"
#include "common/SlotGuard.h"
#include "common/Tools.h"
#include "common/Windows.h"
#include "Print/escpospp/Printer.h"

#include <stdexcept>
#include <utility>

namespace {
constexpr std::pair<int, int> receiptPrinter{0x04B8, 0x0E15};
constexpr int notConnected = -1;

enum Output
{
    OnScreen = 0,
    OnPaper = 1
};

/// Copies the ticket's lines into the history. Throws std::runtime_error when they could not be
/// read or one could not be written, so that the ticket keeps it.
void recordSale()
{
    const DbRows lines = TicketTable::rows();
    if (lines.empty()) {
        throw std::runtime_error("the ticket could not be read");
    }
    for (const auto& line : lines) {
        const QString sql = QLatin1String("insert into Historique (id, article, prix) values(")
            + QString::fromStdString(line.at(TicketTable::ArticleId)) + QLatin1String(", '")
            + Tools::StringDblRating(line.at(TicketTable::Article)) + QLatin1String("', ")
            + QString::fromStdString(line.at(TicketTable::Price)) + QLatin1String(")");
        if (!Db::DbRun(sql.toUtf8().constData())) {
            throw std::runtime_error("a line of the ticket could not be written to the history");
        }
    }
}

int configuredOutput()
{
    std::string value;
    for (const auto& row : Configuration::printerSwitches()) {
        value = row.at(0);
    }
    return std::stoi(value);
}

/// Prints the ticket's receipt and empties the ticket. Throws the int -1 without a printer.
void printReceipt()
{
    Printer::initializePrinter(receiptPrinter);
    Printer* printer = Printer::getPrinter();
    printer->raw(receiptBytes(composeReceipt(readSale(QDateTime::currentDateTime()))));
    printer->cut();
    TicketTable::clear();
}
} // namespace

void FormVendel::on_btn_Payer_clicked()
{
    guarded("Errors FormVendel on_btn_Payer_clicked : ", [this] {
        try {
            pay();
        } catch (int code) {
            if (code == notConnected) {
                notice(this, catalogueTexts, Messages::Messages63);
            }
        }
    });
}

void FormVendel::pay()
{
    if (TicketTable::rows().empty()) {
        notice(this, catalogueTexts, Messages::Messages6);
        return;
    }
    clearList(*modelTicket_);
    recordSale();
    const int output = configuredOutput();
    if (output == OnScreen) {
        openWindow<FormVendelTicket>(this);
    } else if (output == OnPaper) {
        printReceipt();
    }
}
