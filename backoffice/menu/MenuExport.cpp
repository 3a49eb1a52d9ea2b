// SPDX-License-Identifier: MIT
#include "backoffice/menu/MenuExport.h"

#include "backoffice/menu/Plans.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
struct Sentences
{
    Q_DECLARE_TR_FUNCTIONS(MenuExport)
};

constexpr int moneyDecimals = 2;

/// Whether an import would read \a number, written by a decimal mark that is \a mark in its file,
/// as it is stored.
bool readsBack(const QString& number, QChar mark)
{
    const auto read = WrittenNumber::of(number, mark);
    return read.isNumber() && read.sql == number;
}

/// How \a numbers, stored ones, are written so that they are read back as they are.
CellKind kindOf(const std::vector<QString>& numbers)
{
    const auto isMoney = [](const QString& number) {
        const auto read = WrittenNumber::of(number, QLatin1Char('.'));
        return read.sql == number && read.decimals <= moneyDecimals;
    };
    const QChar mark = WrittenNumber::commonMark(numbers);
    return std::all_of(numbers.begin(), numbers.end(), isMoney) ? CellKind::Money
        : std::all_of(numbers.begin(), numbers.end(),
              [mark](const QString& number) { return readsBack(number, mark); })
        ? CellKind::Quantity
        : CellKind::Text;
}

QVariant cell(const QString& number, CellKind kind)
{
    constexpr double amountsInOne = 10000;
    switch (kind) {
    case CellKind::Money:
        return static_cast<qint64>(qRound64(number.toDouble() * amountsInOne));
    case CellKind::Quantity:
        return number.toDouble();
    default:
        break;
    }
    // Three decimals could be a thousand.
    constexpr int groupOfDigits = 3;
    const bool isLikeAGroup = number.section(QLatin1Char('.'), 1).size() == groupOfDigits;
    return isLikeAGroup ? number + QLatin1Char('0') : number;
}

Table emptyTable(const QString& title, ImportKind kind, CellKind numbers)
{
    Table table;
    table.title = title;
    for (const ImportColumn& column : importColumns(kind)) {
        table.columns.push_back({column.title, column.isNumber ? numbers : CellKind::Text});
    }
    return table;
}
} // namespace

Table MenuExport::menu()
{
    constexpr auto part = Snapshot::Part::Menu;
    const auto stock = Plans::Stock::read(part, Plans::present(part));
    std::vector<QString> prices;
    for (const Article& article : stock.articles) {
        prices.push_back(Plans::storedNumber(article.price));
    }
    const CellKind kind = kindOf(prices);
    Table table = emptyTable(Sentences::tr("Menu"), ImportKind::Menu, kind);
    for (const Article& article : stock.articles) {
        table.rows.push_back({article.name, cell(Plans::storedNumber(article.price), kind)});
    }
    return table;
}

Table MenuExport::recipes()
{
    constexpr auto part = Snapshot::Part::Recipes;
    const auto stock = Plans::Stock::read(part, Plans::present(part));
    std::map<QString, std::vector<RecipeLine>> byArticle;
    std::vector<QString> doses;
    for (const RecipeLine& recipe : stock.recipes) {
        byArticle[recipe.article].push_back(recipe);
        doses.push_back(Plans::storedNumber(recipe.dose));
    }
    const CellKind kind = kindOf(doses) == CellKind::Text ? CellKind::Text : CellKind::Quantity;
    Table table = emptyTable(Sentences::tr("Recettes"), ImportKind::Recipes, kind);
    for (const Article& article : stock.articles) {
        for (const RecipeLine& recipe : byArticle[article.id]) {
            table.rows.push_back({article.name, recipe.composition,
                cell(Plans::storedNumber(recipe.dose), kind), recipe.unit});
        }
    }
    return table;
}
