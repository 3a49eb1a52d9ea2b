// SPDX-License-Identifier: MIT
#include "common/Texts.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

namespace {
constexpr auto own = "FormVendelSaisieArticle";
constexpr auto catalogue = "FormVendelMessages";
constexpr auto duplicates = "Supprimer le(s) %n doublon(s)";
constexpr Texts texts{own};
} // namespace

class TestTexts : public QObject
{
    Q_OBJECT

private slots:
    void withoutATranslationTheTextStaysAsItIs()
    {
        QCOMPARE(texts("Première Date"), QString("Première Date"));
        QCOMPARE(texts(""), QString());
        QCOMPARE(texts(duplicates), QString("Supprimer le(s) %n doublon(s)"));
        QCOMPARE(texts(duplicates, 3), QString("Supprimer le(s) 3 doublon(s)"));
        QCOMPARE(texts(duplicates, 0), QString("Supprimer le(s) 0 doublon(s)"));
    }

    void theCatalogueServesWhereTheOwnContextHasNothing()
    {
        Translation translation;
        translation.add("FormVendel", "Entête", "elsewhere");
        QCOMPARE(texts("Entête"), QString("Entête"));
        translation.add(catalogue, "Entête", "Heading");
        QCOMPARE(texts("Entête"), QString("Heading"));
        translation.add(own, "Entête", "Own heading");
        QCOMPARE(texts("Entête"), QString("Own heading"));
    }

    void aTranslationHasItsNumber()
    {
        Translation translation;
        translation.add(catalogue, duplicates, "Delete %n");
        QCOMPARE(texts(duplicates, 3), QString("Delete 3"));
        translation.add(own, duplicates, "Delete %n own");
        QCOMPARE(texts(duplicates, 3), QString("Delete 3 own"));
    }

    void thePluralIsChosenByTheCount()
    {
        Translation translation;
        translation.add(catalogue, duplicates, "Delete %n double");
        translation.addPlural(catalogue, duplicates, "Delete %n doubles");
        QCOMPARE(texts(duplicates, 1), QString("Delete 1 double"));
        QCOMPARE(texts(duplicates, 2), QString("Delete 2 doubles"));
    }

    void aCaptionIsLookedUpInTheWindowsTwoContextsAndTheCatalogue()
    {
        const auto caption = [] { return Texts::caption(own, "Entête"); };
        QCOMPARE(caption(), QString("Entête"));
        Translation translation;
        translation.add("FormVendel", "Entête", "elsewhere");
        QCOMPARE(caption(), QString("Entête"));
        translation.add(catalogue, "Entête", "catalogue");
        QCOMPARE(caption(), QString("catalogue"));
        translation.add("FormVendelSaisieArticleMessages", "Entête", "messages");
        QCOMPARE(caption(), QString("messages"));
        translation.add(own, "Entête", "own");
        QCOMPARE(caption(), QString("own"));
    }
};

VENDEL_TEST(TestTexts)
#include "tst_Texts.moc"
