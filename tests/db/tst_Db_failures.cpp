// SPDX-License-Identifier: MIT
#include "db/Db.h"
#include "tests/support/Captured.h"
#include "tests/support/Failures.h"
#include "tests/support/Rows.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QElapsedTimer>

#include <iostream>
#include <sstream>
#include <streambuf>

#include <sys/stat.h>

namespace {
constexpr useconds_t aMinute = 60'000'000;
constexpr auto addTea = "insert into Article (article, prix) values ('Thé', 2)";
constexpr auto addMuch = "insert into Article (article, prix) values (hex(zeroblob(200000)), 1)";
const QByteArray notOpened = "Not open database successfully\n";

/// Takes no letter.
class FullStream : public std::streambuf
{
protected:
    int_type overflow(int_type) override { return traits_type::eof(); }
};

/// A shop whose database is a folder.
class ShopWithAFolder : public Shop
{
public:
    ShopWithAFolder()
        : Shop(Database::None)
    {
        QDir().mkdir("Vendel.db");
    }
};

/// Gives the working directory and the database in it the rights \a folder and \a file.
void setRights(mode_t folder, mode_t file)
{
    QCOMPARE(chmod("Vendel.db", file), 0);
    QCOMPARE(chmod(".", folder), 0);
}

/// Runs \a sql, which has no result; returns what the database writes about it.
QByteArray reportOf(const char* sql)
{
    CapturedOutput output;
    return Db::DbLoad(sql).empty() ? output.text() : "a result";
}
} // namespace

/// Databases that are locked, full, unreadable or none.
class TestDbFailures : public QObject
{
    Q_OBJECT

private slots:
    void aFolderCannotBeOpened()
    {
        const ShopWithAFolder shop;
        QCOMPARE(reportOf("select 1"),
            notOpened + databaseReport("select 1", "unable to open database file"));
    }

    void nullOnADatabaseThatCannotBeOpenedSpoilsTheStream()
    {
        const ShopWithAFolder shop;
        CapturedOutput output;
        QVERIFY(Db::DbLoad(nullptr).empty());
        QVERIFY(std::cout.fail());
        std::cout.clear();
        QCOMPARE(output.text(), notOpened + "Errors Db::DbLoad sqlite3_errmsg : ");
    }

    void creatingASchemaInAFolderOnlyComplains()
    {
        const ShopWithAFolder shop;
        CapturedOutput output;
        Db::DbCreate();
        QCOMPARE(output.text().count(notOpened), 9);
        QCOMPARE(output.text().count(" unable to open database file\n"), 9);
        QCOMPARE(output.text().count('\n'), 18);
    }

    void anExceptionInTheCreationIsWrittenOnStandardError()
    {
        const ShopWithAFolder shop;
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
        QCOMPARE(
            errors.str(), std::string("Errors Db::DbLoad : basic_ios::clear: iostream error\n"));
    }

    void aFileThatIsNoDatabaseIsReportedAndKept()
    {
        const Shop shop(Shop::Database::None);
        const QByteArray letter = QByteArray("Chère cliente, cher client,\n").repeated(100);
        shop.write("Vendel.db", letter);
        QCOMPARE(reportOf("select * from Ticket"),
            databaseReport("select * from Ticket", "file is not a database"));
        Db::DbLoad(addTea);
        QCOMPARE(shop.read("Vendel.db"), letter);
    }

    void aMissingTableIsReported()
    {
        const Shop shop;
        const QByteArray report
            = databaseReport("select * from Historique", "no such table: Historique");
        shop.sql("drop table Historique");
        QCOMPARE(reportOf("select * from Historique"), report);
        shop.write("Vendel.db", "");
        QCOMPARE(reportOf("select * from Historique"), report);
    }

    void whatIsReadOnlyIsReadAndNotWritten()
    {
        const Rows<uint, uint> rows{
            {"a file", 0777U, 0444U},
            {"a folder", 0555U, 0666U},
        };
        for (const auto& [row, folder, file] : rows) {
            const InRow inRow(row);
            const Shop shop;
            shop.sql(addTea);
            setRights(folder, file);
            {
                const OrdinaryUser user;
                QCOMPARE(reportOf("select * from Ticket"), QByteArray());
                QCOMPARE(shop.cell("select article from Article"), QString("Thé"));
                QCOMPARE(reportOf(addTea),
                    databaseReport(addTea, "attempt to write a readonly database"));
                QCOMPARE(shop.cell("select count(*) from Article"), QString("1"));
            }
            setRights(0777, 0666);
        }
    }

    void anUnreadableFileCannotBeOpened()
    {
        const Shop shop;
        setRights(0777, 0);
        const OrdinaryUser user;
        QCOMPARE(reportOf("select * from Ticket"),
            notOpened + databaseReport("select * from Ticket", "unable to open database file"));
    }

    void aFullFileSystemKeepsWhatWasStored()
    {
        const Shop shop;
        shop.sql(addTea);
        {
            const FileSizeLimit limit(100'000);
            QCOMPARE(reportOf(addMuch), databaseReport(addMuch, "disk I/O error"));
            CapturedOutput output;
            QVERIFY(!Db::DbTransact({addTea, addMuch}));
            QVERIFY(output.text().startsWith("Errors Db::DbLoad sqlite3_errmsg : "));
            QVERIFY(output.text().endsWith(" disk I/O error\n"));
        }
        QCOMPARE(shop.sql("select article from Article"), DbRows(1, {std::string("Thé")}));
        QCOMPARE(shop.cell("pragma integrity_check"), QString("ok"));
        Db::DbLoad(addMuch);
        QCOMPARE(shop.cell("select count(*) from Article"), QString("2"));
    }

    void aLockedDatabaseIsWaitedForAndReported()
    {
        const Rows<QByteArray, QByteArray, bool> rows{
            {"a statement", "begin exclusive", "select * from Config", false},
            {"a transaction", "begin immediate", "begin immediate", true},
            {"a transaction that a reader holds up", "begin; select * from Config", "commit", true},
        };
        for (const auto& [row, lock, refused, isTransaction] : rows) {
            const InRow inRow(row);
            const Shop shop;
            {
                const OtherProcess backup(lock.constData(), aMinute);
                CapturedOutput output;
                QElapsedTimer timer;
                timer.start();
                QVERIFY(isTransaction ? !Db::DbTransact({addTea, addTea})
                                      : Db::DbLoad(refused.constData()).empty());
                const qint64 waited = timer.elapsed();
                QCOMPARE(output.text(), databaseReport(refused, "database is locked"));
                QVERIFY2(waited >= 1500 && waited < 20'000, qPrintable(QString::number(waited)));
            }
            QCOMPARE(shop.cell("select count(*) from Article"), QString("0"));
            QCOMPARE(shop.cell("pragma integrity_check"), QString("ok"));
        }
    }

    void aLockReleasedInTimeIsNoError()
    {
        const Shop shop;
        const OtherProcess backup("begin exclusive", 500'000);
        QCOMPARE(reportOf(addTea), QByteArray());
        QCOMPARE(shop.cell("select article from Article"), QString("Thé"));
    }

    void aReaderOfAnotherProcessDisturbsNobody()
    {
        const Shop shop;
        const OtherProcess backup("begin; select * from Config", aMinute);
        CapturedOutput output;
        QCOMPARE(shop.cell("select count(*) from Config"), QString("2"));
        QCOMPARE(output.text(), QByteArray());
    }
};

VENDEL_TEST(TestDbFailures)
#include "tst_Db_failures.moc"
