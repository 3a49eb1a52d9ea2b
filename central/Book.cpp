// SPDX-License-Identifier: MIT
#include "central/Book.h"

#include "central/BookError.h"
#include "central/Schema.h"
#include "central/Sentences.h"
#include "central/SqlArray.h"
#include "central/Statements.h"

#include <QCryptographicHash>

#include <algorithm>

namespace {
constexpr std::size_t monthSize = 7;

std::string digestOf(const std::string& text)
{
    return QCryptographicHash::hash(QByteArray::fromStdString(text), QCryptographicHash::Sha256)
        .toHex()
        .toStdString();
}

bool isSeller(pqxx::work& transaction, int till)
{
    return transaction.exec_params(Statements::hasSold, till).at(0).at(0).as<bool>();
}
} // namespace

Book::Book(const std::string& uri, const std::string& identity, const std::string& name)
    : connection_(uri)
    , identity_(identity)
    , name_(name)
{
    find();
}

void Book::find()
{
    connection_.transact([this](pqxx::work& transaction) {
        Schema::requireCurrent(transaction);
        const auto found = transaction.exec_params(Statements::findTill, identity_);
        till_ = found.empty() ? 0 : found.at(0).at(0).as<int>();
        hasSold_ = isSeller(transaction, till_);
        if (hasSold_) {
            transaction.exec_params(Statements::nameTill, till_, name_);
        }
    });
}

void Book::refuseOthers(pqxx::work& transaction, const std::vector<Line>& sales) const
{
    if (const auto tills = OtherTill::that(transaction, till_, sales); !tills.empty()) {
        throw BookError(
            {CentralSentences::soldByAnother, {OtherTill::names(tills)}}, BookStatus::AnotherTill);
    }
}

void Book::requireOwn(const std::vector<Line>& sales)
{
    connection_.transact([&](pqxx::work& transaction) { refuseOthers(transaction, sales); });
}

void Book::enter(const std::vector<Line>& sales)
{
    connection_.transact([&](pqxx::work& transaction) {
        refuseOthers(transaction, sales);
        transaction.exec_params(Statements::addTill, identity_, name_);
        till_ = transaction.exec_params(Statements::findTill, identity_).at(0).at(0).as<int>();
        transaction.exec_params(Statements::addProgress, till_);
        transaction.exec_params(Statements::nameTill, till_, name_);
    });
}

std::optional<OtherTill> Book::other(const std::vector<Line>& sales)
{
    std::vector<OtherTill> tills;
    connection_.transact(
        [&](pqxx::work& transaction) { tills = OtherTill::that(transaction, till_, sales); });
    if (tills.empty()) {
        return std::nullopt;
    }
    std::size_t most = 0;
    for (const OtherTill& till : tills) {
        most = std::max(most, till.sales);
    }
    tills.erase(std::remove_if(tills.begin(), tills.end(),
                    [most](const OtherTill& till) { return till.sales < most; }),
        tills.end());
    if (tills.size() > 1) {
        throw BookError(
            {CentralSentences::soldBySeveral, {OtherTill::names(tills)}}, BookStatus::AnotherTill);
    }
    return tills.front();
}

/// Leaves the till without a machine; one that has sold nothing leaves the book.
void Book::leave(pqxx::work& transaction) const
{
    // A sender of this machine that is under way is waited for.
    transaction.exec_params(Statements::lockProgress, till_);
    if (transaction.exec_params(Statements::lockTill, till_, identity_).empty()) {
        // Another machine has taken its place just now.
        return;
    }
    if (isSeller(transaction, till_)) {
        transaction.exec_params(Statements::leaveTill, till_);
        transaction.exec_params(Statements::restart, till_);
        return;
    }
    for (const char* emptying : {Statements::forgetProgress, Statements::emptyMenu,
             Statements::emptyStock, Statements::emptyDoses, Statements::forgetTill}) {
        transaction.exec_params(emptying, till_);
    }
}

