// SPDX-License-Identifier: MIT
#include "Print/escpospp/EscPos.h"
#include "tests/Print/PrinterTest.h"
#include "tests/support/TestProgram.h"

namespace {
/// What is built before main may already use the commands.
const std::string cutBeforeMain = EscPos::CUT;
} // namespace

class TestEscPosCommands : public QObject
{
    Q_OBJECT

private slots:
    void commandsAreTheirBytes()
    {
        QCOMPARE(hexOf(EscPos::CUT), QByteArray("1d564196"));
        QCOMPARE(hexOf(EscPos::RESET), QByteArray("1d40"));
        QCOMPARE(hexOf(EscPos::FONT_A), QByteArray("1b4d00"));
        QCOMPARE(hexOf(EscPos::FONT_B), QByteArray("1b4d01"));
        QCOMPARE(hexOf(EscPos::UNDERLINE_OFF), QByteArray("1b2d00"));
        QCOMPARE(hexOf(EscPos::UNDERLINE_1_DOT), QByteArray("1b2d01"));
        QCOMPARE(hexOf(EscPos::UNDERLINE_2_DOT), QByteArray("1b2d02"));
        QCOMPARE(hexOf(EscPos::BOLD_ON), QByteArray("1b4501"));
        QCOMPARE(hexOf(EscPos::BOLD_OFF), QByteArray("1b4500"));
        QCOMPARE(hexOf(EscPos::RECEIPT_BOLD_OFF), QByteArray("1b4502"));
        QCOMPARE(hexOf(EscPos::DOUBLE_SIZE), QByteArray("1b2130"));
        QCOMPARE(hexOf(EscPos::DOUBLE_WIDTH), QByteArray("1b2120"));
        QCOMPARE(hexOf(EscPos::NORMAL_TEXT), QByteArray("1b2102"));
        QCOMPARE(hexOf(EscPos::CENTRE), QByteArray("1b6101"));
        QCOMPARE(hexOf(EscPos::LEFT), QByteArray("1b6130"));
        QCOMPARE(hexOf(EscPos::BITMAP), QByteArray("1b2a"));
        QCOMPARE(hexOf(EscPos::NO_LINE), QByteArray("1b3300"));
        QCOMPARE(hexOf(EscPos::RESET_LINE), QByteArray("1b32"));
    }

    void commandsAreReadyBeforeMain() { QCOMPARE(hexOf(cutBeforeMain), QByteArray("1d564196")); }
};

VENDEL_TEST(TestEscPosCommands)
#include "tst_EscPos_commands.moc"
