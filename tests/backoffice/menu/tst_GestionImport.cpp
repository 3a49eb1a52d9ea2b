// SPDX-License-Identifier: MIT
#include "backoffice/menu/Import.h"
#include "backoffice/menu/SheetText.h"
#include "launcher/Database.h"
#include "launcher/FileClaim.h"
#include "tests/backoffice/menu/PlanLook.h"
#include "tests/support/Captured.h"
#include "tests/support/Failures.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

namespace {
using End = Import::Result::End;

/// Clocks by which nobody waits long.
Timing hurry()
{
    return {[time = qint64(0)]() mutable { return time += 1'000'000; }, [] { return qint64(0); },
        [](qint64) {}};
}

const QByteArray twoLines("article;prix\nCafé;1,80\nLait;2\n");

struct Importing : Shop
{
    ImportFile file = ImportFile::of(twoLines, ImportKind::Menu);
    std::atomic<bool> isStopped = false;
    Import import{
        path(), VENDEL_GESTION_COPY, QLocale(QLocale::French, QLocale::France), 0.1, hurry()};

    Importing() { fill("insert into Article (article, prix) values ('Café', 1.5)"); }

    Import::Result carryOut(const ImportPlan& plan) const
    {
        return import.carryOut(file, plan, isStopped);
    }
    Import::Result carryOut() const { return carryOut(import.plan(file)); }

    /// Why it is not carried out, empty when it is.
    QString refusal() const { return refusal(import.plan(file)); }
    QString refusal(const ImportPlan& plan) const
    {
        try {
            carryOut(plan);
        } catch (const ImportError& error) {
            return error.sentence();
        }
        return {};
    }

    QString menu() const { return cell("select group_concat(article || prix) from Article"); }
    QStringList copies() const
    {
        return QDir("copies").entryList({"*.db", ".Vendel*"}, QDir::Files | QDir::Hidden);
    }
};

const QString before("Café1.5");
const QString after("Café1.8,Lait2");
const QString copyFailed("La copie d'avant l'import n'est pas faite\u00a0: le disque est plein ou "
                         "défaillant, ou la base est endommagée. Rien n'est changé.");
} // namespace

class TestGestionImport : public QObject
{
    Q_OBJECT

private slots:
    void allIsDoneAfterACopy()
    {
        const Importing shop;
        const auto result = shop.carryOut();
        QCOMPARE(result.end, End::Done);
        QCOMPARE(shop.menu(), after);
        QCOMPARE(shop.copies(), QStringList{result.copy});
        requireSound(("copies/" + result.copy).toStdString());
        QVERIFY(QFile::remove("Vendel.db"));
        QVERIFY(QFile::copy("copies/" + result.copy, "Vendel.db"));
        QCOMPARE(shop.menu(), before);
    }

    void anotherWorkingDirectoryIsLeft()
    {
        const Importing shop;
        QVERIFY(QDir::setCurrent("/"));
        QCOMPARE(shop.carryOut().end, End::Done);
        QCOMPARE(QDir::currentPath(), QDir(shop.path()).canonicalPath());
        QCOMPARE(shop.menu(), after);
    }

    void aMenuThatHasChangedIsPlannedAgain()
    {
        const Importing shop;
        const auto plan = shop.import.plan(shop.file);
        shop.sql("update Article set prix = 1.8");
        const auto result = shop.carryOut(plan);
        QCOMPARE(result.end, End::Outdated);
        QCOMPARE(look(result.plan), (QStringList{"2 unchanged", "3 new"}));
        QCOMPARE(shop.menu(), QString("Café1.8"));
        QCOMPARE(shop.copies(), QStringList());
        QCOMPARE(shop.carryOut(result.plan).end, End::Done);
        QCOMPARE(shop.menu(), after);
    }

    void aStopBeforeTheCopyChangesNothing()
    {
        Importing shop;
        const auto plan = shop.import.plan(shop.file);
        shop.isStopped = true;
        QCOMPARE(shop.carryOut(plan).end, End::Stopped);
        QCOMPARE(shop.menu(), before);
    }

