// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

/// What became of an article since the shop opened.
enum class Fate
{
    Sold,
    /// Taken off the menu; its stock copy and its recipe are still there.
    Withdrawn,
    /// On the menu, but not yet carried into the stock.
    New
};

/// An article of the sample shop. Its place in the menu, counted from 1, is its key.
struct SampleArticle
{
    const char* name;
    int cents;
    /// How often it is sold, against the other articles.
    int weight;
    Fate fate = Fate::Sold;
};

/// One line of an article's recipe.
struct SampleDose
{
    const char* article;
    const char* composition;
    double dose;
    const char* unit;
};

/// The articles in the order in which the shop entered them; all characters are in code page 858.
const std::vector<SampleArticle>& sampleMenu();

/// The name of the article that took the withdrawn one's place; it has no recipe yet.
constexpr const char* sampleSuccessor = "Bière blonde";

/// The recipes; an article without one consumes nothing.
const std::vector<SampleDose>& sampleRecipes();
