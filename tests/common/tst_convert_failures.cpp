// SPDX-License-Identifier: MIT
#include "base/Handle.h"
#include "common/convert.h"
#include "tests/support/Allocations.h"
#include "tests/support/TestProgram.h"

#include <cerrno>
#include <cstdlib>

namespace {
using Buffer = Handle<char, std::free>;
} // namespace

/// What the conversion returns when memory runs out.
class TestConvertFailures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!Allocations::areSeen) {
            QSKIP("memory does not run out under a sanitizer");
        }
    }

    void withoutABufferItIsNull()
    {
        const QByteArray text(1'000'000, 'x');
        Allocations::refuseFrom(1'000'004);
        const Buffer refused(convert("UTF-8", "CP858", text.constData()));
        QVERIFY(refused == nullptr);
        QCOMPARE(errno, ENOMEM);
        const Buffer again(convert("UTF-8", "CP858", text.constData()));
        QCOMPARE(QByteArray(again.get()), text);
    }

    void withoutALargerBufferItIsNull()
    {
        const QByteArray text(1'000'000, 'x');
        Allocations::refuseFrom(1'000'005);
        const Buffer refused(convert("UTF-8", "UTF-16LE", text.constData()));
        QVERIFY(refused == nullptr);
        QCOMPARE(errno, ENOMEM);
    }
};

VENDEL_TEST(TestConvertFailures)
#include "tst_convert_failures.moc"