    void whileTheTillWritesNothingIsChanged()
    {
        const Importing shop;
        const auto plan = shop.import.plan(shop.file);
        CapturedOutput output;
        const OtherProcess till("begin immediate", 60'000'000);
        QCOMPARE(shop.refusal(plan),
            QString("La base de données n'a pas accepté les changements\u00a0: elle est occupée, "
                    "protégée, ou le disque est plein. Rien n'est changé."));
        QCOMPARE(shop.menu(), before);
        QCOMPARE(shop.copies().size(), 1);
    }

    void aLockedDatabaseIsSaidToBe()
    {
        const Importing shop;
        const auto plan = shop.import.plan(shop.file);
        CapturedOutput output;
        {
            const OtherProcess other("begin exclusive", 60'000'000);
            QVERIFY(!shop.refusal(plan).isEmpty());
            QVERIFY_EXCEPTION_THROWN(shop.import.plan(shop.file), ImportError);
        }
        QCOMPARE(shop.menu(), before);
        QCOMPARE(shop.copies(), QStringList());
    }

    void whileACopyIsPutBackNothingIsChanged()
    {
        const Importing shop;
        const auto plan = shop.import.plan(shop.file);
        const Descriptor folder(open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        const FileClaim claim(folder.get(), FileClaim::Purpose::Replace, 0);
        QCOMPARE(shop.refusal(plan),
            QString("Une copie de la base est en train d'être remise en place\u00a0: recommencez "
                    "quand c'est fini. Rien n'est changé."));
        QCOMPARE(shop.menu(), before);
    }

    void withoutRoomForTheCopyNothingIsChanged()
    {
        const Importing shop;
        const FileSizeLimit full(8192);
        QCOMPARE(shop.refusal(), copyFailed);
        QCOMPARE(shop.menu(), before);
        QCOMPARE(shop.copies(), QStringList());
    }

    void withoutTheRightToMakeACopyNothingIsChanged()
    {
        const Importing shop;
        QVERIFY(QDir().mkdir("copies"));
        QCOMPARE(chmod("copies", 0500), 0);
        QCOMPARE(chmod(".", 0755), 0);
        QCOMPARE(chmod("Vendel.db", 0644), 0);
        const auto plan = shop.import.plan(shop.file);
        QString said;
        {
            const OrdinaryUser user;
            said = shop.refusal(plan);
        }
        QCOMPARE(said,
            QString("La copie d'avant l'import n'est pas faite\u00a0: le dossier ne peut pas être "
                    "écrit. Rien n'est changé."));
        QCOMPARE(shop.menu(), before);
    }

    void aDamagedDatabaseIsNotChanged()
    {
        const Importing shop;
        shop.fill("insert into Historique (id, article, prix) with recursive n(i) as (select 1 "
                  "union all select i + 1 from n where i < 2000) select i, 'Thé', 1 from n");
        const auto plan = shop.import.plan(shop.file);
        QByteArray bytes = shop.read("Vendel.db");
        const auto size = static_cast<int>(bytes.size());
        bytes.replace(size - 8192, 4096, QByteArray(4096, '\xff'));
        shop.write("Vendel.db", bytes);
        QCOMPARE(shop.refusal(plan), copyFailed);
        QCOMPARE(shop.menu(), before);
    }

    void aMissingCopyProgramChangesNothing()
    {
        const Importing shop;
        const Import import(
            shop.path(), "/nowhere", QLocale(QLocale::French, QLocale::France), 0.1);
        QVERIFY_EXCEPTION_THROWN(
            import.carryOut(shop.file, import.plan(shop.file), shop.isStopped), ImportError);
        QCOMPARE(shop.menu(), before);
    }

    void aMissingOrForeignDatabaseIsNotMade()
    {
        const Shop empty(Shop::Database::None);
        const Import import(empty.path(), VENDEL_GESTION_COPY, QLocale::c());
        const auto file = ImportFile::of(twoLines, ImportKind::Menu);
        QVERIFY_EXCEPTION_THROWN(import.plan(file), ImportError);
        QVERIFY(!QFile::exists("Vendel.db"));
        empty.sql("create table Article (article, prix)");
        QVERIFY_EXCEPTION_THROWN(import.plan(file), ImportError);
        QVERIFY(!QFile::exists("copies"));
    }
};

VENDEL_TEST(TestGestionImport)
#include "tst_GestionImport.moc"
