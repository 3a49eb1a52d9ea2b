// SPDX-License-Identifier: MIT
#include "store/Ticket.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <stdexcept>

class TestTicket : public QObject
{
    Q_OBJECT

private slots:
    void theSumIsThatOfAllPrices()
    {
        const Shop shop;
        QCOMPARE(Ticket::sum(), QString());
        shop.sql("insert into Ticket (id, article, prix) values (1, 'Eau', 2.5), (0, '----', -1)");
        QCOMPARE(Ticket::sum(), QString("1.5"));
    }

    void withoutATableThereIsNoSum()
    {
        const Shop shop;
        shop.sql("drop table Ticket");
        CapturedOutput output;
        QVERIFY_EXCEPTION_THROWN(Ticket::sum(), std::out_of_range);
        QCOMPARE(
            output.text(), databaseReport("select sum(prix) from Ticket", "no such table: Ticket"));
    }

    void aTableThatLacksAColumnThrows()
    {
        const Shop shop;
        shop.sql("alter table Ticket drop column prix");
        shop.sql("insert into Ticket (id, article) values (1, 'Eau')");
        QVERIFY_EXCEPTION_THROWN(Ticket::lines(), std::out_of_range);
    }
};

VENDEL_TEST(TestTicket)
#include "tst_Ticket.moc"
