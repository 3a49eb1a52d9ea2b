// SPDX-License-Identifier: MIT
#include "launcher/PlainText.h"
#include "launcher/Trouble.h"
#include "tests/launcher/ShopFolder.h"
#include "tests/support/TestProgram.h"

using Lines = std::vector<std::string>;

class TestLauncherTrouble : public QObject
{
    Q_OBJECT

private slots:
    void whatTheTillComplainsOfIsTrouble()
    {
        for (const char* line : {"Errors Db::DbLoad sqlite3_errmsg : select 1 database is locked",
                 "Errors FormVendel on_btn_Payer_clicked : stoi", "Not open database successfully",
                 "EnteteFormulaire.dat is not read: it is larger than 4 MB",
                 "Vendel.png is not shown: it is no picture", "Cannot open device",
                 "Cannot Claim Interface", "Cannot Release Interface", "Write Error",
                 "Init Error -99", "terminate called after throwing an instance of 'int'",
                 "La caisse s'est arrêtée d'elle-même (signal 11) ; elle redémarre.",
                 "The till ended by itself (signal 6); it starts again.",
                 "Today's copy of the database could not be made in \"/shop/copies\".",
                 "La copie du jour de la base n'a pas pu être faite dans « /shop/copies ».",
                 "La base de données « /shop/Vendel.db » est inutilisable (elle est endommagée) ; "
                 "les copies sont dans « /shop/copies » et « vendel --restaurer » en remet une en "
                 "place."}) {
            QVERIFY2(Trouble::isOne(line), line);
        }
    }

    void whatItSaysOfItsWorkIsNone()
    {
        for (const char* line :
            {"", "Warning Epson to 1 (ON)", "Released Interface", "Kernel Driver Active",
                "Kernel Driver Detached!", "no Errors here", "La caisse s'est arrêtée d'elle-même",
                "The till ended by itself", "qt.qpa.plugin: a warning of the windows"}) {
            QVERIFY2(!Trouble::isOne(line), line);
        }
    }

    void theLastLinesAreTakenAcrossARotation()
    {
        const ShopFolder shop;
        shop.write(QString("vendel.log.2"), "2026-03-01 08:00:00 Write Error\n");
        shop.write(QString("vendel.log.1"),
            "2026-03-02 08:00:00 Errors one\n2026-03-02 09:00:00 Errors two\n"
            "2026-03-02 10:00:00 Released Interface\n");
        shop.write(QString("vendel.log"),
            "2026-03-03 08:00:00 Errors three\n2026-03-03 09:00:00 fine\n"
            "2026-03-03 10:00:00 Errors four");
        QCOMPARE(Trouble::last(shop.get(), 3).value(),
            (Lines{"2026-03-02 09:00:00 Errors two", "2026-03-03 08:00:00 Errors three",
                "2026-03-03 10:00:00 Errors four"}));
        QCOMPARE(Trouble::last(shop.get(), 1).value(), (Lines{"2026-03-03 10:00:00 Errors four"}));
        QCOMPARE(Trouble::last(shop.get(), 9).value().size(), std::size_t(4));
    }

    void aLogThatHasJustBeenRotatedAwayIsNoFault()
    {
        const ShopFolder shop;
        QCOMPARE(Trouble::last(shop.get(), 3).value(), Lines());
        shop.write(QString("vendel.log.1"), "2026-03-02 08:00:00 Write Error\n");
        QCOMPARE(Trouble::last(shop.get(), 3).value(), (Lines{"2026-03-02 08:00:00 Write Error"}));
    }

    void whatIsNoLogIsNotRead()
    {
        const ShopFolder shop;
        QVERIFY(QFile::link(QString("/etc/passwd"), QString("vendel.log")));
        QVERIFY(!Trouble::last(shop.get(), 3));
        QVERIFY(QFile::remove(QString("vendel.log")));
        QCOMPARE(mkfifo("vendel.log", 0600), 0);
        QVERIFY(!Trouble::last(shop.get(), 3));
        QVERIFY(QFile::remove(QString("vendel.log")));
        shop.write(QString("vendel.log"), QByteArray(2000001, 'x'));
        QVERIFY(!Trouble::last(shop.get(), 3));
    }

    void aLineIsFreshForADay()
    {
        const Moment moment{"2026-03-05", "140731"};
        QVERIFY(Trouble::isFresh("2026-03-05 14:07:31 x", moment));
        QVERIFY(Trouble::isFresh("2026-03-04 14:07:32 x", moment));
        QVERIFY(!Trouble::isFresh("2026-03-04 14:07:31 x", moment));
        QVERIFY(Trouble::isFresh("2026-03-06 14:07:30 x", moment));
        QVERIFY(!Trouble::isFresh("2099-01-01 00:00:00 x", moment));
        QVERIFY(!Trouble::isFresh("2026-13-05 14:07:31 x", moment));
        QVERIFY(!Trouble::isFresh("2026-03-05 14:07 x", moment));
        QVERIFY(!Trouble::isFresh("Write Error", moment));
    }

    void onlyVisibleCharactersAreShown()
    {
        QCOMPARE(plainText("Café 3 € œ 🍵 \"«»\""), std::string("Café 3 € œ 🍵 \"«»\""));
        QCOMPARE(plainText("\033[31m\t\r\n\177"), std::string("?[31m????"));
        // C1 controls, as UTF-8 and as bytes; marks of direction; a blank of no width.
        QCOMPARE(
            plainText("\302\233\233\342\200\256\342\201\246\342\200\213"), std::string("?????"));
        // A character that is cut off, too long a form of "/", a surrogate, beyond Unicode.
        QCOMPARE(plainText("\303"), std::string("?"));
        QCOMPARE(plainText("\300\257"), std::string("??"));
        QCOMPARE(plainText("\355\240\200"), std::string("?"));
        QCOMPARE(plainText("\364\220\200\200"), std::string("?"));
        QCOMPARE(plainText(std::string_view("a\0b", 3)), std::string("a?b"));
    }

    void whatIsLongIsCut()
    {
        QCOMPARE(plainText("éàü", 3), std::string("éàü"));
        QCOMPARE(plainText("éàüx", 3), std::string("éàü…"));
    }
};

VENDEL_TEST(TestLauncherTrouble)
#include "tst_LauncherTrouble.moc"
