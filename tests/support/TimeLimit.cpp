// SPDX-License-Identifier: MIT
#include <QTest>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace {
/// Ends the process when one test function, or one row of its data, takes longer than \a limit.
/// Qt Test's own limit misses the step from one function to the next and may count both as one.
[[noreturn]] void watch(std::chrono::seconds limit)
{
    using Clock = std::chrono::steady_clock;
    const char* function = nullptr;
    const char* row = nullptr;
    Clock::time_point start = Clock::now();
    for (;;) {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        if (function != QTest::currentTestFunction() || row != QTest::currentDataTag()) {
            function = QTest::currentTestFunction();
            row = QTest::currentDataTag();
            start = Clock::now();
        } else if (function != nullptr && Clock::now() - start > limit) {
            std::fprintf(stderr, "%s(%s) does not end within %d seconds\n", function,
                row == nullptr ? "" : row, static_cast<int>(limit.count()));
            std::abort();
        }
    }
}

/// Started before main, for every test program whatever its main function; by hand, and in a
/// debugger, a test has no limit.
[[maybe_unused]] const bool isWatched = [] {
    const int seconds = qEnvironmentVariableIntValue("VENDEL_TEST_SECONDS");
    if (seconds > 0) {
        std::thread(watch, std::chrono::seconds(seconds)).detach();
    }
    return seconds > 0;
}();
} // namespace
