// SPDX-License-Identifier: MIT
#include "demo/SampleShop.h"

#include "db/Db.h"
#include "demo/SampleMenu.h"
#include "demo/SampleSales.h"

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace {
constexpr std::chrono::days salesFor{35};
constexpr std::chrono::days withdrawnFor{14};

constexpr const char* header = "titre:Café de l'Étoile\n"
                               "12, place du Marché\n"
                               "26400 Crest\n"
                               "Tél. 01 99 00 12 34";
constexpr const char* footer = "\n"
                               "Service compris - menu du jour à 14,50 €\n"
                               "Merci de votre visite, à bientôt !\n"
                               "titre:Bonne journée";

void run(const std::string& sql)
{
    if (!Db::DbTransact({sql})) {
        throw std::runtime_error("the database cannot be filled");
    }
}

std::string quoted(const std::string& text)
{
    std::string result = "'";
    for (const char c : text) {
        result += c == '\'' ? "''" : std::string(1, c);
    }
    return result + "'";
}

std::string amount(int cents)
{
    std::ostringstream text;
    text << cents / 100.0;
    return text.str();
}

/// Collects the rows of one insert: a statement is a transaction, and a row each would take long.
class Insert
{
public:
    explicit Insert(const std::string& head)
        : head_(head)
    { }

    template <class First, class... Others> void add(const First& first, const Others&... others)
    {
        rows_ << (isEmpty_ ? " values (" : ", (") << first;
        ((rows_ << ", " << others), ...);
        rows_ << ')';
        isEmpty_ = false;
    }

    /// Does nothing without rows.
    void run() const
    {
        if (!isEmpty_) {
            ::run(head_ + rows_.str());
        }
    }

private:
    std::string head_;
    std::ostringstream rows_;
    bool isEmpty_ = true;
};

void fillMenu()
{
    Insert articles("insert into Article (id, article, prix)");
    Insert stock("insert into ArticleStock (id, article)");
    int id = 0;
    for (const auto& article : sampleMenu()) {
        ++id;
        if (article.fate != Fate::Withdrawn) {
            articles.add(id, quoted(article.name), amount(article.cents));
        }
        if (article.fate != Fate::New) {
            stock.add(id, quoted(article.name));
        }
    }
    articles.run();
    stock.run();
}

int keyOf(const std::string& name)
{
    int id = 0;
    for (const auto& article : sampleMenu()) {
        ++id;
        if (article.name == name) {
            return id;
        }
    }
    throw std::logic_error("a recipe of an article that the shop does not have: " + name);
}

void fillRecipes()
{
    Insert doses("insert into DoseStock (id, composition, dose, unite)");
    for (const auto& dose : sampleRecipes()) {
        doses.add(keyOf(dose.article), quoted(dose.composition), dose.dose, quoted(dose.unit));
    }
    doses.run();
}

void fillHistory(std::chrono::sys_days until)
{
    Insert sales("insert into Historique (id, article, prix, date_heure)");
    for (auto day = until - salesFor; day < until; day += std::chrono::days(1)) {
        for (const auto& sale : sampleSales(day, day < until - withdrawnFor)) {
            sales.add(sale.id, quoted(sale.article), amount(sale.cents), quoted(sale.when));
        }
    }
    sales.run();
}

void writeFile(const char* name, const char* text)
{
    std::ofstream file(name, std::ios::binary);
    if (!(file << text).flush()) {
        throw std::runtime_error(std::string("cannot write ") + name);
    }
}
} // namespace

void makeSampleShop(std::chrono::sys_days until)
{
    Db::DbCreate();
    run("update Config set valeur = 20 where param = 'TVA'");
    fillMenu();
    fillRecipes();
    fillHistory(until);
    writeFile("EnteteFormulaire.dat", header);
    writeFile("PiedFormulaire.dat", footer);
}
