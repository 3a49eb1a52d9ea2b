// SPDX-License-Identifier: MIT
#include "backoffice/sales/TillSource.h"
#include "tests/backoffice/window/OpenGestion.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QFile>

namespace {
constexpr auto sale = "insert into Historique values (1, 'Café', 1.5, '2026-11-20 09:30:00.000')";

ReportReader::Open till(const Shop& shop)
{
    return [folder = shop.path()] { return std::make_unique<TillSource>(folder); };
}
} // namespace

/// The window on the till's own database.
class GestionWindowTill : public QObject
{
    Q_OBJECT

private slots:
    void aPaymentShowsWithinTwoSeconds()
    {
        const Shop shop;
        shop.sql(sale);
        OpenGestion gestion(till(shop));
        QTRY_COMPARE(gestion.figure(QStringLiteral("Total HT")), QStringLiteral("1,50 €"));
        shop.sql(sale);
        QTRY_COMPARE_WITH_TIMEOUT(
            gestion.figure(QStringLiteral("Total HT")), QStringLiteral("3,00 €"), 2000);
    }

    void aShopWithoutSalesHasPages()
    {
        const Shop shop;
        OpenGestion gestion(till(shop));
        for (int page = 0; page < 5; ++page) {
            gestion.pages().setCurrentIndex(page);
            QTRY_VERIFY(gestion.page().report() != nullptr);
            QCOMPARE(gestion.sentence(), QString());
        }
    }

    void aMissingDatabaseIsASentenceAndNoFile()
    {
        const Shop shop(Shop::Database::None);
        OpenGestion gestion(till(shop));
        QTRY_VERIFY(!gestion.sentence().isEmpty());
        QTest::qWait(700);
        QVERIFY(!QFile::exists(shop.path() + QStringLiteral("/Vendel.db")));
    }

    void aDatabaseThatComesBackIsRead()
    {
        const Shop shop;
        shop.sql(sale);
        const QString path = shop.path() + QStringLiteral("/Vendel.db");
        OpenGestion gestion(till(shop));
        QTRY_COMPARE(gestion.figure(QStringLiteral("Total HT")), QStringLiteral("1,50 €"));
        QVERIFY(QFile::rename(path, path + QStringLiteral(".away")));
        QTRY_VERIFY(!gestion.sentence().isEmpty());
        QVERIFY(QFile::rename(path + QStringLiteral(".away"), path));
        QTRY_COMPARE(gestion.figure(QStringLiteral("Total HT")), QStringLiteral("1,50 €"));
        QCOMPARE(gestion.sentence(), QString());
    }
};

VENDEL_BARE_TEST(GestionWindowTill)
#include "tst_GestionWindow_till.moc"
