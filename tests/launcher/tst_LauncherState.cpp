// SPDX-License-Identifier: MIT
#include "launcher/BookAddress.h"
#include "launcher/Copies.h"
#include "launcher/SecondPlace.h"
#include "tests/launcher/StatedShop.h"
#include "tests/support/TestProgram.h"

#include <QTemporaryDir>

namespace {
const EmulatedPrinter::Setup noPrinter{.devices = {}};

/// Somebody who may do nothing with the files of others, until the end of the block.
class Nobody
{
public:
    Nobody()
        : before_(geteuid())
    {
        constexpr uid_t nobody = 65534;
        if (before_ == 0 && seteuid(nobody) != 0) {
            qFatal("cannot become nobody");
        }
    }
    Nobody(const Nobody&) = delete;
    Nobody& operator=(const Nobody&) = delete;
    Nobody(Nobody&&) = delete;
    Nobody& operator=(Nobody&&) = delete;
    ~Nobody()
    {
        if (seteuid(before_) != 0) {
            qFatal("cannot become somebody again");
        }
    }

private:
    uid_t before_;
};

/// A shop that Nobody owns.
void giveAway(const ShopFolder& shop)
{
    if (geteuid() == 0) {
        constexpr uid_t nobody = 65534;
        QCOMPARE(chown(shop.name().c_str(), nobody, nobody), 0);
        QDirIterator entries(shop.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
            QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            QCOMPARE(chown(qPrintable(entries.next()), nobody, nobody), 0);
        }
    }
}
/// Lets everybody look at the emulated bus; its devices' nodes get the rights \a nodes.
void openBus(mode_t nodes)
{
    const QString bus = qEnvironmentVariable("UMOCKDEV_DIR");
    QDirIterator entries(
        bus, QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QFileInfo entry(entries.next());
        const bool isNode = entry.path().startsWith(bus + "/dev/bus/usb") && !entry.isDir();
        if (!entry.isSymLink()) {
            chmod(qPrintable(entry.filePath()), isNode ? nodes : 0777);
        }
    }
    QCOMPARE(chmod(qPrintable(bus), 0777), 0);
}
} // namespace

class TestLauncherState : public QObject
{
    Q_OBJECT

private slots:
    void aBookIsSaidWhereThereIsOne()
    {
        const StatedShop shop;
        shop.addCopy("2026-03-05", 2048);
        QVERIFY(!StatedShop::french(shop.state()).join('\n').contains("ivre"));
        const BookAddress book(shop.get());
        book.remember("postgresql://machine/base");
        const State never = shop.state();
        QVERIFY(StatedShop::french(never).contains(
            "Livre central : « postgresql://machine/base », jamais atteint"));
        QCOMPARE(StatedShop::french(never).constLast(), QString("À voir : le livre central."));
        QCOMPARE(never.status, 1);
        book.noteReached({"2026-03-05", "140000"});
        const State reached = shop.state();
        QVERIFY(StatedShop::french(reached).contains(
            "Livre central : « postgresql://machine/base », atteint le 2026-03-05 14:00:00"));
        QVERIFY(StatedShop::english(reached).contains(
            "Central book: \"postgresql://machine/base\", reached on 2026-03-05 14:00:00"));
        QCOMPARE(reached.status, 0);
    }

