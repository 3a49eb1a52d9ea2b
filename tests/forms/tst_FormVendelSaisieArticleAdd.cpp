// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/Translation.h"
#include "tests/support/TestProgram.h"

class TestFormVendelSaisieArticleAdd : public QObject
{
    Q_OBJECT

private slots:
    void addingNeedsBothFields_data()
    {
        QTest::addColumn<QByteArray>("article");
        QTest::addColumn<QByteArray>("amount");
        QTest::newRow("neither") << QByteArray() << QByteArray();
        QTest::newRow("no article") << QByteArray() << QByteArray("1");
        QTest::newRow("no amount") << QByteArray("Cafe") << QByteArray();
        QTest::newRow("blank article") << QByteArray("  ") << QByteArray("1");
        QTest::newRow("blank amount") << QByteArray("Cafe") << QByteArray(" ");
        QTest::newRow("no article and no number") << QByteArray() << QByteArray("abc");
    }

    void addingNeedsBothFields()
    {
        QFETCH(QByteArray, article);
        QFETCH(QByteArray, amount);
        OpenArticleEditor editor("('The', 2)");
        click(editor.window, "btn_Afficher");
        editor.type("txt_Article", article.constData());
        editor.type("txt_Montant", amount.constData());
        const AnswerBox box;
        click(editor.window, "btn_Ajouter");
        QCOMPARE(box.title(), QString("Ajouter"));
        QCOMPARE(box.text(), QString("Saisir un article avec son montant"));
        QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(editor.text("txt_Article"), QString::fromLatin1(article.trimmed()));
        QCOMPARE(editor.text("txt_Montant"), QString::fromLatin1(amount.trimmed()));
        QCOMPARE(editor.stored(), QString("1 The 2"));
        QCOMPARE(rowCount(editor.window, "tableView"), 1);
    }

    void addingNeedsANumber_data()
    {
        QTest::addColumn<QByteArray>("amount");
        for (const char* amount : {"3a", "1,2,3", "--1", "0x10", "1 000", "1,234.50", "-", "3$"}) {
            QTest::newRow(amount) << QByteArray(amount);
        }
    }

    void addingNeedsANumber()
    {
        QFETCH(QByteArray, amount);
        OpenArticleEditor editor;
        editor.type("txt_Article", "Cafe");
        editor.type("txt_Montant", amount.constData());
        const AnswerBox box;
        click(editor.window, "btn_Ajouter");
        QCOMPARE(box.title(), QString("Ajouter"));
        QCOMPARE(box.text(), QString("Saisir un montant valide"));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(editor.text("txt_Montant"), QString::fromLatin1(amount));
        QCOMPARE(editor.stored(), QString());
    }

    void addsWhatIsTyped_data()
    {
        QTest::addColumn<QByteArray>("article");
        QTest::addColumn<QByteArray>("amount");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("price");
        QTest::newRow("comma") << QByteArray("Cafe") << QByteArray("3,5") << QString("1 Cafe 3.5")
                               << QString("3.50$");
        QTest::newRow("point") << QByteArray("Cafe") << QByteArray("3.5") << QString("1 Cafe 3.5")
                               << QString("3.50$");
        QTest::newRow("blanks") << QByteArray("  Cafe ") << QByteArray(" 2 ") << QString("1 Cafe 2")
                                << QString("2.00$");
        QTest::newRow("negative") << QByteArray("Avoir") << QByteArray("-1,5")
                                  << QString("1 Avoir -1.5") << QString("-1.50$");
        QTest::newRow("exponent") << QByteArray("Lot") << QByteArray("1e3") << QString("1 Lot 1000")
                                  << QString("1,000.00$");
        QTest::newRow("apostrophe")
            << QByteArray("L'eau") << QByteArray("1") << QString("1 L'eau 1") << QString("1.00$");
        QTest::newRow("statement") << QByteArray("');drop table") << QByteArray("1")
                                   << QString("1 ');drop table 1") << QString("1.00$");
    }

    void addsWhatIsTyped()
    {
        QFETCH(QByteArray, article);
        QFETCH(QByteArray, amount);
        QFETCH(QString, stored);
        QFETCH(QString, price);
        OpenArticleEditor editor;
        editor.type("txt_Article", article.constData());
        editor.type("txt_Montant", amount.constData());
        const AnswerBox box;
        click(editor.window, "btn_Ajouter");
        QVERIFY(!box.wasShown());
        QCOMPARE(editor.stored(), stored);
        QCOMPARE(editor.names(), QStringList(QString::fromLatin1(article.trimmed())));
        QCOMPARE(rowTexts(editor.window, "tableView", 0).at(3), price);
    }

    void theFieldsKeepTheirTextAfterAdding()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2)");
        editor.type("txt_Article", " Vin ");
        editor.type("txt_Montant", " 3,5 ");
        click(editor.window, "btn_Ajouter");
        QCOMPARE(editor.text("txt_Article"), QString("Vin"));
        QCOMPARE(editor.text("txt_Montant"), QString("3,5"));
        QCOMPARE(editor.names(), QStringList({QString("Cafe"), QString("The"), QString("Vin")}));
    }

    void anEqualNameIsAddedAndSaid()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        editor.type("txt_Article", "Cafe");
        editor.type("txt_Montant", "2");
        const AnswerBox box;
        click(editor.window, "btn_Ajouter");
        QCOMPARE(box.title(), QString("Doublon"));
        QCOMPARE(box.text(), QString("Supprimer le(s) 1 doublon(s) note(s) X..."));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 Cafe 2"));
        QCOMPARE(editor.marked(), QStringList(QString("1")));
    }

    void aNumberThatSqlDoesNotKnowAddsNothing()
    {
        OpenArticleEditor editor("('The', 2)");
        editor.type("txt_Article", "Cafe");
        editor.type("txt_Montant", "inf");
        QByteArray said;
        {
            CapturedOutput output;
            click(editor.window, "btn_Ajouter");
            said = output.text();
        }
        QCOMPARE(said,
            QByteArray(
                "Errors Db::DbLoad sqlite3_errmsg : insert into Article (article, prix) values "
                "('Cafe', inf) no such column: inf\n"));
        QCOMPARE(editor.stored(), QString("1 The 2"));
        QCOMPARE(editor.names(), QStringList(QString("The")));
    }

    void theInsertIsSplicedFromTheFields()
    {
        OpenArticleEditor editor;
        editor.shop.sql("drop table Article");
        editor.type("txt_Article", "L'eau");
        editor.type("txt_Montant", "3,5");
        const CapturedLog log;
        const AnswerBox box;
        QByteArray said;
        {
            CapturedOutput output;
            click(editor.window, "btn_Ajouter");
            said = output.text();
        }
        QCOMPARE(said,
            QByteArray(
                "Errors Db::DbLoad sqlite3_errmsg : insert into Article (article, prix) values "
                "('L''eau', 3.5) no such table: Article\n"
                "Errors Db::DbLoad sqlite3_errmsg : select * from Article order by Article asc "
                "no such table: Article\n"));
        QCOMPARE(box.text(), QString("Le menu est vide\nAjouter des articles"));
    }

    void aFailureIsLogged()
    {
        OpenArticleEditor editor;
        const CapturedLog log;
        const FailingText failure("Saisir un article avec son montant");
        click(editor.window, "btn_Ajouter");
        QCOMPARE(log.criticals(),
            QStringList(
                QString("Errors FormVendelSaisieArticle on_btn_Ajouter_clicked : no text")));
    }
};

VENDEL_TEST(TestFormVendelSaisieArticleAdd)
#include "tst_FormVendelSaisieArticleAdd.moc"
