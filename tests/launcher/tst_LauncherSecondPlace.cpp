// SPDX-License-Identifier: MIT
#include "launcher/CopyWork.h"
#include "tests/launcher/ShopFolder.h"
#include "tests/support/TestProgram.h"

#include <QTemporaryDir>

#include <csignal>

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
        QVERIFY(CopyWork(shop.get()).run(true, Backup::Pace::Full) == CopyWork::Result::Done);
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
        QVERIFY(CopyWork(shop.get()).run(false, Backup::Pace::Full) == CopyWork::Result::Done);
        QCOMPARE(stick.copies(), QStringList{QString("Vendel-2026-03-05.db")});
    }

    void aStickThatIsAwayIsNoFailure()
    {
        const ShopFolder shop;
        Stick stick(shop);
        QVERIFY(stick.folder.remove());
        QVERIFY(CopyWork(shop.get()).run(true, Backup::Pace::Full) == CopyWork::Result::Done);
        QVERIFY(!QDir().exists(stick.folder.path()));
        QCOMPARE(ShopFolder::names("copies", "Vendel-*").size(), 1);
    }

    void aStickThatIsFullGetsNoHalfCopy()
    {
        const ShopFolder shop;
        Copies(shop.get()).make(noon, Backup::Pace::Full);
        const Stick stick(shop);
        const LittleRoom room(4096);
        QVERIFY(CopyWork(shop.get()).run(false, Backup::Pace::Full) == CopyWork::Result::Done);
        QCOMPARE(QDir(stick.folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
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
        stick.place.carry(Copies(shop.get()), {"2026-03-20", "120000"});
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
