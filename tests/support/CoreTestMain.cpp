// SPDX-License-Identifier: MIT
#include "tests/support/TestProgram.h"

#include <QCoreApplication>

/// A program of tests that open no window.
int main(int argc, char* argv[])
{
    const TestEntry& test = chosenTest(argc, argv);
    const QCoreApplication application(argc, argv);
    return test.run(argc, argv);
}
