// SPDX-License-Identifier: MIT
#include "backoffice/menu/ImportPlan.h"

#include "backoffice/menu/Plans.h"
#include "backoffice/menu/SheetText.h"
#include "store/StockArticles.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace {
struct Sentences
{
    Q_DECLARE_TR_FUNCTIONS(ImportPlan)
};

[[noreturn]] void failReading()
{
    throw ImportError(Sentences::tr(
        "La base de données est occupée : attendez que la caisse ait fini, et recommencez."));
}
} // namespace

int ImportPlan::count(ImportAction action) const
{
    return static_cast<int>(std::count_if(lines.begin(), lines.end(),
        [action](const PlannedLine& line) { return line.action == action; }));
}

ImportPlan ImportPlan::of(const ImportFile& file, const QLocale& locale)
{
    const bool isMenu = file.kind == ImportKind::Menu;
    const auto part = isMenu ? Snapshot::Part::Menu : Snapshot::Part::Recipes;
    const Snapshot snapshot = Plans::present(part);
    // Read after the snapshot: what changes in between makes the database refuse the plan.
    const auto stock = Plans::Stock::read(part, snapshot);
    ImportPlan plan;
    plan.kind = file.kind;
    plan.statements.push_back(snapshot.requireUnchanged());
    for (const ImportLine& line : file.lines) {
        plan.lines.push_back({line, ImportAction::Unchanged, {}, false});
    }
    if (isMenu) {
        Plans::planMenu(plan, stock.articles, locale);
    } else {
        Plans::planRecipes(plan, stock, locale);
    }
    return plan;
}

Snapshot Plans::present(Snapshot::Part part)
{
    auto snapshot = Snapshot::of(part);
    if (!snapshot) {
        failReading();
    }
    return *std::move(snapshot);
}

Plans::Stock Plans::Stock::read(Snapshot::Part part, const Snapshot& snapshot)
{
    Stock stock;
    stock.articles = Articles::all();
    if (part == Snapshot::Part::Recipes) {
        stock.recipes = Recipes::all();
        for (const StockArticle& article : StockArticles::missing()) {
            stock.missing.insert(article.id);
        }
    }
    // A read that fails looks like an empty table.
    if (stock.articles.size() + stock.recipes.size() < snapshot.rows()) {
        failReading();
    }
    return stock;
}

QString Plans::folded(QString name)
{
    for (QChar& letter : name) {
        if (letter >= QLatin1Char('A') && letter <= QLatin1Char('Z')) {
            letter = letter.toLower();
        }
    }
    return name;
}

QString Plans::storedNumber(const QString& stored)
{
    static const QRegularExpression plain(QStringLiteral("^-?[0-9]+(\\.[0-9]+)?$"));
    if (!plain.match(stored).hasMatch()) {
        return stored;
    }
    const auto number = WrittenNumber::of(stored, QLatin1Char('.'));
    return number.isNumber() ? number.sql : stored;
}

QString Plans::shownNumber(const QString& sql, int decimals, const QLocale& locale)
{
    bool isNumber = false;
    const double value = sql.toDouble(&isNumber);
    const auto fraction = static_cast<int>(sql.section(QLatin1Char('.'), 1).size());
    return isNumber ? locale.toString(value, 'f', std::max(decimals, fraction)) : sql;
}

std::optional<QString> Plans::numberFault(const ImportLine& line, const QString& column)
{
    switch (line.number.kind) {
    case WrittenNumber::Kind::Number:
        return std::nullopt;
    case WrittenNumber::Kind::TwoMeanings:
        return Sentences::tr("%1 : mille ou virgule ? Écrivez deux décimales").arg(column);
    case WrittenNumber::Kind::TooLong:
        return Sentences::tr("%1 : trop de chiffres").arg(column);
    case WrittenNumber::Kind::None:
        break;
    }
    return Sentences::tr("%1 : pas un nombre").arg(column);
}

std::optional<QString> Plans::widthFault(const ImportLine& line)
{
    return line.isTooWide ? std::optional(Sentences::tr("Plus de colonnes que de titres"))
                          : std::nullopt;
}

std::optional<QString> Plans::Repeated::fault(const QString& key) const
{
    const auto found = lines_.find(key);
    if (found == lines_.end() || found->second.size() < 2) {
        return std::nullopt;
    }
    return Sentences::tr("Plusieurs fois dans le fichier : lignes %1 et %2")
        .arg(found->second.at(0))
        .arg(found->second.at(1));
}

Plans::ByName::ByName(const std::vector<Article>& articles)
{
    for (const Article& article : articles) {
        articles_[folded(article.name)].push_back(article);
    }
}

const std::vector<Article>& Plans::ByName::of(const QString& name) const
{
    static const std::vector<Article> none;
    for (const QString& key : {folded(name), folded(name.trimmed())}) {
        if (const auto found = articles_.find(key); found != articles_.end()) {
            return found->second;
        }
    }
    return none;
}
