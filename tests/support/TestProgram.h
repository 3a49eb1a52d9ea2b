// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

/// A class of tests in the list that its program runs one from.
struct TestEntry
{
    using Run = int (*)(int argc, char** argv);

    /// \a file names the tests: "tst_Money.cpp" are the tests "Money".
    TestEntry(const char* file, Run tests, bool likeTheTill);

    QByteArray name;
    Run run;
    /// Whether the application is set up like the till before the tests run.
    bool isLikeTheTill;
};

/// The entry that \a argv names first, without which \a argc and \a argv are left for Qt Test;
/// lists all tests on standard error and ends the program when it names none.
const TestEntry& chosenTest(int& argc, char** argv);

/// Runs the tests of \a TestClass, which has no argument.
template <class TestClass> int runTests(int argc, char** argv)
{
    TestClass tests;
    return QTest::qExec(&tests, argc, argv);
}

#define VENDEL_TEST_ENTRY(TestClass, file, isLikeTheTill)                                          \
    static const TestEntry entryOf##TestClass(file, runTests<TestClass>, isLikeTheTill);

/// Makes \a TestClass the tests of its file, in an application set up like the till.
#define VENDEL_TEST(TestClass) VENDEL_TEST_ENTRY(TestClass, __FILE_NAME__, true)

/// The same, in an application that nobody has set up.
#define VENDEL_BARE_TEST(TestClass) VENDEL_TEST_ENTRY(TestClass, __FILE_NAME__, false)