    void aShopThatIsWell()
    {
        const StatedShop shop;
        shop.addCopy("2026-03-02", 2048);
        shop.addCopy("2026-03-03", 2048);
        shop.addCopy("2026-03-04", 1024);
        shop.addCopy("2026-03-04-1830", 1536);
        const QTemporaryDir stick;
        const SecondPlace place(shop.get());
        place.remember(stick.path().toStdString(), {"2026-03-04", "183000"});
        QVERIFY(place.carry(Copies(shop.get()), {"2026-03-04", "183000"}));
        shop.write(stick.path() + "/Vendel-2026-03-05.db", "another shop's");
        const QString size = QString::number(QFileInfo(QString("Vendel.db")).size() / 1024) + 'K';
        const State state = shop.state();
        QCOMPARE(StatedShop::french(state),
            (QStringList{QString("Vendel 1.2.3, la caisse est fermée"),
                "Dossier de données : « " + shop.path() + " »",
                "Base de données : " + size + ", en bon état",
                QString("Copies ici : 4, en dernier 2026-03-04-1830 (1.5K), 2026-03-04 (1.0K), "
                        "2026-03-03 (2.0K)"),
                "Second endroit des copies : « " + stick.path()
                    + " », atteint le 2026-03-04, dernière copie : 2026-03-04-1830",
                QString("Ennuis dans le journal : aucun"),
                QString("Imprimante : branchée, et elle peut être ouverte"),
                QString("Tout va bien.")}));
        QCOMPARE(StatedShop::english(state),
            (QStringList{QString("Vendel 1.2.3, the till is closed"),
                "Data directory: \"" + shop.path() + '"', "Database: " + size + ", sound",
                QString("Copies here: 4, the last 2026-03-04-1830 (1.5K), 2026-03-04 (1.0K), "
                        "2026-03-03 (2.0K)"),
                "Second place of the copies: \"" + stick.path()
                    + "\", reached on 2026-03-04, last copy: 2026-03-04-1830",
                QString("Trouble in the log: none"),
                QString("Printer: plugged in, and it may be opened"), QString("All is well.")}));
        QCOMPARE(state.status, 0);
    }

    void aFolderThatIsNotThereIsNotMade()
    {
        const StatedShop shop(noPrinter);
        const std::string data = shop.name() + "/not/there";
        const State state("1.2.3", data, afternoon, {});
        QCOMPARE(StatedShop::french(state),
            (QStringList{QString("Vendel 1.2.3, la caisse est fermée"),
                "Dossier de données : « " + shop.path()
                    + "/not/there » (il n'y a encore rien, la caisse n'a jamais démarré ici)",
                QString("Imprimante : absente du bus USB"),
                QString("À voir : le dossier de données.")}));
        QCOMPARE(StatedShop::english(state).at(1),
            "Data directory: \"" + shop.path()
                + "/not/there\" (there is nothing yet, the till has never been started here)");
        QCOMPARE(state.status, 1);
        QVERIFY(!QFile::exists(QString("not")));
    }

    void anEmptyFolderStaysEmpty()
    {
        const StatedShop shop(noPrinter, Shop::Database::None);
        const State state = shop.state();
        QCOMPARE(StatedShop::french(state).mid(2),
            (QStringList{QString("Base de données : aucune"), QString("Copies ici : aucune"),
                QString("Second endroit des copies : aucun"),
                QString("Ennuis dans le journal : aucun"),
                QString("Imprimante : absente du bus USB"),
                QString("À voir : la base de données, les copies.")}));
        QCOMPARE(StatedShop::english(state).mid(2),
            (QStringList{QString("Database: none"), QString("Copies here: none"),
                QString("Second place of the copies: none"), QString("Trouble in the log: none"),
                QString("Printer: not on the USB bus"),
                QString("To be looked at: the database, the copies.")}));
        QCOMPARE(state.status, 1);
        QCOMPARE(shop.snapshot(), QStringList());
    }

    void withoutAHomeThePrinterIsStillLookedAt()
    {
        const StatedShop shop;
        const State state("1.2.3", "", afternoon, {});
        QCOMPARE(StatedShop::english(state),
            (QStringList{QString("Vendel 1.2.3, the till is closed"),
                QString("No home directory is known for the till's data."),
                QString("Printer: plugged in, and it may be opened"),
                QString("To be looked at: the data directory.")}));
        QCOMPARE(state.status, 1);
    }

    void aFileInPlaceOfTheFolderIsSaid()
    {
        const StatedShop shop;
        const State state("1.2.3", shop.name() + "/Vendel.db", afternoon, {});
        QCOMPARE(StatedShop::english(state).at(1),
            "Data directory: \"" + shop.path() + "/Vendel.db\" (it is not a directory)");
        QCOMPARE(state.status, 1);
    }

    void whoMayNotWriteIsToldWhatCanBeRead()
    {
        const StatedShop shop;
        shop.addCopy("2026-03-04", 1024);
        QCOMPARE(chmod("Vendel.db", 0600), 0);
        QCOMPARE(chmod(".", 0755), 0);
        QCOMPARE(chmod("copies", 0755), 0);
        {
            const Nobody nobody;
            const State state = shop.state();
            if (getuid() == 0) {
                QCOMPARE(StatedShop::english(state).at(1),
                    "Data directory: \"" + shop.path() + "\" (it belongs to somebody else)");
            }
            QCOMPARE(StatedShop::english(state).at(3),
                QString("Copies here: 1, the last 2026-03-04 (1.0K)"));
            QCOMPARE(state.status, getuid() == 0 ? 1 : 0);
        }
    }

