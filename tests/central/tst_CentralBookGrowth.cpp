// SPDX-License-Identifier: MIT
#include "backoffice/reports/Report.h"
#include "backoffice/sales/BookDatabase.h"
#include "backoffice/sales/BookDays.h"
#include "backoffice/sales/BookSource.h"
#include "backoffice/sales/BookStatements.h"
#include "tests/central/BookFigures.h"
#include "tests/support/TestProgram.h"

#include <algorithm>
#include <array>

using namespace BookFigures;

namespace {
constexpr std::array pages{Page::Sales, Page::Articles, Page::Hours, Page::Uses, Page::Closing};

/// What the making of a page asked for.
struct Asked
{
    int statements = 0;
    /// How often the till's own statement of what was used was run.
    int runs = 0;
};

Asked makePage(BookSource& source, Page page, const DayRange& range)
{
    Asked asked;
    const Reading reading{[&](double done) { ++(done < 1 ? asked.statements : asked.runs); }, {}};
    ReportOrder order;
    order.page = page;
    order.range = range;
    order.today = QDate(2027, 1, 1);
    order.locale = QLocale::c();
    makeReport(order, source, reading);
    return asked;
}

/// A book of tills that sell coffee and tea, each of them with a dose of its own.
class SoldBook
{
public:
    void addTills(int count)
    {
        for (; count > 0; --count) {
            const int number = static_cast<int>(tills_.size()) + 1;
            tills_.push_back(std::make_unique<SoldTill>());
            tills_.back()->sql(QString(emptied)
                + QString("insert into ArticleStock values (1, 'Café'), (2, 'Thé');"
                          "insert into DoseStock values (1, 1, 'Eau', 5, 'cl'), "
                          "(2, 1, 'Grains', %1, 'g'), (3, 2, 'Eau', 20, 'cl')")
                      .arg(number));
        }
    }

    /// Sells \a lines of each article in an hour of \a day, in no two tills at the same moment.
    void sell(const QString& day, int lines) const
    {
        for (std::size_t till = 0; till < tills_.size(); ++till) {
            for (int line = 0; line < lines; ++line) {
                const QString moment
                    = QString("%1 10:00:%2.00%3").arg(day).arg(line, 2, 10, QChar('0')).arg(till);
                tills_[till]->sell(moment, "Café", "2");
                tills_[till]->sell(moment, "Thé", "2");
            }
        }
    }

    void sendAll() const
    {
        for (std::size_t till = 0; till < tills_.size(); ++till) {
            send(*tills_[till], name, qPrintable(QString("Caisse %1").arg(till)));
        }
    }

    const std::string name = BookServer::get().newBook();

private:
    std::vector<std::unique_ptr<SoldTill>> tills_;
};
} // namespace

/// What a page costs does not grow with what the book keeps.
class TestCentralBookGrowth : public QObject
{
    Q_OBJECT

private slots:
    void noPageReadsLines()
    {
        SoldBook book;
        book.addTills(2);
        book.sell("2026-02-01", 3);
        book.sell("2026-03-05", 3);
        book.sendAll();
        BookServer::get().rows(book.name,
            "create role pages login; grant usage on schema vendel to pages;"
            "grant select on all tables in schema vendel to pages;"
            "revoke select on vendel.line, vendel.line_2026_02, vendel.line_2026_03 from pages");
        const QString reader = QString::fromStdString(BookServer::get().uri(book.name, "pages"));
        BookDatabase database(reader);
        for (const char* table : {"line", "line_2026_02", "line_2026_03"}) {
            QVERIFY_EXCEPTION_THROWN(
                database.read(QString("select from vendel.%1").arg(table), {}, {}), SalesError);
        }
        BookSource source(reader);
        for (const DayRange& range : {days("2026-02-01", "2026-02-01"),
                 days("2026-02-01", "2026-03-31"), days("2026-01-15", "2026-12-30")}) {
            for (const Page page : pages) {
                try {
                    makePage(source, page, range);
                } catch (const SalesError& error) {
                    QFAIL(qPrintable(
                        QString("page %1: %2").arg(static_cast<int>(page)).arg(error.sentence())));
                }
            }
        }
        QVERIFY(source.isChanged());
    }

    void aPageAsksAsOftenWhateverTheBookKeeps()
    {
        SoldBook book;
        book.addTills(2);
        book.sell("2026-02-01", 1);
        book.sendAll();
        const DayRange day = days("2026-02-01", "2026-02-01");
        const DayRange twoMonths = days("2026-02-01", "2026-03-31");
        const DayRange aYear = days("2026-01-01", "2026-12-31");
        QHash<int, int> atFirst;
        {
            BookSource source(uri(book.name));
            for (const Page page : pages) {
                atFirst[static_cast<int>(page)] = makePage(source, page, day).statements;
            }
        }
        QCOMPARE(atFirst[static_cast<int>(Page::Uses)], 4);
        book.addTills(3);
        book.sell("2026-02-01", 20);
        for (const char* other : {"2026-02-02", "2026-03-31"}) {
            book.sell(other, 20);
        }
        book.sendAll();
        BookSource source(uri(book.name));
        for (const DayRange& range : {day, twoMonths, aYear}) {
            for (const Page page : pages) {
                const Asked asked = makePage(source, page, range);
                QVERIFY(asked.statements <= atFirst[static_cast<int>(page)]);
                // Once for what units are converted to, and neither for tills nor for days.
                QCOMPARE(asked.runs, page == Page::Uses ? 1 : 0);
            }
        }
    }

    void whatWasUsedArrivesInARowForATillAndArticle()
    {
        SoldBook book;
        book.addTills(2);
        book.sell("2026-02-01", 1);
        book.sendAll();
        BookDatabase database(uri(book.name));
        const auto rows = [&](const char* last) {
            const BookDays range(days("2026-02-01", last));
            const QString tills = BookStatements::array({1, 2});
            int count = 0;
            database.read(BookStatements::usesOfParts(),
                {range.first, range.first, range.behind, range.behind, range.behind, tills,
                    range.behind, range.behind, tills},
                [&](const QSqlQuery&) { ++count; });
            return count;
        };
        QCOMPARE(rows("2026-02-01"), 4);
        for (const char* day : {"2026-02-01", "2026-02-02", "2026-02-28", "2026-03-31"}) {
            book.sell(day, 9);
        }
        book.sendAll();
        QCOMPARE(rows("2026-02-01"), 4);
        QCOMPARE(rows("2026-03-31"), 4);
    }
};

VENDEL_TEST(TestCentralBookGrowth)
#include "tst_CentralBookGrowth.moc"
