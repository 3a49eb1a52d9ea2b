// SPDX-License-Identifier: MIT
#include "base/Handle.h"
#include "common/convert.h"
#include "tests/support/TestProgram.h"

#include <QDir>

#include <cerrno>
#include <cstdlib>

namespace {
using Buffer = Handle<char, std::free>;

/// UTF-8 \a text in the charset \a to.
Buffer converted(const char* to, const QByteArray& text)
{
    return Buffer(convert("UTF-8", to, text.constData()));
}

QByteArray toPrinter(const QByteArray& text)
{
    const Buffer buffer = converted("CP858", text);
    return buffer ? QByteArray(buffer.get()) : QByteArray("null");
}

QByteArray firstBytes(const Buffer& buffer, int count)
{
    return buffer ? QByteArray(buffer.get(), count) : QByteArray("null");
}

const QByteArray end(4, '\0');
} // namespace

class TestConvert : public QObject
{
    Q_OBJECT

private slots:
    void thePrinterGetsOneByteForACharacter()
    {
        QCOMPARE(toPrinter("Total ticket $7.50"), QByteArray("Total ticket $7.50"));
        QCOMPARE(toPrinter("2,50 €"), QByteArray("2,50 \xD5"));
        QCOMPARE(toPrinter("été à Noël çÉ"), QByteArray("\x82t\x82 \x85 No\x89l \x87\x90"));
        QCOMPARE(toPrinter("\x1B\x45\x01\x09\r\n"), QByteArray("\x1B\x45\x01\x09\r\n"));
        QCOMPARE(toPrinter(QByteArray("é").repeated(500'000)), QByteArray(500'000, '\x82'));
    }

    void fourZeroBytesEndTheResult()
    {
        QCOMPARE(firstBytes(converted("CP858", ""), 4), end);
        QCOMPARE(firstBytes(converted("CP858", "é"), 5), "\x82" + end);
        QCOMPARE(firstBytes(converted("UTF-32LE", "é"), 8), QByteArray("\xE9\0\0\0", 4) + end);
    }

    void theResultMayGrow()
    {
        QCOMPARE(firstBytes(converted("UTF-16LE", "abc"), 10), QByteArray("a\0b\0c\0", 6) + end);
        const Buffer latin(convert("ISO-8859-1", "UTF-8", "\xE9\xE9\xE9"));
        QCOMPARE(firstBytes(latin, 10), "\xC3\xA9\xC3\xA9\xC3\xA9" + end);
        QCOMPARE(firstBytes(converted("UTF-32LE", QByteArray(5000, 'x')), 20'004),
            QByteArray("x\0\0\0", 4).repeated(5000) + end);
    }

    void aBrokenTailIsDropped()
    {
        QCOMPARE(toPrinter("caf\xC3"), QByteArray("caf"));
        QCOMPARE(toPrinter("2,50 \xE2\x82"), QByteArray("2,50 "));
        QCOMPARE(toPrinter("\xC3"), QByteArray());
        QCOMPARE(
            firstBytes(converted("UTF-16LE", "caf\xC3"), 10), QByteArray("c\0a\0f\0", 6) + end);
    }

    void whatCannotBeConvertedIsNullWithItsReason()
    {
        for (const char* text : {"œuf", "Thé 😀", "\xFF", "caf\xC3 noir"}) {
            errno = 0;
            QVERIFY2(converted("CP858", text) == nullptr, text);
            QCOMPARE(errno, EILSEQ);
        }
        QVERIFY(converted("UTF-16LE", "abcdefgh\xFF") == nullptr);
        QCOMPARE(errno, EILSEQ);
        QVERIFY(converted("NO-SUCH-SET", "a") == nullptr);
        QCOMPARE(errno, EINVAL);
        errno = 0;
        QVERIFY(convert("NO-SUCH-SET", "CP858", "a") == nullptr);
        QCOMPARE(errno, EINVAL);
    }

    void theShiftStateIsFlushedAlsoWhereTheResultIsFull()
    {
        QCOMPARE(QByteArray(converted("ISO-2022-JP", "日本語日本語").get()),
            QByteArray("\x1B$BF|K\\8lF|K\\8l\x1B(B"));
        QCOMPARE(
            firstBytes(converted("ISO-2022-JP", "日本語日"), 18), "\x1B$BF|K\\8lF|\x1B(B" + end);
    }

    void noDescriptorStaysOpen()
    {
        const QDir descriptors("/proc/self/fd");
        converted("CP858", "é");
        const auto before = descriptors.entryList(QDir::AllEntries | QDir::System).size();
        for (int call = 0; call < 2000; ++call) {
            converted("CP858", "é");
            converted("CP858", "œ");
            converted("NO-SUCH-SET", "é");
        }
        QCOMPARE(descriptors.entryList(QDir::AllEntries | QDir::System).size(), before);
    }
};

VENDEL_TEST(TestConvert)
#include "tst_convert.moc"
