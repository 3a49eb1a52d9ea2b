// SPDX-License-Identifier: MIT
#include "base/Handle.h"
#include "central/BookError.h"
#include "central/Sentences.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <string_view>

#include <libpq-fe.h>
#include <poll.h>
#include <pqxx/except>

namespace BookErrors {
namespace {
namespace Says = CentralSentences;

/// How one more try to connect ends. The server speaks the language that it was installed in, so
/// only its codes can be told apart.
struct Answer
{
    bool isConnected = false;
    bool lacksPassword = false;
    /// The server's SQLSTATE; empty when it was not the server that ended the try.
    std::string state;
};

/// The last SQLSTATE in \a said, whose lines end like "FATAL:  28P01".
std::string stateIn(std::string_view said)
{
    constexpr std::string_view mark = ":  ";
    constexpr std::size_t size = 5;
    std::string found;
    for (std::size_t at = said.find(mark); at != std::string_view::npos;
         at = said.find(mark, at + 1)) {
        const std::string_view state = said.substr(at + mark.size(), size);
        const bool isWhole = state.size() == size
            && state.find_first_not_of("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ")
                == std::string_view::npos;
        if (isWhole) {
            found = state;
        }
    }
    return found;
}

bool isUnderWay(PostgresPollingStatusType status)
{
    return status == PGRES_POLLING_READING || status == PGRES_POLLING_WRITING;
}

/// Goes on with \a connection until it is made or has failed, for some seconds.
PostgresPollingStatusType finish(PGconn& connection)
{
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::seconds patience(10);
    const auto due = Clock::now() + patience;
    auto status
        = PQstatus(&connection) == CONNECTION_BAD ? PGRES_POLLING_FAILED : PGRES_POLLING_WRITING;
    while (isUnderWay(status)) {
        const auto left
            = std::chrono::duration_cast<std::chrono::milliseconds>(due - Clock::now()).count();
        const short event = status == PGRES_POLLING_READING ? POLLIN : POLLOUT;
        pollfd socket{PQsocket(&connection), event, 0};
        const int ready = left > 0 ? poll(&socket, 1, static_cast<int>(left)) : 0;
        if (ready == 0 || (ready < 0 && errno != EINTR)) {
            break;
        }
        if (ready > 0) {
            status = PQconnectPoll(&connection);
        }
    }
    return status;
}

Answer ask(const std::string& uri)
{
    const Handle<PGconn, PQfinish> connection(PQconnectStart(uri.c_str()));
    if (!connection) {
        return {};
    }
    PQsetErrorVerbosity(connection.get(), PQERRORS_SQLSTATE);
    Answer answer;
    answer.isConnected = finish(*connection) == PGRES_POLLING_OK;
    answer.lacksPassword = PQconnectionNeedsPassword(connection.get()) != 0;
    answer.state = stateIn(PQerrorMessage(connection.get()));
    return answer;
}

BookError unreachable(const Sentence& why)
{
    return {{Says::unreachable, {why}}, BookStatus::Unreachable};
}

/// What follows "connection to server at ... failed: " and the severity in \a said.
std::string_view reasonIn(std::string_view said)
{
    for (const std::string_view mark : {": FATAL:  ", " failed: "}) {
        const std::size_t at = said.find(mark);
        if (at != std::string_view::npos) {
            return said.substr(at + mark.size());
        }
    }
    return said;
}

BookError refusedByServer(const std::string& state, const std::string& said)
{
    if (state == "28P01") {
        return {Says::wrongPassword, BookStatus::Refused};
    }
    if (state == "3D000") {
        return {Says::noSuchDatabase, BookStatus::Refused};
    }
    if (state == "53100") {
        return {Says::full, BookStatus::Full};
    }
    if (state.starts_with("53")) {
        return unreachable(Says::tooMany);
    }
    if (state.starts_with("57P")) {
        return unreachable(Says::startsOrEnds);
    }
    return {{Says::refused, {firstLine(reasonIn(said))}}, BookStatus::Refused};
}

/// What PostgreSQL's client itself has against it. It has no codes; it speaks English, as no
/// language is set for it.
BookError refusedByClient(const std::string& uri, const std::string& said)
{
    const std::string_view reason = reasonIn(said);
    const auto says = [reason](std::initializer_list<std::string_view> parts) {
        return std::any_of(parts.begin(), parts.end(),
            [&](std::string_view part) { return reason.find(part) != std::string_view::npos; });
    };
    const Handle<PQconninfoOption, PQconninfoFree> settings(PQconninfoParse(uri.c_str(), nullptr));
    if (!settings || says({"invalid "})) {
        return {{Says::wrongUri, {uri.substr(0, uri.find('?'))}}, BookStatus::BadUsage};
    }
    if (says({"SYSCALL", "closed unexpectedly", "closed the connection"})) {
        return unreachable(Says::connectionLost);
    }
    if (says({"SSL", "certificate"})) {
        return {{Says::notSecure, {firstLine(reason)}}, BookStatus::Refused};
    }
    if (says({"session is ", "server is "}) && !says({"Is the server "})) {
        return {{Says::refused, {firstLine(reason)}}, BookStatus::Refused};
    }
    return unreachable(Says::noServer);
}

BookError notConnected(const std::string& uri, const std::string& said)
{
    if (said.find("timeout expired") != std::string::npos) {
        return unreachable(Says::tooSlow);
    }
    const Answer answer = ask(uri);
    // What the client has against a setting may be nothing for a try that does not need it.
    if (answer.isConnected && said.find("invalid ") == std::string::npos) {
        return unreachable(Says::connectionLost);
    }
    if (answer.lacksPassword) {
        return {Says::wrongPassword, BookStatus::Refused};
    }
    return answer.state.empty() ? refusedByClient(uri, said) : refusedByServer(answer.state, said);
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
} // namespace BookErrors
