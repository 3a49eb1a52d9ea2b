// SPDX-License-Identifier: MIT
#pragma once

#include "app/Application.h"

#include <QApplication>
#include <QTest>

/// The main function of a test program: an application set up like the till, then the tests of
/// \a TestClass.
#define VENDEL_TEST_MAIN(TestClass)                                                                \
    int main(int argc, char* argv[])                                                               \
    {                                                                                              \
        Application::setAttributes();                                                              \
        QApplication application(argc, argv);                                                      \
        Application::setUp(application);                                                           \
        TestClass tests;                                                                           \
        return QTest::qExec(&tests, argc, argv);                                                   \
    }
