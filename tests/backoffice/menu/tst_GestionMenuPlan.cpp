// SPDX-License-Identifier: MIT
#include "backoffice/menu/ImportPlan.h"
#include "backoffice/menu/SheetText.h"
#include "store/Transaction.h"
#include "tests/backoffice/menu/PlanLook.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QElapsedTimer>

namespace {
/// A shop whose menu has all that a plan has to tell apart.
struct Menu : Shop
{
    Menu()
    {
        fill("insert into Article (article, prix) values ('Café', 1.5), ('Thé', 2), "
             "('Eau', 1), ('eau', 1.2), ('Un nom qui est trop long', 3), ('Bois', 1.255)");
    }
};

QStringList planned(const char* bytes) { return look(bytes, ImportKind::Menu); }
} // namespace

class TestGestionMenuPlan : public QObject
{
    Q_OBJECT

private slots:
    void eachLineIsNewChangedOrUnchanged()
    {
        const Menu shop;
        QCOMPARE(planned("article;prix\nCafé;1,80\nthÉ;9\nTHé;2,00\nLait;1 234,50 €\n"),
            (QStringList{"2 changed 1,50 → 1,80", "3 new", "4 unchanged", "5 new"}));
    }

    void whatIsWrongIsSaid()
    {
        const Menu shop;
        QCOMPARE(planned("article;prix\n"
                         ";2\n"
                         "Jus d'abricot 33;2\n"
                         "Lait;deux\n"
                         "Cidre;1.234\n"
                         "Eau;1\n"
                         "Miel;2,125\n"
                         "Pain;1;5\n"
                         "Sel;99999999999\n"
                         "\"Su\ncre\";2\n"),
            (QStringList{"2 refused Pas de nom", "3 refused Nom de 16 caractères\u00a0; 15 au plus",
                "4 refused Prix\u00a0: pas un nombre",
                "5 refused Prix\u00a0: mille ou virgule\u00a0? Écrivez deux décimales",
                "6 refused Plusieurs fois sur le menu",
                "7 refused Prix\u00a0: mille ou virgule\u00a0? Écrivez deux décimales",
                "8 refused Plus de colonnes que de titres",
                "9 refused Prix\u00a0: trop de chiffres",
                "10 refused Le nom contient une fin de ligne ou un caractère invisible"}));
    }

    void fifteenCharactersAreNotTooMany()
    {
        const Menu shop;
        QCOMPARE(
            planned("Jus d'abricot 3;2\nÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉ;2\n"), (QStringList{"1 new", "2 new"}));
    }

    void moreDecimalsThanACoinHasAreRefusedUnlessTheyAreThere()
    {
        const Menu shop;
        QCOMPARE(planned("Lait;1,2345\nBois;1,255\nThé;0,005\nEau;1,5\n"),
            (QStringList{"1 refused Prix\u00a0: plus de deux décimales", "2 unchanged",
                "3 refused Prix\u00a0: plus de deux décimales",
                "4 refused Plusieurs fois sur le menu"}));
    }

    void aNameThatIsTwiceInTheFileIsRefusedBothTimes()
    {
        const Menu shop;
        QCOMPARE(planned("Lait;2\n lait ;3\nCAFé;1,6\ncafé;1,7\n"),
            (QStringList{"1 refused Plusieurs fois dans le fichier\u00a0: lignes 1 et 2",
                "2 refused Plusieurs fois dans le fichier\u00a0: lignes 1 et 2",
                "3 refused Plusieurs fois dans le fichier\u00a0: lignes 3 et 4",
                "4 refused Plusieurs fois dans le fichier\u00a0: lignes 3 et 4"}));
    }

    void aLongNameThatIsOnTheMenuMayHaveANewPrice()
    {
        const Menu shop;
        QCOMPARE(planned("un nom qui est trop long;3,5\n"), QStringList{"1 changed 3,00 → 3,50"});
    }

    void whatThePrinterCannotPrintIsAWarning()
    {
        const Menu shop;
        QCOMPARE(planned("茶;2\nŒuf;2\n€uro;1\n"),
            (QStringList{"1 new! L'imprimante ne connaît pas tous ces caractères\u00a0: aucun "
                         "ticket ne s'imprimera avec cet article",
                "2 new! L'imprimante ne connaît pas tous ces caractères\u00a0: aucun ticket ne "
                "s'imprimera avec cet article",
                "3 new"}));
    }

    void theStatementsDoWhatWasSaid()
    {
        const Menu shop;
        const auto plan = planOf("Café;1,80\nD'été;3\nThé;2\nx;y\n", ImportKind::Menu);
        QCOMPARE(plan.changes(), 2);
        QCOMPARE(plan.count(ImportAction::Unchanged), 1);
        QCOMPARE(plan.count(ImportAction::Refused), 1);
        QVERIFY(Transaction::run(plan.statements));
        QCOMPARE(shop.cell("select group_concat(id || article || prix) from Article"),
            QString("1Café1.8,2Thé2,3Eau1,4eau1.2,5Un nom qui est trop long3,6Bois1.255,7D'été3"));
    }

    void aPlanForAnotherMenuIsNotDone()
    {
        const Menu shop;
        for (const char* change : {"insert into Article (article, prix) values ('Lait', 9)",
                 "update Article set prix = 1.51 where id = 1",
                 "update Article set article = 'THé' where id = 2",
                 "delete from Article where id = 2"}) {
            const auto plan = planOf("Café;1,80\nLait;2\n", ImportKind::Menu);
            shop.sql(change);
            const QString before = shop.cell("select group_concat(article || prix) from Article");
            CapturedOutput output;
            QVERIFY(!Transaction::run(plan.statements));
            QVERIFY(output.text().contains("NOT NULL constraint failed: Article.article"));
            QCOMPARE(shop.cell("select group_concat(article || prix) from Article"), before);
        }
    }

    void anEmptyMenuIsFilled()
    {
        const Shop shop;
        const auto plan = planOf("Café;1,80\nThé;2\n", ImportKind::Menu);
        QVERIFY(Transaction::run(plan.statements));
        QCOMPARE(shop.cell("select group_concat(article || prix) from Article"),
            QString("Café1.8,Thé2"));
    }

    void aDatabaseThatDoesNotAnswerIsNoEmptyMenu()
    {
        const Shop shop(Shop::Database::None);
        const CapturedOutput output;
        QVERIFY_EXCEPTION_THROWN(planOf("Café;1\n", ImportKind::Menu), ImportError);
    }

    void tenThousandLinesArePlannedAndDoneAtOnce()
    {
        const Shop shop;
        QByteArray bytes("article;prix\n");
        for (int line = 0; line < 10000; ++line) {
            bytes += "Article " + QByteArray::number(line) + ";1,50\n";
        }
        QElapsedTimer time;
        time.start();
        const auto plan = planOf(bytes, ImportKind::Menu);
        QCOMPARE(plan.changes(), 10000);
        QVERIFY(Transaction::run(plan.statements));
        QCOMPARE(shop.cell("select count(*) from Article"), QString("10000"));
        const auto again = planOf(bytes.replace("1,50", "1,60"), ImportKind::Menu);
        QCOMPARE(again.count(ImportAction::Changed), 10000);
        QElapsedTimer held;
        held.start();
        QVERIFY(Transaction::run(again.statements));
        // The till waits for two seconds at most.
        QVERIFY2(held.elapsed() < 1000, qPrintable(QString::number(held.elapsed())));
        QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    }
};

VENDEL_TEST(TestGestionMenuPlan)
#include "tst_GestionMenuPlan.moc"
