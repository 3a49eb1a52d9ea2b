// SPDX-License-Identifier: MIT
#include "central/Connection.h"

#include "central/BookError.h"
#include "central/Sentences.h"
#include "central/Statements.h"
#include "launcher/BookAddress.h"

#include <string_view>

namespace {
/// A database in \a encoding. One in SQL_ASCII keeps bytes as they are.
void requireAllLetters(const std::string& encoding)
{
    if (encoding != "UTF8" && encoding != "SQL_ASCII") {
        throw BookError({CentralSentences::notUtf8, {encoding}}, BookStatus::NotPrepared);
    }
}

class Working
{
public:
    Working(Limit& limit, int socket)
        : limit_(limit)
    {
        limit_.begin(socket);
    }
    Working(const Working&) = delete;
    Working& operator=(const Working&) = delete;
    Working(Working&&) = delete;
    Working& operator=(Working&&) = delete;
    ~Working() { limit_.end(); }

private:
    Limit& limit_;
};
} // namespace

Connection::Connection(std::string uri, std::chrono::seconds patience)
    : uri_(patient(uri))
    , limit_(patience)
{
    requireUri(uri);
    BookErrors::whileConnecting(
        uri_, [this] { connection_ = std::make_unique<pqxx::connection>(uri_); });
}

void Connection::requireUri(const std::string& uri)
{
    namespace Says = CentralSentences;
    if (!BookAddress::isUri(uri)) {
        throw BookError({Says::wrongUri, {BookAddress::shown(uri)}}, BookStatus::BadUsage);
    }
    if (BookAddress::hasPassword(uri)) {
        throw BookError(Says::passwordInUri, BookStatus::BadUsage);
    }
}

void Connection::transact(const std::function<void(pqxx::work&)>& work)
{
    constexpr int tries = 8;
    for (int count = 1;; ++count) {
        try {
            BookErrors::whileWorking([&] {
                const Working working(limit_, connection_->sock());
                pqxx::work transaction(*connection_);
                requireAllLetters(transaction.exec(Statements::begin).at(0).at(0).c_str());
                work(transaction);
                transaction.commit();
            });
            return;
        } catch (const BookErrors::Again&) {
            if (count == tries) {
                throw BookError({CentralSentences::unreachable, {CentralSentences::tooSlow}},
                    BookStatus::Unreachable);
            }
        }
    }
}

std::string Connection::patient(const std::string& uri)
{
    std::string result = uri;
    for (const std::string_view setting :
        {"connect_timeout=10", "keepalives_idle=20", "keepalives_interval=5", "keepalives_count=4",
            "tcp_user_timeout=40000", "application_name=vendel-central"}) {
        const std::string key(setting.substr(0, setting.find('=') + 1));
        if (uri.find(key) == std::string::npos) {
            result += result.find('?') == std::string::npos ? '?' : '&';
            result += setting;
        }
    }
    return result;
}