    void aFolderWithoutRightsIsSaidLineByLine()
    {
        const StatedShop shop;
        shop.addCopy("2026-03-04", 1024);
        shop.write(QString("copies-vers"), "/somewhere\n");
        shop.write(QString("vendel.log"), "2026-03-05 14:00:00 Write Error\n");
        giveAway(shop);
        for (const char* name : {"copies", "copies-vers", "vendel.log", "Vendel.db"}) {
            QCOMPARE(chmod(name, 0), 0);
        }
        QCOMPARE(chmod(".", 0500), 0);
        openBus(0666);
        {
            const Nobody nobody;
            const State state = shop.state();
            const QStringList told = StatedShop::english(state);
            QCOMPARE(told.at(1),
                "Data directory: \"" + shop.path() + "\" (nothing can be written there)");
            QVERIFY2(told.at(2).endsWith(QString("cannot be used (it cannot be read and written)")),
                qPrintable(told.at(2)));
            QCOMPARE(told.mid(3),
                (QStringList{QString("Copies here: their folder cannot be read"),
                    QString("Second place of the copies: \"copies-vers\" cannot be read"),
                    QString("Log: it cannot be read"),
                    QString("Printer: plugged in, and it may be opened"),
                    QString("To be looked at: the data directory, the database, the copies, the "
                            "second place, the log.")}));
            const QStringList french = StatedShop::french(state);
            QVERIFY(french.at(2).endsWith(
                QString("inutilisable (elle ne peut pas être lue et écrite)")));
            QCOMPARE(french.mid(3, 3),
                (QStringList{QString("Copies ici : leur dossier ne peut pas être lu"),
                    QString("Second endroit des copies : « copies-vers » ne peut pas être lu"),
                    QString("Journal : il ne peut pas être lu")}));
            QCOMPARE(state.status, 1);
        }
        QCOMPARE(chmod("copies", 0700), 0);
        QCOMPARE(chmod(".", 0700), 0);
    }

    void aSecondPlaceThatIsAwayIsTroubleAfterAWeek()
    {
        const StatedShop shop(noPrinter);
        shop.addCopy("2026-03-04", 1024);
        QTemporaryDir stick;
        const SecondPlace place(shop.get());
        place.remember(stick.path().toStdString(), {"2026-02-27", "120000"});
        QVERIFY(stick.remove());
        const State lately = shop.state();
        QCOMPARE(StatedShop::french(lately).at(4),
            "Second endroit des copies : « " + stick.path()
                + " », absent maintenant, atteint le 2026-02-27");
        QCOMPARE(lately.status, 0);
        shop.write(QString(".copies-vers-vu"), "2026-02-26\n");
        const State longAgo = shop.state();
        QCOMPARE(StatedShop::english(longAgo).at(4),
            "Second place of the copies: \"" + stick.path()
                + "\", away now, reached on 2026-02-26");
        QCOMPARE(StatedShop::french(longAgo).constLast(), QString("À voir : le second endroit."));
        QCOMPARE(longAgo.status, 1);
    }

    void changesThatWereNotCopiedForDaysAreTrouble()
    {
        const StatedShop shop(noPrinter);
        shop.addCopy("2026-03-04", 1024);
        QCOMPARE(shop.state().status, 0);
        QVERIFY(QFile::remove(QString("copies/Vendel-2026-03-04.db")));
        shop.addCopy("2026-03-03", 1024);
        const State state = shop.state();
        QCOMPARE(StatedShop::french(state).constLast(), QString("À voir : les copies."));
        QCOMPARE(state.status, 1);
    }

    void anEmptySecondPlaceHasNoCopy()
    {
        const StatedShop shop(noPrinter);
        shop.addCopy("2026-03-04", 1024);
        const QTemporaryDir stick;
        SecondPlace(shop.get()).remember(stick.path().toStdString(), {"2026-03-04", "183000"});
        QCOMPARE(StatedShop::french(shop.state()).at(4),
            "Second endroit des copies : « " + stick.path()
                + " », atteint le 2026-03-04, dernière copie : aucune");
    }

