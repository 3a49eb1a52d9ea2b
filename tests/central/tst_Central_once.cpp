// SPDX-License-Identifier: MIT
#include "tests/central/BookServer.h"
#include "tests/central/SoldTill.h"
#include "tests/support/TestProgram.h"

#include <QFile>

namespace {
const auto New = Sender::Depth::New;
const auto All = Sender::Depth::All;

/// Puts \a bytes in the place of the till's database, as the launcher restores a copy.
void restore(const SoldTill& till, const QByteArray& bytes)
{
    QFile part(till.file() + ".part");
    QVERIFY(part.open(QIODevice::WriteOnly));
    part.write(bytes);
    part.close();
    QVERIFY(::rename(QFile::encodeName(part.fileName()).constData(),
                QFile::encodeName(till.file()).constData())
        == 0);
}

QByteArray bytesOf(const SoldTill& till)
{
    QFile file(till.file());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

/// Each line that was sold is in the book once, whatever happens to the till's database.
class TestCentralOnce : public QObject
{
    Q_OBJECT

private:
    std::string book_;

private slots:
    void init() { book_ = BookServer::get().newBook(); }
    void cleanup() { QCOMPARE(SoldTill::wrongSums(book_), QStringList()); }

    void whatWasSoldArrives()
    {
        const SoldTill till;
        till.sell("2026-03-05 14:07:31.250");
        till.sell("2026-03-05 14:07:31.251", "Café crème", "-1.2", 7);
        QCOMPARE(till.send(book_), std::int64_t{2});
        QCOMPARE(SoldTill::bookLines(book_),
            (QStringList{"2026-03-05 14:07:31.250 1 Thé 25000",
                "2026-03-05 14:07:31.251 7 Café crème -12000"}));
    }

    void sendingAgainAddsNothing()
    {
        const SoldTill till;
        till.sell("2026-03-05 14:07:31.250");
        till.send(book_);
        QCOMPARE(till.send(book_), std::int64_t{0});
        QCOMPARE(till.send(book_, New), std::int64_t{0});
        QCOMPARE(SoldTill::bookLines(book_).size(), 1);
    }

    void onlyWhatIsNewIsAdded()
    {
        const SoldTill till;
        till.sell("2026-03-05 14:07:31.250");
        till.send(book_);
        till.sell("2026-03-05 14:08:00.000");
        QCOMPARE(till.send(book_, New), std::int64_t{1});
        QCOMPARE(SoldTill::bookLines(book_), till.lines());
    }

    void linesThatSayTheSameAreAllThere()
    {
        const SoldTill till;
        for (int count = 0; count < 3; ++count) {
            till.sell("2026-03-05 14:07:31.250");
        }
        QCOMPARE(till.send(book_), std::int64_t{3});
        // More of the same moment come later.
        till.sell("2026-03-05 14:07:31.250");
        till.sell("2026-03-05 14:07:31.250");
        QCOMPARE(till.send(book_, New), std::int64_t{2});
        QCOMPARE(SoldTill::bookLines(book_), till.lines());
        QCOMPARE(SoldTill::bookLines(book_).size(), 5);
    }

    void aSaleLargerThanAPortionArrives()
    {
        const SoldTill till;
        till.sell("2026-03-05 14:00:00.000");
        till.send(book_);
        till.sql("with recursive n(i) as (select 1 union all select i + 1 from n where i < 12000) "
                 "insert into Historique (id, article, prix, date_heure) "
                 "select 1, 'Thé', 2.5, '2026-03-05 14:07:31.250' from n");
        QCOMPARE(till.send(book_, New), std::int64_t{12000});
        QCOMPARE(till.send(book_), std::int64_t{0});
    }

    void aLongHistoryArrivesInBatches()
    {
        const SoldTill till;
        till.sql("with recursive n(i) as (select 0 union all select i + 1 from n where i < 23456) "
                 "insert into Historique (id, article, prix, date_heure) select i % 7, "
                 "'Article ' || (i % 7), 1 + i % 5, strftime('%Y-%m-%d %H:%M:%f', "
                 "'2025-12-20 08:00:00', (i * 97) || ' seconds') from n");
        QCOMPARE(till.send(book_), std::int64_t{23457});
        QCOMPARE(SoldTill::bookLines(book_), till.lines());
    }

    void aPurgeLeavesTheBookWhole_data()
    {
        QTest::addColumn<QString>("purge");
        QTest::newRow("end") << "date_heure > '2026-03-07'";
        QTest::newRow("middle") << "date_heure between '2026-03-06' and '2026-03-07'";
        QTest::newRow("beginning") << "date_heure < '2026-03-06'";
        QTest::newRow("everything") << "1";
    }
    void aPurgeLeavesTheBookWhole()
    {
        QFETCH(QString, purge);
        const SoldTill till;
        for (int day = 5; day <= 8; ++day) {
            till.sell(QString("2026-03-0%1 10:00:00.000").arg(day), "Thé", QString::number(day));
            till.sell(QString("2026-03-0%1 10:00:00.000").arg(day), "Thé", QString::number(day));
        }
        till.send(book_);
        const QStringList sold = till.lines();
        till.sql("delete from Historique where " + purge);
        QCOMPARE(till.send(book_), std::int64_t{0});
        QCOMPARE(SoldTill::bookLines(book_), sold);

        // Rows are used again.
        till.sell("2026-03-09 10:00:00.000", "Thé", "5");
        till.sell("2026-03-09 10:00:01.000", "Thé", "8");
        QCOMPARE(till.send(book_, New), std::int64_t{2});
        QCOMPARE(SoldTill::bookLines(book_).size(), 10);
        QCOMPARE(till.send(book_), std::int64_t{0});
    }

    void rowsUsedAgainBetweenTwoSendingsAreNoticed()
    {
        const SoldTill till;
        for (int minute = 10; minute < 20; ++minute) {
            till.sell(QString("2026-03-05 10:%1:00.000").arg(minute));
        }
        till.send(book_);
        till.sql("delete from Historique");
        for (int minute = 30; minute < 45; ++minute) {
            till.sell(QString("2026-03-05 10:%1:00.000").arg(minute));
        }
        QCOMPARE(till.send(book_, New), std::int64_t{15});
        QCOMPARE(SoldTill::bookLines(book_).size(), 25);
    }

    void anOlderCopyLosesNothing()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        till.sell("2026-03-05 10:00:01.000");
        const QByteArray copy = bytesOf(till);
        till.sell("2026-03-05 10:00:02.000");
        till.sell("2026-03-05 10:00:03.000");
        till.send(book_);
        restore(till, copy);
        QCOMPARE(till.send(book_), std::int64_t{0});
        till.sell("2026-03-05 10:05:00.000");
        till.sell("2026-03-05 10:05:01.000");
        till.sell("2026-03-05 10:05:02.000");
        QCOMPARE(till.send(book_, New), std::int64_t{3});
        QCOMPARE(SoldTill::bookLines(book_).size(), 7);
    }

    void aCopyFromBeforeAPurgeDoublesNothing()
    {
        const SoldTill till;
        till.sell("2026-02-05 10:00:00.000");
        till.sell("2026-02-05 10:00:00.000");
        till.sell("2026-03-05 10:00:00.000");
        till.send(book_);
        const QByteArray copy = bytesOf(till);
        till.sql("delete from Historique where date_heure < '2026-03'");
        till.send(book_);
        till.sell("2026-03-06 10:00:00.000");
        till.send(book_, New);
        restore(till, copy);
        QCOMPARE(till.send(book_), std::int64_t{0});
        QCOMPARE(SoldTill::bookLines(book_).size(), 4);
    }

    void aCopyWithSalesThatWereNeverSentBringsThem()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000", "Jamais envoyé");
        till.sell("2026-03-06 10:00:00.000");
        const QByteArray copy = bytesOf(till);
        till.sql("delete from Historique where date_heure < '2026-03-06'");
        till.send(book_);
        restore(till, copy);
        QCOMPARE(till.send(book_), std::int64_t{1});
        QCOMPARE(SoldTill::bookLines(book_), till.lines());
    }

