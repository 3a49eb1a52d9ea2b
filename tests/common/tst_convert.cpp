// SPDX-License-Identifier: MIT
#include "base/Handle.h"
#include "common/convert.h"
#include "tests/support/TestProgram.h"

#include <QDir>

#include <cstdlib>
#include <cstring>

namespace {
using Buffer = Handle<char, std::free>;

Buffer converted(const char* from, const char* to, const QByteArray& text)
{
    return Buffer(convert(from, to, text.constData()));
}

QByteArray toPrinter(const QByteArray& text)
{
    const Buffer buffer = converted("UTF-8", "CP858", text);
    return buffer ? QByteArray(buffer.get()) : QByteArray("null");
}

QByteArray firstBytes(const Buffer& buffer, int count)
{
    return buffer ? QByteArray(buffer.get(), count) : QByteArray("null");
}
} // namespace

class TestConvert : public QObject
{
    Q_OBJECT

private slots:
    void asciiStaysAsItIs()
    {
        QCOMPARE(toPrinter("Total ticket $7.50"), QByteArray("Total ticket $7.50"));
    }

    void theEuroSignIsOneByte()
    {
        QCOMPARE(toPrinter("2,50 €"), QByteArray("2,50 \xD5"));
    }

    void accentedLettersAreOneByteEach()
    {
        QCOMPARE(toPrinter("été à Noël çÉ"), QByteArray("\x82t\x82 \x85 No\x89l \x87\x90"));
    }

    void theEmptyTextGivesFourZeroBytes()
    {
        QCOMPARE(firstBytes(converted("UTF-8", "CP858", ""), 4), QByteArray(4, '\0'));
    }

    void fourZeroBytesEndTheResult()
    {
        QCOMPARE(firstBytes(converted("UTF-8", "CP858", "é"), 5), QByteArray("\x82\0\0\0\0", 5));
        QCOMPARE(firstBytes(converted("UTF-8", "UTF-32LE", "é"), 8),
            QByteArray("\xE9\0\0\0\0\0\0\0", 8));
    }

    void theResultMayGrowOnce()
    {
        QCOMPARE(firstBytes(converted("UTF-8", "UTF-16LE", "abc"), 10),
            QByteArray("a\0b\0c\0\0\0\0\0", 10));
        QCOMPARE(firstBytes(converted("ISO-8859-1", "UTF-8", "\xE9\xE9\xE9"), 10),
            QByteArray("\xC3\xA9\xC3\xA9\xC3\xA9\0\0\0\0", 10));
    }

    void theResultMayGrowFromATextOfManyBytes()
    {
        const Buffer wide = converted("UTF-8", "UTF-32LE", QByteArray(5000, 'x'));
        QCOMPARE(
            firstBytes(wide, 20004), QByteArray("x\0\0\0", 4).repeated(5000) + QByteArray(4, '\0'));
    }

    void aBrokenTailIsDropped()
    {
        QCOMPARE(toPrinter("caf\xC3"), QByteArray("caf"));
        QCOMPARE(toPrinter("2,50 \xE2\x82"), QByteArray("2,50 "));
        QCOMPARE(toPrinter("\xC3"), QByteArray());
    }

    void aBrokenTailIsDroppedWhenTheResultGrew()
    {
        QCOMPARE(firstBytes(converted("UTF-8", "UTF-16LE", "caf\xC3"), 10),
            QByteArray("c\0a\0f\0\0\0\0\0", 10));
    }

    void aCharacterThatTheTargetLacksMakesItNull()
    {
        QVERIFY(converted("UTF-8", "CP858", "œuf") == nullptr);
        QVERIFY(converted("UTF-8", "CP858", "Thé 😀") == nullptr);
    }

    void aCharacterThatTheTargetLacksAfterGrowthMakesItNull()
    {
        QVERIFY(converted("UTF-8", "UTF-16LE", "abcdefgh\xFF") == nullptr);
    }

    void brokenInputMakesItNull()
    {
        QVERIFY(converted("UTF-8", "CP858", "\xFF") == nullptr);
        QVERIFY(converted("UTF-8", "CP858", "caf\xC3 noir") == nullptr);
    }

    void anUnknownCharsetMakesItNull()
    {
        QVERIFY(converted("UTF-8", "NO-SUCH-SET", "a") == nullptr);
        QVERIFY(converted("NO-SUCH-SET", "CP858", "a") == nullptr);
    }

    void theShiftStateIsFlushed()
    {
        QCOMPARE(QByteArray(converted("UTF-8", "ISO-2022-JP", "日本語日本語").get()),
            QByteArray("\x1B$BF|K\\8lF|K\\8l\x1B(B"));
    }

    void theShiftStateIsFlushedAlsoWhereTheResultIsFull()
    {
        QCOMPARE(firstBytes(converted("UTF-8", "ISO-2022-JP", "日本語日"), 18),
            QByteArray("\x1B$BF|K\\8lF|\x1B(B\0\0\0\0", 18));
    }

    void aMegabyteIsConverted()
    {
        QCOMPARE(toPrinter(QByteArray("é").repeated(500000)), QByteArray(500000, '\x82'));
    }

    void controlBytesPassThrough()
    {
        QCOMPARE(toPrinter("\x1B\x45\x01\x09\r\n"), QByteArray("\x1B\x45\x01\x09\r\n"));
    }

    void noDescriptorStaysOpen()
    {
        const QDir descriptors(QString("/proc/self/fd"));
        converted("UTF-8", "CP858", "é");
        const auto before = descriptors.entryList(QDir::AllEntries | QDir::System).size();
        for (int call = 0; call < 2000; ++call) {
            converted("UTF-8", "CP858", "é");
            converted("UTF-8", "CP858", "œ");
            converted("UTF-8", "NO-SUCH-SET", "é");
        }
        QCOMPARE(descriptors.entryList(QDir::AllEntries | QDir::System).size(), before);
    }
};

VENDEL_TEST(TestConvert)
#include "tst_convert.moc"
