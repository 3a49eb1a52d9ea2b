// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"
#include "forms/FormVendelAbout.h"
#include "tests/support/Captured.h"
#include "tests/support/Translation.h"
#include "tests/support/LeakCheck.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTextEdit>

#include <sys/stat.h>

namespace {
QPushButton& okButton(QWidget& window)
{
    return *child<QDialogButtonBox>(window, "btn_buttonBox").button(QDialogButtonBox::Ok);
}
} // namespace

class TestFormVendelAbout : public QObject
{
    Q_OBJECT

private slots:
    void looksLikeTheAboutWindow()
    {
        const Shop shop;
        const CapturedLog log;
        FormVendelAbout window;
        QCOMPARE(log.warnings(), QStringList());
        QCOMPARE(log.criticals(), QStringList());
        QCOMPARE(window.objectName(), QString("FormVendelAbout"));
        QCOMPARE(window.windowTitle(), QString("A propos de Système Vendel"));
        QCOMPARE(window.size(), QSize(435, 283));
        QCOMPARE(window.minimumSize(), QSize(435, 283));
        QCOMPARE(window.maximumSize(), QSize(435, 283));
        QCOMPARE(window.windowModality(), Qt::WindowModal);
        QCOMPARE(child<QLabel>(window, "lbl_ProductName").text(), QString("Système Vendel"));
        QCOMPARE(child<QLabel>(window, "lbl_Version").text(), QString("Version 1.0.0.0"));
        QVERIFY(child<QTextEdit>(window, "txt_Edit").isReadOnly());
        QCOMPARE(child<QDialogButtonBox>(window, "btn_buttonBox").standardButtons(),
            QDialogButtonBox::StandardButtons(QDialogButtonBox::Ok));
        for (const char* name :
            {"lbl_QPixmap", "lbl_ProductName", "lbl_Version", "txt_Edit", "btn_buttonBox"}) {
            QCOMPARE(child<QWidget>(window, name).parentWidget(), &window);
        }
    }

    void everyTextIsLookedUpInItsContext()
    {
        const Shop shop;
        const ContextEcho translation;
        FormVendelAbout window;
        const QString own = QString("FormVendelAbout");
        QCOMPARE(window.windowTitle(), own);
        QCOMPARE(child<QLabel>(window, "lbl_ProductName").text(), own);
        QCOMPARE(child<QLabel>(window, "lbl_Version").text(), own);
        QCOMPARE(child<QTextEdit>(window, "txt_Edit").toPlainText(), own);
        QCOMPARE(child<QTextEdit>(window, "txt_Edit").accessibleName(), own);
    }

    void thePictureStandsAtTheLeftEdge()
    {
        const Shop shop;
        QPixmap picture(264, 512);
        picture.fill(Qt::blue);
        QVERIFY(picture.save(QString("AproposdeImage.png")));
        FormVendelAbout window;
        const auto& label = child<QLabel>(window, "lbl_QPixmap");
        QCOMPARE(label.geometry(), QRect(3, 3, 132, 256));
        window.show();
        QCOMPARE(label.geometry(), QRect(3, 3, 132, 256));
        QVERIFY(label.hasScaledContents());
        QCOMPARE(label.pixmap(Qt::ReturnByValue).size(), QSize(264, 512));
        const QImage shown = window.grab().toImage();
        QCOMPARE(shown.pixelColor(3, 3), QColor(Qt::blue));
        QCOMPARE(shown.pixelColor(134, 258), QColor(Qt::blue));
        QVERIFY(shown.pixelColor(135, 259) != QColor(Qt::blue));
    }

    void aMissingPictureLeavesTheLabelEmpty()
    {
        const Shop shop;
        const CapturedLog log;
        FormVendelAbout window;
        window.show();
        QVERIFY(child<QLabel>(window, "lbl_QPixmap").pixmap(Qt::ReturnByValue).isNull());
        QCOMPARE(child<QLabel>(window, "lbl_QPixmap").geometry(), QRect(3, 3, 132, 256));
        QCOMPARE(log.criticals(), QStringList());
    }

