// SPDX-License-Identifier: MIT
#include "central/Shop.h"

#include "central/BookError.h"
#include "central/Identity.h"
#include "central/Sentences.h"
#include "launcher/BookAddress.h"
#include "launcher/DataFolder.h"

#include <system_error>

#include <fcntl.h>

namespace {
Descriptor opened(const std::string& path)
{
    Descriptor folder(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder || faccessat(folder.get(), ".", W_OK | X_OK, AT_EACCESS) != 0) {
        throw Refusal({CentralSentences::noTill, {path}}, static_cast<int>(BookStatus::Folder));
    }
    return folder;
}
} // namespace

CentralShop::CentralShop(const CentralOrder& order)
    : path_(order.folder.empty() ? DataFolder::find() : order.folder)
    , folder_(opened(path_))
    , uri_(order.uri.empty() ? BookAddress(folder_.get()).uri() : order.uri)
{
    if (uri_.empty()) {
        throw Refusal(CentralSentences::noUri, static_cast<int>(BookStatus::BadUsage));
    }
    Connection::requireUri(uri_);
    identity_ = Identity::digest(folder_.get(), path_);
    name_ = Identity::name(folder_.get(), path_, order.name);
}

void CentralShop::setName(const std::string& name) const
{
    Identity::name(folder_.get(), path_, name);
}

void CentralShop::noteReached() const
{
    try {
        const BookAddress address(folder_.get());
        if (address.uri() == uri_) {
            address.noteReached(now());
        }
    } catch (const std::system_error&) {
        return;
    }
}
