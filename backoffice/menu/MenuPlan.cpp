// SPDX-License-Identifier: MIT
#include "backoffice/menu/Plans.h"
#include "base/Handle.h"
#include "common/convert.h"
#include "common/Tools.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdlib>

namespace {
struct Sentences
{
    Q_DECLARE_TR_FUNCTIONS(MenuPlan)
};

constexpr int nameCell = 0;
constexpr int priceDecimals = 2;

using Fault = std::optional<QString>;

bool isPrintable(const QString& name)
{
    const auto isAscii = [](QChar letter) { return letter.unicode() < 128; };
    return std::all_of(name.cbegin(), name.cend(), isAscii)
        || Handle<char, std::free>(convert("UTF-8", "CP858", name.toUtf8().constData())) != nullptr;
}

/// What keeps \a name from being a new article's.
Fault nameFault(const QString& name)
{
    if (name.isEmpty()) {
        return Sentences::tr("Pas de nom");
    }
    if (name.size() > Tools::NbrChar) {
        return Sentences::tr("Nom de %1 caractères ; %2 au plus")
            .arg(name.size())
            .arg(Tools::NbrChar);
    }
    const auto isControl = [](QChar letter) { return letter.category() == QChar::Other_Control; };
    if (std::any_of(name.cbegin(), name.cend(), isControl)) {
        return Sentences::tr("Le nom contient une fin de ligne ou un caractère invisible");
    }
    return std::nullopt;
}

Fault firstOf(std::initializer_list<Fault> faults)
{
    const auto found = std::find_if(
        faults.begin(), faults.end(), [](const Fault& fault) { return fault.has_value(); });
    return found == faults.end() ? std::nullopt : *found;
}

/// What is wrong with a price that the menu does not have yet.
Fault priceFault(const ImportLine& line)
{
    return line.number.decimals > priceDecimals
        ? Fault(Sentences::tr("Prix : plus de deux décimales"))
        : std::nullopt;
}

/// Decides about one line at a time.
class MenuPlanner
{
public:
    MenuPlanner(ImportPlan& plan, const std::vector<Article>& articles, const QLocale& locale)
        : plan_(plan)
        , menu_(articles)
        , locale_(locale)
    {
        for (const PlannedLine& planned : plan.lines) {
            file_.add(keyOf(planned), planned.line.line);
        }
    }

    void decide(PlannedLine& planned)
    {
        const ImportLine& line = planned.line;
        const auto& known = menu_.of(line.cells.at(nameCell));
        const QString name = line.cells.at(nameCell).trimmed();
        const Fault fault = firstOf({Plans::widthFault(line),
            known.empty() ? nameFault(name) : std::nullopt,
            Plans::numberFault(line, Sentences::tr("Prix")), file_.fault(keyOf(planned)),
            known.size() > 1 ? Fault(Sentences::tr("Plusieurs fois sur le menu")) : std::nullopt});
        if (fault) {
            refuse(planned, *fault);
        } else if (known.empty()) {
            add(planned, name);
        } else {
            change(planned, known.front());
        }
    }

private:
    /// What two lines for the same article have in common.
    QString keyOf(const PlannedLine& planned) const
    {
        const QString& name = planned.line.cells.at(nameCell);
        const auto& known = menu_.of(name);
        return Plans::folded(known.empty() ? name.trimmed() : known.front().name);
    }

    static void refuse(PlannedLine& planned, const QString& fault)
    {
        planned.action = ImportAction::Refused;
        planned.remark = fault;
    }

    void add(PlannedLine& planned, const QString& name)
    {
        if (const Fault fault = priceFault(planned.line)) {
            refuse(planned, *fault);
            return;
        }
        planned.action = ImportAction::New;
        planned.isWarning = !isPrintable(name);
        if (planned.isWarning) {
            planned.remark = Sentences::tr("L'imprimante ne connaît pas tous ces caractères : "
                                           "aucun ticket ne s'imprimera avec cet article");
        }
        plan_.statements.push_back(Articles::adding(name, planned.line.number.sql).toStdString());
    }

    void change(PlannedLine& planned, const Article& article)
    {
        const QString before = Plans::storedNumber(article.price);
        const QString& after = planned.line.number.sql;
        if (before == after) {
            return;
        }
        if (const Fault fault = priceFault(planned.line)) {
            refuse(planned, *fault);
            return;
        }
        planned.action = ImportAction::Changed;
        planned.remark
            = Sentences::tr("%1 → %2").arg(Plans::shownNumber(before, priceDecimals, locale_),
                Plans::shownNumber(after, priceDecimals, locale_));
        plan_.statements.push_back(Articles::pricing(article.id, after).toStdString());
    }

    ImportPlan& plan_;
    Plans::ByName menu_;
    const QLocale& locale_;
    Plans::Repeated file_;
};
} // namespace

void Plans::planMenu(ImportPlan& plan, const std::vector<Article>& articles, const QLocale& locale)
{
    MenuPlanner planner(plan, articles, locale);
    for (PlannedLine& planned : plan.lines) {
        planner.decide(planned);
    }
}
