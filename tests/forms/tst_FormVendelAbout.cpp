// SPDX-License-Identifier: MIT
#include "forms/FormVendelAbout.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QTextEdit>

namespace {
/// The box about the till on the screen, in the folder of a shop.
struct OpenAbout
{
    const Shop shop;
    FormVendelAbout window;
    QLabel& picture = child<QLabel>(window, "lbl_QPixmap");
    QTextEdit& text = child<QTextEdit>(window, "txt_Edit");
    QDialogButtonBox& buttons = child<QDialogButtonBox>(window, "btn_buttonBox");
    QPushButton& ok = *buttons.button(QDialogButtonBox::Ok);

    OpenAbout()
    {
        window.show();
        if (!QTest::qWaitForWindowActive(&window)) {
            qFatal("the window does not become active");
        }
    }
};
} // namespace

class TestFormVendelAbout : public QObject
{
    Q_OBJECT

private slots:
    void hasNameVersionTextAndOk()
    {
        OpenAbout about;
        QCOMPARE(child<QLabel>(about.window, "lbl_ProductName").text(), QString("Système Vendel"));
        QCOMPARE(child<QLabel>(about.window, "lbl_Version").text(), QString("Version 1.0.0.0"));
        QVERIFY(about.text.isReadOnly());
        QCOMPARE(about.buttons.standardButtons(),
            QDialogButtonBox::StandardButtons(QDialogButtonBox::Ok));
        for (const char* name :
            {"lbl_QPixmap", "lbl_ProductName", "lbl_Version", "txt_Edit", "btn_buttonBox"}) {
            QCOMPARE(child<QWidget>(about.window, name).parentWidget(), &about.window);
        }
    }

    void everyTextIsLookedUpInItsContext()
    {
        const ContextEcho translation;
        OpenAbout about;
        const QString own = "FormVendelAbout";
        QCOMPARE(child<QLabel>(about.window, "lbl_ProductName").text(), own);
        QCOMPARE(child<QLabel>(about.window, "lbl_Version").text(), own);
        QCOMPARE(about.text.toPlainText(), own);
        QCOMPARE(about.text.accessibleName(), own);
    }

    void theTextSaysNameVersionLicenceAndFolder()
    {
        OpenAbout about;
        QCOMPARE(about.text.toPlainText(),
            "Système Vendel\nVersion 1.0.0.0\nCaisse enregistreuse sous licence MIT\nLes données "
            "du magasin se trouvent dans le dossier\n"
                + about.shop.path());
    }

    void aFolderLikeATagIsShownAsItIs()
    {
        const Shop shop;
        QVERIFY(QDir().mkdir("<b>%1 caisse"));
        QVERIFY(QDir::setCurrent("<b>%1 caisse"));
        FormVendelAbout window;
        QVERIFY(child<QTextEdit>(window, "txt_Edit")
                    .toPlainText()
                    .endsWith(shop.path() + "/<b>%1 caisse"));
    }

    void thePictureIsAtTheLeftEdge()
    {
        const Shop shop;
        QPixmap picture(264, 512);
        picture.fill(Qt::blue);
        QVERIFY(picture.save("AproposdeImage.png"));
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
        const CapturedLog log;
        OpenAbout about;
        QVERIFY(about.picture.pixmap(Qt::ReturnByValue).isNull());
        QCOMPARE(about.picture.geometry(), QRect(3, 3, 132, 256));
        QCOMPARE(log.criticals(), QStringList());
    }

    void okClosesTheWindow()
    {
        OpenAbout about;
        QTest::mouseClick(&about.ok, Qt::LeftButton);
        QVERIFY(!about.window.isVisible());
        QCOMPARE(about.window.result(), int(QDialog::Accepted));
        about.window.show();
        emit about.buttons.rejected();
        QVERIFY(!about.window.isVisible());
        QCOMPARE(about.window.result(), int(QDialog::Rejected));
    }

    void returnPressesOk()
    {
        OpenAbout about;
        QVERIFY(about.ok.isDefault());
        QVERIFY(about.ok.hasFocus());
        about.text.setFocus();
        QTest::keyClick(&about.text, Qt::Key_Tab);
        QVERIFY(about.ok.hasFocus());
        QTest::keyClick(&about.text, Qt::Key_Return);
        QVERIFY(!about.window.isVisible());
    }

    void escapeClosesTheWindow()
    {
        OpenAbout about;
        QTest::keyClick(&about.window, Qt::Key_Escape);
        QVERIFY(!about.window.isVisible());
    }
};

VENDEL_TEST(TestFormVendelAbout)
#include "tst_FormVendelAbout.moc"
