// SPDX-License-Identifier: MIT
#include "demo/SampleShop.h"

#include "demo/SampleMenu.h"
#include "demo/SampleSales.h"
#include "store/BulkInsert.h"
#include "store/Database.h"
#include "store/Settings.h"

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace {
constexpr std::chrono::days withdrawnFor{14};

constexpr const char* header = "titre:Café de l'Étoile\n"
                               "12, place du Marché\n"
                               "26400 Crest\n"
                               "Tél. 01 99 00 12 34";
constexpr const char* footer = "\n"
                               "Service compris - menu du jour à 14,50 €\n"
                               "Merci de votre visite, à bientôt !\n"
                               "titre:Bonne journée";

std::string quoted(const std::string& text) { return BulkInsert::quoted(text); }

std::string amount(int cents)
{
    std::ostringstream text;
    text << cents / 100.0;
    return text.str();
}

void fillMenu()
{
    BulkInsert articles("insert into Article (id, article, prix)");
    BulkInsert stock("insert into ArticleStock (id, article)");
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
    BulkInsert doses("insert into DoseStock (id, composition, dose, unite)");
    for (const auto& dose : sampleRecipes()) {
        doses.add(keyOf(dose.article), quoted(dose.composition), dose.dose, quoted(dose.unit));
    }
    doses.run();
}

void fillHistory(std::chrono::sys_days until, std::chrono::days salesFor)
{
    BulkInsert sales("insert into Historique (id, article, prix, date_heure)");
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

void makeSampleShop(std::chrono::sys_days until, std::chrono::days salesFor)
{
    Database::createIfMissing();
    Settings::setTaxRate(QStringLiteral("20"));
    fillMenu();
    fillRecipes();
    fillHistory(until, salesFor);
    writeFile("EnteteFormulaire.dat", header);
    writeFile("PiedFormulaire.dat", footer);
}
