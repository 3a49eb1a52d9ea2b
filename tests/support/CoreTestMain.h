// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QTest>

/// The main function of a test program without windows: the tests of \a TestClass.
#define VENDEL_CORE_TEST_MAIN(TestClass)                                                           \
    int main(int argc, char* argv[])                                                               \
    {                                                                                              \
        QCoreApplication application(argc, argv);                                                  \
        TestClass tests;                                                                           \
        return QTest::qExec(&tests, argc, argv);                                                   \
    }
