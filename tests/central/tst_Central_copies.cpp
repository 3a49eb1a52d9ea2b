// SPDX-License-Identifier: MIT
#include "central/BookError.h"
#include "tests/central/CopiedTills.h"
#include "tests/support/TestProgram.h"

namespace {
BookServer& server() { return BookServer::get(); }
} // namespace

/// No history arrives under a second till.
class TestCentralCopies : public QObject, private CopiedTills
{
    Q_OBJECT

private slots:
    void init() { book_ = server().newBook(); }
    void cleanup() { QCOMPARE(SoldTill::wrongSums(book_), QStringList()); }

    void aCopyThatWasPurgedOrNeverSentInPartIsKnown()
    {
        const SoldTill dead;
        sellOn(dead, threeMonths);
        const SoldTill purged;
        const SoldTill early;
        copy(dead, purged);
        copy(dead, early);
        dead.sql("delete from Historique where date_heure < '2026-01-06'");
        QCOMPARE(send(dead, "Bar").status, 0);
        purged.sql("delete from Historique where date_heure < '2026-02-07'");
        refused(purged.sendTo(server().uri(book_)), refusal);
        refused(early.sendTo(server().uri(book_)), refusal);
        QCOMPARE(takeOver(early).status, 0);
        QCOMPARE(SoldTill::bookLines(book_), early.lines());
        QCOMPARE(tills(), "1|Bar");
    }

    void aCloneIsLetInOncePurged()
    {
        const SoldTill one;
        sellOn(one, threeMonths);
        const SoldTill other;
        copy(one, other);
        QCOMPARE(send(one, "Bar").status, 0);
        refused(send(other, "Terrasse"), refusal);
        other.sql("delete from Historique");
        sellOn(other, threeMonths, "10:00:01.000");
        QCOMPARE(send(other, "Terrasse").status, 0);
        QCOMPARE(tills(), "1|Bar 2|Terrasse");
        QCOMPARE(SoldTill::bookLines(book_, 2), other.lines());
        // A copy is still one when the book knows the till.
        const QStringList before = all();
        copy(one, other);
        refused(send(other, "Terrasse"), refusal);
        QCOMPARE(all(), before);
    }

    void aCloneIsPurgedOfTheOthersSalesAlone()
    {
        const SoldTill one;
        sellOn(one, threeMonths);
        const SoldTill other;
        copy(one, other);
        sellOn(one, {"2026-04-01"});
        sellOn(other, {"2026-04-01", "2026-04-02"}, "10:00:01.000");
        QCOMPARE(send(one, "Bar").status, 0);
        refused(send(other, "Terrasse"), refusal);
        other.sql("delete from Historique where date_heure < '2026-04-01'");
        QCOMPARE(send(other, "Terrasse").status, 0);
        QCOMPARE(SoldTill::bookLines(book_, 2), other.lines());
    }

    void aPurgedClonesOwnCopyIsACopyStill_data()
    {
        QTest::addColumn<bool>("hasSoldSince");
        QTest::newRow("its last row is that of the copy") << false;
        QTest::newRow("it has sold since") << true;
    }
    void aPurgedClonesOwnCopyIsACopyStill()
    {
        QFETCH(bool, hasSoldSince);
        const SoldTill one;
        sellOn(one, threeMonths);
        const SoldTill other;
        copy(one, other);
        sellOn(other, {"2026-04-01", "2026-04-02", "2026-04-03"}, "10:00:01.000");
        const SoldTill copied;
        copy(other, copied);
        QCOMPARE(send(one, "Bar").status, 0);
        other.sql("delete from Historique where date_heure < '2026-04-01'");
        if (hasSoldSince) {
            sellOn(other, {"2026-04-04"});
        }
        QCOMPARE(send(other, "Terrasse").status, 0);
        const QStringList before = all();
        copy(copied, other);
        refused(send(other, "Terrasse"), refusal);
        QCOMPARE(all(), before);
    }

