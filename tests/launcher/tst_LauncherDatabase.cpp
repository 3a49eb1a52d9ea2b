// SPDX-License-Identifier: MIT
#include "launcher/Journals.h"
#include "launcher/TillSchema.h"
#include "tests/launcher/ShopFolder.h"
#include "tests/support/TestProgram.h"

#include <QElapsedTimer>

namespace {
const QString foreignContent("it contains something other than the till's tables");
const QString foreignJournal("its journal is not the till's");
const QString lacksTables("it lacks tables");
const QString damaged("it is damaged");

/// The end of a journal that names the journal of several databases.
QByteArray superRecord(const QByteArray& name)
{
    const auto number = [](unsigned value) {
        QByteArray bytes;
        for (const unsigned shift : {24U, 16U, 8U, 0U}) {
            bytes += static_cast<char>(value >> shift & 0xffU);
        }
        return bytes;
    };
    unsigned sum = 0;
    for (const char letter : name) {
        sum += static_cast<unsigned char>(letter);
    }
    return number(0x40000001) + name + number(static_cast<unsigned>(name.size())) + number(sum)
        + QByteArray("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8);
}
} // namespace

class TestLauncherDatabase : public QObject
{
    Q_OBJECT

private slots:
    void theTillsOwnDatabaseIsSound()
    {
        const ShopFolder shop;
        QCOMPARE(ShopFolder::unsoundness("Vendel.db"), QString());
    }

    void blanksAndCaseMakeNoDifference()
    {
        QCOMPARE(TillSchema::normalized("CREATE  TABLE t(\n a  INT ,b text DEFAULT ' A  b')"),
            std::string("create table t(a int,b text default' A  b')"));
        QVERIFY(TillSchema::normalized("'A'") != TillSchema::normalized("'a'"));
        QVERIFY(TillSchema::normalized("a b") != TillSchema::normalized("ab"));
        QVERIFY(TillSchema::normalized("[A b]") != TillSchema::normalized("[Ab]"));
    }

    void whatSqliteKeepsForItselfIsAllowed()
    {
        const ShopFolder shop;
        shop.fill("insert into Article (article, prix) values ('Thé', 1); analyze");
        QCOMPARE(ShopFolder::unsoundness("Vendel.db"), QString());
    }

    void foreignContentIsRefused_data()
    {
        QTest::addColumn<QByteArray>("sql");
        QTest::newRow("table") << QByteArray("create table theirs (x)");
        QTest::newRow("view") << QByteArray(
            "create view theirs as with recursive n(i) as (select 1 "
            "union all select i + 1 from n) select i from n");
        QTest::newRow("trigger") << QByteArray("create trigger theirs after insert on Historique "
                                               "begin update Historique set prix = 0; end");
        QTest::newRow("index") << QByteArray("create index theirs on Article (abs(prix))");
        QTest::newRow("check") << QByteArray("drop table Ticket; create table Ticket (idlig "
                                             "integer primary key not null, id integer "
                                             "not null, article text COLLATE NOCASE not null, prix "
                                             "numeric not null check (prix < 5))");
        QTest::newRow("default") << QByteArray(
            "drop table Ticket; create table Ticket (idlig integer primary key not null, id "
            "integer "
            "not null, article text COLLATE NOCASE not null, prix numeric not null default "
            "(randomblob(1)))");
        QTest::newRow("generated column")
            << QByteArray("alter table Config add column theirs as (hex(zeroblob(400000000)))");
        QTest::newRow("disguised as SQLite's") << QByteArray(
            "create table theirs (x); pragma writable_schema = on; update sqlite_schema "
            "set name = 'sqlite_theirs', tbl_name = 'sqlite_theirs', sql = 'CREATE "
            "TABLE sqlite_theirs (x)' where name = 'theirs'");
    }

    void foreignContentIsRefused()
    {
        QFETCH(QByteArray, sql);
        const ShopFolder shop;
        ShopFolder::foreign("Vendel.db", sql.constData());
        QCOMPARE(ShopFolder::unsoundness("Vendel.db"), foreignContent);
    }

    void anEndlessCheckEndsAtOnce()
    {
        const ShopFolder shop;
        shop.fill("drop table Config; create table Config (id integer primary key not null, param "
                  "text, valeur numeric, check (length(hex(zeroblob(400000000))) > 0)); pragma "
                  "ignore_check_constraints = on; insert into Config values (1, 'TVA', 1)");
        QElapsedTimer time;
        time.start();
        QCOMPARE(ShopFolder::unsoundness("Vendel.db"), foreignContent);
        QVERIFY(time.elapsed() < 1000);
    }

    void aForeignTableThatBreaksItsOwnRuleIsNotCalledDamage()
    {
        const ShopFolder shop;
        shop.fill("create table theirs (x check (x > 0)); pragma ignore_check_constraints = on; "
                  "insert into theirs values (-1)");
        QCOMPARE(ShopFolder::unsoundness("Vendel.db"), foreignContent);
    }

    void missingTablesAreSaid()
    {
        const ShopFolder shop;
        shop.fill("drop table Ticket");
        QCOMPARE(ShopFolder::unsoundness("Vendel.db"), lacksTables);
    }

    void whatIsNoDatabaseIsSaid()
    {
        const ShopFolder shop;
        shop.write(QString("Vendel.db"), QByteArray(4096, 'x'));
        QCOMPARE(ShopFolder::unsoundness("Vendel.db"), QString("it is not a database"));
    }

