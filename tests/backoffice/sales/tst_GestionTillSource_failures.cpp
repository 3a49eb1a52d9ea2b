// SPDX-License-Identifier: MIT
#include "tests/backoffice/sales/GestionShop.h"
#include "tests/support/Failures.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace {
/// Clocks of a machine that waits in no time.
Timing impatient()
{
    const auto elapsed = std::make_shared<qint64>(0);
    return {[elapsed] { return *elapsed; }, [] { return qint64{4102444800000}; },
        [elapsed](qint64 time) { *elapsed += time; }};
}

/// What \a body has against the database, "" for nothing.
template <class Body> QString complaint(Body body)
{
    try {
        body();
    } catch (const SalesError& error) {
        return error.sentence();
    }
    return {};
}

QString complaint(const QString& folder)
{
    TillSource source(folder, impatient());
    return complaint([&] { source.hours(days("2026-11-01", "2026-11-30"), {}); });
}

QStringList files(const QString& folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}
} // namespace

/// What is said of a database that cannot be read, and that it is left as it is.
class TestGestionTillSourceFailures : public QObject
{
    Q_OBJECT

private slots:
    void aMissingFolder()
    {
        const GestionShop shop(Shop::Database::None);
        QCOMPARE(complaint(shop.path() + "/ici"),
            QString("Le dossier « %1/ici » n'existe pas.").arg(shop.path()));
        QCOMPARE(files(shop.path()), QStringList());
    }

    void aMissingDatabase()
    {
        const GestionShop shop(Shop::Database::None);
        QCOMPARE(complaint(shop.path()),
            QString("Le dossier « %1 » ne contient pas de base de la caisse : démarrez la caisse "
                    "une fois.")
                .arg(shop.path()));
        QCOMPARE(files(shop.path()), QStringList());
    }

    void aFolderInItsPlace()
    {
        const GestionShop shop(Shop::Database::None);
        QVERIFY(QDir().mkdir("Vendel.db"));
        QCOMPARE(complaint(shop.path()),
            QString("« %1/Vendel.db » n'est pas un fichier.").arg(shop.path()));
    }

    void noRightToRead()
    {
        const GestionShop shop;
        const QString sentence
            = QString("La base de la caisse dans « %1 » ne peut pas être lue.").arg(shop.path());
        chmod("Vendel.db", 0);
        chmod(shop.path().toUtf8().constData(), S_IRWXU | S_IRWXO);
        {
            const OrdinaryUser user;
            QCOMPARE(complaint(shop.path()), sentence);
        }
        chmod("Vendel.db", S_IRWXU | S_IRWXO);
        chmod(shop.path().toUtf8().constData(), S_IRUSR | S_IWUSR | S_IROTH);
        {
            const OrdinaryUser user;
            QCOMPARE(complaint(shop.path()), sentence);
        }
        chmod(shop.path().toUtf8().constData(), S_IRWXU);
    }

    void aLock()
    {
        const GestionShop shop;
        const OtherProcess other("begin exclusive", 60000000);
        QCOMPARE(complaint(shop.path()),
            QString("La base de la caisse dans « %1 » est occupée par un autre programme.")
                .arg(shop.path()));
    }

    void aLockThatEndsIsWaitedFor()
    {
        const GestionShop shop;
        shop.sell("2026-11-20 09:00:00.000", "Café", "2");
        auto other = std::make_unique<OtherProcess>("begin exclusive", 60000000);
        Timing timing = impatient();
        timing.sleep = [&](qint64) { other.reset(); };
        TillSource source(shop.path(), timing);
        QCOMPARE(source.hours(days("2026-11-01", "2026-11-30"), {}).size(), std::size_t{1});
        QVERIFY(other == nullptr);
    }

    void waitingForALockCanBeStopped()
    {
        const GestionShop shop;
        const OtherProcess other("begin exclusive", 60000000);
        std::atomic<bool> isStopped = false;
        Timing timing = impatient();
        timing.sleep = [&](qint64) { isStopped = true; };
        TillSource source(shop.path(), timing);
        QVERIFY_EXCEPTION_THROWN(
            source.hours(days("2026-11-01", "2026-11-30"), {{}, &isStopped}), ReadingStopped);
    }

    void noDatabaseAtAll()
    {
        const GestionShop shop(Shop::Database::None);
        shop.write("Vendel.db", QByteArray(4096, 'x'));
        QCOMPARE(complaint(shop.path()),
            QString("La base de la caisse dans « %1 » est endommagée : la commande « vendel "
                    "--restaurer » en remet une copie en place.")
                .arg(shop.path()));
        QCOMPARE(files(shop.path()), QStringList("Vendel.db"));
    }

    void aDamagedPage()
    {
        const GestionShop shop;
        shop.sql(
            "insert into Historique with recursive sale(n) as (select 0 union all select n + 1 "
            "from sale where n < 2000) select 1, 'Café', 2, '2026-11-20 09:00:00.' || n from "
            "sale");
        QByteArray bytes = shop.read("Vendel.db");
        constexpr int pageSize = 4096;
        constexpr int schemaPages = 12;
        bytes.replace(pageSize * schemaPages, bytes.size() - pageSize * schemaPages,
            QByteArray(bytes.size() - pageSize * schemaPages, '\x7f'));
        shop.write("Vendel.db", bytes);
        QCOMPARE(complaint(shop.path()),
            QString("La base de la caisse dans « %1 » est endommagée : la commande « vendel "
                    "--restaurer » en remet une copie en place.")
                .arg(shop.path()));
        QCOMPARE(shop.read("Vendel.db"), bytes);
    }

