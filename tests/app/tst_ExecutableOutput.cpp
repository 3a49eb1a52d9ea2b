// SPDX-License-Identifier: MIT
#include "tests/app/StartedTill.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QDir>

namespace {
constexpr auto readSwitch = "select valeur from Config where param like 'Epson TM-T20II'";
} // namespace

/// What the program writes when its output is read through a pipe.
class TestExecutableOutput : public QObject
{
    Q_OBJECT

private slots:
    void aFailedStatementIsReportedAtOnce()
    {
        const Shop shop;
        shop.sql("drop table Config");
        QVERIFY(StartedTill().writes(databaseReport(readSwitch, "no such table: Config")));
    }

    void aDatabaseThatCannotBeOpenedIsReportedAtOnce()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(QDir().mkdir("Vendel.db"));
        QVERIFY(StartedTill().writes("Not open database successfully\n"
            + databaseReport(readSwitch, "unable to open database file")));
    }
};

VENDEL_BARE_TEST(TestExecutableOutput)
#include "tst_ExecutableOutput.moc"
