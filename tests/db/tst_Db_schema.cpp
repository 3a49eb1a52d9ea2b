// SPDX-License-Identifier: MIT
#include "db/Db.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QDateTime>

class TestDbSchema : public QObject
{
    Q_OBJECT

private slots:
    void isCreatedSilentlyWordForWord()
    {
        const Shop shop(Shop::Database::None);
        CapturedOutput output;
        Db::DbCreate();
        const DbRows expected{
            {"table", "Article",
                "CREATE TABLE Article (id integer primary key autoincrement not null, article text "
                "COLLATE NOCASE not null, prix numeric not null)"},
            {"table", "sqlite_sequence", "CREATE TABLE sqlite_sequence(name,seq)"},
            {"table", "ArticleStock",
                "CREATE TABLE ArticleStock (id integer primary key not null, article text COLLATE "
                "NOCASE not null)"},
            {"table", "Historique",
                "CREATE TABLE Historique (id integer not null, article text COLLATE NOCASE not "
                "null, prix numeric not null, date_heure text not null default(strftime('%Y-%m-%d "
                "%H:%M:%f','now','localtime')))"},
            {"table", "DoseStock",
                "CREATE TABLE DoseStock (idlig integer primary key not null, id integer not null, "
                "composition text COLLATE NOCASE not null, dose numeric not null, unite text not "
                "null, constraint fk_dosestock foreign key (id) references ArticleStock (id) on "
                "delete cascade)"},
            {"table", "Config",
                "CREATE TABLE Config (id integer primary key not null, param text COLLATE NOCASE "
                "not null, valeur numeric not null)"},
            {"table", "Ticket",
                "CREATE TABLE Ticket (idlig integer primary key not null, id integer not null, "
                "article text COLLATE NOCASE not null, prix numeric not null)"},
            {"index", "date_heure_index",
                "CREATE INDEX date_heure_index on Historique (date_heure)"},
        };
        QCOMPARE(shop.sql("select type, name, sql from sqlite_master order by rowid"), expected);
        QCOMPARE(output.text(), QByteArray());
    }

    void holdsTheTwoDefaultSettingsAndNothingElse()
    {
        const Shop shop;
        QCOMPARE(shop.sql("select id, param, valeur, typeof(valeur) from Config"),
            (DbRows{{"1", "TVA", "0", "integer"}, {"2", "Epson TM-T20II", "0", "integer"}}));
        for (const char* table : {"Article", "ArticleStock", "DoseStock", "Historique", "Ticket"}) {
            QVERIFY2(shop.sql((std::string("select * from ") + table).c_str()).empty(), table);
        }
    }

    void aSecondCreationOnlyComplains()
    {
        const Shop shop;
        shop.sql("insert into Article (article, prix) values ('Thé', 1)");
        CapturedOutput output;
        Db::DbCreate();
        QCOMPARE(output.text().count("Errors Db::DbLoad sqlite3_errmsg : CREATE "), 7);
        QCOMPARE(output.text().count('\n'), 7);
        QCOMPARE(shop.cell("select count(*) from Article"), QString("1"));
    }

    void theMenuNeverReusesAnArticleNumber()
    {
        const Shop shop;
        shop.sql("insert into Article (article, prix) values ('Thé', 1), ('Eau', 1)");
        shop.sql("delete from Article where id = 2");
        shop.sql("insert into Article (article, prix) values ('Vin', 1)");
        QCOMPARE(shop.cell("select id from Article where article = 'Vin'"), QString("3"));
    }

    void ticketLinesGetTheirKeyFromTheDatabase()
    {
        const Shop shop;
        shop.sql("insert into Ticket (id, article, prix) values (9, 'Thé', 1), (9, 'Thé', 1)");
        QCOMPARE(shop.sql("select idlig, id from Ticket"), (DbRows{{"1", "9"}, {"2", "9"}}));
    }

    void aSaleGetsTheLocalTimeOfItsInsertion()
    {
        const Shop shop;
        const QDateTime before = QDateTime::currentDateTime();
        shop.sql("insert into Historique (id, article, prix) values (1, 'Thé', 1)");
        const QDateTime after = QDateTime::currentDateTime();
        const QString text = shop.cell("select date_heure from Historique");
        const QDateTime time = QDateTime::fromString(text, "yyyy-MM-dd hh:mm:ss.zzz");
        QVERIFY2(time.isValid(), qPrintable(text));
        QVERIFY2(time >= before.addMSecs(-2) && time <= after.addMSecs(2), qPrintable(text));
    }

    void asciiLettersCompareWithoutCase()
    {
        const Shop shop;
        shop.sql(
            "insert into Article (article, prix) values ('CAFÉ', 1), ('cafÉ', 1), ('café', 1)");
        QCOMPARE(shop.cell("select count(*) from Article where article = 'CafÉ'"), QString("2"));
        QCOMPARE(shop.cell("select valeur from Config where param = 'tva'"), QString("0"));
    }

    void pricesThatLookLikeNumbersAreNumbers()
    {
        const Shop shop;
        shop.sql("insert into Article (article, prix) values ('a', '2.50'), ('b', 'abc')");
        QCOMPARE(shop.sql("select prix, typeof(prix) from Article"),
            (DbRows{{"2.5", "real"}, {"abc", "text"}}));
    }

    void missingValuesAreRefused()
    {
        const Shop shop;
        for (const auto& [sql, column] : {
                 std::pair{"insert into Article (article) values ('Thé')", "Article.prix"},
                 {"insert into Ticket (article, prix) values ('Thé', 1)", "Ticket.id"},
                 {"insert into Config (param) values ('TVA')", "Config.valeur"},
             }) {
            CapturedOutput output;
            shop.sql(sql);
            QCOMPARE(output.text(),
                databaseReport(sql, QByteArray("NOT NULL constraint failed: ") + column));
        }
    }
};

VENDEL_TEST(TestDbSchema)
#include "tst_Db_schema.moc"
