// SPDX-License-Identifier: MIT
#include "launcher/Reasons.h"

#include "launcher/BookStatus.h"

#include <cerrno>
#include <csignal>
#include <cstring>

#include <sqlite3.h>

namespace Reasons {
Words ofSystem(int number)
{
    switch (number) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return Sentences::diskFull;
    case EIO:
        return Sentences::diskFails;
    case EACCES:
    case EPERM:
    case EROFS:
        return Sentences::notWritable;
    case ENOMEM:
    case EAGAIN:
    case EMFILE:
    case ENFILE:
        return Sentences::machineExhausted;
    default:
        return {Sentences::systemSays, {std::strerror(number)}};
    }
}

Words ofSqlite(int code)
{
    constexpr int withoutDetails = 0xff;
    switch (code & withoutDetails) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return Sentences::occupied;
    case SQLITE_NOTADB:
        return Sentences::notDatabase;
    case SQLITE_CORRUPT:
        return Sentences::damaged;
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_CANTOPEN:
        return Sentences::notAccessible;
    case SQLITE_INTERRUPT:
        return Sentences::tooLong;
    case SQLITE_FULL:
        return Sentences::diskFull;
    case SQLITE_IOERR:
        return Sentences::diskFails;
    case SQLITE_NOMEM:
        return Sentences::machineExhausted;
    default:
        return {Sentences::systemSays, {sqlite3_errstr(code)}};
    }
}

Words ofBook(int status)
{
    constexpr int killed = 128 + SIGKILL;
    if (status == killed) {
        return Sentences::bookTooSlow;
    }
    switch (static_cast<BookStatus>(status)) {
    case BookStatus::BadUsage:
        return Sentences::bookAddressWrong;
    case BookStatus::Unreachable:
        return Sentences::bookSilent;
    case BookStatus::Refused:
        return Sentences::bookRefuses;
    case BookStatus::NoRight:
        return Sentences::notWritable;
    case BookStatus::NotPrepared:
        return Sentences::bookNotPrepared;
    case BookStatus::Later:
        return Sentences::bookLater;
    case BookStatus::Full:
        return Sentences::bookFull;
    case BookStatus::Till:
        return Sentences::bookTillUnreadable;
    case BookStatus::Folder:
        return Sentences::bookNoIdentity;
    case BookStatus::AnotherTill:
        return Sentences::bookAnotherTill;
    case BookStatus::Done:
    case BookStatus::Failed:
        break;
    }
    return Sentences::bookFails;
}
} // namespace Reasons
