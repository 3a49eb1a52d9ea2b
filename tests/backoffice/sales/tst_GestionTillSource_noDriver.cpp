// SPDX-License-Identifier: MIT
#include "tests/backoffice/sales/GestionShop.h"
#include "tests/support/TestProgram.h"

/// A machine without Qt's SQLite.
class TestGestionTillSourceNoDriver : public QObject
{
    Q_OBJECT

private slots:
    void isSaid()
    {
        const GestionShop shop;
        QCoreApplication::setLibraryPaths({});
        TillSource source(shop.path());
        try {
            source.isChanged();
            QFAIL("it was read");
        } catch (const SalesError& error) {
            QCOMPARE(error.sentence(),
                QString("Le pilote SQLite de Qt manque\u00a0: Vendel est à réinstaller."));
        }
    }
};

VENDEL_BARE_TEST(TestGestionTillSourceNoDriver)
#include "tst_GestionTillSource_noDriver.moc"
