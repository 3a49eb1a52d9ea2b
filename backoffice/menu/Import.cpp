// SPDX-License-Identifier: MIT
#include "backoffice/menu/Import.h"

#include "backoffice/menu/CopyProcess.h"
#include "backoffice/menu/SheetText.h"
#include "backoffice/sales/TillSource.h"
#include "launcher/Database.h"
#include "launcher/FileClaim.h"
#include "launcher/SafeFile.h"
#include "store/Transaction.h"

#include <QDir>

#include <system_error>
#include <utility>

#include <fcntl.h>

Import::Import(
    const QString& folder, QString program, const QLocale& locale, double patience, Timing timing)
    : folder_(QDir(folder).absolutePath())
    , program_(std::move(program))
    , locale_(locale)
    , patience_(patience)
    , timing_(std::move(timing))
{ }

ImportPlan Import::plan(const ImportFile& file) const
{
    enterShop();
    return ImportPlan::of(file, locale_);
}

Import::Result Import::carryOut(
    const ImportFile& file, const ImportPlan& plan, const std::atomic<bool>& isStopped) const
{
    enterShop();
    try {
        const Descriptor folder = SafeFile::openFolder(AT_FDCWD, ".");
        // Else a restoration could put another database in the place of this one meanwhile.
        const FileClaim claim(folder.get(), FileClaim::Purpose::Look, patience_);
        ImportPlan fresh = ImportPlan::of(file, locale_);
        if (fresh.statements != plan.statements) {
            return {Result::End::Outdated, std::move(fresh), {}};
        }
        const QString made = copy(isStopped);
        if (made.isEmpty()) {
            return {Result::End::Stopped, std::move(fresh), {}};
        }
        if (Transaction::run(plan.statements)) {
            return {Result::End::Done, std::move(fresh), made};
        }
        fresh = ImportPlan::of(file, locale_);
        if (fresh.statements != plan.statements) {
            return {Result::End::Outdated, std::move(fresh), made};
        }
    } catch (const DatabaseError&) {
        throw ImportError(tr("Une copie de la base est en train d'être remise en place : "
                             "recommencez quand c'est fini. Rien n'est changé."));
    } catch (const std::system_error&) {
        throw ImportError(
            tr("Le dossier « %1 » ne peut pas être ouvert. Rien n'est changé.").arg(folder_));
    }
    throw ImportError(tr("La base de données n'a pas accepté les changements : elle est occupée, "
                         "protégée, ou le disque est plein. Rien n'est changé."));
}

/// Opening a database to change it makes a missing one, and runs whatever is in it: what it is has
/// to be known before.
void Import::enterShop() const
{
    try {
        TillSource(folder_, timing_).menu();
    } catch (const SalesError& error) {
        throw ImportError(error.sentence());
    }
    if (!QDir::setCurrent(folder_)) {
        throw ImportError(tr("Le dossier « %1 » ne peut pas être ouvert.").arg(folder_));
    }
}

/// The name of the copy, empty when it was stopped.
QString Import::copy(const std::atomic<bool>& isStopped) const
{
    const auto [outcome, name] = CopyProcess::make(program_, folder_, isStopped);
    QString reason;
    switch (outcome) {
    case CopyProcess::Outcome::Done:
    case CopyProcess::Outcome::Stopped:
        return name;
    case CopyProcess::Outcome::DiskFull:
        reason = tr("le disque est plein");
        break;
    case CopyProcess::Outcome::NotWritable:
        reason = tr("le dossier ne peut pas être écrit");
        break;
    case CopyProcess::Outcome::Busy:
        reason = tr("la base est occupée");
        break;
    case CopyProcess::Outcome::Unusable:
        reason = tr("la base n'est pas celle de la caisse, ou elle est endommagée");
        break;
    case CopyProcess::Outcome::Failed:
        reason = tr("le disque est plein ou défaillant, ou la base est endommagée");
        break;
    }
    throw ImportError(
        tr("La copie d'avant l'import n'est pas faite : %1. Rien n'est changé.").arg(reason));
}
