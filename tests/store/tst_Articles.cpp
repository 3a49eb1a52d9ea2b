// SPDX-License-Identifier: MIT
#include "store/Articles.h"
#include "tests/support/Captured.h"
#include "tests/support/Rows.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <algorithm>
#include <stdexcept>

namespace {
using Ids = std::vector<int>;
} // namespace

/// The duplicates in the menu.
class TestArticles : public QObject
{
    Q_OBJECT

private slots:
    void olderRowsOfANameAreDuplicates()
    {
        const Rows<QByteArray, Ids> rows{
            {"different names", "('Thé', 1), ('Eau', 1)", {}},
            {"the older of two", "('Eau', 1), ('Thé', 1), ('Eau', 1)", {1}},
            {"the price does not matter", "('Eau', 1), ('Eau', 2)", {1}},
            {"ASCII case does not matter", "('Cafe', 1), ('cafe', 1)", {1}},
            {"accented letters have a case", "('Café', 1), ('CAFÉ', 1), ('cafÉ', 1)", {2}},
            {"all older rows", "('Eau', 1), ('eau', 1), ('EAU', 1)", {1, 2}},
            {"two names", "('Eau', 1), ('Vin', 1), ('Thé', 1), ('eau', 1), ('vin', 1)", {1, 2}},
            {"blanks matter", "('Eau', 1), ('Eau ', 1)", {}},
            {"a quote in a name", "('l''eau', 1), ('L''EAU', 1)", {1}},
        };
        for (const auto& [row, menu, duplicates] : rows) {
            const InRow inRow(row);
            const Shop shop;
            shop.sql(("insert into Article (article, prix) values " + menu).constData());
            QCOMPARE(Articles::countDuplicates().value_or(0), static_cast<int>(duplicates.size()));
            QCOMPARE(Articles::countDuplicates().has_value(), !duplicates.empty());
            Ids found = Articles::duplicateIds();
            std::sort(found.begin(), found.end());
            QCOMPARE(found, duplicates);
        }
    }

    void anEmptyMenuHasNone()
    {
        const Shop shop;
        CapturedOutput output;
        QVERIFY(!Articles::countDuplicates().has_value());
        QCOMPARE(Articles::duplicateIds(), Ids());
        QCOMPARE(output.text(), QByteArray());
    }

    void amongTenThousandTheyAreFoundInABlink()
    {
        const Shop shop;
        shop.sql("with recursive n(i) as (select 1 union all select i + 1 from n where i < 10000) "
                 "insert into Article (article, prix) select 'Article ' || (i % 9800), 1 from n");
        QCOMPARE(Articles::countDuplicates(), std::optional<int>(200));
        QCOMPARE(Articles::duplicateIds().size(), std::size_t{200});
    }

    void withoutADatabaseTheyThrow()
    {
        const Shop shop(Shop::Database::None);
        CapturedOutput output;
        QVERIFY_EXCEPTION_THROWN(Articles::countDuplicates(), std::out_of_range);
        QVERIFY(Articles::duplicateIds().empty());
        QCOMPARE(output.text().count(" no such table: Article\n"), 2);
    }
};

VENDEL_TEST(TestArticles)
#include "tst_Articles.moc"
