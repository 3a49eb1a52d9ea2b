// SPDX-License-Identifier: MIT
#include "base/Descriptor.h"
#include "launcher/BookAddress.h"
#include "launcher/DataFolder.h"
#include "launcher/Guide.h"
#include "launcher/Order.h"
#include "launcher/Places.h"
#include "launcher/PlainText.h"
#include "launcher/Reasons.h"
#include "launcher/Refusal.h"
#include "launcher/Restore.h"
#include "launcher/SecondPlace.h"
#include "launcher/Shop.h"
#include "launcher/Speech.h"
#include "launcher/StartCheck.h"
#include "launcher/State.h"
#include "launcher/TillSize.h"
#include "launcher/Watch.h"

#include <clocale>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>

namespace {
/// Where everything is, relative to this program, so that an installed tree can be moved.
Places findPlaces()
{
    const std::string here = std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
    const std::string program = here + "/" + VENDEL_PROGRAM;
    const std::filesystem::path guide(here + "/" + VENDEL_GUIDE);
    return {program, program + "-dialogue", here + "/" + VENDEL_SHARED, here + "/vendel-central",
        guide.lexically_normal().string()};
}

const std::string& usage(Language language, const std::string& data)
{
    static std::string text;
    text = say(language, {Sentences::usage, {data.empty() ? "~/.local/share/vendel" : data}});
    return text;
}

int start(const Order& order, DataFolder& folder, const Places& places, const Speech& speech)
{
    if (access(places.program.c_str(), X_OK) != 0) {
        throw Refusal({Sentences::programMissing, {places.program}});
    }
    Shop::provideFiles(folder, places);
    Shop::applyLanguage(folder, places, speech, order.language);
    if (order.size) {
        order.size->remember(folder);
    }
    StartCheck::database(folder, speech);
    const bool isCopied = StartCheck::copy(folder, speech);
    StartCheck::secondPlace(folder, speech);
    return Watch(folder, speech, places.program, places.central, !isCopied, {}).run();
}

bool isWithin(const std::string& path, const std::string& folder)
{
    return (path + '/').starts_with(folder + '/');
}

/// Remembers where copies go as well. The till may be open meanwhile.
void changeSecondPlace(const Order& order, const std::string& data, const Speech& speech)
{
    std::error_code none;
    const std::string path
        = order.folder == "-" ? "" : std::filesystem::canonical(order.folder, none).string();
    const bool isFolder = !path.empty() && path.find('\n') == std::string::npos
        && std::filesystem::is_directory(path, none) && access(path.c_str(), W_OK | X_OK) == 0;
    if (order.folder != "-" && !isFolder) {
        throw Refusal({Sentences::noSuchFolder, {order.folder}});
    }
    DataFolder folder(data);
    if (isFolder && isWithin(path, std::filesystem::canonical(data, none).string())) {
        throw Refusal({Sentences::folderOfData, {path}});
    }
    const SecondPlace place(folder.get());
    try {
        if (isFolder) {
            place.remember(path, now());
        } else {
            place.forget();
        }
    } catch (const SecondPlace::NotWritable&) {
        throw Refusal({Sentences::noSuchFolder, {order.folder}});
    } catch (const std::system_error&) {
        throw folder.unusable(Sentences::notWritable);
    }
    speech.done(isFolder ? Words(Sentences::copiesGoTo, {path}) : Words(Sentences::copiesStay));
}

/// Remembers where sales are sent to. The till may be open meanwhile.
void changeBook(
    const std::string& uri, const std::string& data, const Places& places, const Speech& speech)
{
    if (uri != "-" && !BookAddress::isUri(uri)) {
        throw Refusal({Sentences::noBookUri, {plainText(BookAddress::shown(uri))}});
    }
    if (BookAddress::hasPassword(uri)) {
        throw Refusal(Sentences::passwordInBookUri);
    }
    const DataFolder folder(data);
    const BookAddress address(folder.get());
    try {
        if (uri == "-") {
            address.forget();
            speech.done(Sentences::bookForgotten);
            return;
        }
        address.remember(uri);
    } catch (const std::system_error&) {
        throw folder.unusable(Sentences::notWritable);
    }
    const bool isInstalled = access(places.central.c_str(), X_OK) == 0;
    speech.done(
        {isInstalled ? Sentences::bookRemembered : Sentences::bookRememberedForLater, {uri}});
}

/// Says how the shop is. It is read out on the telephone, so there is no box.
int tellState(const std::string& data, const Speech& speech)
{
    const State state(VENDEL_VERSION, data, now(), {});
    for (const Words& line : state.lines) {
        std::cout << say(speech.language(), line) << '\n';
    }
    return state.status;
}

int act(const Order& order, const std::string& data, const Places& places, const Speech& speech)
{
    switch (order.action) {
    case Action::Help:
        std::cout << usage(speech.language(), data);
        return 0;
    case Action::Guide:
        Guide::open(places.guide, speech);
        return 0;
    case Action::Version:
        std::cout << "Vendel " << VENDEL_VERSION << '\n';
        return 0;
    case Action::SecondPlace:
        changeSecondPlace(order, data, speech);
        return 0;
    case Action::Book:
        changeBook(order.book, data, places, speech);
        return 0;
    case Action::State:
        return tellState(data, speech);
    case Action::Start:
    case Action::Restore:
        break;
    }
    DataFolder folder(data);
    folder.lock();
    try {
        folder.close();
        order.size.value_or(TillSize::remembered(folder.get())).apply(speech);
        if (order.action == Action::Start) {
            return start(order, folder, places, speech);
        }
        Restore::run(folder, speech, order.copy);
        return 0;
    } catch (const std::system_error& error) {
        throw folder.unusable(Reasons::ofSystem(error.code().value()));
    }
}

/// Whether \a order asks for no other language and size than the till has.
bool isAsRemembered(const Order& order, const std::string& data)
{
    const Descriptor folder(open(data.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return (!order.language || *order.language == DataFolder::language(data))
        && (!order.size || *order.size == TillSize::remembered(folder.get()));
}

/// What a program may count on, whoever starts it.
void prepare()
{
    std::setlocale(LC_NUMERIC, "");
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGCHLD, SIG_DFL);
    int descriptor = 0;
    do {
        // The till inherits what fills a gap.
        descriptor = open("/dev/null", O_RDWR); // NOLINT(android-cloexec-open)
    } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    close(descriptor);
}
} // namespace

int main(int argc, char* argv[])
{
    constexpr int badUsage = 2;
    prepare();
    const std::string data = DataFolder::find();
    Order order;
    try {
        order = parseOrder({argv + 1, argv + argc});
    } catch (const BadUsage& mistake) {
        std::cerr << usage(mistake.language.value_or(DataFolder::language(data)), data);
        return badUsage;
    }
    if (order.action != Action::Guide) {
        // The till's own files, too, are for its user alone; what a browser saves is not.
        constexpr mode_t othersMayNothing = 077;
        umask(othersMayNothing);
    }
    const Places places = findPlaces();
    const Speech speech(order.language.value_or(DataFolder::language(data)), places.dialogue);
    try {
        return act(order, data, places, speech);
    } catch (const AlreadyOpen& open) {
        const bool isShown = order.action == Action::Start && speech.show(open.till());
        // What else was asked for is not done, and has to be said.
        if (isShown && isAsRemembered(order, data)) {
            return 0;
        }
        speech.error(open.words());
        return open.status();
    } catch (const Refusal& refusal) {
        speech.error(refusal.words());
        return refusal.status();
    } catch (const std::exception& error) {
        std::cerr << "vendel: " << error.what() << '\n';
        return 1;
    }
}
