// SPDX-License-Identifier: MIT
#include "central/Sender.h"

#include "central/Sentences.h"
#include "launcher/BookStatus.h"
#include "launcher/Refusal.h"

#include <algorithm>
#include <iterator>

namespace {
constexpr int tries = 10;

/// Another sender of the same till was quicker: what it has done has to be asked for.
struct Overtaken
{ };

void append(std::vector<Line>& lines, std::vector<Line> more)
{
    lines.insert(
        lines.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

[[noreturn]] void refuse()
{
    throw Refusal(CentralSentences::disturbed, static_cast<int>(BookStatus::Till));
}
} // namespace

std::vector<Line> Sender::firstSales()
{
    for (int count = 0; count < tries; ++count) {
        try {
            till_.state();
            return till_.firstSales();
        } catch (const TillDatabase::Replaced&) {
            continue;
        }
    }
    refuse();
}

void Sender::sendLines(Depth depth)
{
    for (int count = 0; count < tries; ++count) {
        try {
            if (!book_.hasSold()) {
                book_.enter(firstSales());
            }
            const int file = till_.state().file;
            if (attempt(depth) && till_.state().file == file) {
                return;
            }
        } catch (const TillDatabase::Replaced&) {
            depth = Depth::All;
            continue;
        } catch (const Overtaken&) {
            // Another machine may have taken the till's place.
            book_.find();
            continue;
        }
        depth = Depth::All;
    }
    refuse();
}

/// False when the till's database changed meanwhile in a way that only a new start can follow.
bool Sender::attempt(Depth depth)
{
    const std::optional<Book::Progress> known = book_.progress();
    if (!known) {
        throw Overtaken();
    }
    Book::Progress progress = *known;
    if (progress.number > 0 && progress.last.row == 0) {
        // There is no line yet that shows whose database it is.
        book_.requireOwn(firstSales());
    }
    if (sendBehind(progress)) {
        return depth == Depth::New || sendChanged(progress, progress.last);
    }
    return sendChanged(progress, till_.last());
}

/// Sends what is behind the last line that was sent. False when that line is not there any more.
bool Sender::sendBehind(Book::Progress& progress)
{
    if (progress.number == 0) {
        return false;
    }
    for (;;) {
        Batch batch;
        Anchor last = progress.last;
        bool isEnd = false;
        while (!isEnd && batch.lines.size() < batchLines) {
            auto some = till_.behind(last);
            if (!some) {
                return false;
            }
            isEnd = some->empty();
            const Anchor before = last;
            for (const Line& line : *some) {
                if (line.row > before.row) {
                    batch.months.try_emplace(line.month, progress.months[line.month])
                        .first->second.add(line);
                }
                if (line.row > last.row) {
                    last = {line.row, line.content()};
                }
            }
            // Lines that were sent before come again with others of their moment; alone, they
            // would come for ever.
            isEnd = isEnd || last == before;
            append(batch.lines, std::move(*some));
        }
        if (last == progress.last) {
            return true;
        }
        batch.last = last;
        add(batch, progress);
    }
}

/// Sends the months up to the row \a last that are not what they were when they were sent.
bool Sender::sendChanged(Book::Progress& progress, const Anchor& last)
{
    const Months found = till_.months(last.row);
    std::vector<std::string> changed;
    for (const auto& [month, digest] : found) {
        const auto known = progress.months.find(month);
        if (known == progress.months.end() || !(known->second == digest)) {
            changed.push_back(month);
        }
    }
    if (!changed.empty() && progress.number > 0) {
        // The database may be a copy of another till's by now.
        book_.requireOwn(firstSales());
    }
    for (const std::string& month : changed) {
        sendMonth(month, last, progress);
    }
    Batch batch;
    for (const auto& [month, digest] : progress.months) {
        if (found.count(month) == 0) {
            batch.goneMonths.push_back(month);
        }
    }
    if (!till_.behind(last)) {
        return false;
    }
    if (progress.number == 0 || !batch.goneMonths.empty() || !(last == progress.last)) {
        batch.last = last;
        add(batch, progress);
    }
    return true;
}

void Sender::sendMonth(const std::string& month, const Anchor& last, Book::Progress& progress)
{
    Batch batch;
    Digest digest;
    till_.ofMonth(month, last.row, [&](std::vector<Line> lines) {
        for (const Line& line : lines) {
            digest.add(line);
        }
        append(batch.lines, std::move(lines));
        if (batch.lines.size() >= batchLines) {
            requireThere(last);
            add(batch, progress);
            batch.lines.clear();
        }
    });
    batch.months[month] = digest;
    requireThere(last);
    add(batch, progress);
}

/// What was read up to \a last is the same till's only if that line is still there.
void Sender::requireThere(const Anchor& last)
{
    if (!till_.has(last)) {
        throw TillDatabase::Replaced();
    }
}

void Sender::add(const Batch& batch, Book::Progress& progress)
{
    if (!book_.add(batch, progress)) {
        throw Overtaken();
    }
}

void Sender::sendMenu()
{
    for (int count = 0; count < tries; ++count) {
        try {
            const TillDatabase::State before = till_.state();
            const Menu menu = till_.menu();
            if (till_.state() == before) {
                book_.setMenu(menu);
                return;
            }
        } catch (const TillDatabase::Replaced&) {
            continue;
        }
    }
    refuse();
}
