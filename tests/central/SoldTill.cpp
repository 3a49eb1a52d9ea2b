// SPDX-License-Identifier: MIT
#include "tests/central/SoldTill.h"

#include "base/Handle.h"
#include "tests/central/BookServer.h"
#include "tests/support/Shop.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <utility>

#include <fcntl.h>
#include <sqlite3.h>

SoldTill::SoldTill()
{
    const Shop fresh;
    if (!QFile::copy(fresh.path() + "/Vendel.db", file())) {
        qFatal("no database");
    }
}

QStringList SoldTill::rows(const QString& sql) const
{
    constexpr int patienceMs = 10000;
    sqlite3* opened = nullptr;
    sqlite3_open(QFile::encodeName(file()).constData(), &opened);
    const Handle<sqlite3, sqlite3_close> connection(opened);
    sqlite3_busy_timeout(opened, patienceMs);
    QStringList found;
    const auto keep = [](void* kept, int count, char** cells, char**) {
        QStringList row;
        for (int column = 0; column < count; ++column) {
            row.append(QString::fromUtf8(cells[column]));
        }
        static_cast<QStringList*>(kept)->append(row.join('|'));
        return 0;
    };
    if (sqlite3_exec(opened, sql.toUtf8().constData(), keep, &found, nullptr) != SQLITE_OK) {
        qFatal("%s: %s", qUtf8Printable(sql), sqlite3_errmsg(opened));
    }
    return found;
}

void SoldTill::sql(const QString& sql) const { rows(sql); }

void SoldTill::sell(
    const QString& moment, const QString& article, const QString& price, int id) const
{
    sql(QString(
        "insert into Historique (id, article, prix, date_heure) values (%1, '%2', %3, '%4')")
            .arg(QString::number(id), article, price, moment));
}

QStringList SoldTill::lines() const
{
    QStringList found = rows("select date_heure || ' ' || id || ' ' || article || ' ' "
                             "|| cast(round(prix * 10000) as integer) from Historique");
    found.sort();
    return found;
}

QStringList SoldTill::bookLines(const std::string& database, int till)
{
    QStringList found = BookServer::get().rows(database,
        "select to_char(moment, 'YYYY-MM-DD HH24:MI:SS.MS') || ' ' || article || ' ' || n.name "
        "|| ' ' || price from vendel.line l join vendel.name n on n.id = l.name "
        "where till = "
            + std::to_string(till));
    found.sort();
    return found;
}

QStringList SoldTill::wrongSums(const std::string& database)
{
    const std::string hours
        = "select moment::date, till, extract(hour from moment)::smallint, count(*)::bigint, "
          "sum(price)::bigint from vendel.line group by 1, 2, 3";
    const std::string days = "select moment::date, till, name, price, count(*)::bigint "
                             "from vendel.line group by 1, 2, 3, 4";
    const std::string months = "select date_trunc('month', moment)::date, till, name, price, "
                               "count(*)::bigint from vendel.line group by 1, 2, 3, 4";
    const std::string uses
        = "select day, till, folded, sum(distinct lines) as lines from (select moment::date as day, "
          "till, folded, price, count(*) as lines from vendel.line l "
          "join vendel.name n on n.id = l.name group by 1, 2, 3, 4) as prices group by 1, 2, 3";
    const std::string monthUses = "select date_trunc('month', day)::date, till, folded, "
                                  "sum(lines) from ("
        + uses + ") as days group by 1, 2, 3";
    QStringList wrong;
    for (const auto& [sums, lines] :
        {std::pair<std::string, std::string>("hour_sales", hours), {"day_sales", days},
            {"month_sales", months}, {"day_use", uses}, {"month_use", monthUses}}) {
        const std::string table = "table vendel." + sums;
        wrong += BookServer::get().rows(database, table + " except " + lines);
        wrong += BookServer::get().rows(database, lines + " except " + table);
    }
    return wrong;
}

Timing SoldTill::hasty()
{
    Timing timing = Timing::ofTheMachine();
    timing.sleep = [](qint64) {};
    return timing;
}

Timing SoldTill::pausing(const SoldTill& till)
{
    Timing timing = hasty();
    timing.elapsed = [] { return qint64{0}; };
    timing.now
        = [file = till.file()] { return QFileInfo(file).lastModified().toMSecsSinceEpoch(); };
    return timing;
}

std::int64_t SoldTill::send(const std::string& database, Sender::Depth depth) const
{
    TillLines till(path(), {}, hasty());
    Book book(BookServer::get().uri(database), path().toStdString(), "Caisse");
    Sender sender(book, till);
    sender.sendLines(depth);
    sender.sendMenu();
    return book.added();
}

Said SoldTill::command(QStringList arguments) const
{
    if (arguments.value(0) != "--preparer") {
        arguments += {"--dossier", path()};
    }
    QProcess process;
    process.start(VENDEL_CENTRAL, arguments);
    constexpr int patienceMs = 120000;
    process.waitForFinished(patienceMs);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
        QString::fromUtf8(process.readAllStandardOutput()),
        QString::fromUtf8(process.readAllStandardError())};
}

pid_t SoldTill::start(QStringList arguments) const
{
    arguments += {"--dossier", path()};
    const QList<QByteArray> parts = [&] {
        QList<QByteArray> all{VENDEL_CENTRAL};
        for (const QString& argument : std::as_const(arguments)) {
            all.append(argument.toUtf8());
        }
        return all;
    }();
    std::vector<char*> pointers;
    for (const QByteArray& part : parts) {
        pointers.push_back(const_cast<char*>(part.constData()));
    }
    pointers.push_back(nullptr);
    const QByteArray errors = QFile::encodeName(path() + "/errors");
    const pid_t child = fork();
    if (child == 0) {
        const int output
            = open(errors.constData(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
        dup2(output, STDOUT_FILENO);
        dup2(output, STDERR_FILENO);
        close_range(STDERR_FILENO + 1, ~0U, 0);
        execv(pointers.front(), pointers.data());
        _exit(EXIT_FAILURE);
    }
    return child;
}