    void namesCannotSpeakToTheTerminal()
    {
        const StatedShop shop(noPrinter);
        shop.write(QString("copies-vers"), "/mnt/\033[2J\302\233\n");
        shop.write(QString(".copies-vers-vu"), "\033]0;x\007 1234\n");
        shop.write(QString("vendel.log"), "2026-03-01 14:00:00 Errors \033[31m\r\302\205\n");
        QCOMPARE(StatedShop::english(shop.state()).mid(4, 3),
            (QStringList{QString("Second place of the copies: \"/mnt/?[2J?\", away now, reached on "
                                 "?]0;x? 123…"),
                QString("Last trouble in the log:"),
                QString("  2026-03-01 14:00:00 Errors ?[31m??")}));
    }

    void onlyTheTroubleOfADayCalls()
    {
        const StatedShop shop(noPrinter);
        shop.addCopy("2026-03-04", 1024);
        shop.write(QString("vendel.log"),
            "2026-03-04 14:07:31 Write Error\n2026-03-05 09:00:00 Warning Epson to 1 (ON)\n");
        const State old = shop.state();
        QCOMPARE(StatedShop::french(old).mid(5, 2),
            (QStringList{QString("Derniers ennuis dans le journal :"),
                QString("  2026-03-04 14:07:31 Write Error")}));
        QCOMPARE(old.status, 0);
        shop.write(QString("vendel.log"), "2026-03-04 14:07:32 Write Error\n");
        const State fresh = shop.state();
        QCOMPARE(StatedShop::french(fresh).constLast(), QString("À voir : le journal."));
        QCOMPARE(fresh.status, 1);
    }

    void aMissingPrinterIsTroubleWhereReceiptsArePrinted()
    {
        const StatedShop shop(noPrinter);
        shop.addCopy("2026-03-04", 1024);
        const State screen = shop.state();
        QCOMPARE(StatedShop::french(screen).mid(6),
            (QStringList{QString("Imprimante : absente du bus USB"), QString("Tout va bien.")}));
        QCOMPARE(screen.status, 0);
        shop.fill("update Config set valeur = 1 where param = 'Epson TM-T20II'");
        const State paper = shop.state();
        QCOMPARE(StatedShop::french(paper).mid(6),
            (QStringList{
                QString("Imprimante : absente du bus USB, et les tickets s'impriment sur papier"),
                QString("À voir : l'imprimante.")}));
        QCOMPARE(StatedShop::english(paper).mid(6),
            (QStringList{QString("Printer: not on the USB bus, and receipts are printed on paper"),
                QString("To be looked at: the printer.")}));
        QCOMPARE(paper.status, 1);
    }

    void aPrinterThatOthersClaimMayStillBeOpened()
    {
        const StatedShop shop({.kernelDriver = true, .claimRefused = true});
        QCOMPARE(StatedShop::english(shop.state()).at(6),
            QString("Printer: plugged in, and it may be opened"));
    }

    void aPrinterThatThisUserMayNotOpenIsTrouble()
    {
        const StatedShop shop;
        shop.addCopy("2026-03-04", 1024);
        giveAway(shop);
        openBus(0);
        const Nobody nobody;
        const State state = shop.state();
        QCOMPARE(StatedShop::french(state).mid(6),
            (QStringList{
                QString("Imprimante : branchée, mais cet utilisateur n'a pas le droit de l'ouvrir"),
                QString("À voir : l'imprimante.")}));
        QCOMPARE(StatedShop::english(state).at(6),
            QString("Printer: plugged in, but this user may not open it"));
        QCOMPARE(state.status, 1);
    }

    void aPrinterThatCannotBeOpenedIsTrouble()
    {
        const StatedShop shop({.openRefused = true});
        shop.addCopy("2026-03-04", 1024);
        const State state = shop.state();
        QCOMPARE(StatedShop::french(state).at(6),
            QString("Imprimante : branchée, mais elle ne peut pas être ouverte "
                    "(LIBUSB_ERROR_NO_DEVICE)"));
        QCOMPARE(StatedShop::english(state).mid(6),
            (QStringList{
                QString("Printer: plugged in, but it cannot be opened (LIBUSB_ERROR_NO_DEVICE)"),
                QString("To be looked at: the printer.")}));
        QCOMPARE(state.status, 1);
    }
};

VENDEL_TEST(TestLauncherState)
#include "tst_LauncherState.moc"
