// SPDX-License-Identifier: MIT
#include "launcher/TillSchema.h"

#include <algorithm>

namespace TillSchema {
namespace {
constexpr std::array<Object, 7> ownObjects{{
    {"table", "Article", "Article",
        "CREATE TABLE Article (id integer primary key autoincrement not null, article text COLLATE "
        "NOCASE not null, prix numeric not null)"},
    {"table", "ArticleStock", "ArticleStock",
        "CREATE TABLE ArticleStock (id integer primary key not null, article text COLLATE NOCASE "
        "not null)"},
    {"table", "Historique", "Historique",
        "CREATE TABLE Historique (id integer not null, article text COLLATE NOCASE not null, prix "
        "numeric not null, date_heure text not null default(strftime('%Y-%m-%d "
        "%H:%M:%f','now','localtime')))"},
    {"table", "DoseStock", "DoseStock",
        "CREATE TABLE DoseStock (idlig integer primary key not null, id integer not null, "
        "composition text COLLATE NOCASE not null, dose numeric not null, unite text not null, "
        "constraint fk_dosestock foreign key (id) references ArticleStock (id) on delete cascade)"},
    {"table", "Config", "Config",
        "CREATE TABLE Config (id integer primary key not null, param text COLLATE NOCASE not null, "
        "valeur numeric not null)"},
    {"table", "Ticket", "Ticket",
        "CREATE TABLE Ticket (idlig integer primary key not null, id integer not null, article "
        "text COLLATE NOCASE not null, prix numeric not null)"},
    {"index", "date_heure_index", "Historique",
        "CREATE INDEX date_heure_index on Historique (date_heure)"},
}};

constexpr std::array<Object, 4> sqliteObjects{{
    {"table", "sqlite_sequence", "sqlite_sequence", "CREATE TABLE sqlite_sequence(name,seq)"},
    {"table", "sqlite_stat1", "sqlite_stat1", "CREATE TABLE sqlite_stat1(tbl,idx,stat)"},
    {"table", "sqlite_stat3", "sqlite_stat3",
        "CREATE TABLE sqlite_stat3(tbl,idx,neq,nlt,ndlt,sample)"},
    {"table", "sqlite_stat4", "sqlite_stat4",
        "CREATE TABLE sqlite_stat4(tbl,idx,neq,nlt,ndlt,sample)"},
}};

constexpr char closingQuote(char opening) { return opening == '[' ? ']' : opening; }

bool isQuote(char letter)
{
    return letter == '\'' || letter == '"' || letter == '`' || letter == '[';
}

bool isBlank(char letter) { return letter == ' ' || (letter >= '\t' && letter <= '\r'); }

/// What a name or a number consists of: between two of them a blank makes a difference.
bool isWord(char letter)
{
    return (letter >= '0' && letter <= '9') || (letter >= 'a' && letter <= 'z')
        || (letter >= 'A' && letter <= 'Z') || letter == '_' || letter == '$'
        || static_cast<unsigned char>(letter) >= 0x80;
}

char lowered(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool isSame(const Object& one, const Object& other)
{
    return one.type == other.type && normalized(one.name) == normalized(other.name)
        && normalized(one.table) == normalized(other.table)
        && normalized(one.sql) == normalized(other.sql);
}
} // namespace

std::string normalized(std::string_view sql)
{
    std::string result;
    char quote = '\0';
    bool isAfterBlank = false;
    for (const char letter : sql) {
        if (quote != '\0') {
            result += letter;
            quote = letter == quote ? '\0' : quote;
            continue;
        }
        if (isBlank(letter)) {
            isAfterBlank = true;
            continue;
        }
        if (isAfterBlank && !result.empty() && isWord(result.back()) && isWord(letter)) {
            result += ' ';
        }
        isAfterBlank = false;
        quote = isQuote(letter) ? closingQuote(letter) : '\0';
        result += lowered(letter);
    }
    return result;
}

bool isOwn(const Object& object)
{
    const auto isThis = [&](const Object& known) { return isSame(known, object); };
    return std::any_of(ownObjects.begin(), ownObjects.end(), isThis)
        || std::any_of(sqliteObjects.begin(), sqliteObjects.end(), isThis);
}

bool isTillTable(const Object& object)
{
    return object.type == "table"
        && std::any_of(tables.begin(), tables.end(),
            [&](std::string_view name) { return normalized(name) == normalized(object.name); });
}
} // namespace TillSchema
