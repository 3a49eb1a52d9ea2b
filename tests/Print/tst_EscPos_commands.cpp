// SPDX-License-Identifier: MIT
#include "Print/escpospp/EscPos.h"
#include "tests/Print/PrinterTest.h"
#include "tests/support/TestProgram.h"

#include <QTest>

Q_DECLARE_METATYPE(std::string)

namespace {
/// What is built before main may already use the commands.
const std::string cutBeforeMain = EscPos::CUT;
} // namespace

class TestEscPosCommands : public QObject
{
    Q_OBJECT

private slots:
    void commandsAreTheirBytes_data()
    {
        QTest::addColumn<std::string>("command");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("CUT") << EscPos::CUT << QByteArray("1d564196");
        QTest::newRow("RESET") << EscPos::RESET << QByteArray("1d40");
        QTest::newRow("FONT_A") << EscPos::FONT_A << QByteArray("1b4d00");
        QTest::newRow("FONT_B") << EscPos::FONT_B << QByteArray("1b4d01");
        QTest::newRow("UNDERLINE_OFF") << EscPos::UNDERLINE_OFF << QByteArray("1b2d00");
        QTest::newRow("UNDERLINE_1_DOT") << EscPos::UNDERLINE_1_DOT << QByteArray("1b2d01");
        QTest::newRow("UNDERLINE_2_DOT") << EscPos::UNDERLINE_2_DOT << QByteArray("1b2d02");
        QTest::newRow("BOLD_ON") << EscPos::BOLD_ON << QByteArray("1b4501");
        QTest::newRow("BOLD_OFF") << EscPos::BOLD_OFF << QByteArray("1b4500");
        QTest::newRow("RECEIPT_BOLD_OFF") << EscPos::RECEIPT_BOLD_OFF << QByteArray("1b4502");
        QTest::newRow("DOUBLE_SIZE") << EscPos::DOUBLE_SIZE << QByteArray("1b2130");
        QTest::newRow("DOUBLE_WIDTH") << EscPos::DOUBLE_WIDTH << QByteArray("1b2120");
        QTest::newRow("NORMAL_TEXT") << EscPos::NORMAL_TEXT << QByteArray("1b2102");
        QTest::newRow("CENTRE") << EscPos::CENTRE << QByteArray("1b6101");
        QTest::newRow("LEFT") << EscPos::LEFT << QByteArray("1b6130");
        QTest::newRow("BITMAP") << EscPos::BITMAP << QByteArray("1b2a");
        QTest::newRow("NO_LINE") << EscPos::NO_LINE << QByteArray("1b3300");
        QTest::newRow("RESET_LINE") << EscPos::RESET_LINE << QByteArray("1b32");
    }

    void commandsAreTheirBytes()
    {
        QFETCH(std::string, command);
        QFETCH(QByteArray, bytes);
        QCOMPARE(hexOf(command), bytes);
    }

    void commandsAreReadyBeforeMain()
    {
        QCOMPARE(hexOf(cutBeforeMain), QByteArray("1d564196"));
    }
};

VENDEL_TEST(TestEscPosCommands)

#include "tst_EscPos_commands.moc"
