// SPDX-License-Identifier: MIT
#include "launcher/CopyWork.h"
#include "tests/launcher/ShopFolder.h"
#include "tests/support/TestProgram.h"

#include <QDate>
#include <QTemporaryDir>

#include <csignal>

#include <sys/file.h>
#include <sys/resource.h>

namespace {
const Moment noon{"2026-03-05", "120000"};

/// A place that copies go to as well, remembered by the shop.
struct Stick
{
    explicit Stick(const ShopFolder& shop)
        : place(shop.get())
    {
        place.remember(folder.path().toStdString(), noon);
    }
    QStringList copies() const
    {
        return QDir(folder.path()).entryList({QString("Vendel-*")}, QDir::Files, QDir::Name);
    }

    QTemporaryDir folder;
    SecondPlace place;
};

/// The statuses are those of the two processes that do it.
void copyAndCarry(const ShopFolder& shop)
{
    const CopyWork work(shop.get());
    QVERIFY(work.make(Backup::Pace::Full) == CopyWork::Made::Done);
    QCOMPARE(work.carry(), 0);
}

void sell(const ShopFolder& shop)
{
    shop.fill("insert into Historique (id, article, prix) values (1, 'Thé', 2)");
}

/// Writes at most \a bytes into one file until it ends, as if there were no more room.
class LittleRoom
{
public:
    explicit LittleRoom(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &before_);
        signal_ = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit little{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &little);
    }
    LittleRoom(const LittleRoom&) = delete;
    LittleRoom& operator=(const LittleRoom&) = delete;
    LittleRoom(LittleRoom&&) = delete;
    LittleRoom& operator=(LittleRoom&&) = delete;
    ~LittleRoom()
    {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signal_);
    }

private:
    rlimit before_{};
    void (*signal_)(int) = SIG_DFL;
};
} // namespace

class TestLauncherSecondPlace : public QObject
{
    Q_OBJECT

private slots:
    void eachCopyGoesThere()
    {
        const ShopFolder shop;
        const Stick stick(shop);
        copyAndCarry(shop);
        QCOMPARE(stick.copies(), ShopFolder::names("copies", "Vendel-*"));
        QCOMPARE(stick.copies().size(), 1);
        const QByteArray copied = stick.folder.filePath(stick.copies().constFirst()).toUtf8();
        QCOMPARE(ShopFolder::unsoundness(copied.constData()), QString());
        QCOMPARE(ShopFolder::mode(copied.constData()), mode_t(0600));
    }

    void aCopyThatWasMissedFollows()
    {
        const ShopFolder shop;
        Copies(shop.get()).make(noon, Backup::Pace::Full);
        const Stick stick(shop);
        QCOMPARE(CopyWork(shop.get()).carry(), 0);
        QCOMPARE(stick.copies(), QStringList{QString("Vendel-2026-03-05.db")});
        QCOMPARE(CopyWork(shop.get()).carry(), 0);
        QCOMPARE(stick.copies().size(), 1);
    }

    void aStickThatIsAwayIsNoFailure()
    {
        const ShopFolder shop;
        Stick stick(shop);
        QVERIFY(stick.folder.remove());
        Copies(shop.get()).make(noon, Backup::Pace::Full);
        QCOMPARE(CopyWork(shop.get()).carry(), CopyWork::isAway);
        QVERIFY(!QDir().exists(stick.folder.path()));
        QCOMPARE(ShopFolder::names("copies", "Vendel-*").size(), 1);
    }

    void aStickThatIsFullGetsNoHalfCopy()
    {
        const ShopFolder shop;
        Copies(shop.get()).make(noon, Backup::Pace::Full);
        const Stick stick(shop);
        const LittleRoom room(4096);
        QCOMPARE(CopyWork(shop.get()).carry(), EFBIG);
        QCOMPARE(stick.copies(), QStringList());
        QVERIFY(!QFile::exists(stick.folder.filePath(QString(".Vendel.neuf"))));
    }

    void theEmptyFolderOfAStickThatIsOutIsNotTheStick()
    {
        const ShopFolder shop;
        Copies(shop.get()).make(noon, Backup::Pace::Full);
        const Stick stick(shop);
        const QStringList registers
            = QDir(stick.folder.path())
                  .entryList({QString(".registre-*")}, QDir::Hidden | QDir::Files);
        QCOMPARE(registers.size(), 1);
        QVERIFY(QFile::remove(stick.folder.filePath(registers.constFirst())));
        QCOMPARE(CopyWork(shop.get()).carry(), CopyWork::isAway);
        QCOMPARE(stick.copies(), QStringList());
        // Named again, it is the place once more.
        stick.place.remember(stick.folder.path().toStdString(), noon);
        QCOMPARE(CopyWork(shop.get()).carry(), 0);
        QCOMPARE(stick.copies().size(), 1);
        QCOMPARE(QDir(stick.folder.path())
                     .entryList({QString(".registre-*")}, QDir::Hidden | QDir::Files),
            registers);
    }

