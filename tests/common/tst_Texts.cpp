// SPDX-License-Identifier: MIT
#include "common/Texts.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

namespace {
constexpr auto own = "FormVendelSaisieArticle";
constexpr Texts texts{own};
const QString ownContext = QString::fromLatin1(own);
const QString catalogue = QString("FormVendelMessages");
const QString duplicates = QString("Supprimer le(s) %n doublon(s)");
} // namespace

class TestTexts : public QObject
{
    Q_OBJECT

private slots:
    void withoutATranslationTheTextStandsAsItIs()
    {
        QCOMPARE(texts("Première Date"), QString("Première Date"));
        QCOMPARE(texts(""), QString());
    }

    void theOwnContextComesFirst()
    {
        Translation translation;
        translation.add(ownContext, QString("Entête"), QString("Own heading"));
        translation.add(catalogue, QString("Entête"), QString("Heading"));
        QCOMPARE(texts("Entête"), QString("Own heading"));
    }

    void theCatalogueServesWhereTheOwnContextHasNothing()
    {
        Translation translation;
        translation.add(catalogue, QString("Entête"), QString("Heading"));
        QCOMPARE(texts("Entête"), QString("Heading"));
    }

    void anotherContextIsNotAsked()
    {
        Translation translation;
        translation.add(QString("FormVendel"), QString("Entête"), QString("Heading"));
        QCOMPARE(texts("Entête"), QString("Entête"));
    }

    void theNumberIsFilledInWithoutATranslation()
    {
        QCOMPARE(texts(duplicates.toStdString(), 3), QString("Supprimer le(s) 3 doublon(s)"));
    }

    void theNumberIsFilledInFromTheOwnContext()
    {
        Translation translation;
        translation.add(ownContext, duplicates, QString("Delete %n own"));
        translation.add(catalogue, duplicates, QString("Delete %n"));
        QCOMPARE(texts(duplicates.toStdString(), 3), QString("Delete 3 own"));
    }

    void theNumberIsFilledInFromTheCatalogue()
    {
        Translation translation;
        translation.add(catalogue, duplicates, QString("Delete %n"));
        QCOMPARE(texts(duplicates.toStdString(), 3), QString("Delete 3"));
    }

    void thePluralIsChosenByTheCount()
    {
        Translation translation;
        translation.add(catalogue, duplicates, QString("Delete %n double"));
        translation.addPlural(catalogue, duplicates, QString("Delete %n doubles"));
        QCOMPARE(texts(duplicates.toStdString(), 1), QString("Delete 1 double"));
        QCOMPARE(texts(duplicates.toStdString(), 2), QString("Delete 2 doubles"));
    }

    void theCountZeroIsFilledIn()
    {
        QCOMPARE(texts(duplicates.toStdString(), 0), QString("Supprimer le(s) 0 doublon(s)"));
    }

    void withoutACountTheMarkStays()
    {
        QCOMPARE(texts(duplicates.toStdString()), duplicates);
    }

    void aCaptionIsLookedUpInTheWindowsTwoContextsAndTheCatalogue()
    {
        const QString heading = QString("Entête");
        const auto caption = [&] { return Texts::caption(own, heading); };
        QCOMPARE(caption(), heading);
        Translation translation;
        translation.add(QString("FormVendel"), heading, QString("elsewhere"));
        QCOMPARE(caption(), heading);
        translation.add(catalogue, heading, QString("catalogue"));
        QCOMPARE(caption(), QString("catalogue"));
        translation.add(QString("FormVendelSaisieArticleMessages"), heading, QString("messages"));
        QCOMPARE(caption(), QString("messages"));
        translation.add(ownContext, heading, QString("own"));
        QCOMPARE(caption(), QString("own"));
    }
};

VENDEL_TEST(TestTexts)
#include "tst_Texts.moc"
