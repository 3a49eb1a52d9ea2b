// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/BookStatus.h"
#include "tests/central/BookServer.h"
#include "tests/central/SoldTill.h"

#include <QFile>
#include <QtTest>

/// A book, tills that are copied, and what is said of that.
class CopiedTills
{
protected:
    static constexpr int another = static_cast<int>(BookStatus::AnotherTill);
    inline static const QString refusal
        = "Les ventes de cette caisse sont déjà dans le livre central, comme celles de « Bar » : si "
          "cette machine la remplace, « vendel-central --reprendre [URI] » continue à sa place ; si "
          "c'est une caisse de plus, purgez-en d'abord les ventes de l'autre.\n";
    inline static const QString nobody
        = "Aucune autre caisse du livre central n'a les ventes de celle-ci : rien n'a été "
          "changé.\n";
    inline static const QStringList threeMonths{"2026-01-05", "2026-01-06", "2026-02-05",
        "2026-02-06", "2026-02-07", "2026-03-05", "2026-03-06", "2026-03-07"};

    /// Puts a copy of the database of \a from in the place of that of \a to.
    static void copy(const SoldTill& from, const SoldTill& to)
    {
        QFile::remove(to.file());
        QVERIFY(QFile::copy(from.file(), to.file()));
    }
    static void sellOn(
        const SoldTill& till, const QStringList& days, const QString& time = "10:00:00.000")
    {
        for (const QString& day : days) {
            till.sell(day + ' ' + time);
        }
    }

    QString uri() const { return QString::fromStdString(BookServer::get().uri(book_)); }
    Said send(const SoldTill& till, const QString& name) const
    {
        return till.command({"--envoyer", uri(), "--nom", name});
    }
    Said takeOver(const SoldTill& till) const { return till.command({"--reprendre", uri()}); }
    QString tills() const
    {
        return BookServer::get()
            .rows(book_, "select id, name from vendel.till order by id")
            .join(' ');
    }
    /// All that the book holds.
    QStringList all() const
    {
        return BookServer::get().rows(book_, "select * from vendel.till order by id")
            + BookServer::get().rows(book_, "select * from vendel.progress order by till")
            + BookServer::get().rows(book_, "select * from vendel.month order by till, month")
            + BookServer::get().rows(book_, "select * from vendel.line order by till, moment");
    }
    void refused(const Said& said, const QString& sentence) const
    {
        QCOMPARE(said.errors, sentence);
        QCOMPARE(said.output, QString());
        QCOMPARE(said.status, another);
    }

    std::string book_ = BookServer::get().newBook();
};
