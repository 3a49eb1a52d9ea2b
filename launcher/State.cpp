// SPDX-License-Identifier: MIT
#include "launcher/State.h"

#include "launcher/Aside.h"
#include "launcher/BookAddress.h"
#include "launcher/CopyChoice.h"
#include "launcher/DatabaseLook.h"
#include "launcher/DataFolder.h"
#include "launcher/PlainText.h"
#include "launcher/SafeFile.h"
#include "launcher/SecondPlace.h"
#include "launcher/Trouble.h"
#include "Print/escpospp/PrinterBus.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <system_error>
#include <utility>

#include <fcntl.h>

namespace {
constexpr const char* separator = ", ";

/// Gathers what there is to say, one part after the other: none of them ends the others.
class Look
{
public:
    Look(const std::string& data, const Moment& moment, const State::Limits& limits)
        : data_(data)
        , moment_(moment)
        , limits_(limits)
        , folder_(open(data.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
        , folderError_(errno)
    { }

    void run(const std::string& version);

    std::vector<Words> takeLines() { return std::move(lines_); }
    int status() const { return topics_.empty() ? 0 : 1; }

private:
    void say(const Words& line) { lines_.push_back(line); }
    /// The last line will say that \a topic needs a hand.
    void needsHand(const Sentence& topic) { topics_.emplace_back(topic); }

    void lookAtFolder();
    std::optional<Words> folderFault() const;
    void lookAtDatabase();
    void lookAtCopies();
    void lookAtSecondPlace();
    void lookAtBook();
    void lookAtLog();
    void lookAtPrinter();
    void conclude();
    Words newestIn(const SecondPlace& place, bool& isAway) const;

    const std::string& data_;
    const Moment& moment_;
    const State::Limits& limits_;
    const Aside aside_;
    const Descriptor folder_;
    const int folderError_;
    bool isTillOpen_ = false;
    bool isOnPaper_ = false;
    std::vector<Words> lines_;
    std::vector<Words> topics_;
};

void Look::run(const std::string& version)
{
    isTillOpen_ = folder_ && DataFolder::isLocked(folder_.get());
    say({isTillOpen_ ? Sentences::stateTillOpen : Sentences::stateTillClosed, {version}});
    lookAtFolder();
    // Without their folder there is nothing to say of them.
    if (folder_ && fchdir(folder_.get()) == 0) {
        lookAtDatabase();
        lookAtCopies();
        lookAtSecondPlace();
        lookAtBook();
        lookAtLog();
    }
    lookAtPrinter();
    conclude();
}

void Look::lookAtFolder()
{
    if (data_.empty()) {
        say(Sentences::noHome);
        needsHand(Sentences::topicFolder);
        return;
    }
    const Words path(plainText(data_, data_.size()));
    if (const auto fault = folderFault()) {
        say({Sentences::stateFolderFault, {path, *fault}});
        needsHand(Sentences::topicFolder);
    } else {
        say({Sentences::stateFolder, {path}});
    }
}

/// What would keep the till from using the folder.
std::optional<Words> Look::folderFault() const
{
    if (!folder_) {
        if (folderError_ == ENOENT) {
            return Sentences::nothingYet;
        }
        return folderError_ == ENOTDIR ? Sentences::notDirectory : Sentences::notReadable;
    }
    SafeFile::Status found{};
    if (fstat(folder_.get(), &found) != 0
        || faccessat(folder_.get(), ".", R_OK | X_OK, AT_EACCESS) != 0) {
        return Sentences::notReadable;
    }
    if (found.st_uid != geteuid()) {
        return Sentences::notOurs;
    }
    if (faccessat(folder_.get(), ".", W_OK, AT_EACCESS) != 0) {
        return Sentences::notWritable;
    }
    return std::nullopt;
}

void Look::lookAtDatabase()
{
    DatabaseLook look;
    try {
        look = DatabaseLook::at(folder_.get(), isTillOpen_, aside_, limits_.database);
    } catch (const std::system_error& error) {
        look.verdict = DatabaseLook::Verdict::Unchecked;
        look.reason = Words(error.code().message());
    }
    isOnPaper_ = look.isOnPaper;
    const Words size = look.size.empty() ? Words(Sentences::unknownSize) : Words(look.size);
    switch (look.verdict) {
    case DatabaseLook::Verdict::Sound:
        say({Sentences::stateDatabaseSound, {size}});
        return;
    case DatabaseLook::Verdict::Missing:
        say(Sentences::stateDatabaseMissing);
        break;
    case DatabaseLook::Verdict::Unusable:
        say({Sentences::stateDatabaseUnusable, {size, look.reason}});
        break;
    case DatabaseLook::Verdict::Unchecked:
        say({Sentences::stateDatabaseUnchecked, {size, look.reason}});
        break;
    }
    needsHand(Sentences::topicDatabase);
}

void Look::lookAtCopies()
{
    constexpr std::size_t shown = 3;
    Descriptor shelf(openat(folder_.get(), "copies", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    try {
        if (!shelf && errno != ENOENT) {
            SafeFile::fail("copies");
        }
        const auto all
            = shelf ? CopyShelf(std::move(shelf)).entries() : std::vector<CopyShelf::Entry>();
        std::string newest;
        for (std::size_t back = 1; back <= std::min(shown, all.size()); ++back) {
            const CopyName& copy = all[all.size() - back].name;
            SafeFile::Status found{};
            stat(("copies/" + copy.file()).c_str(), &found);
            newest += (newest.empty() ? "" : separator) + copy.stem + " ("
                + CopyChoice::readableSize(static_cast<unsigned long long>(found.st_size)) + ')';
        }
        if (!all.empty()) {
            say({Sentences::stateCopies, {std::to_string(all.size()), newest}});
            const bool isOld = daysBetween(all.back().name.day, moment_.day) > 1;
            if (isOld && Copies(folder_.get()).isChanged()) {
                needsHand(Sentences::topicCopies);
            }
            return;
        }
        say(Sentences::stateNoCopies);
    } catch (const std::system_error&) {
        say(Sentences::stateCopiesUnreadable);
    }
    needsHand(Sentences::topicCopies);
}

/// The newest copy in \a place, found by another process: a share that is gone may hang for ever.
Words Look::newestIn(const SecondPlace& place, bool& isAway) const
{
    const auto newest = aside_.run(limits_.place, [&] {
        const auto all = place.entries().value();
        return all.empty() ? std::string() : all.back().name.stem;
    });
    isAway = !newest;
    return newest.value_or("").empty() ? Words(Sentences::noCopyThere) : Words(*newest);
}

void Look::lookAtSecondPlace()
{
    const SecondPlace place(folder_.get());
    const std::string path = place.path();
    if (path.empty() && faccessat(folder_.get(), "copies-vers", R_OK, AT_EACCESS) != 0
        && errno != ENOENT) {
        say(Sentences::statePlaceUnreadable);
        needsHand(Sentences::topicPlace);
        return;
    }
    if (path.empty()) {
        say(Sentences::stateNoPlace);
        return;
    }
    bool isAway = false;
    const Words newest = newestIn(place, isAway);
    const Words shown(plainText(path, path.size()));
    const Words reached(plainText(place.lastReached(), moment_.day.size()));
    if (isAway) {
        say({Sentences::statePlaceAway, {shown, reached}});
    } else {
        say({Sentences::statePlace, {shown, reached, newest}});
    }
    if (place.isLongAway(moment_)) {
        needsHand(Sentences::topicPlace);
    }
}

/// Only of a shop that has one.
void Look::lookAtBook()
{
    const BookAddress book(folder_.get());
    if (book.uri().empty()) {
        return;
    }
    const Words uri(plainText(book.uri(), book.uri().size()));
    const Words reached(plainText(book.lastReached(), stamp(moment_).size()));
    if (reached.french.empty()) {
        say({Sentences::stateBookNever, {uri}});
    } else {
        say({Sentences::stateBook, {uri, reached}});
    }
    if (book.isLongAway(moment_)) {
        needsHand(Sentences::topicBook);
    }
}

void Look::lookAtLog()
{
    constexpr std::size_t shown = 3;
    std::optional<std::vector<std::string>> found;
    try {
        found = Trouble::last(folder_.get(), shown);
    } catch (const std::system_error&) {
        found.reset();
    }
    if (!found) {
        say(Sentences::stateLogUnreadable);
        needsHand(Sentences::topicLog);
        return;
    }
    say(found->empty() ? Sentences::stateNoTrouble : Sentences::stateTrouble);
    for (const std::string& line : *found) {
        say("  " + plainText(line));
    }
    // The log goes back for months. What is older than a day has been served with since, and would
    // be called trouble for ever.
    if (std::any_of(found->begin(), found->end(),
            [&](const std::string& line) { return Trouble::isFresh(line, moment_); })) {
        needsHand(Sentences::topicLog);
    }
}

void Look::lookAtPrinter()
{
    // The bus is looked at by another process, because a device that hangs holds up its list.
    const auto answer = aside_.run(limits_.printer, [] {
        std::string reason;
        const auto state = PrinterBus::look(PrinterBus::receiptPrinter, reason);
        return std::to_string(static_cast<int>(state)) + reason;
    });
    const auto state
        = answer ? static_cast<PrinterBus::State>(answer->at(0) - '0') : PrinterBus::State::NoBus;
    const std::string reason = answer ? answer->substr(1) : std::string();
    const Words why = reason.empty() ? Words(Sentences::noAnswer) : Words(reason);
    switch (state) {
    case PrinterBus::State::Ready:
        say(Sentences::statePrinterReady);
        return;
    case PrinterBus::State::Forbidden:
        say(Sentences::statePrinterForbidden);
        needsHand(Sentences::topicPrinter);
        return;
    case PrinterBus::State::Closed:
        say({Sentences::statePrinterClosed, {why}});
        needsHand(Sentences::topicPrinter);
        return;
    case PrinterBus::State::Absent:
        say(isOnPaper_ ? Sentences::statePrinterMissing : Sentences::statePrinterAbsent);
        break;
    case PrinterBus::State::NoBus:
        say({Sentences::stateNoBus, {why}});
        break;
    }
    // A shop may have none, and shows its receipts on the screen then.
    if (isOnPaper_) {
        needsHand(Sentences::topicPrinter);
    }
}

void Look::conclude()
{
    if (topics_.empty()) {
        say(Sentences::stateWell);
        return;
    }
    Words all("");
    for (const Words& topic : topics_) {
        all.french += (all.french.empty() ? "" : separator) + topic.french;
        all.english += (all.english.empty() ? "" : separator) + topic.english;
    }
    say({Sentences::stateNeedsHand, {all}});
}
} // namespace

State::State(
    const std::string& version, const std::string& data, const Moment& moment, const Limits& limits)
{
    Look look(data, moment, limits);
    look.run(version);
    lines = look.takeLines();
    status = look.status();
}
