// SPDX-License-Identifier: MIT
#include "tests/Print/Pictures.h"
#include "tests/support/Allocations.h"
#include "tests/support/TestProgram.h"

#include <QtEndian>

#include <algorithm>
#include <cstddef>

#include <malloc.h>

namespace {
constexpr char rgbWithAlpha = 6;

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

/// A PNG of 16 bits a sample, stored interlaced or row by row. The decoder leaves checksums alone.
QByteArray pngHead(quint32 width, quint32 height, char colours, char interlaced)
{
    QByteArray head = QByteArray::fromHex("89504e470d0a1a0a 0000000d49484452");
    for (const quint32 side : {width, height}) {
        head += bigEndian(side);
    }
    return head + '\x10' + colours + QByteArray(2, '\0') + interlaced + "sum.";
}

QByteArray chunk(const char* type, const QByteArray& data)
{
    return bigEndian(static_cast<quint32>(data.size())) + type + data + "sum.";
}
} // namespace

/// What a picture may ask of the till's memory.
class TestEscPosMemory : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!Allocations::areSeen) {
            QSKIP("a sanitizer keeps its own books of the memory");
        }
    }

    void aChunkThatClaimsAGigabyteGetsNoMemory()
    {
        const QByteArray png = pngHead(2, 1, 0, 0) + chunk("IDAT", "some data")
            + QByteArray::fromHex("411f0245") + "IDAT" + "what follows";
        QCOMPARE(loaded(png).size(), 0U);
        QCOMPARE(Allocations::takeLargestRealloc(), std::size_t{4096});
    }

    void theHungriestPictureIsLoaded()
    {
        // Eight bytes a pixel, and one ahead of each of the 7,680 rows of the seven interlaced
        // pictures. The decoder counts with 4,096 rows and doubles: 2 * (8 * 4096 * 4096 + 4096).
        const QByteArray rows = qCompress(QByteArray(8 * 4096 * 4096 + 7680, '\0'), 1).mid(4);
        const DotMatrix dots = loaded(pngHead(4096, 4096, rgbWithAlpha, 1) + chunk("IDAT", rows)
            + chunk("IEND", QByteArray()));
        QCOMPARE(dots.size(), 4096U);
        QCOMPARE(dots.back(), std::vector<bool>(4096, true));
        QCOMPARE(Allocations::takeLargestRealloc(), std::size_t{268'443'648});
    }

    void whatAFileLeavesOutIsBlack()
    {
        // Memory that nobody clears reads as 0xAA, which is white.
        QCOMPARE(mallopt(M_PERTURB, 0x55), 1);
        // A grey JPEG of 8 x 1 pixels: its frame and its end, no scan between them.
        const DotMatrix dots = loaded(QByteArray::fromHex("ffd8 ffc0000b08000100080101 1100 ffd9"));
        QCOMPARE(mallopt(M_PERTURB, 0), 1);
        QCOMPARE(dots, DotMatrix{std::vector<bool>(8, true)});
    }

private:
    DotMatrix loaded(const QByteArray& bytes)
    {
        const std::string file = pictures_.fileHolding(bytes);
        Allocations::takeLargestRealloc();
        return EscPos::loadImage(file);
    }

    Pictures pictures_;
};

VENDEL_TEST(TestEscPosMemory)
#include "tst_EscPos_memory.moc"
