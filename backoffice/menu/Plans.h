// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/menu/ImportPlan.h"
#include "store/Articles.h"
#include "store/Recipes.h"
#include "store/Snapshot.h"

#include <map>
#include <optional>
#include <set>
#include <vector>

/// What the plans for the menu and for recipes share.
namespace Plans {
/// \a name as the till compares names: without regard to the case of A to Z.
QString folded(QString name);

/// A stored number as WrittenNumber writes it; what is none stays as it is.
QString storedNumber(const QString& stored);
/// \a sql with at least \a decimals digits and the marks of \a locale.
QString shownNumber(const QString& sql, int decimals, const QLocale& locale);

/// What is wrong with the number of \a line, if anything: none, two meanings, too long.
std::optional<QString> numberFault(const ImportLine& line, const QString& column);
/// That fields are left over in \a line, if there are.
std::optional<QString> widthFault(const ImportLine& line);

/// The lines of a file by what must be in it only once.
class Repeated
{
public:
    void add(const QString& key, int line) { lines_[key].push_back(line); }
    /// That \a key is on several lines, if it is.
    std::optional<QString> fault(const QString& key) const;

private:
    std::map<QString, std::vector<int>> lines_;
};

/// The menu by its articles' names; nothing keeps it from having a name several times.
class ByName
{
public:
    explicit ByName(const std::vector<Article>& articles);

    /// The articles that a cell with \a name means: as it is, or without blanks around it.
    const std::vector<Article>& of(const QString& name) const;

private:
    std::map<QString, std::vector<Article>> articles_;
};

/// What is stored of the menu, and of the recipes where they are asked for.
struct Stock
{
    std::vector<Article> articles;
    std::vector<RecipeLine> recipes;
    /// The ids of the articles on the menu that the stock lacks.
    std::set<QString> missing;

    /// Reads it; what \a snapshot is of may have changed since. Throws ImportError when the
    /// database does not answer.
    static Stock read(Snapshot::Part part, const Snapshot& snapshot);
};

/// What is stored at present. Throws ImportError when the database does not answer.
Snapshot present(Snapshot::Part part);

/// Decides about \a plan's lines one by one; \a articles is the menu.
void planMenu(ImportPlan& plan, const std::vector<Article>& articles, const QLocale& locale);

/// The same for recipes.
void planRecipes(ImportPlan& plan, const Stock& stock, const QLocale& locale);
} // namespace Plans
