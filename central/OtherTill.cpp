// SPDX-License-Identifier: MIT
#include "central/OtherTill.h"

#include "central/SqlArray.h"
#include "central/Statements.h"
#include "launcher/PlainText.h"

#include <map>
#include <set>

namespace {
constexpr std::size_t longestName = 200;

/// Whether \a found, places in the list of first sales, are more than chance. With a thousand sales
/// in ten hours, one millisecond of 36,000 has a sale: that a given sale is another till's as well
/// is as rare even where one article is sold at one price. Once is no proof, as many are compared.
/// That the first two of a history are both there happens once in a billion times, and three of the
/// 36 of a year about as rarely.
bool isProof(const std::set<int>& found)
{
    constexpr std::size_t enough = 3;
    return found.size() >= enough || (found.count(1) == 1 && found.count(2) == 1);
}
} // namespace

std::vector<OtherTill> OtherTill::that(
    pqxx::work& transaction, int own, const std::vector<Line>& sales)
{
    if (sales.empty()) {
        return {};
    }
    SqlArray moments;
    SqlArray articles;
    SqlArray names;
    SqlArray prices;
    SqlArray exactPrices;
    for (const Line& line : sales) {
        moments.add(line.moment);
        articles.add(line.article);
        names.add(line.name);
        prices.add(line.price);
        exactPrices.add(line.exactPrice);
    }
    struct Found
    {
        OtherTill till;
        std::set<int> places;
    };
    std::map<int, Found> found;
    for (const auto& row : transaction.exec_params(Statements::tillsWithSales, moments.get(),
             articles.get(), names.get(), prices.get(), exactPrices.get())) {
        const int id = row.at(0).as<int>();
        Found& one = found.try_emplace(id).first->second;
        one.till = {id, row.at(1).c_str(), row.at(2).c_str()};
        one.places.insert(row.at(3).as<int>());
    }
    const std::set<int> known = found[own].places;
    found.erase(own);
    std::vector<OtherTill> tills;
    for (auto& [id, one] : found) {
        for (const int place : known) {
            one.places.erase(place);
        }
        if (isProof(one.places)) {
            one.till.sales = one.places.size();
            tills.push_back(one.till);
        }
    }
    return tills;
}

std::string OtherTill::names(const std::vector<OtherTill>& tills)
{
    std::string all;
    for (const OtherTill& till : tills) {
        all += (all.empty() ? "" : ", ") + plainText(till.name, longestName);
    }
    return all;
}
