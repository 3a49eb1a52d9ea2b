// SPDX-License-Identifier: MIT
#include "tests/support/BoxGuard.h"
#include "tests/support/TestProgram.h"
#include "widgets/Application.h"

#include <QApplication>

/// A program of tests of windows: a message box that no test expects fails it.
int main(int argc, char* argv[])
{
    const TestEntry& test = chosenTest(argc, argv);
    Application::setAttributes();
    QApplication application(argc, argv);
    if (test.isLikeTheTill) {
        Application::setUp(application);
    }
    const BoxGuard guard;
    return test.run(argc, argv);
}
