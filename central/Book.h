// SPDX-License-Identifier: MIT
#pragma once

#include "central/Connection.h"
#include "central/Line.h"
#include "central/OtherTill.h"
#include "central/TillLines.h"

#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

/// Lines, and what is known of the till once they are in the book.
struct Batch
{
    std::vector<Line> lines;
    /// Months whose lines are all in the book then.
    Months months;
    /// Months that the till has no lines of any more.
    std::vector<std::string> goneMonths;
    /// The till's last row, when all lines up to it are in the book then.
    std::optional<Anchor> last;
};

/// The central book, as one till writes it. What goes wrong is a BookError.
class Book
{
public:
    /// How far the till was read.
    struct Progress
    {
        /// Another one after each change.
        std::int64_t number = 0;
        Anchor last;
        Months months;
    };

    /// The book at \a uri, for the till \a identity with the name \a name.
    Book(const std::string& uri, const std::string& identity, const std::string& name);

    /// Looks again which till of the book has the identity.
    void find();
    /// Whether something that the till sold has ever arrived.
    bool hasSold() const { return hasSold_; }
    /// Enters the till, unless it is there. Refuses as requireOwn() does.
    void enter(const std::vector<Line>& sales);
    /// Refuses a till of whose first sales \a sales some are there as those of another one, and not
    /// as its own.
    void requireOwn(const std::vector<Line>& sales);
    /// The other till that has sold most of \a sales, as far as the till itself has not; nothing
    /// when there is none. Refuses several that have sold equally many.
    std::optional<OtherTill> other(const std::vector<Line>& sales);
    /// Makes the till the till \a other, whose machine is then a stranger; all is to be read again.
    /// What was sold on this machine before stays a till without one. In one transaction.
    void takeOver(const OtherTill& other);

    /// Nothing when the till is not there any more.
    std::optional<Progress> progress();

    /// Adds \a batch, computed with \a progress, which becomes the new one, in one transaction.
    /// False, and nothing is added, when another sender of the same till came first.
    bool add(const Batch& batch, Progress& progress);

    /// Replaces the till's menu, unless it is the known one.
    void setMenu(const Menu& menu);

    /// Lines that were new to the book.
    std::int64_t added() const { return added_; }
    /// Lines of the till that are kept aside, because no page can show them.
    std::int64_t oddLines();

private:
    void refuseOthers(pqxx::work& transaction, const std::vector<Line>& sales) const;
    void leave(pqxx::work& transaction) const;
    void learnNames(const std::vector<Line>& lines);
    void makeMonths(const std::vector<Line>& lines);
    std::int64_t addLines(pqxx::work& transaction, const std::vector<Line>& lines) const;
    void addOddLines(pqxx::work& transaction, const std::vector<Line>& lines) const;
    void setMonths(pqxx::work& transaction, const Batch& batch) const;

    Connection connection_;
    std::string identity_;
    std::string name_;
    /// 0 for one that is not there.
    int till_ = 0;
    bool hasSold_ = false;
    std::unordered_map<std::string, int> names_;
    std::set<std::string> months_;
    std::int64_t added_ = 0;
};
