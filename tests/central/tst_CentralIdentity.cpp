// SPDX-License-Identifier: MIT
#include "central/Identity.h"
#include "central/Line.h"
#include "central/SqlArray.h"
#include "launcher/SafeFile.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <barrier>
#include <set>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>

namespace {
struct Folder
{
    std::string digest() const { return Identity::digest(opened.get(), path()); }
    std::string name(const std::string& asked = {}) const
    {
        return Identity::name(opened.get(), path(), asked);
    }
    std::string path() const { return folder.path().toStdString(); }

    QTemporaryDir folder;
    Descriptor opened{open(QFile::encodeName(folder.path()).constData(), O_RDONLY | O_CLOEXEC)};
};
} // namespace

class TestCentralIdentity : public QObject
{
    Q_OBJECT

private slots:
    void theSecretIsMadeOnceAndForItsUserAlone()
    {
        const Folder folder;
        const std::string digest = folder.digest();
        QCOMPARE(digest.size(), std::size_t{64});
        QCOMPARE(folder.digest(), digest);
        const QFileInfo secret(folder.folder.filePath(".identite"));
        QCOMPARE(secret.size(), qint64{65});
        struct stat found = {};
        QCOMPARE(fstatat(folder.opened.get(), ".identite", &found, 0), 0);
        QCOMPARE(found.st_mode & ALLPERMS, mode_t{0600});
        QCOMPARE(QDir(folder.folder.path()).entryList(QDir::Files | QDir::Hidden),
            QStringList(".identite"));
    }

    void theBookKnowsADigestOfTheSecret()
    {
        const Folder folder;
        SafeFile::write(folder.opened.get(), ".identite", std::string(64, '0') + '\n',
            SafeFile::Existing::Replace);
        QCOMPARE(folder.digest(),
            std::string("827d096d92f3deeaa0e8070d79f45beb176768e57a958a1cd325f5f4b754b048"));
    }

    void noTwoTillsAreTheSame()
    {
        const Folder one;
        const Folder other;
        QVERIFY(one.digest() != other.digest());
    }

    void whoeverStartsAtOnceHasTheSameOne()
    {
        constexpr int rounds = 50;
        for (int round = 0; round < rounds; ++round) {
            const Folder folder;
            std::vector<std::string> digests(4);
            std::barrier start(static_cast<std::ptrdiff_t>(digests.size()));
            std::vector<std::thread> asking;
            for (std::string& digest : digests) {
                asking.emplace_back([&] {
                    start.arrive_and_wait();
                    digest = folder.digest();
                });
            }
            for (std::thread& one : asking) {
                one.join();
            }
            QCOMPARE(std::set<std::string>(digests.begin(), digests.end()).size(), std::size_t{1});
        }
    }

    void aNameIsRememberedAndPlain()
    {
        const Folder folder;
        QVERIFY(!folder.name().empty());
        QCOMPARE(folder.name("Bar\n\x1b[2J"), std::string("Bar"));
        QCOMPARE(folder.name(), std::string("Bar"));
        QCOMPARE(folder.name("Té\x1brrasse"), std::string("Té?rrasse"));
    }

    void linesAreRegularOnlyWithADateAndAPrice()
    {
        const Line good{1, "2028-02-29 23:59:59.999", "-7", "", -10'000'000'000'000, {}, {}, 0, 1};
        QVERIFY(good.isRegular());
        for (const char* moment :
            {"2027-02-29 23:59:59.999", "2028-02-29 24:00:00.000", "2028-02-29T23:59:59.999",
                "1969-12-31 23:59:59.999", "2200-01-01 00:00:00.000", "2028-02-29 23:59:59"}) {
            Line line = good;
            line.moment = moment;
            QVERIFY2(!line.isRegular(), moment);
        }
        Line line = good;
        line.price -= 1;
        QVERIFY(!line.isRegular());
        line = good;
        line.article = "1.5";
        QVERIFY(!line.isRegular());
        line = good;
        line.name = std::string(2000, 'a');
        QVERIFY(line.isRegular());
        line.name += 'a';
        QVERIFY(!line.isRegular());
        line = good;
        line.exactPrice = std::string(201, '1');
        QVERIFY(!line.isRegular());
    }

    void linesThatDifferHaveOtherContents()
    {
        const Line one{1, "a", "1", "b", 2, {}, {}, 0, 1};
        Line same = one;
        same.row = 9;
        same.ordinal = 3;
        QCOMPARE(one.content(), same.content());
        std::set<std::string> contents{one.content()};
        for (std::string Line::*field :
            {&Line::moment, &Line::article, &Line::name, &Line::exactPrice}) {
            Line other = one;
            other.*field += "|1";
            contents.insert(other.content());
        }
        QCOMPARE(contents.size(), std::size_t{5});
    }

    void arraysAreWrittenAsPostgresqlReadsThem()
    {
        SqlArray texts;
        QCOMPARE(texts.get(), std::string("{}"));
        texts.add(std::string("a\"b\\c"));
        texts.add(std::string("NULL"));
        QCOMPARE(texts.get(), std::string("{\"a\\\"b\\\\c\",\"NULL\"}"));
        SqlArray numbers;
        numbers.add(std::int64_t{-3});
        numbers.addReal(0.25);
        QCOMPARE(numbers.get(), std::string("{-3,0.25}"));
    }
};

VENDEL_TEST(TestCentralIdentity)
#include "tst_CentralIdentity.moc"
