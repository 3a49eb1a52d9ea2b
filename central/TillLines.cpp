// SPDX-License-Identifier: MIT
#include "central/TillLines.h"

#include <QCryptographicHash>

#include <limits>
#include <unordered_map>
#include <utility>

namespace {
/// The price in ten-thousandths, as the pages of a single till compute it.
constexpr const char* amount = "cast(round(prix * 10000) as integer)";

QString monthColumn()
{
    return QStringLiteral("case when typeof(date_heure) = 'text' and "
                          "date_heure glob '[0-9][0-9][0-9][0-9]-[0-9][0-9]*' "
                          "then substr(date_heure, 1, 7) else '' end");
}

/// The parts are multiplied: sums alone would not see two prices that change places.
QString mark()
{
    return QStringLiteral(
        "((((coalesce(strftime('%s', date_heure), 0) * 1000 "
        "+ coalesce(substr(date_heure, 21, 3), 0)) % 1000003 * 1103 + id * 7) & 1048575) + 1) "
        "* (((%1 % 1000003 * 17 + length(article) * 7919 + coalesce(unicode(article), 0)) "
        "& 1048575) + 1)")
        .arg(QLatin1String(amount));
}

QString columns()
{
    return QStringLiteral("rowid, date_heure, id, article, %1, "
                          "case when typeof(prix) in ('integer', 'real') and %1 / 10000.0 = prix "
                          "then '' else quote(prix) end, %2, %3")
        .arg(QLatin1String(amount), monthColumn(), mark());
}

/// Bytes that PostgreSQL takes: it knows no zero byte in a text.
std::string text(const QVariant& value)
{
    QString found = value.toString();
    found.replace(QChar(0), QChar(QChar::ReplacementCharacter));
    return found.toStdString();
}

QVariant bound(const std::string& value) { return QString::fromStdString(value); }

Line lineOf(const QSqlQuery& row)
{
    Line line;
    int column = 0;
    line.row = row.value(column++).toLongLong();
    line.moment = text(row.value(column++));
    line.article = text(row.value(column++));
    line.name = text(row.value(column++));
    line.price = row.value(column++).toLongLong();
    line.exactPrice = text(row.value(column++));
    line.month = text(row.value(column++));
    line.mark = row.value(column++).toLongLong();
    return line;
}

/// Gives lines their places among those that say the same.
class Ordinals
{
public:
    void number(Line& line) { line.ordinal = ++counts_[line.content()]; }
    void number(std::vector<Line>& lines)
    {
        for (Line& line : lines) {
            number(line);
        }
    }
    void forget() { counts_.clear(); }

private:
    std::unordered_map<std::string, int> counts_;
};

} // namespace

std::string Menu::fingerprint() const
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const auto add = [&hash](const std::string& part) {
        hash.addData(
            QByteArray::number(qulonglong{part.size()}) + ':' + QByteArray::fromStdString(part));
    };
    const auto addNumber = [&add](double number) {
        add(QByteArray::number(number, 'g', std::numeric_limits<double>::max_digits10)
                .toStdString());
    };
    addNumber(taxRate);
    add(std::to_string(articles.size()) + ' ' + std::to_string(stock.size()));
    for (const MenuEntry& entry : articles) {
        add(std::to_string(entry.id) + ' ' + std::to_string(entry.price));
        add(entry.article);
    }
    for (const StockEntry& entry : stock) {
        add(std::to_string(entry.id));
        add(entry.article);
    }
    for (const DoseEntry& entry : doses) {
        add(std::to_string(entry.line) + ' ' + std::to_string(entry.stockId));
        add(entry.composition);
        addNumber(entry.dose);
        add(entry.unit);
    }
    return hash.result().toHex().toStdString();
}

TillLines::TillLines(const QString& folder, const Reading& reading, const Timing& timing)
    : reading_(reading)
    , database_(folder, timing)
    , linePace_(timing)
    , digestPace_(timing)
    , oddPace_(timing)
{ }

void TillLines::portion(TillPace& pace, const std::function<qint64()>& read)
{
    reading_.advance(0);
    const TillPace before = pace;
    qint64 rows = 0;
    pace.run(database_.isTillAtWork(), [&] { rows = read(); });
    if (rows < before.rows() / 2) {
        // How long few rows took says nothing of how many may be read at once.
        pace = before;
    }
}

