// SPDX-License-Identifier: MIT
#include "launcher/DataFolder.h"
#include "launcher/FileClaim.h"
#include "launcher/Restore.h"
#include "launcher/Speech.h"
#include "tests/launcher/ShopFolder.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"

#include <chrono>
#include <future>

namespace {
constexpr double longEnough = 60;
}

class TestLauncherFileClaim : public QObject
{
    Q_OBJECT

private slots:
    void manyMayLook()
    {
        const ShopFolder shop;
        const FileClaim one(shop.get(), FileClaim::Purpose::Look, 0);
        const FileClaim other(shop.get(), FileClaim::Purpose::Look, 0);
        QVERIFY_EXCEPTION_THROWN(
            FileClaim(shop.get(), FileClaim::Purpose::Replace, 0), DatabaseError);
    }

    void nobodyLooksAtWhatIsBeingReplaced()
    {
        const ShopFolder shop;
        const FileClaim one(shop.get(), FileClaim::Purpose::Replace, 0);
        QVERIFY_EXCEPTION_THROWN(FileClaim(shop.get(), FileClaim::Purpose::Look, 0), DatabaseError);
    }

    void aRestorationWaitsForALook()
    {
        const ShopFolder shop;
        QVERIFY(QDir().mkdir(QString("copies")));
        QVERIFY(QFile::copy(QString("Vendel.db"), QString("copies/Vendel-2026-03-03.db")));
        shop.fill("insert into Article (article, prix) values ('Thé', 5)");
        const auto articles
            = [] { return ShopFolder::foreign("Vendel.db", "select count(*) from Article"); };
        std::optional<FileClaim> look(
            std::in_place, shop.get(), FileClaim::Purpose::Look, longEnough);
        const CapturedOutput output;
        auto restoring = std::async(std::launch::async, [&] {
            return refusal([&] {
                DataFolder folder(shop.name());
                Restore::run(folder, Speech(Language::English, "/nowhere"), "2026-03-03");
            });
        });
        QVERIFY(restoring.wait_for(std::chrono::milliseconds(300)) == std::future_status::timeout);
        QCOMPARE(articles(), QByteArray("1"));
        look.reset();
        QCOMPARE(restoring.get(), QString());
        QCOMPARE(articles(), QByteArray("0"));
    }
};

VENDEL_TEST(TestLauncherFileClaim)
#include "tst_LauncherFileClaim.moc"
