// SPDX-License-Identifier: MIT
#include "tests/Print/Pictures.h"
#include "tests/support/Failures.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"

#include <QFile>

#include <sys/resource.h>
#include <sys/stat.h>

/// Files that hold no picture, or cannot be read.
class TestEscPosFailures : public QObject
{
    Q_OBJECT

private slots:
    void whatCannotBeDecodedIsEmpty()
    {
        const Rows<QByteArray> rows{
            {"nothing", ""},
            {"text", "Chez Paul\n12 rue X\n"},
            {"a PNG's first bytes", "\x89PNG\r\n\x1A\n"},
            {"a PNG without data",
                QByteArray::fromHex("89504e470d0a1a0a 0000000d49484452 0000000100000001 0800000000"
                                    "3a7e9b55 0000000049454e44ae426082")},
            {"a size of nothing", "P6 0 0 255\n"},
            {"a width of nothing", "P6 0 2 255\n"},
            {"a PPM that ends early", "P6 2 2 255\nabcdefghijk"},
            {"a PGM that ends early", whitePixels(299, "P5 300 1 255\n")},
            {"a PGM of 16 bits", QByteArray("P5 1 1 65535\n\0\0", 15)},
            {"a PPM of 16 bits", QByteArray("P6 1 1 65535\n\0\0\0\0\0\0", 19)},
            {"a format that no shop uses", QByteArray("8BPS\0\1", 6)},
            {"a row too many", whitePixels(4096 * 4097, "P5 4096 4097 255\n")},
            {"a huge size", "P5 2000000000 2000000000 255\n"},
        };
        for (const auto& [row, bytes] : rows) {
            const InRow inRow(row);
            QCOMPARE(pictures_.loaded(bytes).size(), 0U);
        }
    }

    void whatIsNoFileIsEmpty()
    {
        // Nobody ever writes to the pipe; the first page of a process' memory opens, but its bytes
        // are of no use to anybody, root included.
        const QString pipe = pictures_.path("pipe");
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR), 0);
        for (const QString& path : {pictures_.path("missing"), QString(), pictures_.path(""), pipe,
                 QString("/dev/zero"), QString("/proc/self/mem")}) {
            QVERIFY2(EscPos::loadImage(path.toStdString()).empty(), qPrintable(path));
        }
    }

    void anUnreadableFileIsEmpty()
    {
        const std::string file = pictures_.fileHolding(QByteArray("P5 1 1 255\n") + '\0');
        QCOMPARE(EscPos::loadImage(file).size(), 1U);
        QCOMPARE(chmod(file.c_str(), S_IWUSR), 0);
        QCOMPARE(chmod(QFile::encodeName(pictures_.path("")).constData(), 0755), 0);
        {
            const OrdinaryUser user;
            QCOMPARE(EscPos::loadImage(file).size(), 0U);
        }
        QVERIFY(QFile::remove(QString::fromStdString(file)));
    }

    void aFileThatCannotBeOpenedIsEmpty()
    {
        const std::string file = pictures_.fileHolding(QByteArray("P5 1 1 255\n") + '\0');
        rlimit before{};
        QCOMPARE(getrlimit(RLIMIT_NOFILE, &before), 0);
        const rlimit none{0, before.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_NOFILE, &none), 0);
        const DotMatrix dots = EscPos::loadImage(file);
        QCOMPARE(setrlimit(RLIMIT_NOFILE, &before), 0);
        QCOMPARE(dots.size(), 0U);
        QCOMPARE(EscPos::loadImage(file).size(), 1U);
    }

private:
    Pictures pictures_;
};

VENDEL_TEST(TestEscPosFailures)
#include "tst_EscPos_failures.moc"
