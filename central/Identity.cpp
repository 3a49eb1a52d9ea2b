// SPDX-License-Identifier: MIT
#include "central/Identity.h"

#include "central/Sentences.h"
#include "launcher/BookStatus.h"
#include "launcher/PlainText.h"
#include "launcher/Reasons.h"
#include "launcher/Refusal.h"
#include "launcher/SafeFile.h"

#include <QByteArray>
#include <QCryptographicHash>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace Identity {
namespace {
constexpr const char* secretName = ".identite";
constexpr const char* nameName = "central-nom";
constexpr int secretBytes = 32;
constexpr std::size_t longestName = 200;

Refusal notMade(const std::string& path, int number)
{
    return Refusal({CentralSentences::identityNotMade, {path, Reasons::ofSystem(number)}},
        static_cast<int>(BookStatus::Folder));
}

/// The secret, as hexadecimal digits and a line's end.
QByteArray newSecret()
{
    std::array<char, secretBytes> bytes{};
    if (getentropy(bytes.data(), bytes.size()) != 0) {
        SafeFile::fail("getentropy");
    }
    return QByteArray(bytes.data(), secretBytes).toHex() + '\n';
}

/// Two senders may start at once: the first one's secret stays.
void make(int folder, const std::string& path)
{
    try {
        constexpr int markSize = 16;
        const std::string mark = newSecret().left(markSize).toStdString();
        SafeFile::Temporary part(folder, secretName + ("." + mark));
        part.write(newSecret().toStdString());
        part.become(secretName, SafeFile::Existing::Keep);
    } catch (const std::system_error& error) {
        if (error.code().value() != EEXIST) {
            throw notMade(path, error.code().value());
        }
    }
}

bool isSecret(const std::string& text)
{
    return text.size() == 2 * secretBytes + 1 && text.back() == '\n'
        && text.find_first_not_of("0123456789abcdef") == text.size() - 1;
}

std::string hostName()
{
    std::array<char, 256> host{};
    gethostname(host.data(), host.size() - 1);
    return host.data();
}

/// \a text without its line's end and what no list could show.
std::string plainName(std::string text)
{
    text.resize(std::min(text.find('\n'), text.size()));
    return plainText(text, longestName);
}

std::string knownName(int folder)
{
    constexpr std::size_t longest = 4096;
    return plainName(SafeFile::read(folder, nameName, longest).value_or(""));
}

void remember(int folder, const std::string& path, const std::string& name)
{
    try {
        SafeFile::write(folder, nameName, name + '\n', SafeFile::Existing::Replace);
    } catch (const std::system_error& error) {
        throw notMade(path, error.code().value());
    }
}
} // namespace

std::string digest(int folder, const std::string& path)
{
    try {
        if (!SafeFile::exists(folder, secretName)) {
            make(folder, path);
        }
    } catch (const std::system_error& error) {
        throw notMade(path, error.code().value());
    }
    constexpr std::size_t longest = 4096;
    const std::string secret = SafeFile::read(folder, secretName, longest).value_or("");
    if (!isSecret(secret)) {
        throw Refusal(
            {CentralSentences::identityDamaged, {path}}, static_cast<int>(BookStatus::Folder));
    }
    return QCryptographicHash::hash(QByteArray::fromStdString(secret), QCryptographicHash::Sha256)
        .toHex()
        .toStdString();
}

std::string name(int folder, const std::string& path, const std::string& asked)
{
    std::string wanted = plainName(asked);
    if (!wanted.empty()) {
        remember(folder, path, wanted);
        return wanted;
    }
    const std::string known = knownName(folder);
    return known.empty() ? plainName(hostName()) : known;
}
} // namespace Identity
