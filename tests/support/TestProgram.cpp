// SPDX-License-Identifier: MIT
#include "tests/support/TestProgram.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {
std::vector<TestEntry>& entries()
{
    static std::vector<TestEntry> list;
    return list;
}
} // namespace

TestEntry::TestEntry(const char* file, Run tests, bool likeTheTill)
    : name(file)
    , run(tests)
    , isLikeTheTill(likeTheTill)
{
    name.replace("tst_", "").replace(".cpp", "");
    entries().push_back(*this);
}

const TestEntry& chosenTest(int& argc, char** argv)
{
    const auto found = std::find_if(entries().begin(), entries().end(),
        [&](const TestEntry& entry) { return argc > 1 && entry.name == argv[1]; });
    if (found == entries().end()) {
        std::fprintf(stderr, "usage: %s TESTS [Qt Test's arguments], TESTS being one of:\n", *argv);
        for (const TestEntry& entry : entries()) {
            std::fprintf(stderr, "  %s\n", entry.name.constData());
        }
        std::exit(2);
    }
    std::rotate(argv + 1, argv + 2, argv + argc + 1);
    --argc;
    return *found;
}