void Book::takeOver(const OtherTill& other)
{
    connection_.transact([&](pqxx::work& transaction) {
        // A sender of the other till that is under way is waited for.
        const auto locked = transaction.exec_params(Statements::lockProgress, other.id);
        if (locked.empty()) {
            throw BookError(CentralSentences::soldByNobody, BookStatus::AnotherTill);
        }
        Schema::refuseLater(locked.at(0).at(1).as<int>());
        if (till_ != 0) {
            leave(transaction);
        }
        const auto taken
            = transaction.exec_params(Statements::takeOver, other.id, other.identity, identity_);
        if (taken.affected_rows() == 0) {
            throw BookError(CentralSentences::soldByNobody, BookStatus::AnotherTill);
        }
        transaction.exec_params(Statements::restart, other.id);
        transaction.exec_params(Statements::forgetAllMonths, other.id);
    });
    till_ = other.id;
    hasSold_ = true;
}

std::optional<Book::Progress> Book::progress()
{
    std::optional<Progress> known;
    connection_.transact([&](pqxx::work& transaction) {
        known.reset();
        const auto found = transaction.exec_params(Statements::progress, till_);
        if (found.empty()) {
            return;
        }
        known.emplace();
        known->number = found.at(0).at(0).as<std::int64_t>();
        known->last = {found.at(0).at(1).as<std::int64_t>(), found.at(0).at(2).c_str()};
        for (const auto& row : transaction.exec_params(Statements::months, till_)) {
            known->months[row.at(0).c_str()]
                = {row.at(1).as<std::int64_t>(), row.at(2).as<std::int64_t>()};
        }
    });
    return known;
}

/// In a transaction of its own, in the order of names: two tills that learn the same names never
/// wait for each other both ways.
void Book::learnNames(const std::vector<Line>& lines)
{
    std::set<std::string> missing;
    for (const Line& line : lines) {
        if (line.isRegular() && names_.count(line.name) == 0) {
            missing.insert(line.name);
        }
    }
    if (missing.empty()) {
        return;
    }
    connection_.transact([&](pqxx::work& transaction) {
        std::set<std::string> wanted = missing;
        for (const bool isAdded : {false, true}) {
            SqlArray names;
            for (const std::string& name : wanted) {
                names.add(name);
            }
            if (isAdded) {
                transaction.exec_params(Statements::addNames, names.get());
            }
            for (const auto& row : transaction.exec_params(Statements::knownNames, names.get())) {
                names_[row.at(1).c_str()] = row.at(0).as<int>();
                wanted.erase(row.at(1).c_str());
            }
            if (wanted.empty()) {
                return;
            }
        }
    });
}

/// Before the lines' own transaction, which then holds nothing that making a table has to wait for.
/// Asked for even when it is there: the function waits for whoever has just made it, until the
/// server has told all of its sessions.
void Book::makeMonths(const std::vector<Line>& lines)
{
    std::set<std::string> missing;
    for (const Line& line : lines) {
        const std::string month = line.moment.substr(0, monthSize);
        if (line.isRegular() && months_.count(month) == 0) {
            missing.insert(month);
        }
    }
    for (const std::string& month : missing) {
        connection_.transact([&](pqxx::work& transaction) {
            transaction.exec_params(Statements::makeMonth, month + "-01");
        });
        months_.insert(month);
    }
}

std::int64_t Book::addLines(pqxx::work& transaction, const std::vector<Line>& lines) const
{
    SqlArray moments;
    SqlArray articles;
    SqlArray names;
    SqlArray prices;
    SqlArray exactPrices;
    SqlArray ordinals;
    for (const Line& line : lines) {
        if (line.isRegular()) {
            moments.add(line.moment);
            articles.add(line.article);
            names.add(names_.at(line.name));
            prices.add(line.price);
            exactPrices.add(line.exactPrice);
            ordinals.add(line.ordinal);
        }
    }
    if (moments.isEmpty()) {
        return 0;
    }
    const auto added = transaction
                           .exec_params(Statements::addLines, till_, moments.get(), articles.get(),
                               names.get(), prices.get(), exactPrices.get(), ordinals.get())
                           .at(0)
                           .at(0)
                           .as<std::int64_t>();
    if (added > 0) {
        transaction.exec_params(Statements::countUses, till_, moments.get(), names.get());
    }
    return added;
}

void Book::addOddLines(pqxx::work& transaction, const std::vector<Line>& lines) const
{
    SqlArray digests;
    SqlArray ordinals;
    SqlArray moments;
    SqlArray articles;
    SqlArray names;
    SqlArray prices;
    SqlArray exactPrices;
    for (const Line& line : lines) {
        if (!line.isRegular()) {
            digests.add(digestOf(line.content()));
            ordinals.add(line.ordinal);
            moments.add(line.moment);
            articles.add(line.article);
            names.add(line.name);
            prices.add(line.price);
            exactPrices.add(line.exactPrice);
        }
    }
    if (!digests.isEmpty()) {
        transaction.exec_params(Statements::addOddLines, till_, digests.get(), ordinals.get(),
            moments.get(), articles.get(), names.get(), prices.get(), exactPrices.get());
    }
}