    void twoShopsShareAStick()
    {
        const Moment later{"2026-03-05", "180000"};
        const ShopFolder first;
        const Stick stick(first);
        Copies(first.get()).make(noon, Backup::Pace::Full);
        QVERIFY(stick.place.carry(Copies(first.get()), later));
        const QByteArray firstCopy
            = first.read(stick.folder.filePath(QString("Vendel-2026-03-05.db")));

        const ShopFolder second;
        const SecondPlace place(second.get());
        place.remember(stick.folder.path().toStdString(), noon);
        for (int day = 1; day <= 40; ++day) {
            sell(second);
            const QString date = QDate(2026, 3, 4).addDays(day).toString(Qt::ISODate);
            Copies(second.get()).make({date.toStdString(), "120000"}, Backup::Pace::Full);
            QVERIFY(place.carry(Copies(second.get()), later));
        }
        // Thirty days of the second shop, and the first shop's copy as it was.
        QCOMPARE(stick.copies().size(), 31);
        QCOMPARE(first.read(stick.folder.filePath(QString("Vendel-2026-03-05.db"))), firstCopy);
        QVERIFY(stick.copies().contains(QString("Vendel-2026-04-13.db")));
    }

    void aCopyThatIsOnlyHalfThereIsBroughtAgain()
    {
        const ShopFolder shop;
        const Stick stick(shop);
        Copies(shop.get()).make(noon, Backup::Pace::Full);
        QVERIFY(stick.place.carry(Copies(shop.get()), noon));
        const QString file = stick.folder.filePath(QString("Vendel-2026-03-05.db"));
        QVERIFY(QFile::resize(file, 4096));
        QVERIFY(stick.place.carry(Copies(shop.get()), noon));
        const QByteArray again
            = stick.folder.filePath(QString("Vendel-2026-03-05-1200.db")).toUtf8();
        QCOMPARE(ShopFolder::unsoundness(again.constData()), QString());
    }

    void aFolderThatCannotBeWrittenIsNotRemembered()
    {
        const ShopFolder shop;
        const SecondPlace place(shop.get());
        QVERIFY_EXCEPTION_THROWN(place.remember("/proc", noon), SecondPlace::NotWritable);
        QCOMPARE(place.path(), std::string());
    }

    void onlyOneLauncherBringsCopiesAtATime()
    {
        const ShopFolder shop;
        const Stick stick(shop);
        Copies(shop.get()).make(noon, Backup::Pace::Full);
        const Descriptor other(open("copies", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        QCOMPARE(flock(other.get(), LOCK_EX | LOCK_NB), 0);
        QCOMPARE(CopyWork(shop.get()).carry(), CopyWork::isAway);
        QCOMPARE(stick.copies(), QStringList());
    }

    void aWeekWithoutItIsLong()
    {
        const ShopFolder shop;
        const Stick stick(shop);
        QVERIFY(!stick.place.isLongAway({"2026-03-11", "120000"}));
        QVERIFY(stick.place.isLongAway({"2026-03-12", "120000"}));
        QVERIFY(!stick.place.isLongAway({"1970-01-01", "120000"}));
        QCOMPARE(stick.place.lastReached(), std::string("2026-03-05"));
        Copies(shop.get()).make(noon, Backup::Pace::Full);
        QVERIFY(stick.place.carry(Copies(shop.get()), {"2026-03-20", "120000"}));
        QCOMPARE(stick.place.lastReached(), std::string("2026-03-20"));
    }

    void itCanBeForgotten()
    {
        const ShopFolder shop;
        const Stick stick(shop);
        stick.place.forget();
        QCOMPARE(stick.place.path(), std::string());
        QVERIFY(!stick.place.isLongAway({"2030-01-01", "120000"}));
        QCOMPARE(ShopFolder::names("."), QStringList{QString("Vendel.db")});
    }

    void onlyAnAbsoluteFolderIsRemembered()
    {
        const ShopFolder shop;
        shop.write(QString("copies-vers"), "relative\n");
        QCOMPARE(SecondPlace(shop.get()).path(), std::string());
    }
};

VENDEL_TEST(TestLauncherSecondPlace)
#include "tst_LauncherSecondPlace.moc"
