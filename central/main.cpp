// SPDX-License-Identifier: MIT
#include "central/BookError.h"
#include "central/Follower.h"
#include "central/Order.h"
#include "central/Schema.h"
#include "central/Sentences.h"
#include "central/Shop.h"
#include "launcher/DataFolder.h"

#include <QCoreApplication>
#include <QTranslator>

#include <clocale>
#include <csignal>
#include <iostream>

#include <sys/stat.h>

namespace {
void print(std::ostream& stream, Language language, const Words& words)
{
    stream << say(language, words) << std::endl;
}

void sendOnce(const CentralOrder& order, Language language)
{
    const CentralShop shop(order);
    TillLines till(shop.path(), {}, Timing::ofTheMachine());
    // A till that cannot be read is said before a server that is not there.
    till.state();
    Book book = shop.book();
    Sender sender(book, till);
    sender.sendLines(Sender::Depth::All);
    sender.sendMenu();
    const std::int64_t odd = book.oddLines();
    shop.noteReached();
    print(std::cout, language, {CentralSentences::sent, {std::to_string(book.added())}});
    if (odd > 0) {
        print(std::cout, language, {CentralSentences::oddLines, {std::to_string(odd)}});
    }
}

void takeOver(const CentralOrder& order, Language language)
{
    const CentralShop shop(order);
    TillLines till(shop.path(), {}, Timing::ofTheMachine());
    till.state();
    Book book = shop.book();
    const std::optional<OtherTill> other = book.other(Sender(book, till).firstSales());
    if (!other && book.hasSold()) {
        print(std::cout, language, CentralSentences::nothingToTakeOver);
        return;
    }
    if (!other) {
        throw BookError(CentralSentences::soldByNobody, BookStatus::AnotherTill);
    }
    if (order.name.empty()) {
        // Before the book knows it: a till that is cut off here still has the other one's name.
        shop.setName(other->name);
    }
    book.takeOver(*other);
    print(std::cout, language, {CentralSentences::takenOver, {OtherTill::names({*other})}});
}

void act(const CentralOrder& order, Language language)
{
    switch (order.action) {
    case CentralAction::Prepare:
        Schema::prepare(order.uri);
        print(std::cout, language, CentralSentences::prepared);
        break;
    case CentralAction::Send:
        sendOnce(order, language);
        break;
    case CentralAction::TakeOver:
        takeOver(order, language);
        sendOnce(order, language);
        break;
    case CentralAction::Follow: {
        Ending ending;
        const CentralShop shop(order);
        Follower(shop, ending, {}, [language](const Words& words) {
            print(std::cerr, language, words);
        }).run();
        break;
    }
    case CentralAction::Help:
        std::cout << say(language, {CentralSentences::usage, {DataFolder::find()}});
        break;
    case CentralAction::Version:
        std::cout << "Vendel " << VENDEL_VERSION << '\n';
        break;
    }
}

int run(int argc, char* argv[])
{
    CentralOrder order;
    const Language usual = DataFolder::language(DataFolder::find());
    try {
        order = parseCentralOrder({argv + 1, argv + argc});
    } catch (const CentralBadUsage& mistake) {
        std::cerr << say(
            mistake.language.value_or(usual), {CentralSentences::usage, {DataFolder::find()}});
        return static_cast<int>(BookStatus::BadUsage);
    }
    const Language language = order.language.value_or(
        order.folder.empty() ? usual : DataFolder::language(order.folder));
    // What is said of the till's database comes from the back office.
    QTranslator english;
    if (language == Language::English
        && english.load(QStringLiteral("gestion_en"), QStringLiteral(":/i18n"))) {
        QCoreApplication::installTranslator(&english);
    }
    try {
        act(order, language);
        return static_cast<int>(BookStatus::Done);
    } catch (const Refusal& refusal) {
        print(std::cerr, language, refusal.words());
        return refusal.status();
    } catch (const SalesError& error) {
        print(std::cerr, language, error.sentence().toStdString());
        return static_cast<int>(BookStatus::Till);
    } catch (const std::exception& error) {
        std::cerr << "vendel-central: " << error.what() << '\n';
        return static_cast<int>(BookStatus::Failed);
    }
}
} // namespace

int main(int argc, char* argv[])
{
    constexpr mode_t othersMayNothing = 077;
    umask(othersMayNothing);
    std::signal(SIGPIPE, SIG_IGN);
    const QCoreApplication application(argc, argv);
    // Why there is no connection is only known by what PostgreSQL's client says of it, in English.
    std::setlocale(LC_MESSAGES, "C");
    std::setlocale(LC_NUMERIC, "C");
    return run(argc, argv);
}
