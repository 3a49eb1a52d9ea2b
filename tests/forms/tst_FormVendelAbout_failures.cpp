// SPDX-License-Identifier: MIT
#include "forms/FormVendelAbout.h"
#include "tests/support/Captured.h"
#include "tests/support/LeakCheck.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QPushButton>

#include <stdexcept>

#include <sys/stat.h>

/// A picture that cannot be shown, and exceptions thrown into slots.
class TestFormVendelAboutFailures : public QObject
{
    Q_OBJECT

private slots:
    void aPictureThatMustNotBeReadLeavesTheLabelEmpty()
    {
        const Shop shop;
        const CapturedLog log;
        const auto hasNoPicture = [] {
            FormVendelAbout window;
            window.show();
            return child<QLabel>(window, "lbl_QPixmap").pixmap(Qt::ReturnByValue).isNull();
        };
        QVERIFY(mkfifo("AproposdeImage.png", 0600) == 0);
        QVERIFY(hasNoPicture());
        QVERIFY(QFile::remove("AproposdeImage.png"));
        QVERIFY(QImage(4097, 1, QImage::Format_Mono).save("AproposdeImage.png"));
        QVERIFY(hasNoPicture());
        QCOMPARE(log.criticals(),
            QStringList({"AproposdeImage.png is not read: it is not a regular file",
                "AproposdeImage.png is not shown: it has a side of more than 4096 pixels"}));
    }

    void exceptionsAreLogged()
    {
        const LeakCheckPause pause;
        const Shop shop;
        const CapturedLog log;
        FormVendelAbout window;
        window.show();
        connect(&window, &QDialog::rejected, [] { throw std::runtime_error("no closing"); });
        auto& buttons = child<QDialogButtonBox>(window, "btn_buttonBox");
        QTest::mouseClick(buttons.button(QDialogButtonBox::Ok), Qt::LeftButton);
        const FailingText failure("Version 1.0.0.0");
        const FormVendelAbout another;
        QCOMPARE(log.criticals(),
            QStringList({"Errors FormVendel on_btn_buttonBox_clicked : no closing",
                "Errors FormVendelAbout Constructor : no text"}));
    }
};

VENDEL_TEST(TestFormVendelAboutFailures)
#include "tst_FormVendelAbout_failures.moc"
