// SPDX-License-Identifier: MIT
#include "backoffice/menu/Plans.h"
#include "store/StockArticles.h"

#include <QCoreApplication>

namespace {
struct Sentences
{
    Q_DECLARE_TR_FUNCTIONS(RecipePlan)
};

enum Cell
{
    ArticleCell,
    CompositionCell,
    DoseCell,
    UnitCell
};

/// Parts an article from a composition in a key.
constexpr QChar between(QChar::Null);

/// \a unit as the till's recipes have it; nothing for one that it does not offer.
std::optional<QString> knownUnit(const QString& unit)
{
    const QString plain = Plans::folded(unit.trimmed());
    const bool isOffered = plain == QLatin1String("cl") || plain == QLatin1String("g");
    return isOffered ? std::optional(plain) : std::nullopt;
}

/// Decides about one line at a time.
class RecipePlanner
{
public:
    RecipePlanner(ImportPlan& plan, const Plans::Stock& stock, const QLocale& locale)
        : plan_(plan)
        , stock_(stock)
        , menu_(stock.articles)
        , locale_(locale)
    {
        for (const RecipeLine& recipe : stock.recipes) {
            recipes_[recipe.article + between + Plans::folded(recipe.composition)].push_back(
                recipe);
        }
        for (const PlannedLine& planned : plan.lines) {
            file_.add(keyOf(planned), planned.line.line);
        }
    }

    void decide(PlannedLine& planned)
    {
        if (const auto fault = faultOf(planned)) {
            refuse(planned, *fault);
            return;
        }
        const auto known = recipes_.find(keyOf(planned));
        if (known == recipes_.end()) {
            add(planned);
        } else {
            change(planned, known->second.front());
        }
    }

private:
    /// The article's id and the composition; the name where there is no such article.
    QString keyOf(const PlannedLine& planned) const
    {
        const QStringList& cells = planned.line.cells;
        const auto& known = menu_.of(cells.at(ArticleCell));
        const QString article
            = known.empty() ? Plans::folded(cells.at(ArticleCell).trimmed()) : known.front().id;
        const QString exact = article + between + Plans::folded(cells.at(CompositionCell));
        return recipes_.count(exact) != 0
            ? exact
            : article + between + Plans::folded(cells.at(CompositionCell).trimmed());
    }

    std::optional<QString> faultOf(const PlannedLine& planned) const
    {
        const ImportLine& line = planned.line;
        const auto& articles = menu_.of(line.cells.at(ArticleCell));
        if (auto fault = Plans::widthFault(line)) {
            return fault;
        }
        if (articles.empty()) {
            return Sentences::tr("L'article n'est pas sur le menu");
        }
        if (articles.size() > 1) {
            return Sentences::tr("L'article est plusieurs fois sur le menu");
        }
        const auto known = recipes_.find(keyOf(planned));
        if (known == recipes_.end() && line.cells.at(CompositionCell).trimmed().isEmpty()) {
            return Sentences::tr("Pas de composition");
        }
        if (auto fault = Plans::numberFault(line, Sentences::tr("Dose"))) {
            return fault;
        }
        if (line.number.sql.startsWith(QLatin1Char('-'))) {
            return Sentences::tr("Dose négative");
        }
        if (known != recipes_.end() && known->second.size() > 1) {
            return Sentences::tr("Plusieurs fois dans la recette");
        }
        return file_.fault(keyOf(planned));
    }

    static void refuse(PlannedLine& planned, const QString& fault)
    {
        planned.action = ImportAction::Refused;
        planned.remark = fault;
    }

    static void refuseUnit(PlannedLine& planned)
    {
        refuse(planned, Sentences::tr("Unité : « cl » ou « g »"));
    }

    void add(PlannedLine& planned)
    {
        const QStringList& cells = planned.line.cells;
        const auto unit = knownUnit(cells.at(UnitCell));
        if (!unit) {
            refuseUnit(planned);
            return;
        }
        const QString& article = menu_.of(cells.at(ArticleCell)).front().id;
        if (!isStockUpdated_ && stock_.missing.count(article) != 0) {
            isStockUpdated_ = true;
            plan_.statements.emplace_back(StockArticles::addingMissing());
        }
        planned.action = ImportAction::New;
        plan_.statements.push_back(Recipes::adding(
            article, cells.at(CompositionCell).trimmed(), planned.line.number.sql, *unit)
                                       .toStdString());
    }

    void change(PlannedLine& planned, const RecipeLine& recipe)
    {
        const QString dose = Plans::storedNumber(recipe.dose);
        const QString& newDose = planned.line.number.sql;
        const QString& cell = planned.line.cells.at(UnitCell);
        // What an older till has stored may stay: "oz".
        const auto unit = Plans::folded(cell.trimmed()) == Plans::folded(recipe.unit.trimmed())
            ? std::optional(recipe.unit)
            : knownUnit(cell);
        if (!unit) {
            refuseUnit(planned);
            return;
        }
        if (dose == newDose && *unit == recipe.unit) {
            return;
        }
        planned.action = ImportAction::Changed;
        planned.remark = Sentences::tr("%1 %2 → %3 %4")
                             .arg(Plans::shownNumber(dose, 0, locale_), recipe.unit,
                                 Plans::shownNumber(newDose, 0, locale_), *unit);
        plan_.statements.push_back(Recipes::dosing(recipe.key, newDose, *unit).toStdString());
    }

    ImportPlan& plan_;
    const Plans::Stock& stock_;
    Plans::ByName menu_;
    const QLocale& locale_;
    /// By article and composition.
    std::map<QString, std::vector<RecipeLine>> recipes_;
    Plans::Repeated file_;
    bool isStockUpdated_ = false;
};
} // namespace

void Plans::planRecipes(ImportPlan& plan, const Stock& stock, const QLocale& locale)
{
    RecipePlanner planner(plan, stock, locale);
    for (PlannedLine& planned : plan.lines) {
        planner.decide(planned);
    }
}
