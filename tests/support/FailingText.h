// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Translation.h"

#include <stdexcept>

/// Fails at the look-up of one text while it lives, as any part of a slot might fail.
class FailingText : public Translation
{
public:
    explicit FailingText(const char* text)
        : text_(QString::fromUtf8(text))
    { }

    QString translate(const char*, const char* source, const char*, int) const override
    {
        if (QString::fromUtf8(source) == text_) {
            throw std::runtime_error("no text");
        }
        return {};
    }

private:
    QString text_;
};
