// SPDX-License-Identifier: MIT
#pragma once

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

/// Keeps the leak check off what is allocated while it lives: for an exception that a test sends
/// through Qt's own frames, which give up what they hold.
class LeakCheckPause
{
public:
    LeakCheckPause()
    {
#if defined(__SANITIZE_ADDRESS__)
        __lsan_disable();
#endif
    }
    ~LeakCheckPause()
    {
#if defined(__SANITIZE_ADDRESS__)
        __lsan_enable();
#endif
    }
    LeakCheckPause(const LeakCheckPause&) = delete;
    LeakCheckPause& operator=(const LeakCheckPause&) = delete;
    LeakCheckPause(LeakCheckPause&&) = delete;
    LeakCheckPause& operator=(LeakCheckPause&&) = delete;
};
