// SPDX-License-Identifier: MIT
#include "app/ReceiptBytes.h"
#include "common/convert.h"
#include "tests/app/Till.h"
#include "tests/support/Captured.h"
#include "tests/support/EmulatedPrinter.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"

#include <cerrno>
#include <memory>

#include <dlfcn.h>
#include <iconv.h>

namespace {
/// Why the next conversion descriptors cannot be opened; 0 when they can.
int openError = 0;
} // namespace

extern "C" {
/// The C library's, unless it is to be refused: no system without the code page is at hand.
iconv_t iconv_open(const char* to, const char* from)
{
    if (openError != 0) {
        errno = openError;
        return reinterpret_cast<iconv_t>(-1); // NOLINT(performance-no-int-to-ptr): iconv's own
    }
    using Function = iconv_t (*)(const char*, const char*);
    static const auto open = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "iconv_open"));
    return open(to, from);
}
}

/// What the log says of a receipt that cannot be printed.
class TestReceiptBytesFailures : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { openError = 0; }

    void theReasonIsOneOfThree()
    {
        const Rows<QByteArray, int, QString> rows{
            {"a character outside the code page", "Café 😀", 0,
                "a character of the receipt is not in code page 858"},
            {"no such code page", "Cafe", EINVAL, "this system cannot write code page 858"},
            {"no memory", "Cafe", ENOMEM, "there is no memory left for the receipt"},
        };
        for (const auto& [row, article, error, reason] : rows) {
            const InRow inRow(row);
            const EmulatedPrinter printer;
            Till till;
            till.setSwitch("1");
            till.sell(article, "2.5");
            const CapturedLog log;
            openError = error;
            till.pay();
            openError = 0;
            QCOMPARE(
                log.criticals(), QStringList("Errors FormVendel on_btn_Payer_clicked : " + reason));
            QVERIFY(printer.bytes().empty());
            QCOMPARE(till.history().size(), 1);
            QCOMPARE(till.ticket().size(), 1);
        }
    }

    void aDescriptorThatCannotBeOpenedLeavesItsReasonInErrno()
    {
        openError = ENOMEM;
        QVERIFY(convert("UTF-8", "CP858", "x") == nullptr);
        QCOMPARE(errno, ENOMEM);
    }
};

VENDEL_TEST(TestReceiptBytesFailures)
#include "tst_ReceiptBytes_failures.moc"