std::vector<Line> TillLines::lines(const QString& where, const QVariantList& values)
{
    std::vector<Line> found;
    portion(linePace_, [&] {
        found.clear();
        const QString sql
            = QStringLiteral("select %1 from Historique where %2 limit ?").arg(columns(), where);
        database_.read(
            sql, values + QVariantList{linePace_.rows()},
            [&](const QSqlQuery& row) { found.push_back(lineOf(row)); }, reading_);
        return static_cast<qint64>(found.size());
    });
    return found;
}

Anchor TillLines::last()
{
    Anchor anchor;
    database_.read(
        QStringLiteral("select %1 from Historique order by rowid desc limit 1").arg(columns()), {},
        [&](const QSqlQuery& row) {
            const Line line = lineOf(row);
            anchor = {line.row, line.content()};
        },
        reading_);
    return anchor;
}

bool TillLines::has(const Anchor& anchor)
{
    const std::vector<Line> found = lines(QStringLiteral("rowid = ?"), {qint64{anchor.row}});
    return !found.empty() && found.front().content() == anchor.content;
}

std::optional<std::vector<Line>> TillLines::behind(const Anchor& anchor)
{
    // The anchor's row is read by the same statement as what is behind it, so that nothing can
    // come between the two.
    std::vector<Line> found
        = lines(QStringLiteral("rowid >= ? order by rowid"), {qint64{anchor.row}});
    if (anchor.row > 0) {
        if (found.empty() || found.front().row != anchor.row
            || found.front().content() != anchor.content) {
            return std::nullopt;
        }
        found.erase(found.begin());
    }
    std::vector<Line> result;
    std::map<std::string, bool> isShared;
    for (Line& line : found) {
        const auto [known, isNew] = isShared.try_emplace(line.moment, false);
        if (isNew && isSaidBefore(line.moment, anchor.row)) {
            known->second = true;
            const std::vector<Line> all = ofMoment(line.moment, found.back().row);
            result.insert(result.end(), all.begin(), all.end());
        }
        if (!known->second) {
            result.push_back(std::move(line));
        }
    }
    Ordinals().number(result);
    return result;
}

bool TillLines::isSaidBefore(const std::string& moment, std::int64_t row)
{
    bool isSaid = false;
    database_.read(
        QStringLiteral("select 1 from Historique where date_heure = ? and rowid <= ? limit 1"),
        {bound(moment), qint64{row}}, [&](const QSqlQuery&) { isSaid = true; }, reading_);
    return isSaid;
}

std::vector<Line> TillLines::ofMoment(const std::string& moment, std::int64_t last)
{
    std::vector<Line> all;
    for (;;) {
        const qint64 after = all.empty() ? 0 : qint64{all.back().row};
        std::vector<Line> some
            = lines(QStringLiteral("date_heure = ? and rowid > ? and rowid <= ? order by rowid"),
                {bound(moment), after, qint64{last}});
        if (some.empty()) {
            return all;
        }
        all.insert(all.end(), some.begin(), some.end());
    }
}

Months TillLines::months(std::int64_t last)
{
    Months found;
    qint64 after = 0;
    for (bool isMore = true; isMore;) {
        isMore = false;
        portion(digestPace_, [&] {
            qint64 rows = 0;
            const QString sql
                = QStringLiteral("select %1, count(*), sum(%2), max(rowid) from (select rowid, * "
                                 "from Historique where rowid > ? and rowid <= ? order by rowid "
                                 "limit ?) group by 1")
                      .arg(monthColumn(), mark());
            database_.read(
                sql, {after, qint64{last}, digestPace_.rows()},
                [&](const QSqlQuery& row) {
                    Digest& digest = found[text(row.value(0))];
                    digest.lines += row.value(1).toLongLong();
                    digest.sum += row.value(2).toLongLong();
                    after = std::max(after, row.value(3).toLongLong());
                    rows += row.value(1).toLongLong();
                },
                reading_);
            isMore = rows > 0;
            return rows;
        });
    }
    return found;
}

std::vector<Line> TillLines::firstSales()
{
    constexpr int mostLooks = 2000;
    constexpr int salesOfAMonth = 3;
    constexpr std::size_t monthSize = 7;
    constexpr std::size_t secondSize = 19;
    // Behind all texts that begin with what is before it.
    const std::string end = "\U0010ffff";
    std::vector<Line> found;
    std::string month;
    std::string after;
    for (int look = 0, sales = 0; look < mostLooks; ++look) {
        const std::vector<Line> next
            = lines(QStringLiteral("rowid = (select rowid from Historique where date_heure > ? and "
                                   "date_heure < ':' order by date_heure, rowid limit 1)"),
                {bound(after)});
        if (next.empty()) {
            break;
        }
        const Line& line = next.front();
        const std::string last = std::exchange(month, line.moment.substr(0, monthSize));
        sales = month == last ? sales + 1 : 1;
        // The lines of one sale are some milliseconds apart: each second counts once.
        after = (sales < salesOfAMonth ? line.moment.substr(0, secondSize) : month) + end;
        if (line.isRegular()) {
            found.push_back(line);
        }
    }
    return found;
}

