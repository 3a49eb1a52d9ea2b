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
    if (contains(said, {"invalid "})) {
        return {{Says::wrongUri, {uri.substr(0, uri.find('?'))}}, BookStatus::BadUsage};
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
    case PQPING_NO_RESPONSE:
        break;
    }
    return {{Says::unreachable, {Says::noServer}}, BookStatus::Unreachable};
}

template <class Kind> bool is(const pqxx::sql_error& error)
{
    return dynamic_cast<const Kind*>(&error) != nullptr;
}

/// What the server has against a statement. The client library keeps the SQLSTATE of some errors
/// only, and has a class for the others.
BookError failed(const pqxx::sql_error& error)
{
    namespace Says = CentralSentences;
    const std::string& state = error.sqlstate();
    if (is<pqxx::insufficient_privilege>(error) || state == "42501" || state == "25006") {
        return {Says::noRight, BookStatus::NoRight};
    }
    if (is<pqxx::undefined_table>(error) || is<pqxx::undefined_column>(error)
        || is<pqxx::undefined_function>(error) || state == "3F000") {
        return {Says::notPrepared, BookStatus::NotPrepared};
    }
    if (is<pqxx::insufficient_resources>(error) || state.starts_with("53")) {
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

/// Whether two have made the same at once.
bool isAgain(const pqxx::sql_error& error)
{
    constexpr std::array<std::string_view, 5> states{"40001", "40P01", "23505", "42P07", "42P06"};
    return is<pqxx::unique_violation>(error)
        || std::find(states.begin(), states.end(), error.sqlstate()) != states.end();
}

/// What the book then has is seen when it is asked again.
BookError cut()
{
    return {{CentralSentences::unreachable, {CentralSentences::connectionLost}},
        BookStatus::Unreachable};
}
} // namespace

void whileConnecting(const std::string& uri, const std::function<void()>& connect)
{
    try {
        connect();
    } catch (const pqxx::failure& error) {
        throw notConnected(uri, error.what());
    }
}

void whileWorking(const std::function<void()>& work)
{
    try {
        work();
    } catch (const pqxx::sql_error& error) {
        if (isAgain(error)) {
            throw Again();
        }
        throw failed(error);
    } catch (const pqxx::transaction_rollback&) {
        throw Again();
    } catch (const pqxx::broken_connection&) {
        throw cut();
    } catch (const pqxx::in_doubt_error&) {
        throw cut();
    } catch (const pqxx::failure& error) {
        throw BookError(
            {CentralSentences::serverSays, {firstLine(error.what())}}, BookStatus::Failed);
    }
}
} // namespace BookErrors
