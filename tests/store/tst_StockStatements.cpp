// SPDX-License-Identifier: MIT
#include "store/Consumption.h"
#include "store/Recipes.h"
#include "store/StockArticles.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <functional>

namespace {
struct Case
{
    std::function<void()> run;
};
} // namespace
Q_DECLARE_METATYPE(Case)

/// The statements of the stock, as a database without tables reports them.
class TestStockStatements : public QObject
{
    Q_OBJECT

private slots:
    void standWordForWord_data()
    {
        QTest::addColumn<Case>("statement");
        QTest::addColumn<QByteArray>("reported");
        const auto row = [](const char* name, std::function<void()> run, const char* sql,
                             const char* table = "ArticleStock") {
            QTest::newRow(name) << Case{std::move(run)}
                                << databaseReport(sql, QByteArray("no such table: ") + table);
        };
        const QString five = QString("5");
        const QString from = QString("2019-05-01");
        const QString to = QString("2019-06-01 10:00:00.000");

        row(
            "all", [] { StockArticles::all(); }, "select * from ArticleStock order by article asc");
        row(
            "withdrawn", [] { StockArticles::withdrawn(); },
            "select ArticleStock.id, ArticleStock.article from ArticleStock left join Article on "
            "ArticleStock.id = Article.id where Article.id is null order by ArticleStock.article");
        row(
            "current", [] { StockArticles::current(); },
            "select ArticleStock.id,ArticleStock.article from ArticleStock, Article where "
            "ArticleStock.id = Article.id order by ArticleStock.article");
        row(
            "missing", [] { StockArticles::missing(); },
            "select Article.id, Article.article from Article left join ArticleStock on "
            "ArticleStock.id = Article.id where ArticleStock.id is null",
            "Article");
        row(
            "renamed", [] { StockArticles::renamed(); },
            "select Article.id, Article.article, ArticleStock.article from article, ArticleStock "
            "where Article.id = ArticleStock.id and Article.article != ArticleStock.article",
            "article");
        row(
            "recipe", [=] { Recipes::of(five); },
            "select * from DoseStock where id = 5 order by composition asc", "DoseStock");
        row(
            "add", [=] { Recipes::add(five, QString("l'eau"), QString("0.5"), QString("cl")); },
            "insert into DoseStock (id, composition, dose, unite) values (5, 'l''eau', 0.5, 'cl')",
            "DoseStock");
        row(
            "remove line", [=] { Recipes::remove(five); }, "delete from DoseStock where idlig = 5",
            "DoseStock");
        row(
            "move", [=] { Recipes::move(QString("9"), five); },
            "update DoseStock set id = 5 where idlig = 9", "DoseStock");
        row(
            "details", [=] { Consumption::details(from, to); },
            "select distinct compte, t.article, composition, dose, unite, compte * dose as calc, "
            "unite  from (select distinct count(article) as compte, article from Historique where "
            "date_heure between '2019-05-01' and '2019-06-01 10:00:00.000' group by article, prix) "
            "as "
            "t, (select c.article, composition, dose , unite from (select * from DoseStock) as b, "
            "(select * from ArticleStock) as c where b.id = c.id) as d  where t.article = "
            "d.article "
            "order by t.article",
            "Historique");
        row(
            "totals", [=] { Consumption::totals(from, to); },
            "select a.composition, a.calcul, a.unite , case a.unite when 'oz' then cast(a.calcul "
            "as "
            "real)/16 when 'fl. oz' then cast(a.calcul as real)/32 end calculconv, case a.unite "
            "when "
            "'oz' then 'pound' when 'fl. oz' then 'quart' end calculunite from (select distinct "
            "c.composition,sum(c.calc) as calcul, c.unite from (select distinct compte, t.article, "
            "composition, dose, unite, compte * dose as calc, unite   from (select distinct "
            "count(article) as compte, article from Historique where date_heure between "
            "'2019-05-01' "
            "and '2019-06-01 10:00:00.000' group by article, prix) as t, (select c.article, "
            "composition, dose , unite from (select * from DoseStock) as b, (select * from "
            "ArticleStock) as c where b.id = c.id) as d where t.article = d.article order by "
            "t.article) as c group by c.composition) as a",
            "Historique");
    }

    void standWordForWord()
    {
        QFETCH(const Case, statement);
        QFETCH(const QByteArray, reported);
        const Shop shop(Shop::Database::None);
        CapturedOutput output;
        statement.run();
        const QByteArray said = output.text();
        QCOMPARE(said, reported);
    }

    void theTwoOfASynchronisationStandWordForWord()
    {
        const Shop shop(Shop::Database::None);
        CapturedOutput output;
        StockArticles::synchronise();
        const QByteArray said = output.text();
        QCOMPARE(said,
            QByteArray(
                "Errors Db::DbLoad sqlite3_errmsg : update ArticleStock set article = (select "
                "Article.article from Article where Article.id = ArticleStock.id) where "
                "ArticleStock.id in (select Article.id from Article) no such table: "
                "ArticleStock\n"
                "Errors Db::DbLoad sqlite3_errmsg : insert into ArticleStock (id,article) "
                "select Article.id,Article.article from Article left join ArticleStock on "
                "ArticleStock.id = Article.id where ArticleStock.id is null no such table: "
                "ArticleStock\n"));
    }

    void theArticlesRemovalStandsWordForWord()
    {
        const Shop shop;
        shop.sql("drop table ArticleStock");
        CapturedOutput output;
        StockArticles::remove(QString("1"));
        const QByteArray said = output.text();
        QCOMPARE(said,
            QByteArray(
                "Errors Db::DbLoad sqlite3_errmsg : delete from ArticleStock where id = 1 no "
                "such table: ArticleStock\n"));
    }
};

VENDEL_TEST(TestStockStatements)
#include "tst_StockStatements.moc"
