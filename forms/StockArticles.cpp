// SPDX-License-Identifier: MIT
#include "forms/StockArticles.h"

DbRows StockArticles::all()
{
    return Db::DbLoad("select * from ArticleStock order by article asc");
}

DbRows StockArticles::withdrawn()
{
    return Db::DbLoad("select ArticleStock.id, ArticleStock.article from ArticleStock left join "
                      "Article on ArticleStock.id = Article.id where Article.id is null order by "
                      "ArticleStock.article");
}

DbRows StockArticles::current()
{
    return Db::DbLoad("select ArticleStock.id,ArticleStock.article from ArticleStock, Article "
                      "where ArticleStock.id = Article.id order by ArticleStock.article");
}

DbRows StockArticles::missing()
{
    return Db::DbLoad("select Article.id, Article.article from Article left join ArticleStock on "
                      "ArticleStock.id = Article.id where ArticleStock.id is null");
}

DbRows StockArticles::renamed()
{
    return Db::DbLoad("select Article.id, Article.article, ArticleStock.article from article, "
                      "ArticleStock where Article.id = ArticleStock.id and Article.article != "
                      "ArticleStock.article");
}

void StockArticles::synchronise()
{
    Db::DbLoad("update ArticleStock set article = (select Article.article from Article where "
               "Article.id = ArticleStock.id) where ArticleStock.id in (select Article.id from "
               "Article)");
    Db::DbLoad("insert into ArticleStock (id,article) select Article.id,Article.article from "
               "Article left join ArticleStock on ArticleStock.id = Article.id where "
               "ArticleStock.id is null");
}

void StockArticles::remove(const QString& id)
{
    // The lines go first: a crash in between leaves no line without its article.
    const QString lines = QLatin1String("delete from DoseStock where id = ") + id;
    if (Db::DbRun(lines.toUtf8().constData())) {
        const QString article = QLatin1String("delete from ArticleStock where id = ") + id;
        Db::DbLoad(article.toUtf8().constData());
    }
}
