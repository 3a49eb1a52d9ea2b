// SPDX-License-Identifier: MIT
#include "store/StockArticles.h"

#include "store/Rows.h"

namespace {
std::vector<StockArticle> read(DbRows rows)
{
    return Rows::values(std::move(rows), [](const Rows::Row& row) {
        return StockArticle{Rows::text(row, 0), Rows::text(row, 1)};
    });
}
} // namespace

std::vector<StockArticle> StockArticles::all()
{
    return read(Db::DbLoad("select * from ArticleStock order by article asc"));
}

std::vector<StockArticle> StockArticles::withdrawn()
{
    return read(Db::DbLoad("select ArticleStock.id, ArticleStock.article from ArticleStock "
                           "left join Article on ArticleStock.id = Article.id "
                           "where Article.id is null order by ArticleStock.article"));
}

std::vector<int> StockArticles::withdrawnIds()
{
    std::vector<int> ids;
    for (const StockArticle& article : withdrawn()) {
        ids.push_back(std::stoi(article.id.toStdString()));
    }
    return ids;
}

std::vector<StockArticle> StockArticles::current()
{
    return read(Db::DbLoad("select ArticleStock.id,ArticleStock.article from ArticleStock, Article "
                           "where ArticleStock.id = Article.id order by ArticleStock.article"));
}

std::vector<StockArticle> StockArticles::missing()
{
    return read(
        Db::DbLoad("select Article.id, Article.article from Article left join ArticleStock on "
                   "ArticleStock.id = Article.id where ArticleStock.id is null"));
}

std::vector<StockArticle> StockArticles::renamed()
{
    return read(Db::DbLoad("select Article.id, Article.article, ArticleStock.article from article, "
                           "ArticleStock where Article.id = ArticleStock.id and Article.article != "
                           "ArticleStock.article"));
}

void StockArticles::synchronise()
{
    Db::DbLoad("update ArticleStock set article = (select Article.article from Article where "
               "Article.id = ArticleStock.id) where ArticleStock.id in (select Article.id from "
               "Article)");
    Db::DbLoad(addingMissing());
}

const char* StockArticles::addingMissing()
{
    return "insert into ArticleStock (id,article) select Article.id,Article.article from "
           "Article left join ArticleStock on ArticleStock.id = Article.id where "
           "ArticleStock.id is null";
}

bool StockArticles::remove(const QString& id)
{
    const std::string key = id.toStdString();
    return Db::DbTransact(
        {"delete from DoseStock where id = " + key, "delete from ArticleStock where id = " + key});
}