    void aPictureThatMustNotBeReadLeavesTheLabelEmpty()
    {
        const Shop shop;
        const CapturedLog log;
        QVERIFY(mkfifo("AproposdeImage.png", 0600) == 0);
        FormVendelAbout window;
        window.show();
        QVERIFY(child<QLabel>(window, "lbl_QPixmap").pixmap(Qt::ReturnByValue).isNull());
        QVERIFY(QFile::remove(QString("AproposdeImage.png")));
        QVERIFY(QImage(4097, 1, QImage::Format_Mono).save(QString("AproposdeImage.png")));
        FormVendelAbout another;
        QVERIFY(child<QLabel>(another, "lbl_QPixmap").pixmap(Qt::ReturnByValue).isNull());
        QCOMPARE(log.criticals(),
            (QStringList{QString("AproposdeImage.png is not read: it is not a regular file"),
                QString(
                    "AproposdeImage.png is not shown: it has a side of more than 4096 pixels")}));
    }

    void theTextTellsNameVersionLicenceAndFolder()
    {
        const Shop shop;
        FormVendelAbout window;
        QCOMPARE(child<QTextEdit>(window, "txt_Edit").toPlainText(),
            QString("Système Vendel\nVersion 1.0.0.0\nCaisse enregistreuse sous licence "
                    "MIT\nLes données du magasin se trouvent dans le dossier\n")
                + shop.path());
    }

    void aFolderLikeATagIsShownAsItStands()
    {
        const Shop shop;
        QVERIFY(QDir().mkdir(QString("<b>%1 caisse")));
        QVERIFY(QDir::setCurrent(QString("<b>%1 caisse")));
        FormVendelAbout window;
        QVERIFY(child<QTextEdit>(window, "txt_Edit")
                    .toPlainText()
                    .endsWith(shop.path() + QString("/<b>%1 caisse")));
    }

    void nothingIsClipped()
    {
        const Shop shop;
        FormVendelAbout window;
        window.show();
        QCOMPARE(clippedTexts(window), QStringList());
    }

    void okClosesTheWindow()
    {
        const Shop shop;
        FormVendelAbout window;
        window.show();
        QTest::mouseClick(&okButton(window), Qt::LeftButton);
        QVERIFY(!window.isVisible());
    }

    void theButtonsEndTheDialog()
    {
        const Shop shop;
        FormVendelAbout window;
        window.show();
        QTest::mouseClick(&okButton(window), Qt::LeftButton);
        QCOMPARE(window.result(), int(QDialog::Accepted));
        window.show();
        emit child<QDialogButtonBox>(window, "btn_buttonBox").rejected();
        QVERIFY(!window.isVisible());
        QCOMPARE(window.result(), int(QDialog::Rejected));
    }

    void returnPressesOk()
    {
        const Shop shop;
        FormVendelAbout window;
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QVERIFY(okButton(window).isDefault());
        QVERIFY(okButton(window).hasFocus());
        auto& text = child<QTextEdit>(window, "txt_Edit");
        text.setFocus();
        QTest::keyClick(&text, Qt::Key_Tab);
        QVERIFY(okButton(window).hasFocus());
        QTest::keyClick(&text, Qt::Key_Return);
        QVERIFY(!window.isVisible());
    }

    void escapeClosesTheWindow()
    {
        const Shop shop;
        FormVendelAbout window;
        window.show();
        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!window.isVisible());
    }

    void theMenuOpensAndClosingDeletesIt()
    {
        const Shop shop;
        FormVendel till;
        till.show();
        chooseMenu(till, "menu", "actionA_propos_de");
        QPointer<FormVendelAbout> about = till.findChild<FormVendelAbout*>();
        QVERIFY(about != nullptr);
        QVERIFY(about->isVisible());
        QCOMPARE(about->parentWidget(), &till);
        QTest::mouseClick(&okButton(*about), Qt::LeftButton);
        QTRY_VERIFY(about.isNull());
    }

    void failuresAreLogged()
    {
        const LeakCheckPause pause;
        const Shop shop;
        const CapturedLog log;
        FormVendelAbout window;
        window.show();
        auto once
            = connect(&window, &QDialog::rejected, [] { throw std::runtime_error("no closing"); });
        QTest::mouseClick(&okButton(window), Qt::LeftButton);
        QCOMPARE(log.criticals(),
            QStringList(QString("Errors FormVendel on_btn_buttonBox_clicked : no closing")));
        disconnect(once);
        const FailingText failure("Version 1.0.0.0");
        const FormVendelAbout another;
        QCOMPARE(
            log.criticals().constLast(), QString("Errors FormVendelAbout Constructor : no text"));
        QCOMPARE(log.criticals().size(), 2);
    }
};

VENDEL_TEST(TestFormVendelAbout)
#include "tst_FormVendelAbout.moc"