    void anUnfinishedDatabase()
    {
        const GestionShop shop(Shop::Database::None);
        const QString sentence
            = QString("Il manque des tables à la base de la caisse dans « %1 ».").arg(shop.path());
        shop.write("Vendel.db", {});
        QCOMPARE(complaint(shop.path()), sentence);
        QCOMPARE(shop.read("Vendel.db"), QByteArray());
        const GestionShop whole;
        whole.sql("drop index date_heure_index");
        QCOMPARE(complaint(whole.path()),
            QString("Il manque des tables à la base de la caisse dans « %1 ».").arg(whole.path()));
    }

    void aForeignDatabase()
    {
        const GestionShop shop;
        shop.sql("create trigger t after insert on Historique begin delete from Article; end");
        QCOMPARE(complaint(shop.path()),
            QString("La base dans « %1 » contient autre chose que les tables de la caisse.")
                .arg(shop.path()));
    }

    void oneThatBecomesForeignWhileItIsOpen()
    {
        const GestionShop shop;
        TillSource source(shop.path(), impatient());
        QVERIFY(source.isChanged());
        shop.sql("create view Ventes as select 1");
        const QString sentence
            = QString("La base dans « %1 » contient autre chose que les tables de la caisse.")
                  .arg(shop.path());
        QCOMPARE(complaint([&] { source.isChanged(); }), sentence);
        QCOMPARE(complaint([&] { source.menu(); }), sentence);
        shop.sql("drop view Ventes");
        QVERIFY(source.isChanged());
    }

    void aWriteAheadLog()
    {
        const GestionShop shop;
        const QString sentence
            = QString("La base de la caisse dans « %1 » a été modifiée par un autre programme : "
                      "démarrez la caisse une fois.")
                  .arg(shop.path());
        shop.sql("pragma journal_mode = wal");
        QCOMPARE(files(shop.path()), QStringList("Vendel.db"));
        QCOMPARE(complaint(shop.path()), sentence);
        QCOMPARE(files(shop.path()), QStringList("Vendel.db"));
        shop.sql("pragma journal_mode = delete");
        QCOMPARE(complaint(shop.path()), QString());
        shop.write("Vendel.db-wal", {});
        QCOMPARE(complaint(shop.path()), sentence);
    }

    void anInterruptedChange()
    {
        const GestionShop shop;
        shop.sql(
            "insert into Historique with recursive sale(n) as (select 0 union all select n + 1 "
            "from sale where n < 2000) select 1, 'Café', 2, '2026-11-20 09:00:00.' || n from "
            "sale");
        const QByteArray before = shop.read("Vendel.db");
        {
            const OtherProcess killed(
                "pragma cache_size = 2; begin; delete from Historique", 60000000);
        }
        QCOMPARE(files(shop.path()), QStringList({"Vendel.db", "Vendel.db-journal"}));
        const QByteArray half = shop.read("Vendel.db");
        QVERIFY(half != before);
        QCOMPARE(complaint(shop.path()),
            QString("Un changement de la base de la caisse dans « %1 » a été interrompu : démarrez "
                    "la caisse une fois.")
                .arg(shop.path()));
        QCOMPARE(files(shop.path()), QStringList({"Vendel.db", "Vendel.db-journal"}));
        QCOMPARE(shop.read("Vendel.db"), half);
    }

    void aDatabaseThatVanishes()
    {
        const GestionShop shop;
        TillSource source(shop.path(), impatient());
        QVERIFY(source.isChanged());
        QVERIFY(QFile::remove("Vendel.db"));
        QCOMPARE(complaint([&] { source.isChanged(); }),
            QString("Le dossier « %1 » ne contient pas de base de la caisse : démarrez la caisse "
                    "une fois.")
                .arg(shop.path()));
        QCOMPARE(files(shop.path()), QStringList());
    }

    void readingLeavesNoTrace()
    {
        const GestionShop shop;
        shop.sell("2026-11-20 09:00:00.000", "Café", "2");
        const QByteArray before = shop.read("Vendel.db");
        TillSource source(shop.path(), impatient());
        const DayRange range = days("2026-11-01", "2026-11-30");
        QCOMPARE(source.hours(range, {}).size(), std::size_t{1});
        source.articles(range, {});
        source.uses(range, {});
        source.menu();
        source.taxRate();
        QCOMPARE(files(shop.path()), QStringList("Vendel.db"));
        QCOMPARE(shop.read("Vendel.db"), before);
    }

    void aNameThatAnAddressWouldSpellOtherwise()
    {
        const GestionShop shop;
        const QString folder = shop.path() + "/l'été 100%#?&";
        QVERIFY(QDir().mkdir(folder));
        QVERIFY(QFile::copy("Vendel.db", folder + "/Vendel.db"));
        QCOMPARE(complaint(folder), QString());
        QCOMPARE(files(folder), QStringList("Vendel.db"));
    }
};

VENDEL_TEST(TestGestionTillSourceFailures)
#include "tst_GestionTillSource_failures.moc"
