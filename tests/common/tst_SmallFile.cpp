// SPDX-License-Identifier: MIT
#include "common/SmallFile.h"
#include "tests/support/Captured.h"
#include "tests/support/Rows.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QFile>

namespace {
const QString name = "Essai é.dat";
} // namespace

class TestSmallFile : public QObject
{
    Q_OBJECT

private slots:
    void everyByteIsRead()
    {
        const Rows<QByteArray> rows{
            {"none", ""},
            {"line ends and a NUL", QByteArray("a\r\n\0\xff", 5)},
            {"a megabyte", QByteArray("123456789\n").repeated(100'000)},
            {"four megabytes", QByteArray(4'194'304, '\0')},
        };
        for (const auto& [row, bytes] : rows) {
            const InRow inRow(row);
            const Shop shop(Shop::Database::None);
            const CapturedLog log;
            shop.write(name, bytes);
            QVERIFY(SmallFile::read(name) == bytes);
            QCOMPARE(log.criticals(), QStringList());
        }
    }

    void aLinkIsFollowed()
    {
        const Shop shop(Shop::Database::None);
        shop.write("Bar", "Rue");
        QVERIFY(QFile::link("Bar", "Lien"));
        QVERIFY(QFile::link("Lien", name));
        QCOMPARE(SmallFile::read(name).value(), QByteArray("Rue"));
    }

    void aMissingFileIsNothingAndNotLogged()
    {
        const Shop shop(Shop::Database::None);
        const CapturedLog log;
        QVERIFY(!SmallFile::read(name));
        QVERIFY(QFile::link("nowhere", name));
        QVERIFY(!SmallFile::read(name));
        QCOMPARE(log.criticals(), QStringList());
    }

    void aFileWithoutASizeIsReadToItsEnd()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(QFile::link("/proc/sys/kernel/ostype", name));
        QCOMPARE(SmallFile::read(name).value(), QByteArray("Linux\n"));
    }
};

VENDEL_TEST(TestSmallFile)
#include "tst_SmallFile.moc"