    void damageIsSaid()
    {
        const ShopFolder shop;
        QByteArray bytes = shop.read(QString("Vendel.db"));
        bytes.replace(8192, 4096, QByteArray(4096, '\xff'));
        shop.write(QString("Vendel.db"), bytes);
        QCOMPARE(ShopFolder::unsoundness("Vendel.db"), damaged);
    }

    void aDatabaseThatOnlyALaterSqliteMayWriteToIsRefused()
    {
        const ShopFolder shop;
        QByteArray bytes = shop.read("Vendel.db");
        bytes[18] = 3;
        shop.write("Vendel.db", bytes);
        QCOMPARE(ShopFolder::unsoundness("Vendel.db"), damaged);
    }

    void aSchemaThatWouldTakeTheMachinesMemoryIsRefused()
    {
        const ShopFolder shop;
        QByteArray sql = "pragma page_size = 65536; create table wide (c0";
        for (int column = 1; column < 1900; ++column) {
            sql += ",c" + QByteArray::number(column);
        }
        sql += ");pragma writable_schema = on;"
               "insert into sqlite_schema with recursive n(i) as (select 1 union all select i + 1 "
               "from n where i < 3000) select type, name || i, tbl_name || i, rootpage, "
               "replace(sql, 'wide', 'wide' || i) from sqlite_schema, n where name = 'wide'";
        ShopFolder::foreign("wide.db", sql.constData());
        sqlite3_int64 before = sqlite3_memory_highwater(1);
        before = sqlite3_memory_used();
        QVERIFY(!ShopFolder::unsoundness("wide.db").isEmpty());
        QVERIFY(sqlite3_memory_highwater(0) - before <= 64 * 1024 * 1024);
    }

    void aDatabaseInUseIsSaid()
    {
        const ShopFolder shop;
        sqlite3* opened = nullptr;
        sqlite3_open("Vendel.db", &opened);
        const Handle<sqlite3, sqlite3_close> other(opened);
        QCOMPARE(sqlite3_exec(opened, "begin exclusive", nullptr, nullptr, nullptr), SQLITE_OK);
        QCOMPARE(ShopFolder::unsoundness("Vendel.db"), QString("another program is using it"));
    }

    void aJournalThatNamesAnotherFileIsRefused()
    {
        const ShopFolder shop;
        const QByteArray victim = (shop.path() + "/victim").toUtf8();
        shop.write(QString("victim"), "precious");
        shop.write(QString("Vendel.db-journal"),
            QByteArray("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8) + QByteArray(504, '\0')
                + superRecord(victim));
        QCOMPARE(ShopFolder::unsoundness("Vendel.db"), foreignJournal);
        QCOMPARE(shop.read(QString("victim")), QByteArray("precious"));
        QVERIFY(QFile::exists(QString("Vendel.db-journal")));
    }

    void theJournalsOfALinkAreWhereItLeads()
    {
        const ShopFolder shop;
        QVERIFY(QDir().mkdir(QString("elsewhere")));
        QVERIFY(QFile::rename(QString("Vendel.db"), QString("elsewhere/shop.db")));
        QVERIFY(QFile::link(QString("elsewhere/shop.db"), QString("Vendel.db")));
        QCOMPARE(ShopFolder::unsoundness("Vendel.db"), QString());
        shop.write(QString("elsewhere/shop.db-journal"), superRecord("victim"));
        QCOMPARE(ShopFolder::unsoundness("Vendel.db"), foreignJournal);
    }

    void aJournalThatIsNoFileIsRefused_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char* suffix : Journals::suffixes) {
            QTest::newRow(suffix) << QByteArray("Vendel.db") + suffix;
        }
    }

    void aJournalThatIsNoFileIsRefused()
    {
        QFETCH(QByteArray, name);
        const ShopFolder shop;
        QCOMPARE(mkfifo(name.constData(), 0600), 0);
        QCOMPARE(ShopFolder::unsoundness("Vendel.db"), foreignJournal);
        QVERIFY(QFile::remove(QString(name)));
        QVERIFY(QFile::link(QString("elsewhere"), QString(name)));
        QCOMPARE(ShopFolder::unsoundness("Vendel.db"), foreignJournal);
    }

    void aLogOfAnotherToolIsBroughtIn()
    {
        const ShopFolder shop;
        {
            sqlite3* opened = nullptr;
            sqlite3_open("Vendel.db", &opened);
            const Handle<sqlite3, sqlite3_close> other(opened);
            sqlite3_exec(opened,
                "pragma journal_mode = wal; insert into Article (article, prix) values ('Thé', 2)",
                nullptr, nullptr, nullptr);
            QVERIFY(QFile::copy(QString("Vendel.db"), QString("left.db")));
            QVERIFY(QFile::copy(QString("Vendel.db-wal"), QString("left.db-wal")));
        }
        QCOMPARE(ShopFolder::unsoundness("left.db"), QString());
        QCOMPARE(ShopFolder::names(".", "left*"), QStringList{QString("left.db")});
        QCOMPARE(ShopFolder::foreign("left.db", "pragma journal_mode"), QByteArray("delete"));
        QCOMPARE(ShopFolder::foreign("left.db", "select article from Article"), QByteArray("Thé"));
    }

    void aCheckEndsInTime()
    {
        const ShopFolder shop;
        shop.fill(
            "insert into Historique (id, article, prix) with recursive n(i) as (select 1 union "
            "all select i + 1 from n where i < 50000) select i, 'Thé', 1 from n");
        Database database("Vendel.db", 0.0);
        QVERIFY_EXCEPTION_THROWN(database.isIntact(), DatabaseError);
    }
};

VENDEL_TEST(TestLauncherDatabase)
#include "tst_LauncherDatabase.moc"
