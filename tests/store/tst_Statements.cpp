// SPDX-License-Identifier: MIT
#include "store/Articles.h"
#include "store/Consumption.h"
#include "store/Recipes.h"
#include "store/Settings.h"
#include "store/StockArticles.h"
#include "store/Ticket.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <functional>
#include <stdexcept>

namespace {
struct Statement
{
    std::function<void()> run;
    QByteArray sql;
    QByteArray missingTable;
};

/// Compares what a database without tables reports of each with its words.
void compareWords(const std::vector<Statement>& statements)
{
    const Shop shop(Shop::Database::None);
    for (const Statement& statement : statements) {
        CapturedOutput output;
        statement.run();
        QCOMPARE(output.text(),
            databaseReport(statement.sql, "no such table: " + statement.missingTable));
    }
}
} // namespace

/// The statements word for word.
class TestStatements : public QObject
{
    Q_OBJECT

private slots:
    void ofASale()
    {
        compareWords({
            {[] { Ticket::lines(); }, "select * from Ticket", "Ticket"},
            {[] { Ticket::groups(); },
                "select cpte, article, prix, cpte*prix as calcul from (select count(article) as "
                "cpte, article, prix from Ticket group by article, prix) as t",
                "Ticket"},
            {[] { Ticket::addArticle("12"); },
                "select * from Article where id = 12 order by Article asc", "Article"},
            {[] { Ticket::addAmount("-2.5"); },
                "insert into Ticket(id, article, prix) values (0, '----', -2.5)", "Ticket"},
            {[] { Ticket::remove("7"); }, "delete from Ticket where idlig = 7", "Ticket"},
            {[] { Ticket::clear(); }, "delete from Ticket", "Ticket"},
            {[] { Settings::taxRates(); }, "select valeur from Config where param like 'TVA'",
                "Config"},
            {[] { Settings::printerSwitches(); },
                "select valeur from Config where param like 'Epson TM-T20II'", "Config"},
        });
    }

    void ofTheMenusDuplicates()
    {
        compareWords({{[] {
                           QVERIFY_EXCEPTION_THROWN(Articles::countDuplicates(), std::out_of_range);
                       },
            "select sum(z.art) as som from (select count(d.article) as art, d.article from (select "
            "b.article,b.id from (select article,max(id) from Article group by article having "
            "count(article) > 1) as t, Article as b where t.article = b.article) as d where d.id "
            "not in (select max(id) as id from Article group by article having count(article) > 1) "
            "group by article) as z",
            "Article"}});
    }

    void ofTheStock()
    {
        const QString from = "2019-05-01";
        const QString to = "2019-06-01 10:00:00.000";
        compareWords({
            {[] { StockArticles::all(); }, "select * from ArticleStock order by article asc",
                "ArticleStock"},
            {[] { StockArticles::withdrawn(); },
                "select ArticleStock.id, ArticleStock.article from ArticleStock left join Article "
                "on ArticleStock.id = Article.id where Article.id is null order by "
                "ArticleStock.article",
                "ArticleStock"},
            {[] { StockArticles::current(); },
                "select ArticleStock.id,ArticleStock.article from ArticleStock, Article where "
                "ArticleStock.id = Article.id order by ArticleStock.article",
                "ArticleStock"},
            {[] { StockArticles::missing(); },
                "select Article.id, Article.article from Article left join ArticleStock on "
                "ArticleStock.id = Article.id where ArticleStock.id is null",
                "Article"},
            {[] { StockArticles::renamed(); },
                "select Article.id, Article.article, ArticleStock.article from article, "
                "ArticleStock where Article.id = ArticleStock.id and Article.article != "
                "ArticleStock.article",
                "article"},
            {[] { Recipes::of("5"); },
                "select * from DoseStock where id = 5 order by composition asc", "DoseStock"},
            {[] { Recipes::add("5", "l'eau", "0.5", "cl"); },
                "insert into DoseStock (id, composition, dose, unite) values (5, 'l''eau', 0.5, "
                "'cl')",
                "DoseStock"},
            {[] { Recipes::remove("5"); }, "delete from DoseStock where idlig = 5", "DoseStock"},
            {[] { Recipes::move("9", "5"); }, "update DoseStock set id = 5 where idlig = 9",
                "DoseStock"},
            {[&] { Consumption::details(from, to); },
                "select distinct compte, t.article, composition, dose, unite, compte * dose as "
                "calc, unite  from (select distinct count(article) as compte, article from "
                "Historique where date_heure between '2019-05-01' and '2019-06-01 10:00:00.000' "
                "group by article, prix) as t, (select c.article, composition, dose , unite from "
                "(select * from DoseStock) as b, (select * from ArticleStock) as c where b.id = "
                "c.id) as d  where t.article = d.article order by t.article",
                "Historique"},
            {[&] { Consumption::totals(from, to); },
                "select a.composition, a.calcul, a.unite , case a.unite when 'oz' then "
                "cast(a.calcul as real)/16 when 'fl. oz' then cast(a.calcul as real)/32 end "
                "calculconv, case a.unite when 'oz' then 'pound' when 'fl. oz' then 'quart' end "
                "calculunite from (select distinct c.composition,sum(c.calc) as calcul, c.unite "
                "from (select distinct compte, t.article, composition, dose, unite, compte * dose "
                "as calc, unite   from (select distinct count(article) as compte, article from "
                "Historique where date_heure between '2019-05-01' and '2019-06-01 10:00:00.000' "
                "group by article, prix) as t, (select c.article, composition, dose , unite from "
                "(select * from DoseStock) as b, (select * from ArticleStock) as c where b.id = "
                "c.id) as d where t.article = d.article order by t.article) as c group by "
                "c.composition) as a",
                "Historique"},
        });
    }

    void ofASynchronisation()
    {
        const Shop shop(Shop::Database::None);
        CapturedOutput output;
        StockArticles::synchronise();
        const QByteArray reason = "no such table: ArticleStock";
        QCOMPARE(output.text(),
            databaseReport("update ArticleStock set article = (select Article.article from Article "
                           "where Article.id = ArticleStock.id) where ArticleStock.id in (select "
                           "Article.id from Article)",
                reason)
                + databaseReport("insert into ArticleStock (id,article) select Article.id,"
                                 "Article.article from Article left join ArticleStock on "
                                 "ArticleStock.id = Article.id where ArticleStock.id is null",
                    reason));
    }

    void ofTheRemovalOfAStockArticle()
    {
        const Shop shop;
        shop.sql("drop table ArticleStock");
        CapturedOutput output;
        StockArticles::remove("1");
        QCOMPARE(output.text(),
            databaseReport("delete from ArticleStock where id = 1", "no such table: ArticleStock"));
    }
};

VENDEL_TEST(TestStatements)
#include "tst_Statements.moc"