void Book::setMonths(pqxx::work& transaction, const Batch& batch) const
{
    SqlArray months;
    SqlArray lines;
    SqlArray digests;
    for (const auto& [month, digest] : batch.months) {
        months.add(month);
        lines.add(digest.lines);
        digests.add(digest.sum);
    }
    if (!months.isEmpty()) {
        transaction.exec_params(
            Statements::setMonths, till_, months.get(), lines.get(), digests.get());
    }
    SqlArray gone;
    for (const std::string& month : batch.goneMonths) {
        gone.add(month);
    }
    if (!gone.isEmpty()) {
        transaction.exec_params(Statements::forgetMonths, till_, gone.get());
    }
}

bool Book::add(const Batch& batch, Progress& progress)
{
    learnNames(batch.lines);
    makeMonths(batch.lines);
    const Anchor last = batch.last.value_or(progress.last);
    bool isFirst = false;
    std::int64_t added = 0;
    connection_.transact([&](pqxx::work& transaction) {
        const auto locked = transaction.exec_params(Statements::lockProgress, till_);
        if (locked.empty()) {
            isFirst = false;
            return;
        }
        Schema::refuseLater(locked.at(0).at(1).as<int>());
        isFirst = locked.at(0).at(0).as<std::int64_t>() == progress.number;
        if (!isFirst) {
            return;
        }
        added = addLines(transaction, batch.lines);
        addOddLines(transaction, batch.lines);
        setMonths(transaction, batch);
        transaction.exec_params(Statements::setProgress, till_, last.row, last.content);
    });
    if (!isFirst) {
        return false;
    }
    added_ += added;
    ++progress.number;
    progress.last = last;
    for (const auto& [month, digest] : batch.months) {
        progress.months[month] = digest;
    }
    for (const std::string& month : batch.goneMonths) {
        progress.months.erase(month);
    }
    return true;
}

std::int64_t Book::oddLines()
{
    std::int64_t count = 0;
    connection_.transact([&](pqxx::work& transaction) {
        count = transaction.exec_params(Statements::countOddLines, till_)
                    .at(0)
                    .at(0)
                    .as<std::int64_t>();
    });
    return count;
}

void Book::setMenu(const Menu& menu)
{
    const std::string fingerprint = menu.fingerprint();
    SqlArray ids;
    SqlArray articles;
    SqlArray prices;
    for (const MenuEntry& entry : menu.articles) {
        ids.add(entry.id);
        articles.add(entry.article);
        prices.add(entry.price);
    }
    SqlArray stockIds;
    SqlArray stockArticles;
    for (const StockEntry& entry : menu.stock) {
        stockIds.add(entry.id);
        stockArticles.add(entry.article);
    }
    SqlArray doseLines;
    SqlArray doseStock;
    SqlArray compositions;
    SqlArray doses;
    SqlArray units;
    for (const DoseEntry& entry : menu.doses) {
        doseLines.add(entry.line);
        doseStock.add(entry.stockId);
        compositions.add(entry.composition);
        doses.addReal(entry.dose);
        units.add(entry.unit);
    }
    connection_.transact([&](pqxx::work& transaction) {
        const auto known = transaction.exec_params(Statements::knownMenu, till_);
        if (known.empty() || known.at(0).at(0).c_str() == fingerprint) {
            return;
        }
        for (const char* emptying :
            {Statements::emptyMenu, Statements::emptyStock, Statements::emptyDoses}) {
            transaction.exec_params(emptying, till_);
        }
        transaction.exec_params(
            Statements::addMenu, till_, ids.get(), articles.get(), prices.get());
        transaction.exec_params(Statements::addStock, till_, stockIds.get(), stockArticles.get());
        transaction.exec_params(Statements::addDoses, till_, doseLines.get(), doseStock.get(),
            compositions.get(), doses.get(), units.get());
        transaction.exec_params(Statements::setMenu, till_, fingerprint, menu.taxRate);
    });
}
