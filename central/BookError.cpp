// SPDX-License-Identifier: MIT
#include "central/BookError.h"

#include "central/Sentences.h"
#include "launcher/PlainText.h"

#include <algorithm>
#include <array>

#include <pqxx/except>

namespace BookErrors {
namespace {
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

Words firstLine(std::string_view said)
{
    constexpr std::size_t longest = 160;
    return plainText(said.substr(0, said.find('\n')), longest);
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
