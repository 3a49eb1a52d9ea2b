// SPDX-License-Identifier: MIT
#include "central/Order.h"
#include "tests/support/TestProgram.h"

namespace {
bool isBad(const std::vector<std::string>& arguments)
{
    try {
        parseCentralOrder(arguments);
    } catch (const CentralBadUsage&) {
        return true;
    }
    return false;
}
} // namespace

class TestCentralOrder : public QObject
{
    Q_OBJECT

private slots:
    void aBookIsPrepared()
    {
        const CentralOrder order = parseCentralOrder({"--preparer", "postgresql://machine/base"});
        QVERIFY(order.action == CentralAction::Prepare);
        QCOMPARE(order.uri, std::string("postgresql://machine/base"));
    }

    void sendingTakesAFolderAndAName()
    {
        const CentralOrder order = parseCentralOrder(
            {"--dossier", "/tmp/a b", "--envoyer", "--nom", "Bar", "--langue", "en"});
        QVERIFY(order.action == CentralAction::Send);
        QCOMPARE(order.uri, std::string());
        QCOMPARE(order.folder, std::string("/tmp/a b"));
        QCOMPARE(order.name, std::string("Bar"));
        QVERIFY(order.language == Language::English);
    }

    void followingMayNameABook()
    {
        const CentralOrder order = parseCentralOrder({"--suivre", "postgresql://machine/base"});
        QVERIFY(order.action == CentralAction::Follow);
        QCOMPARE(order.uri, std::string("postgresql://machine/base"));
    }

    void takingOverMayNameABook()
    {
        const CentralOrder named = parseCentralOrder({"--reprendre", "postgresql://machine/base"});
        QVERIFY(named.action == CentralAction::TakeOver);
        QCOMPARE(named.uri, std::string("postgresql://machine/base"));
        const CentralOrder remembered = parseCentralOrder({"--reprendre", "--nom", "Bar"});
        QVERIFY(remembered.action == CentralAction::TakeOver);
        QCOMPARE(remembered.uri, std::string());
        QCOMPARE(remembered.name, std::string("Bar"));
    }

    void helpAndVersion()
    {
        for (const char* help : {"--aide", "--help", "-h"}) {
            QVERIFY(parseCentralOrder({help}).action == CentralAction::Help);
        }
        QVERIFY(parseCentralOrder({"--version"}).action == CentralAction::Version);
    }

    void whatIsNotUnderstoodIsRefused()
    {
        QVERIFY(isBad({}));
        QVERIFY(isBad({"--preparer"}));
        QVERIFY(isBad({"--envoyer", "--suivre"}));
        QVERIFY(isBad({"--envoyer", "--reprendre"}));
        QVERIFY(isBad({"--envoyer", "uri", "uri"}));
        QVERIFY(isBad({"--envoyer", "--nom"}));
        QVERIFY(isBad({"--envoyer", "--dossier", "--nom"}));
        QVERIFY(isBad({"--langue", "de", "--envoyer"}));
        QVERIFY(isBad({"--nom", "Bar"}));
        QVERIFY(isBad({"--version", "postgresql://machine/base"}));
    }

    void theLanguageBeforeTheMistakeCounts()
    {
        try {
            parseCentralOrder({"--langue", "en", "--envoie"});
        } catch (const CentralBadUsage& mistake) {
            QVERIFY(mistake.language == Language::English);
            return;
        }
        QFAIL("not refused");
    }
};

VENDEL_TEST(TestCentralOrder)
#include "tst_CentralOrder.moc"
