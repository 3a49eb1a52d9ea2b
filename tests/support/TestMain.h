// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/BoxGuard.h"
#include "widgets/Application.h"

#include <QApplication>
#include <QTest>

/// The main function of a test program: an application set up like the till, then the tests of
/// \a TestClass. A message box that no test expects fails it.
#define VENDEL_TEST_MAIN(TestClass)                                                                \
    int main(int argc, char* argv[])                                                               \
    {                                                                                              \
        Application::setAttributes();                                                              \
        QApplication application(argc, argv);                                                      \
        Application::setUp(application);                                                           \
        const BoxGuard guard;                                                                      \
        TestClass tests;                                                                           \
        return QTest::qExec(&tests, argc, argv);                                                   \
    }
