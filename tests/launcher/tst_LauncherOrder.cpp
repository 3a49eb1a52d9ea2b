// SPDX-License-Identifier: MIT
#include "launcher/Order.h"
#include "tests/support/TestProgram.h"

namespace {
bool isBad(const std::vector<std::string>& arguments)
{
    try {
        parseOrder(arguments);
    } catch (const BadUsage&) {
        return true;
    }
    return false;
}
} // namespace

class TestLauncherOrder : public QObject
{
    Q_OBJECT

private slots:
    void nothingStarts()
    {
        const Order order = parseOrder({});
        QVERIFY(order.action == Action::Start);
        QVERIFY(!order.language);
    }

    void aLanguageIsTaken()
    {
        QVERIFY(parseOrder({"--langue", "en"}).language == Language::English);
        QVERIFY(parseOrder({"--langue", "fr"}).language == Language::French);
    }

    void aSizeIsTaken()
    {
        const Order order = parseOrder({"--taille", "150", "--langue", "en"});
        QVERIFY(order.action == Action::Start);
        QVERIFY(order.size.has_value());
        QVERIFY(order.language == Language::English);
        QVERIFY(parseOrder({"--taille", "ecran"}).size.has_value());
        QVERIFY(parseOrder({"--taille", "auto"}).size.has_value());
        QVERIFY(!parseOrder({"--langue", "en"}).size);
    }

    void aCopyMayBeNamed()
    {
        QCOMPARE(parseOrder({"--restaurer", "2026-03-05"}).copy, std::string("2026-03-05"));
        const Order order = parseOrder({"--restaurer", "--langue", "en"});
        QVERIFY(order.action == Action::Restore);
        QVERIFY(order.copy.empty());
        QVERIFY(order.language == Language::English);
    }

    void aCentralBookIsNamedOrForgotten()
    {
        const Order order = parseOrder({"--central", "postgresql://machine/base"});
        QVERIFY(order.action == Action::Book);
        QCOMPARE(order.book, std::string("postgresql://machine/base"));
        QCOMPARE(parseOrder({"--central", "-"}).book, std::string("-"));
    }

    void aSecondPlaceIsNamedOrForgotten()
    {
        QCOMPARE(parseOrder({"--copies-vers", "/media/cle"}).folder, std::string("/media/cle"));
        QCOMPARE(parseOrder({"--copies-vers", "-"}).folder, std::string("-"));
        QVERIFY(parseOrder({"--copies-vers", "-"}).action == Action::SecondPlace);
    }

    void theStateIsAskedFor()
    {
        const Order order = parseOrder({"--etat", "--langue", "en"});
        QVERIFY(order.action == Action::State);
        QVERIFY(order.language == Language::English);
        QVERIFY(isBad({"--etat", "caisse"}));
    }

    void theGuideIsAskedFor()
    {
        QVERIFY(parseOrder({"--guide"}).action == Action::Guide);
        QVERIFY(parseOrder({"--guide", "--langue", "en"}).language == Language::English);
        QVERIFY(parseOrder({"--guide", "--version"}).action == Action::Version);
        QVERIFY(isBad({"--guide", "fr"}));
    }

    void theLastActionCounts()
    {
        QVERIFY(parseOrder({"--aide", "--version"}).action == Action::Version);
        QVERIFY(parseOrder({"--version", "-h"}).action == Action::Help);
        QVERIFY(parseOrder({"--restaurer", "--help"}).action == Action::Help);
    }

    void mistakesAreBadUsage()
    {
        QVERIFY(isBad({"--langue"}));
        QVERIFY(isBad({"--langue", "de"}));
        QVERIFY(isBad({"--taille"}));
        QVERIFY(isBad({"--taille", "90"}));
        QVERIFY(isBad({"--taille", "301"}));
        QVERIFY(isBad({"--taille", "abc"}));
        QVERIFY(isBad({"--taille", "--langue", "en"}));
        QVERIFY(isBad({"--restaurer", ""}));
        QVERIFY(isBad({"--copies-vers"}));
        QVERIFY(isBad({"--central"}));
        QVERIFY(isBad({"--central", "--version"}));
        QVERIFY(isBad({"--copies-vers", "--version"}));
        QVERIFY(isBad({"--platform"}));
        QVERIFY(isBad({"caisse"}));
    }

    void aMistakeRemembersTheLanguageBeforeIt()
    {
        try {
            parseOrder({"--langue", "en", "--langue", "de"});
            QFAIL("no mistake");
        } catch (const BadUsage& mistake) {
            QVERIFY(mistake.language == Language::English);
        }
    }

    void insertedTextsAreNotLookedAtAgain()
    {
        const Words words({"a %2 b %1", "c %1"}, {"%2", "x"});
        QCOMPARE(words.french, std::string("a x b %2"));
        QCOMPARE(words.english, std::string("c %2"));
    }
};

VENDEL_TEST(TestLauncherOrder)
#include "tst_LauncherOrder.moc"
