// SPDX-License-Identifier: MIT
#include "launcher/CopyWork.h"

#include "launcher/Clock.h"
#include "launcher/Database.h"

#include <cerrno>
#include <exception>
#include <system_error>

CopyWork::CopyWork(int folder)
    : copies_(folder)
    , place_(folder)
{ }

bool CopyWork::isChanged() const noexcept
{
    try {
        return copies_.isChanged();
    } catch (const std::exception&) {
        return true;
    }
}

CopyWork::Made CopyWork::make(Backup::Pace pace) const noexcept
{
    try {
        copies_.make(now(), pace);
        return Made::Done;
    } catch (const DatabaseError& error) {
        const bool isTillBusy = pace == Backup::Pace::Gentle && error.code() == SQLITE_BUSY;
        return isTillBusy                 ? Made::Later
            : !error.isAboutContent()     ? Made::Failed
            : error.code() == SQLITE_AUTH ? Made::Foreign
                                          : Made::Damaged;
    } catch (const std::exception&) {
        return Made::Failed;
    }
}

int CopyWork::carry() const noexcept
{
    try {
        return place_.carry(copies_, now()) ? 0 : isAway;
    } catch (const std::system_error& error) {
        // Without a folder any more, the stick was pulled out: it is away.
        const int number = error.code().value();
        return number == ENOENT || number == ENODEV ? isAway : number;
    } catch (const std::exception&) {
        return ENOMEM;
    }
}
