// SPDX-License-Identifier: MIT
#include "central/BookError.h"

#include "central/Sentences.h"
#include "launcher/PlainText.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <libpq-fe.h>
#include <pqxx/except>

namespace BookErrors {
namespace {
bool contains(const std::string& text, std::initializer_list<std::string_view> parts)
{
    return std::any_of(parts.begin(), parts.end(),
        [&](std::string_view part) { return text.find(part) != std::string::npos; });
}

/// The first line of what a server or its client says, without what was asked of it.
Words firstLine(const std::string& said)
{
    constexpr std::size_t longest = 160;
    return plainText(std::string_view(said).substr(0, said.find('\n')), longest);
}

/// Why there is no connection. libpq gives no code for it, and the server speaks the language that
/// it was installed in, so its sentences are known in two.
BookError notConnected(const std::string& uri, const std::string& said)
{
    namespace Says = CentralSentences;
    if (contains(said,
            {"password authentication failed", "authentification par mot de passe",
                "no password supplied"})) {
        return {Says::wrongPassword, BookStatus::Refused};
    }
    if (contains(said, {"database \"", "base de données «"})
        && contains(said, {"does not exist", "n'existe pas"})
        && !contains(said, {"role \"", "rôle «"})) {
        return {Says::noSuchDatabase, BookStatus::Refused};
    }
    if (contains(said, {"timeout expired"})) {
        return {{Says::unreachable, {Says::tooSlow}}, BookStatus::Unreachable};
    }
    if (contains(said, {"too many", "remaining connection slots", "trop de", "emplacements de"})) {
        return {{Says::unreachable, {Says::tooMany}}, BookStatus::Unreachable};
    }
    switch (PQping(uri.c_str())) {
    case PQPING_OK: {
        // "connection to server at ... failed: FATAL:  no pg_hba.conf entry ..."
        const std::size_t reason = said.find(": FATAL:");
        return {{Says::refused,
                    {firstLine(reason == std::string::npos ? said : said.substr(reason + 2))}},
            BookStatus::Refused};
    }
    case PQPING_REJECT:
        return {{Says::unreachable, {Says::startsOrEnds}}, BookStatus::Unreachable};
    case PQPING_NO_ATTEMPT:
        return {{Says::wrongUri, {uri}}, BookStatus::BadUsage};
    case PQPING_NO_RESPONSE:
        break;
    }
    return {{Says::unreachable, {Says::noServer}}, BookStatus::Unreachable};
}

/// What the server has against a statement, by its SQLSTATE.
BookError failed(const pqxx::sql_error& error)
{
    namespace Says = CentralSentences;
    const std::string& state = error.sqlstate();
    if (state == "42501" || state == "25006") {
        return {Says::noRight, BookStatus::NoRight};
    }
    if (state == "42P01" || state == "3F000" || state == "42703" || state == "42883") {
        return {Says::notPrepared, BookStatus::NotPrepared};
    }
    if (state == "53100" || state == "53200") {
        return {Says::full, BookStatus::Full};
    }
    if (state == "57014" || state == "55P03") {
        return {{Says::unreachable, {Says::tooSlow}}, BookStatus::Unreachable};
    }
    if (state.starts_with("57P") || state.starts_with("08")) {
        return {{Says::unreachable, {Says::startsOrEnds}}, BookStatus::Unreachable};
    }
    return {{Says::serverSays, {firstLine(error.what())}}, BookStatus::Failed};
}

bool isAgain(const std::string& state)
{
    // A deadlock, and two that make the same at once.
    constexpr std::array<std::string_view, 5> states{"40001", "40P01", "23505", "42P07", "42P06"};
    return std::find(states.begin(), states.end(), state) != states.end();
}
} // namespace

void translated(const std::string& uri, const std::function<void()>& work)
{
    namespace Says = CentralSentences;
    try {
        work();
    } catch (const pqxx::sql_error& error) {
        if (isAgain(error.sqlstate())) {
            throw Again();
        }
        throw failed(error);
    } catch (const pqxx::broken_connection& error) {
        throw notConnected(uri, error.what());
    } catch (const pqxx::in_doubt_error&) {
        // What the book then has is seen when it is asked again.
        throw BookError({Says::unreachable, {Says::connectionLost}}, BookStatus::Unreachable);
    } catch (const pqxx::failure& error) {
        throw BookError({Says::serverSays, {firstLine(error.what())}}, BookStatus::Failed);
    }
}
} // namespace BookErrors
