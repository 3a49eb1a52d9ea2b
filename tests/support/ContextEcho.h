// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Translation.h"

/// Translates every text as the name of the context that it is looked up in.
class ContextEcho : public Translation
{
public:
    QString translate(const char* context, const char*, const char*, int) const override
    {
        return QString::fromUtf8(context);
    }
};
