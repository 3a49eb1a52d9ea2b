// SPDX-License-Identifier: MIT
#include "backoffice/menu/CopyProcess.h"

#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
// Whoever gave up rights is not allowed to look for leaks.
extern "C" int __lsan_is_turned_off(); // NOLINT(bugprone-reserved-identifier)
extern "C" int __lsan_is_turned_off() { return geteuid() == getuid() ? 0 : 1; } // NOLINT
#endif

int main(int argc, char** argv) { return CopyProcess::asked(argc, argv).value_or(EXIT_FAILURE); }
