// SPDX-License-Identifier: MIT
#include "tests/forms/OpenHistory.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"

#include <QPushButton>

namespace {
/// Purges what is asked for. Returns each box, behind the number of sales, days and groups that
/// are listed under it.
QStringList purge(OpenHistory& history)
{
    QStringList listed;
    const AnswerBox boxes = AnswerBox::agreeing([&](const QMessageBox& box) {
        listed << QString("%1 %2 %3 ")
                      .arg(history.sales().size())
                      .arg(history.days().size())
                      .arg(history.groups().size())
                + box.windowTitle() + ": " + box.text();
    });
    click(history.window, "btn_Clear");
    return listed;
}
} // namespace

class TestFormVendelHistoriquePurge : public QObject
{
    Q_OBJECT

private slots:
    void noKeepsTheSales()
    {
        ListedHistory history;
        QCOMPARE(history.push("btn_Clear", QMessageBox::No),
            QStringList("Purger: Voulez-vous purger de 05/01/2019 au 05/02/2019 [Yes, No]"));
        QCOMPARE(history.now(), history.atFirst);
    }

    void aStrayKeyKeepsTheSales()
    {
        ListedHistory history;
        const AnswerBox box(QMessageBox::Yes, [](QMessageBox& question) {
            QTest::keyClick(question.defaultButton(), Qt::Key_Return);
        });
        click(history.window, "btn_Clear");
        QVERIFY(box.isQuestionOf(history.window));
        QCOMPARE(history.now(), history.atFirst);
    }

    void yesEmptiesTheListsBeforeItReports()
    {
        OpenHistory history(
            "('Thé', 2, '2019-05-01 10:00:00.000'), ('Café', 2, '2019-05-01 10:00:00.001'), "
            "('Bière', 2, '2019-05-01 10:00:00.002')",
            "05/01/2019 10:00:00.000", "05/01/2019 10:00:00.001");
        history.push("btn_Total");
        QCOMPARE(purge(history),
            QStringList({"3 0 2 Purger: Voulez-vous purger de 05/01/2019 10:00:00.000 au "
                         "05/01/2019 10:00:00.001",
                "0 0 0 Historique: Historique est vide pour la pèriode du 05/01/2019 10:00:00.000 "
                "au 05/01/2019 10:00:00.001"}));
        QCOMPARE(
            history.shop.cell("select group_concat(article) from Historique"), QString("Bière"));
        QCOMPARE(history.days(), QStringList("05/01/2019"));
    }

    void aPurgeOfEverythingLeavesNoDay()
    {
        OpenHistory history(
            "('Thé', 2, '2019-05-01 10:00:00.000'), ('Café', 2, '2020-02-29 10:00:00.000')",
            "01/01/0001", "12/31/9999");
        history.push("btn_Show_Date");
        QCOMPARE(history.days().size(), 2);
        QCOMPARE(purge(history),
            QStringList({"0 2 0 Purger: Voulez-vous purger de 01/01/0001 au 12/31/9999",
                "0 2 0 Historique: Historique est vide pour la pèriode du 01/01/0001 au "
                "12/31/9999",
                "0 0 0 Historique: Historique est vide\nAjouter des articles et faite PAYER"}));
        QCOMPARE(history.sold(), QString("0"));
    }
};

VENDEL_TEST(TestFormVendelHistoriquePurge)
#include "tst_FormVendelHistorique_purge.moc"
