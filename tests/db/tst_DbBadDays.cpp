// SPDX-License-Identifier: MIT
#include "db/Db.h"
#include "tests/support/Failures.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QElapsedTimer>

#include <iostream>
#include <sstream>
#include <streambuf>
#include <string>

#include <sys/stat.h>

namespace {
constexpr useconds_t aMinute = 60'000'000;
constexpr auto addTea = "insert into Article (article, prix) values ('Thé', 2)";
constexpr auto reported = "Errors Db::DbLoad sqlite3_errmsg : ";

/// Takes no letter.
class FullStream : public std::streambuf
{
protected:
    int_type overflow(int_type) override
    {
        return traits_type::eof();
    }
};
} // namespace

class TestDbBadDays : public QObject
{
    Q_OBJECT

private slots:
    void aDatabaseThatIsADirectoryCannotBeOpened()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(QDir().mkdir(QString("Vendel.db")));
        CapturedOutput output;
        QVERIFY(Db::DbLoad("select 1").empty());
        QCOMPARE(output.text(),
            QByteArray(
                "Not open database successfully\n"
                "Errors Db::DbLoad sqlite3_errmsg : select 1 unable to open database file\n"));
    }

    void nullOnADatabaseThatCannotBeOpenedSpoilsTheStream()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(QDir().mkdir(QString("Vendel.db")));
        CapturedOutput output;
        QVERIFY(Db::DbLoad(nullptr).empty());
        QVERIFY(std::cout.fail());
        std::cout.clear();
        QCOMPARE(output.text(),
            QByteArray("Not open database successfully\nErrors Db::DbLoad sqlite3_errmsg : "));
    }

    void creatingASchemaInADirectoryOnlyComplains()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(QDir().mkdir(QString("Vendel.db")));
        CapturedOutput output;
        Db::DbCreate();
        QCOMPARE(output.text().count("Not open database successfully\n"), 9);
        QCOMPARE(output.text().count(" unable to open database file\n"), 9);
        QCOMPARE(output.text().count('\n'), 18);
    }

    void anExceptionInTheCreationIsWrittenOnStandardError()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(QDir().mkdir(QString("Vendel.db")));
        FullStream full;
        std::ostringstream errors;
        std::streambuf* output = std::cout.rdbuf(&full);
        std::streambuf* errorOutput = std::cerr.rdbuf(errors.rdbuf());
        std::ostream* tied = std::cerr.tie(nullptr);
        std::cout.exceptions(std::ios_base::badbit);
        Db::DbCreate();
        std::cout.exceptions(std::ios_base::goodbit);
        std::cout.clear();
        std::cerr.tie(tied);
        std::cout.rdbuf(output);
        std::cerr.rdbuf(errorOutput);
        QCOMPARE(QByteArray::fromStdString(errors.str()),
            QByteArray("Errors Db::DbLoad : basic_ios::clear: iostream error\n"));
    }

    void aFileThatIsNoDatabaseIsReported()
    {
        const Shop shop(Shop::Database::None);
        const QByteArray letter = QByteArray("Chère cliente, cher client,\n").repeated(100);
        shop.write(QString("Vendel.db"), letter);
        CapturedOutput output;
        QVERIFY(Db::DbLoad("select * from Ticket").empty());
        QCOMPARE(output.text(),
            QByteArray("Errors Db::DbLoad sqlite3_errmsg : select * from Ticket "
                       "file is not a database\n"));
        Db::DbLoad(addTea);
        QCOMPARE(shop.read(QString("Vendel.db")), letter);
    }

    void anEmptyFileLacksItsTables()
    {
        const Shop shop(Shop::Database::None);
        shop.write(QString("Vendel.db"), QByteArray());
        CapturedOutput output;
        QVERIFY(Db::DbLoad("select * from Ticket").empty());
        QCOMPARE(output.text(),
            QByteArray("Errors Db::DbLoad sqlite3_errmsg : select * from Ticket "
                       "no such table: Ticket\n"));
    }

    void aMissingTableIsReported()
    {
        const Shop shop;
        shop.sql("drop table Historique");
        CapturedOutput output;
        QVERIFY(Db::DbLoad("select * from Historique").empty());
        QCOMPARE(output.text(),
            QByteArray("Errors Db::DbLoad sqlite3_errmsg : select * from Historique "
                       "no such table: Historique\n"));
    }

    void aReadOnlyFileIsReadAndNotWritten()
    {
        const Shop shop;
        shop.sql(addTea);
        QVERIFY(chmod("Vendel.db", 0444) == 0);
        QVERIFY(chmod(".", 0777) == 0);
        const OrdinaryUser user;
        CapturedOutput output;
        QCOMPARE(Db::DbLoad("select article from Article"), DbRows(1, {std::string("Thé")}));
        QCOMPARE(output.text(), QByteArray());
        QVERIFY(Db::DbLoad(addTea).empty());
        QCOMPARE(output.text(),
            QByteArray(reported) + addTea + " attempt to write a readonly database\n");
        QCOMPARE(Db::DbLoad("select count(*) from Article").at(0).at(0), std::string("1"));
    }

    void aReadOnlyFolderIsReadAndNotWritten()
    {
        const Shop shop;
        QVERIFY(chmod("Vendel.db", 0666) == 0);
        QVERIFY(chmod(".", 0555) == 0);
        {
            const OrdinaryUser user;
            CapturedOutput output;
            QCOMPARE(Db::DbLoad("select count(*) from Config").at(0).at(0), std::string("2"));
            QCOMPARE(output.text(), QByteArray());
            QVERIFY(Db::DbLoad(addTea).empty());
            QCOMPARE(output.text(),
                QByteArray(reported) + addTea + " attempt to write a readonly database\n");
        }
        QVERIFY(chmod(".", 0777) == 0);
    }

    void anUnreadableFileCannotBeOpened()
    {
        const Shop shop;
        QVERIFY(chmod("Vendel.db", 0) == 0);
        QVERIFY(chmod(".", 0777) == 0);
        const OrdinaryUser user;
        CapturedOutput output;
        QVERIFY(Db::DbLoad("select * from Ticket").empty());
        QCOMPARE(output.text(),
            QByteArray("Not open database successfully\n"
                       "Errors Db::DbLoad sqlite3_errmsg : select * from Ticket "
                       "unable to open database file\n"));
    }

    void aFullFileSystemKeepsWhatWasStored()
    {
        const Shop shop;
        shop.sql(addTea);
        CapturedOutput output;
        const char* large = "insert into Article (article, prix) values (hex(zeroblob(200000)), 1)";
        {
            const FileSizeLimit limit(100'000);
            QVERIFY(Db::DbLoad(large).empty());
        }
        QCOMPARE(output.text(), QByteArray(reported) + large + " disk I/O error\n");
        QCOMPARE(Db::DbLoad("select article from Article"), DbRows(1, {std::string("Thé")}));
        QCOMPARE(Db::DbLoad("pragma integrity_check"), DbRows(1, {std::string("ok")}));
        Db::DbLoad(large);
        QCOMPARE(Db::DbLoad("select count(*) from Article").at(0).at(0), std::string("2"));
    }

    void aLockedDatabaseIsWaitedForAndReported()
    {
        const Shop shop;
        const OtherProcess backup("begin exclusive", aMinute);
        CapturedOutput output;
        QElapsedTimer timer;
        timer.start();
        QVERIFY(Db::DbLoad("select * from Config").empty());
        const qint64 waited = timer.elapsed();
        QCOMPARE(output.text(),
            QByteArray(
                "Errors Db::DbLoad sqlite3_errmsg : select * from Config database is locked\n"));
        QVERIFY2(waited >= 1500 && waited < 20000, qPrintable(QString::number(waited)));
    }

    void aLockReleasedInTimeIsNoError()
    {
        const Shop shop;
        const OtherProcess backup("begin exclusive", 500'000);
        CapturedOutput output;
        Db::DbLoad(addTea);
        QCOMPARE(Db::DbLoad("select article from Article"), DbRows(1, {std::string("Thé")}));
        QCOMPARE(output.text(), QByteArray());
    }

    void aReaderOfAnotherProcessDisturbsNobody()
    {
        const Shop shop;
        const OtherProcess backup("begin; select * from Config", aMinute);
        CapturedOutput output;
        QCOMPARE(Db::DbLoad("select count(*) from Config").at(0).at(0), std::string("2"));
        QCOMPARE(output.text(), QByteArray());
    }
};

VENDEL_TEST(TestDbBadDays)
#include "tst_DbBadDays.moc"
