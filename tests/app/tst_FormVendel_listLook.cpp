// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/ListLook.h"
#include "tests/support/TestProgram.h"

/// The look of the menu and of the ticket, which all lists of the till share.
class TestFormVendelListLook : public QObject
{
    Q_OBJECT

private slots:
    void listsLookLikeAllOthers_data()
    {
        QTest::addColumn<std::vector<int>>("widths");
        QTest::addColumn<QString>("hidden");
        QTest::newRow("tableView1") << std::vector{50, 25, 210, 110} << "0";
        QTest::newRow("tableView2") << std::vector{50, 50, 210, 110} << "01";
    }

    void listsLookLikeAllOthers()
    {
        QFETCH(const std::vector<int>, widths);
        QFETCH(const QString, hidden);
        Till till;
        compareList(child<QTableView>(till.window, QTest::currentDataTag()), 18, widths, hidden);
    }
};

VENDEL_TEST(TestFormVendelListLook)
#include "tst_FormVendel_listLook.moc"
