// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/ListLook.h"
#include "tests/support/TestProgram.h"

/// The look of the menu and of the ticket, which all lists of the till share.
class TestFormVendelListLook : public QObject
{
    Q_OBJECT

private slots:
    void listsLookLikeAllOthers()
    {
        Till till;
        compareList(child<QTableView>(till.window, "tableView1"), 18, {50, 25, 210, 110}, "0");
        compareList(child<QTableView>(till.window, "tableView2"), 18, {50, 50, 210, 110}, "01");
    }
};

VENDEL_TEST(TestFormVendelListLook)
#include "tst_FormVendel_listLook.moc"