    void anotherTillsDatabaseWrittenInPlaceIsNotSent()
    {
        const SoldTill one;
        sellOn(one, threeMonths);
        QCOMPARE(send(one, "Bar").status, 0);
        const SoldTill other;
        other.sql("with recursive n(i) as (select 1 union all select i + 1 from n where i < 20000) "
                  "insert into Historique (id, article, prix, date_heure) select i % 9, 'Kir', 4, "
                  "strftime('%Y-%m-%d %H:%M:%f', '2026-01-01', (i * 300) || ' seconds') from n");
        QCOMPARE(send(other, "Terrasse").status, 0);
        other.sql("update Historique set prix = 5");
        // When a part has been sent again, as SQLite's own restoring does it.
        const auto isSentAgain = [&] {
            return server().cell(book_,
                       "select exists (select from vendel.line where till = 2 and price = 50000)")
                == "t";
        };
        Timing timing = SoldTill::pausing(other);
        bool isWritten = false;
        timing.sleep = [&](qint64) {
            if (!isWritten && isSentAgain()) {
                isWritten = true;
                other.sql("attach '" + one.file()
                    + "' as bar; begin; delete from Historique; "
                      "insert into Historique select * from bar.Historique; commit");
            }
        };
        TillLines lines(other.path(), {}, timing);
        Book book(server().uri(book_),
            server().cell(book_, "select identity from vendel.till where id = 2").toStdString(),
            "Terrasse");
        QVERIFY_EXCEPTION_THROWN(Sender(book, lines).sendLines(Sender::Depth::All), BookError);
        QVERIFY(isWritten);
        QCOMPARE(SoldTill::bookLines(book_, 2).filter("Thé"), QStringList());
    }

    void aTillThatWasPurgedWhollyIsStillNoOther()
    {
        const SoldTill one;
        sellOn(one, threeMonths);
        QCOMPARE(send(one, "Bar").status, 0);
        const SoldTill other;
        other.sell("2026-03-09 10:00:00.000");
        QCOMPARE(send(other, "Terrasse").status, 0);
        other.sql("delete from Historique");
        QCOMPARE(send(other, "Terrasse").status, 0);
        copy(one, other);
        refused(send(other, "Terrasse"), refusal);
        QCOMPARE(SoldTill::bookLines(book_, 2).size(), 1);
    }

    void itsOwnOlderCopyIsNeverRefused()
    {
        const SoldTill till;
        sellOn(till, threeMonths);
        const SoldTill copied;
        copy(till, copied);
        sellOn(till, {"2026-03-08"});
        QCOMPARE(send(till, "Bar").status, 0);
        copy(copied, till);
        sellOn(till, {"2026-03-09"});
        QCOMPARE(send(till, "Bar").status, 0);
        QCOMPARE(SoldTill::bookLines(book_).size(), 10);
    }

    void tillsWithoutACommonHistoryAreNeverRefused_data()
    {
        QTest::addColumn<QStringList>("one");
        QTest::addColumn<QStringList>("other");
        const QStringList none;
        const QString morning = "2026-03-05 10:00:00.000";
        QTest::newRow("empty") << none << none;
        QTest::newRow("one line of 1970")
            << QStringList{"1970-01-01 00:00:00.000"} << QStringList{"1970-01-01 00:00:00.000"};
        QTest::newRow("same sales, other moments")
            << QStringList{morning, "2026-03-05 10:00:05.000", "2026-04-05 10:00:00.000"}
            << QStringList{
                   "2026-03-05 10:00:00.001", "2026-03-05 10:00:05.001", "2026-04-05 10:00:00.001"};
        QTest::newRow("two by chance")
            << QStringList{"2026-03-05 09:00:00.000", morning, "2026-04-05 10:00:00.000"}
            << QStringList{"2026-03-05 09:00:00.001", morning, "2026-04-05 10:00:00.000"};
        QTest::newRow("lines of one sale")
            << QStringList{morning, "2026-03-05 10:00:00.001", "2026-03-05 10:00:00.002"}
            << QStringList{morning, "2026-03-05 10:00:00.001", "2026-03-05 10:00:00.002"};
        QTest::newRow("lines that no page can show") << QStringList{"hier", "12:00",
            "2026-02-30 10:00:00.000"} << QStringList{"hier", "12:00", "2026-02-30 10:00:00.000"};
    }
    void tillsWithoutACommonHistoryAreNeverRefused()
    {
        QFETCH(QStringList, one);
        QFETCH(QStringList, other);
        const SoldTill first;
        const SoldTill second;
        for (const QString& moment : one) {
            first.sell(moment);
        }
        for (const QString& moment : other) {
            second.sell(moment);
        }
        QCOMPARE(send(first, "Bar").status, 0);
        refused(takeOver(second), nobody);
        QCOMPARE(tills(), "1|Bar");
        const Said said = send(second, "Terrasse");
        QCOMPARE(said.errors, QString());
        QCOMPARE(tills(), "1|Bar 2|Terrasse");
    }

    void anotherArticleOrPriceIsAnotherSale()
    {
        const SoldTill one;
        sellOn(one, threeMonths);
        QCOMPARE(send(one, "Bar").status, 0);
        for (const char* change : {"article = 'Café'", "prix = 3", "prix = 2.50001", "id = 7"}) {
            const SoldTill other;
            copy(one, other);
            other.sql(QString("update Historique set ") + change);
            QCOMPARE(send(other, change).status, 0);
        }
    }
};

VENDEL_TEST(TestCentralCopies)
#include "tst_Central_copies.moc"
