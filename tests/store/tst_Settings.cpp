// SPDX-License-Identifier: MIT
#include "store/Settings.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <stdexcept>

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void aMissingSettingThrowsForItsDialogAlone()
    {
        const Shop shop;
        shop.sql("delete from Config");
        QVERIFY(Settings::taxRates().empty());
        QVERIFY(Settings::printerSwitches().empty());
        QVERIFY_EXCEPTION_THROWN(Settings::taxRate(), std::out_of_range);
        QVERIFY_EXCEPTION_THROWN(Settings::printerSwitch(), std::out_of_range);
    }
};

VENDEL_TEST(TestSettings)
#include "tst_Settings.moc"
