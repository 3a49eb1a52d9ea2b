// SPDX-License-Identifier: MIT
#include "common/Texts.h"
#include "tests/support/CoreTestMain.h"
#include "tests/support/Translation.h"

class TestTexts : public QObject
{
    Q_OBJECT

private slots:
    void withoutATranslationTheTextStandsAsItIs();
    void theOwnContextComesFirst();
    void theCatalogueServesWhereTheOwnContextHasNothing();
    void anotherContextIsNotAsked();
    void theNumberIsFilledInWithoutATranslation();
    void theNumberIsFilledInFromTheOwnContext();
    void theNumberIsFilledInFromTheCatalogue();
    void thePluralIsChosenByTheCount();
    void theCountZeroIsFilledIn();
    void withoutACountTheMarkStays();
    void aCaptionIsLookedUpInTheWindowsTwoContextsAndTheCatalogue();
};

namespace {
constexpr auto own = "FormVendelSaisieArticle";
constexpr Texts texts{own};
const QString ownContext = QString::fromLatin1(own);
const QString catalogue = QStringLiteral("FormVendelMessages");
const QString duplicates = QStringLiteral("Supprimer le(s) %n doublon(s)");
} // namespace

void TestTexts::withoutATranslationTheTextStandsAsItIs()
{
    QCOMPARE(texts("Première Date"), QStringLiteral("Première Date"));
    QCOMPARE(texts(""), QString());
}

void TestTexts::theOwnContextComesFirst()
{
    Translation translation;
    translation.add(ownContext, QStringLiteral("Entête"), QStringLiteral("Own heading"));
    translation.add(catalogue, QStringLiteral("Entête"), QStringLiteral("Heading"));
    QCOMPARE(texts("Entête"), QStringLiteral("Own heading"));
}

void TestTexts::theCatalogueServesWhereTheOwnContextHasNothing()
{
    Translation translation;
    translation.add(catalogue, QStringLiteral("Entête"), QStringLiteral("Heading"));
    QCOMPARE(texts("Entête"), QStringLiteral("Heading"));
}

void TestTexts::anotherContextIsNotAsked()
{
    Translation translation;
    translation.add(
        QStringLiteral("FormVendel"), QStringLiteral("Entête"), QStringLiteral("Heading"));
    QCOMPARE(texts("Entête"), QStringLiteral("Entête"));
}

void TestTexts::theNumberIsFilledInWithoutATranslation()
{
    QCOMPARE(texts(duplicates.toStdString(), 3), QStringLiteral("Supprimer le(s) 3 doublon(s)"));
}

void TestTexts::theNumberIsFilledInFromTheOwnContext()
{
    Translation translation;
    translation.add(ownContext, duplicates, QStringLiteral("Delete %n own"));
    translation.add(catalogue, duplicates, QStringLiteral("Delete %n"));
    QCOMPARE(texts(duplicates.toStdString(), 3), QStringLiteral("Delete 3 own"));
}

void TestTexts::theNumberIsFilledInFromTheCatalogue()
{
    Translation translation;
    translation.add(catalogue, duplicates, QStringLiteral("Delete %n"));
    QCOMPARE(texts(duplicates.toStdString(), 3), QStringLiteral("Delete 3"));
}

void TestTexts::thePluralIsChosenByTheCount()
{
    Translation translation;
    translation.add(catalogue, duplicates, QStringLiteral("Delete %n double"));
    translation.addPlural(catalogue, duplicates, QStringLiteral("Delete %n doubles"));
    QCOMPARE(texts(duplicates.toStdString(), 1), QStringLiteral("Delete 1 double"));
    QCOMPARE(texts(duplicates.toStdString(), 2), QStringLiteral("Delete 2 doubles"));
}

void TestTexts::theCountZeroIsFilledIn()
{
    QCOMPARE(texts(duplicates.toStdString(), 0), QStringLiteral("Supprimer le(s) 0 doublon(s)"));
}

void TestTexts::withoutACountTheMarkStays()
{
    QCOMPARE(texts(duplicates.toStdString()), duplicates);
}

void TestTexts::aCaptionIsLookedUpInTheWindowsTwoContextsAndTheCatalogue()
{
    const QString heading = QStringLiteral("Entête");
    const auto caption = [&] { return Texts::caption(own, heading); };
    QCOMPARE(caption(), heading);
    Translation translation;
    translation.add(QStringLiteral("FormVendel"), heading, QStringLiteral("elsewhere"));
    QCOMPARE(caption(), heading);
    translation.add(catalogue, heading, QStringLiteral("catalogue"));
    QCOMPARE(caption(), QStringLiteral("catalogue"));
    translation.add(
        QStringLiteral("FormVendelSaisieArticleMessages"), heading, QStringLiteral("messages"));
    QCOMPARE(caption(), QStringLiteral("messages"));
    translation.add(ownContext, heading, QStringLiteral("own"));
    QCOMPARE(caption(), QStringLiteral("own"));
}

VENDEL_CORE_TEST_MAIN(TestTexts)
#include "tst_Texts.moc"
