// SPDX-License-Identifier: MIT
#include "launcher/BookAddress.h"

#include "launcher/SafeFile.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <sstream>
#include <string_view>

namespace {
constexpr const char* uriName = "central";
constexpr const char* reachedName = ".central-vu";

/// \a text with each "%41" as the byte that it means.
std::string decoded(std::string_view text)
{
    constexpr int hexadecimal = 16;
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::string digits(text.substr(std::min(at + 1, text.size()), 2));
        if (text[at] == '%' && digits.size() == 2
            && digits.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos) {
            result += static_cast<char>(std::strtol(digits.c_str(), nullptr, hexadecimal));
            at += 2;
        } else {
            result += text[at];
        }
    }
    return result;
}

/// What follows "postgresql://" in \a uri.
std::string_view afterScheme(std::string_view uri)
{
    for (const std::string_view scheme : {"postgresql://", "postgres://"}) {
        if (uri.starts_with(scheme)) {
            return uri.substr(scheme.size());
        }
    }
    return {};
}

std::string firstLine(int folder, const char* name)
{
    constexpr std::size_t longest = 8192;
    std::istringstream lines(SafeFile::read(folder, name, longest).value_or(""));
    std::string line;
    std::getline(lines, line);
    return line;
}

void removeFile(int folder, const char* name)
{
    if (!SafeFile::remove(folder, name)) {
        SafeFile::fail(name);
    }
}
} // namespace

BookAddress::BookAddress(int folder)
    : folder_(folder)
{ }

bool BookAddress::isUri(const std::string& text)
{
    constexpr std::size_t longest = 4096;
    const auto isPlain = [](unsigned char letter) { return letter > ' ' && letter != 0x7f; };
    return text.size() <= longest && !afterScheme(text).empty()
        && std::all_of(text.begin(), text.end(), isPlain);
}

bool BookAddress::hasPassword(const std::string& uri)
{
    const std::string_view rest = afterScheme(uri);
    // As PostgreSQL's client reads it: a user and a password end at the first "@" before any "/".
    const std::string_view authority = rest.substr(0, rest.find('/'));
    const std::size_t user = authority.find('@');
    if (user != std::string_view::npos) {
        if (authority.substr(0, user).find(':') != std::string_view::npos) {
            return true;
        }
    } else {
        // A password that has a "/" in it is none for the client, but one for people.
        const std::string_view head = rest.substr(0, rest.find('?'));
        const std::size_t colon = head.find(':');
        if (colon != std::string_view::npos && head.find('@', colon) != std::string_view::npos) {
            return true;
        }
    }
    const std::size_t query = rest.find('?');
    std::istringstream settings(
        query == std::string_view::npos ? std::string() : std::string(rest.substr(query + 1)));
    for (std::string setting; std::getline(settings, setting, '&');) {
        const std::string key = decoded(setting.substr(0, setting.find('=')));
        if (key == "password" || key == "sslpassword") {
            return true;
        }
    }
    return false;
}

std::string BookAddress::shown(const std::string& text)
{
    std::string head = text.substr(0, text.find('?'));
    const std::size_t host = text.rfind('@');
    if (host == std::string::npos) {
        return head;
    }
    const std::size_t slashes = text.find("//");
    const std::size_t user = slashes < host ? slashes + 2 : 0;
    const std::string rest = text.substr(host);
    return text.substr(0, user) + "…" + rest.substr(0, rest.find('?'));
}

std::string BookAddress::uri() const
{
    const std::string found = firstLine(folder_, uriName);
    return isUri(found) ? found : std::string();
}

void BookAddress::remember(const std::string& uri) const
{
    if (uri != this->uri()) {
        removeFile(folder_, reachedName);
    }
    SafeFile::write(folder_, uriName, uri + '\n', SafeFile::Existing::Replace);
}

void BookAddress::forget() const
{
    removeFile(folder_, uriName);
    removeFile(folder_, reachedName);
    SafeFile::sync(folder_);
}

std::string BookAddress::lastReached() const { return firstLine(folder_, reachedName); }

bool BookAddress::isLongAway(const Moment& moment) const
{
    constexpr long patience = 7;
    constexpr std::size_t daySize = 10;
    const std::string reached = lastReached();
    return reached.size() < daySize
        || daysBetween(reached.substr(0, daySize), moment.day) >= patience;
}

void BookAddress::noteReached(const Moment& moment) const
{
    SafeFile::write(folder_, reachedName, stamp(moment) + '\n', SafeFile::Existing::Replace);
}
