// SPDX-License-Identifier: MIT
#include "launcher/CopyWork.h"

#include "launcher/Clock.h"
#include "launcher/Database.h"

#include <exception>

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

CopyWork::Result CopyWork::run(bool makesCopy, Backup::Pace pace) const noexcept
{
    Result result = Result::Done;
    try {
        if (makesCopy) {
            copies_.make(now(), pace);
        }
    } catch (const DatabaseError& error) {
        result = error.isAboutContent() ? Result::Damaged : Result::Failed;
    } catch (const std::exception&) {
        result = Result::Failed;
    }
    try {
        place_.carry(copies_, now());
    } catch (const std::exception&) {
        // The place is away: how long it has been is said at a start.
        return result;
    }
    return result;
}
