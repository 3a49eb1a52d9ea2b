// SPDX-License-Identifier: MIT
#include "store/Articles.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <algorithm>
#include <stdexcept>

namespace {
using Ids = std::vector<int>;

Ids sorted(Ids ids)
{
    std::sort(ids.begin(), ids.end());
    return ids;
}
} // namespace

class TestArticles : public QObject
{
    Q_OBJECT

private slots:
    void differentNamesAreNoDuplicates()
    {
        const Shop shop;
        shop.sql("insert into Article (article, prix) values ('Thé', 1), ('Eau', 1)");
        QVERIFY(!Articles::countDuplicates().has_value());
        QCOMPARE(Articles::duplicateIds(), Ids());
    }

    void anEmptyMenuHasNone()
    {
        const Shop shop;
        CapturedOutput output;
        QVERIFY(!Articles::countDuplicates().has_value());
        QCOMPARE(Articles::duplicateIds(), Ids());
        QCOMPARE(output.text(), QByteArray());
    }

    void theNewestOfANameIsNoDuplicate()
    {
        const Shop shop;
        shop.sql("insert into Article (article, prix) values ('Eau', 1), ('Thé', 1), ('Eau', 1)");
        QCOMPARE(Articles::countDuplicates(), std::optional<int>(1));
        QCOMPARE(Articles::duplicateIds(), Ids{1});
    }

    void asciiCaseDoesNotCount()
    {
        const Shop shop;
        shop.sql("insert into Article (article, prix) values ('Cafe', 1), ('cafe', 1)");
        QCOMPARE(Articles::countDuplicates(), std::optional<int>(1));
        QCOMPARE(Articles::duplicateIds(), Ids{1});
    }

    void accentedLettersAreNotFolded()
    {
        const Shop shop;
        shop.sql(
            "insert into Article (article, prix) values ('Café', 1), ('CAFÉ', 1), ('cafÉ', 1)");
        QCOMPARE(Articles::countDuplicates(), std::optional<int>(1));
        QCOMPARE(Articles::duplicateIds(), Ids{2});
    }

    void everyOlderRowOfANameIsOne()
    {
        const Shop shop;
        shop.sql("insert into Article (article, prix) values ('Eau', 1), ('eau', 1), ('EAU', 1)");
        QCOMPARE(Articles::countDuplicates(), std::optional<int>(2));
        QCOMPARE(sorted(Articles::duplicateIds()), (Ids{1, 2}));
    }

    void twoNamesAreCountedTogether()
    {
        const Shop shop;
        shop.sql("insert into Article (article, prix) values ('Eau', 1), ('Vin', 1), ('Thé', 1), "
                 "('eau', 1), ('vin', 1)");
        QCOMPARE(Articles::countDuplicates(), std::optional<int>(2));
        QCOMPARE(sorted(Articles::duplicateIds()), (Ids{1, 2}));
    }

    void thePriceDoesNotMatter()
    {
        const Shop shop;
        shop.sql("insert into Article (article, prix) values ('Eau', 1), ('Eau', 2)");
        QCOMPARE(Articles::duplicateIds(), Ids{1});
    }

    void blanksMatter()
    {
        const Shop shop;
        shop.sql("insert into Article (article, prix) values ('Eau', 1), ('Eau ', 1)");
        QVERIFY(!Articles::countDuplicates().has_value());
    }

    void aNameWithAQuoteIsANameLikeAnyOther()
    {
        const Shop shop;
        shop.sql("insert into Article (article, prix) values ('l''eau', 1), ('L''EAU', 1)");
        QCOMPARE(Articles::duplicateIds(), Ids{1});
    }

    void withoutADatabaseTheyThrow()
    {
        const Shop shop(Shop::Database::None);
        CapturedOutput output;
        QVERIFY_EXCEPTION_THROWN(Articles::countDuplicates(), std::out_of_range);
        QVERIFY(Articles::duplicateIds().empty());
        QCOMPARE(output.text().count(" no such table: Article\n"), 2);
    }

    void amongTenThousandTheyAreFoundInABlink()
    {
        const Shop shop;
        shop.sql("with recursive n(i) as (select 1 union all select i + 1 from n where i < 10000) "
                 "insert into Article (article, prix) select 'Article ' || (i % 9800), 1 from n");
        QCOMPARE(Articles::countDuplicates(), std::optional<int>(200));
        QCOMPARE(Articles::duplicateIds().size(), std::size_t{200});
    }
};

VENDEL_TEST(TestArticles)
#include "tst_Articles.moc"
