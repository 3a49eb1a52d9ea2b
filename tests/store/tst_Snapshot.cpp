// SPDX-License-Identifier: MIT
#include "store/Snapshot.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

namespace {
constexpr auto menu = Snapshot::Part::Menu;
constexpr auto recipes = Snapshot::Part::Recipes;

/// Whether the statement by which \a snapshot requires that nothing has changed fails.
bool isRefused(const Snapshot& snapshot)
{
    CapturedOutput output;
    Db::DbLoad(snapshot.requireUnchanged().c_str());
    return output.text().contains("NOT NULL constraint failed");
}

struct Stored : Shop
{
    Stored()
    {
        fill("insert into Article (id, article, prix) values (1, 'D''été', 1.5), (2, 'a' || "
             "char(10), 2); insert into ArticleStock (id, article) values (1, 'D''été');"
             "insert into DoseStock (id, composition, dose, unite) values (1, 'Lait', 2.5, 'cl')");
    }
};
} // namespace

class TestSnapshot : public QObject
{
    Q_OBJECT

private slots:
    void countsRows()
    {
        const Stored shop;
        QCOMPARE(Snapshot::of(menu)->rows(), std::size_t(2));
        QCOMPARE(Snapshot::of(recipes)->rows(), std::size_t(3));
    }

    void whatIsUnchangedIsAccepted()
    {
        const Stored shop;
        QVERIFY(!isRefused(*Snapshot::of(menu)));
        QVERIFY(!isRefused(*Snapshot::of(recipes)));
        QCOMPARE(shop.cell("select count(*) from Article"), QString("2"));
        // A sale changes neither.
        const auto before = *Snapshot::of(recipes);
        shop.sql("insert into Historique (id, article, prix) values (1, 'x', 1)");
        QVERIFY(!isRefused(before));
    }

    void anyChangeIsRefused()
    {
        for (const char* change : {"update Article set prix = 1.50001 where id = 1",
                 "update Article set article = 'd''été' where id = 1",
                 "update Article set id = 3 where id = 2", "delete from Article where id > 0",
                 "update DoseStock set unite = 'g'", "update DoseStock set dose = 2",
                 "update DoseStock set composition = 'LAIT'", "delete from ArticleStock"}) {
            const Stored shop;
            const auto before = *Snapshot::of(recipes);
            const auto menuBefore = *Snapshot::of(menu);
            shop.sql(change);
            QVERIFY2(isRefused(before), change);
            QCOMPARE(isRefused(menuBefore), QByteArray(change).contains(" Article "));
            QVERIFY(!(*Snapshot::of(recipes) == before));
        }
    }

    void aDatabaseThatDoesNotAnswerHasNone()
    {
        const Shop shop(Shop::Database::None);
        const CapturedOutput output;
        QVERIFY(!Snapshot::of(menu));
    }
};

VENDEL_TEST(TestSnapshot)
#include "tst_Snapshot.moc"
