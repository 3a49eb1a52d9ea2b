// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

class TestFormVendelMenuFailures : public QObject
{
    Q_OBJECT

private slots:
    /// Its names are read, its keys have another name.
    void aMenuOfAnotherProgramIsShownWithoutItsDuplicates()
    {
        Till till("drop table Article; create table Article (ident, article, prix);"
                  "insert into Article values (1, 'Thé', 2)");
        const CapturedLog log;
        CapturedOutput output;
        const AnswerBox box;
        click(till.window, "btn_Afficher");
        QVERIFY(output.text().startsWith(
            "Errors Db::DbLoad sqlite3_errmsg : select sum(z.art) as som from "));
        QVERIFY(output.text().endsWith(" no such column: id\n"));
        QCOMPARE(output.text().count('\n'), 1);
        QCOMPARE(log.criticals().size(), 1);
        QVERIFY(log.criticals().at(0).startsWith("Errors FormVendel on_btn_Afficher_clicked : "));
        QCOMPARE(till.names("tableView1"), QString("Thé"));
        QVERIFY(!box.wasShown());
    }
};

VENDEL_TEST(TestFormVendelMenuFailures)
#include "tst_FormVendel_menu_failures.moc"
