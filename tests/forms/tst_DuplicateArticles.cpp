// SPDX-License-Identifier: MIT
#include "forms/DuplicateArticles.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestMain.h"

#include <algorithm>
#include <stdexcept>

class TestDuplicateArticles : public QObject
{
    Q_OBJECT

private slots:
    void differentNamesAreNoDuplicates();
    void anEmptyMenuHasNone();
    void theNewestOfANameIsNoDuplicate();
    void asciiCaseDoesNotCount();
    void accentedLettersAreNotFolded();
    void everyOlderRowOfANameIsOne();
    void twoNamesAreCountedTogether();
    void thePriceDoesNotMatter();
    void blanksMatter();
    void aNameWithAQuoteIsANameLikeAnyOther();
    void withoutADatabaseTheyThrow();
    void amongTenThousandTheyAreFoundInABlink();
};

namespace {
using Ids = std::vector<int>;

Ids sorted(Ids ids)
{
    std::sort(ids.begin(), ids.end());
    return ids;
}
} // namespace

void TestDuplicateArticles::differentNamesAreNoDuplicates()
{
    const Shop shop;
    shop.sql("insert into Article (article, prix) values ('Thé', 1), ('Eau', 1)");
    QVERIFY(!DuplicateArticles::count().has_value());
    QCOMPARE(DuplicateArticles::ids(), Ids());
}

void TestDuplicateArticles::anEmptyMenuHasNone()
{
    const Shop shop;
    CapturedOutput output;
    QVERIFY(!DuplicateArticles::count().has_value());
    QCOMPARE(DuplicateArticles::ids(), Ids());
    QCOMPARE(output.text(), QByteArray());
}

void TestDuplicateArticles::theNewestOfANameIsNoDuplicate()
{
    const Shop shop;
    shop.sql("insert into Article (article, prix) values ('Eau', 1), ('Thé', 1), ('Eau', 1)");
    QCOMPARE(DuplicateArticles::count(), std::optional<int>(1));
    QCOMPARE(DuplicateArticles::ids(), Ids{1});
}

void TestDuplicateArticles::asciiCaseDoesNotCount()
{
    const Shop shop;
    shop.sql("insert into Article (article, prix) values ('Cafe', 1), ('cafe', 1)");
    QCOMPARE(DuplicateArticles::count(), std::optional<int>(1));
    QCOMPARE(DuplicateArticles::ids(), Ids{1});
}

void TestDuplicateArticles::accentedLettersAreNotFolded()
{
    const Shop shop;
    shop.sql("insert into Article (article, prix) values ('Café', 1), ('CAFÉ', 1), ('cafÉ', 1)");
    QCOMPARE(DuplicateArticles::count(), std::optional<int>(1));
    QCOMPARE(DuplicateArticles::ids(), Ids{2});
}

void TestDuplicateArticles::everyOlderRowOfANameIsOne()
{
    const Shop shop;
    shop.sql("insert into Article (article, prix) values ('Eau', 1), ('eau', 1), ('EAU', 1)");
    QCOMPARE(DuplicateArticles::count(), std::optional<int>(2));
    QCOMPARE(sorted(DuplicateArticles::ids()), (Ids{1, 2}));
}

void TestDuplicateArticles::twoNamesAreCountedTogether()
{
    const Shop shop;
    shop.sql("insert into Article (article, prix) values ('Eau', 1), ('Vin', 1), ('Thé', 1), "
             "('eau', 1), ('vin', 1)");
    QCOMPARE(DuplicateArticles::count(), std::optional<int>(2));
    QCOMPARE(sorted(DuplicateArticles::ids()), (Ids{1, 2}));
}

void TestDuplicateArticles::thePriceDoesNotMatter()
{
    const Shop shop;
    shop.sql("insert into Article (article, prix) values ('Eau', 1), ('Eau', 2)");
    QCOMPARE(DuplicateArticles::ids(), Ids{1});
}

void TestDuplicateArticles::blanksMatter()
{
    const Shop shop;
    shop.sql("insert into Article (article, prix) values ('Eau', 1), ('Eau ', 1)");
    QVERIFY(!DuplicateArticles::count().has_value());
}

void TestDuplicateArticles::aNameWithAQuoteIsANameLikeAnyOther()
{
    const Shop shop;
    shop.sql("insert into Article (article, prix) values ('l''eau', 1), ('L''EAU', 1)");
    QCOMPARE(DuplicateArticles::ids(), Ids{1});
}

void TestDuplicateArticles::withoutADatabaseTheyThrow()
{
    const Shop shop(Shop::Database::None);
    CapturedOutput output;
    QVERIFY_EXCEPTION_THROWN(DuplicateArticles::count(), std::out_of_range);
    QVERIFY(DuplicateArticles::ids().empty());
    QCOMPARE(output.text().count(" no such table: Article\n"), 2);
}

void TestDuplicateArticles::amongTenThousandTheyAreFoundInABlink()
{
    const Shop shop;
    shop.sql("with recursive n(i) as (select 1 union all select i + 1 from n where i < 10000) "
             "insert into Article (article, prix) select 'Article ' || (i % 9800), 1 from n");
    QCOMPARE(DuplicateArticles::count(), std::optional<int>(200));
    QCOMPARE(DuplicateArticles::ids().size(), std::size_t{200});
}

VENDEL_TEST_MAIN(TestDuplicateArticles)
#include "tst_DuplicateArticles.moc"
