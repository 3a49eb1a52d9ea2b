// SPDX-License-Identifier: MIT
#include "Print/escpospp/EscPos.h"
#include "Print/escpospp/MDPair.h"
#include "tests/Print/PrinterTest.h"
#include "tests/support/TestProgram.h"

#include <map>

namespace {
/// What is built before main may already use the markers.
const MDPair boldBeforeMain = MDPair::getMatching("**");
} // namespace

class TestMDPair : public QObject
{
    Q_OBJECT

private slots:
    void markersAreReadyBeforeMain() { QCOMPARE(hexOf(boldBeforeMain.on), QByteArray("1b4501")); }

    void aPairStartsWithItsMarkerOnly()
    {
        const MDPair pair("~~");
        QCOMPARE(pair.marker, std::string("~~"));
        QCOMPARE(pair.on, std::string());
        QCOMPARE(pair.off, std::string());
    }

    void theMapKnowsTwoMarkers()
    {
        MDPair::initializeMap();
        QCOMPARE(MDPair::mdPairMap.size(), 2U);
        const MDPair underline = MDPair::getMatching("__");
        QCOMPARE(underline.marker, std::string("__"));
        QCOMPARE(hexOf(underline.on), QByteArray("1b2d02"));
        QCOMPARE(hexOf(underline.off), QByteArray("1b2d00"));
        const MDPair bold = MDPair::getMatching("**");
        QCOMPARE(bold.marker, std::string("**"));
        QCOMPARE(hexOf(bold.on), QByteArray("1b4501"));
        QCOMPARE(hexOf(bold.off), QByteArray("1b4500"));
        const auto before = MDPair::mdPairMap;
        MDPair::initializeMap();
        QVERIFY(MDPair::mdPairMap == before);
    }

    void getMatchingFillsAnEmptyMap()
    {
        std::map<std::string, MDPair*> kept;
        kept.swap(MDPair::mdPairMap);
        const MDPair bold = MDPair::getMatching("**");
        QCOMPARE(hexOf(bold.on), QByteArray("1b4501"));
        QCOMPARE(MDPair::mdPairMap.size(), 2U);
        kept.swap(MDPair::mdPairMap);
    }

    void getMatchingGivesACopy()
    {
        MDPair::getMatching("**").on = "changed";
        QCOMPARE(hexOf(MDPair::getMatching("**").on), QByteArray("1b4501"));
    }

    void anUnknownMarkerThrows()
    {
        for (const char* marker : {"~~", "*", "***", "*_", ""}) {
            QVERIFY2(thrownInt([&] { MDPair::getMatching(marker); }) == -1, marker);
        }
    }

    void pairsAreEqualWhenTheirCommandsAre()
    {
        MDPair bold = MDPair::getMatching("**");
        QVERIFY(bold == MDPair::getMatching("**"));
        QVERIFY(!(bold == MDPair::getMatching("__")));
        bold.marker = "~~";
        QVERIFY(bold == MDPair::getMatching("**"));
        bold.off = EscPos::UNDERLINE_OFF;
        QVERIFY(!(bold == MDPair::getMatching("**")));
        bold.off = EscPos::BOLD_OFF;
        bold.on = EscPos::FONT_B;
        QVERIFY(!(bold == MDPair::getMatching("**")));
    }
};

VENDEL_TEST(TestMDPair)
#include "tst_MDPair.moc"
