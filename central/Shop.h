// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"
#include "central/Order.h"
#include "central/Sender.h"

#include <string>

/// A till as it sends: its folder, who it is, and where its book is.
class CentralShop
{
public:
    /// The one that \a order names. Throws Refusal.
    explicit CentralShop(const CentralOrder& order);

    /// Its data folder.
    QString path() const { return QString::fromStdString(path_); }
    const std::string& uri() const { return uri_; }

    /// The book, opened for this till. Throws BookError.
    Book book() const { return Book(uri_, identity_, name_); }
    /// Remembers \a name as the till's. Throws Refusal.
    void setName(const std::string& name) const;
    /// Notes that the book has been reached; a folder that is full does not matter.
    void noteReached() const;

private:
    std::string path_;
    Descriptor folder_;
    std::string uri_;
    std::string identity_;
    std::string name_;
};