    void aFileOverwrittenInPlaceIsRead()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        const SoldTill other;
        other.sell("2026-03-06 10:00:00.000");
        other.sell("2026-03-07 10:00:00.000");
        till.send(book_);
        QFile file(till.file());
        QVERIFY(file.open(QIODevice::ReadWrite));
        file.write(bytesOf(other));
        file.close();
        QCOMPARE(till.send(book_, New), std::int64_t{2});
        QCOMPARE(SoldTill::bookLines(book_).size(), 3);
    }

    void renumberedRowsChangeNothing()
    {
        const SoldTill till;
        for (int day = 10; day < 20; ++day) {
            till.sell(QString("2026-03-%1 10:00:00.000").arg(day));
        }
        till.send(book_);
        till.sql("delete from Historique where date_heure < '2026-03-13';"
                 "create temporary table kept as select * from Historique order by rowid;"
                 "delete from Historique; insert into Historique select * from kept; vacuum");
        QCOMPARE(till.rows("select max(rowid) from Historique"), QStringList("7"));
        QCOMPARE(till.send(book_, New), std::int64_t{0});
        till.sell("2026-03-20 10:00:00.000");
        QCOMPARE(till.send(book_, New), std::int64_t{1});
        QCOMPARE(SoldTill::bookLines(book_).size(), 11);
    }

    void aClockSetBackLosesNothing()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        till.sell("2026-03-05 10:00:05.000");
        till.send(book_);
        till.sell("2026-03-05 09:59:59.000");
        till.sell("2025-01-01 00:00:00.000");
        QCOMPARE(till.send(book_, New), std::int64_t{2});
        QCOMPARE(SoldTill::bookLines(book_), till.lines());
        QCOMPARE(till.send(book_), std::int64_t{0});
    }

    void theHourThatAutumnRepeatsIsThereTwice()
    {
        const SoldTill till;
        till.sell("2026-10-25 02:30:00.000");
        till.send(book_);
        till.sell("2026-10-25 02:59:59.999");
        till.sell("2026-10-25 02:30:00.000");
        QCOMPARE(till.send(book_, New), std::int64_t{2});
        QCOMPARE(SoldTill::bookLines(book_), till.lines());
        QCOMPARE(SoldTill::bookLines(book_).count("2026-10-25 02:30:00.000 1 Thé 25000"), 2);
    }

    void whatHappensWhileItIsReadIsSeen()
    {
        int moment = 1;
        for (;; ++moment) {
            book_ = BookServer::get().newBook();
            const SoldTill till;
            till.sell("2026-01-05 10:00:00.000");
            till.sell("2026-02-05 10:00:00.000");
            till.sell("2026-03-05 10:00:00.000");
            int looks = 0;
            Timing timing = SoldTill::hasty();
            const auto elapsed = timing.elapsed;
            // The clock is looked at between any two portions.
            timing.elapsed = [&] {
                if (++looks == moment) {
                    till.sql("delete from Historique");
                    till.sell("2026-01-06 10:00:00.000");
                    till.sell("2026-02-06 10:00:00.000");
                    till.sell("2026-03-06 10:00:00.000");
                }
                return elapsed();
            };
            TillLines lines(till.path(), {}, timing);
            Book book(BookServer::get().uri(book_), till.path().toStdString(), "Caisse");
            Sender(book, lines).sendLines(All);
            // Behind the last line that is read there are a few looks more.
            constexpr int afterLast = 5;
            if (looks < moment + afterLast) {
                break;
            }
            const QStringList sent = SoldTill::bookLines(book_);
            const QStringList sold = till.lines();
            for (const QString& line : sold) {
                QVERIFY2(sent.contains(line), qPrintable(QString::number(moment) + line));
            }
        }
        QVERIFY2(moment > 10, qPrintable(QString::number(moment)));
    }

    void aBookThatForgotWhatItHasIsFilledAgain()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        till.sell("2026-03-05 10:00:00.000");
        till.send(book_);
        BookServer::get().rows(book_, "update vendel.progress set last_row = 0, last_content = ''");
        BookServer::get().rows(book_, "delete from vendel.month");
        QCOMPARE(till.send(book_, New), std::int64_t{0});
        QCOMPARE(till.send(book_), std::int64_t{0});
    }

    void pricesThatAreNoTenThousandthsStayApart()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000", "Thé", "1.00001");
        till.sell("2026-03-05 10:00:00.000", "Thé", "1.00002");
        till.sell("2026-03-05 10:00:00.000", "Thé", "1");
        QCOMPARE(till.send(book_), std::int64_t{3});
        QCOMPARE(BookServer::get().rows(
                     book_, "select price, exact_price from vendel.line order by exact_price"),
            (QStringList{"10000|", "10000|1.00001", "10000|1.00002"}));
    }

    void linesThatNoPageCanShowAreKeptAside()
    {
        const SoldTill till;
        till.sell("hier");
        till.sell("hier");
        till.sell("2026-02-30 10:00:00.000");
        till.sell("2026-03-05 10:00:00");
        till.sell("2026-03-05 10:00:00.000", "Thé", "9e300");
        till.sell("2026-03-05 10:00:00.000");
        QCOMPARE(till.send(book_), std::int64_t{1});
        QCOMPARE(BookServer::get().cell(book_, "select count(*) from vendel.odd_line"), "5");
        till.sell("demain");
        till.send(book_, New);
        QCOMPARE(till.send(book_), std::int64_t{0});
        QCOMPARE(BookServer::get().cell(book_, "select count(*) from vendel.odd_line"), "6");
    }

    void aNameThatNoIndexTakesIsKeptAside()
    {
        const SoldTill till;
        // Nothing that could be packed more closely.
        QString name;
        for (int number = 0; name.size() < 9000; ++number) {
            name += QString::number(number * 7919 % 100003, 36);
        }
        till.sell("2026-03-05 10:00:00.000", name);
        till.sell("2026-03-05 10:00:01.000");
        QCOMPARE(till.send(book_), std::int64_t{1});
        QCOMPARE(till.send(book_), std::int64_t{0});
        QCOMPARE(BookServer::get().cell(book_, "select name from vendel.odd_line"), name);
    }

    void textsArriveAsTheyAre()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000", R"(a "b" \c {d}, ''é'' NULL)");
        till.sell("2026-03-05 10:00:00.000", "NULL");
        till.sell("2026-03-05 10:00:00.000", "");
        till.send(book_);
        QCOMPARE(SoldTill::bookLines(book_), till.lines());
    }

    void aZeroInATextHoldsNothingUp()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000", "a' || char(0) || 'b");
        till.sell("2026-03-05 10:00:01.000");
        QCOMPARE(till.send(book_), std::int64_t{2});
        QCOMPARE(till.send(book_), std::int64_t{0});
        QCOMPARE(SoldTill::bookLines(book_).value(0), "2026-03-05 10:00:00.000 1 a\uFFFDb 25000");
    }

    void twoSendersOfOneTillDoNotDouble()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        Book one(BookServer::get().uri(book_), "identity", "Caisse");
        one.enter({});
        Book other(BookServer::get().uri(book_), "identity", "Caisse");
        Book::Progress known = one.progress().value();
        Book::Progress stale = other.progress().value();
        TillLines lines(till.path(), {}, SoldTill::hasty());
        lines.state();
        Batch batch;
        lines.ofMonth("2026-03", 1, [&](std::vector<Line> some) { batch.lines = some; });
        QCOMPARE(batch.lines.size(), std::size_t{1});
        QVERIFY(one.add(batch, known));
        QVERIFY(!other.add(batch, stale));
        QCOMPARE(SoldTill::bookLines(book_).size(), 1);
    }
};

VENDEL_TEST(TestCentralOnce)
#include "tst_Central_once.moc"