/// Nothing leads to lines without a month but the whole history, a portion at a time.
void TillLines::withoutMonth(std::int64_t last, const Take& take)
{
    const QString odd
        = QStringLiteral("select %1 from Historique where rowid > ? and rowid <= ? and %2 = '' "
                         "order by rowid")
              .arg(columns(), monthColumn());
    Ordinals ordinals;
    qint64 after = 0;
    for (bool isMore = true; isMore;) {
        std::vector<Line> found;
        portion(oddPace_, [&] {
            qint64 rows = 0;
            qint64 end = after;
            database_.read(
                QStringLiteral("select count(*), max(rowid) from (select rowid from Historique "
                               "where rowid > ? and rowid <= ? order by rowid limit ?)"),
                {after, qint64{last}, oddPace_.rows()},
                [&](const QSqlQuery& row) {
                    rows = row.value(0).toLongLong();
                    end = row.value(1).toLongLong();
                },
                reading_);
            isMore = rows > 0;
            if (isMore) {
                database_.read(
                    odd, {after, end}, [&](const QSqlQuery& row) { found.push_back(lineOf(row)); },
                    reading_);
                after = end;
            }
            return rows;
        });
        ordinals.number(found);
        if (!found.empty()) {
            take(std::move(found));
        }
    }
}

void TillLines::ofMonth(const std::string& month, std::int64_t last, const Take& take)
{
    if (month.empty()) {
        withoutMonth(last, take);
        return;
    }
    const QString where
        = QStringLiteral("(date_heure, rowid) > (?, ?) and date_heure < ? and rowid <= ? "
                         "order by date_heure, rowid");
    // Behind all texts that begin with the month.
    const QVariant end = bound(month + "\U0010ffff");
    QVariant moment = bound(month);
    qint64 row = 0;
    std::string counted;
    Ordinals ordinals;
    for (;;) {
        std::vector<Line> some = lines(where, {moment, row, end, qint64{last}});
        if (some.empty()) {
            return;
        }
        moment = bound(some.back().moment);
        row = some.back().row;
        for (Line& line : some) {
            if (line.moment != std::exchange(counted, line.moment)) {
                ordinals.forget();
            }
            ordinals.number(line);
        }
        take(std::move(some));
    }
}

Menu TillLines::menu()
{
    Menu found;
    // A portion may be read again while the till writes: the key is the place to go on from.
    const auto read = [this](const char* sql, const TillDatabase::Row& row) {
        constexpr qint64 portionRows = 1000;
        qint64 after = std::numeric_limits<qint64>::min();
        for (qint64 rows = portionRows; rows == portionRows;) {
            rows = 0;
            database_.read(
                QLatin1String(sql), {after, portionRows},
                [&](const QSqlQuery& values) {
                    after = values.value(0).toLongLong();
                    row(values);
                    ++rows;
                },
                reading_);
        }
    };
    read("select id, article, cast(round(prix * 10000) as integer) from Article "
         "where id > ? order by id limit ?",
        [&](const QSqlQuery& row) {
            found.articles.push_back(
                {row.value(0).toLongLong(), text(row.value(1)), row.value(2).toLongLong()});
        });
    read("select id, article from ArticleStock where id > ? order by id limit ?",
        [&](const QSqlQuery& row) {
            found.stock.push_back({row.value(0).toLongLong(), text(row.value(1))});
        });
    read("select idlig, id, composition, dose, unite from DoseStock where idlig > ? "
         "order by idlig limit ?",
        [&](const QSqlQuery& row) {
            found.doses.push_back({row.value(0).toLongLong(), row.value(1).toLongLong(),
                text(row.value(2)), row.value(3).toDouble(), text(row.value(4))});
        });
    database_.read(
        QStringLiteral("select valeur from Config where param like 'TVA' order by id limit 1"), {},
        [&](const QSqlQuery& row) { found.taxRate = row.value(0).toDouble(); }, reading_);
    return found;
}
