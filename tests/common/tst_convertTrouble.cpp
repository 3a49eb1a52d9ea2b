// SPDX-License-Identifier: MIT
#include "base/Handle.h"
#include "common/convert.h"
#include "tests/support/CoreTestMain.h"

#include <cstddef>
#include <cstdlib>

namespace {
/// The next request for so many bytes or more finds no memory; at 0 each finds some.
std::size_t refusedSize = 0;

using Buffer = Handle<char, std::free>;
} // namespace

// A sanitizer keeps its own books of the memory.
#ifndef __SANITIZE_ADDRESS__
namespace {
bool isRefused(std::size_t size)
{
    const bool refused = refusedSize != 0 && size >= refusedSize;
    if (refused) {
        refusedSize = 0;
    }
    return refused;
}
} // namespace

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_realloc(void* block, std::size_t size);

/// The C library's, but for the one request that is to be refused.
void* malloc(std::size_t size) noexcept
{
    return isRefused(size) ? nullptr : __libc_malloc(size);
}

/// The same.
void* realloc(void* block, std::size_t size) noexcept
{
    return isRefused(size) ? nullptr : __libc_realloc(block, size);
}
}
#endif

/// What the conversion returns when memory runs out.
class TestConvertTrouble : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void withoutABufferItIsNull();
    void withoutALargerBufferItIsNull();
};

void TestConvertTrouble::initTestCase()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("memory does not run out under a sanitizer");
#endif
}

void TestConvertTrouble::withoutABufferItIsNull()
{
    const QByteArray text(1'000'000, 'x');
    refusedSize = 1'000'004;
    const Buffer refused(convert("UTF-8", "CP858", text.constData()));
    QVERIFY(refused == nullptr);
    QCOMPARE(refusedSize, std::size_t{0});
    const Buffer again(convert("UTF-8", "CP858", text.constData()));
    QCOMPARE(QByteArray(again.get()), text);
}

void TestConvertTrouble::withoutALargerBufferItIsNull()
{
    const QByteArray text(1'000'000, 'x');
    refusedSize = 1'000'005;
    const Buffer refused(convert("UTF-8", "UTF-16LE", text.constData()));
    QVERIFY(refused == nullptr);
    QCOMPARE(refusedSize, std::size_t{0});
}

VENDEL_CORE_TEST_MAIN(TestConvertTrouble)
#include "tst_convertTrouble.moc"
