// SPDX-License-Identifier: MIT
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"
#include "widgets/MessageBoxes.h"

#include <QFocusFrame>
#include <QLineEdit>
#include <QPushButton>

#include <memory>

namespace {
/// A window with a blue button, a red one and a field.
struct Colours
{
    QWidget window;
    QPushButton blue{"blue", &window};
    QPushButton red{"red", &window};
    QLineEdit field{&window};

    Colours()
    {
        blue.setStyleSheet("background-color: rgb(114, 159, 207)");
        red.setStyleSheet("background-color: rgb(204, 0, 0)");
        window.resize(300, 200);
        blue.setGeometry(20, 20, 100, 40);
        red.setGeometry(20, 80, 100, 40);
        field.setGeometry(20, 140, 100, 26);
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window)) {
            qFatal("the window does not become active");
        }
    }

    /// Whether \a button has two dark pixels and then two light ones on each side.
    bool isFramed(const QWidget& button)
    {
        const QImage image = window.grab().toImage();
        const QRect area = button.geometry();
        bool isFramed = true;
        for (int pixel = 0; pixel < 4; ++pixel) {
            const QColor colour(pixel < 2 ? Qt::black : Qt::white);
            const QPoint middle = area.center();
            for (const QPoint& point :
                {QPoint(area.left() + pixel, middle.y()), QPoint(area.right() - pixel, middle.y()),
                    QPoint(middle.x(), area.top() + pixel),
                    QPoint(middle.x(), area.bottom() - pixel)}) {
                isFramed = isFramed && image.pixelColor(point) == colour;
            }
        }
        return isFramed;
    }
};
} // namespace

/// The frame of the button that has the focus.
class TestButtonFrame : public QObject
{
    Q_OBJECT

private slots:
    void theButtonWithTheFocusIsFramedOnAnyColour()
    {
        Colours at;
        at.blue.setFocus();
        QVERIFY(at.isFramed(at.blue));
        QVERIFY(!at.isFramed(at.red));
        QTest::keyClick(&at.blue, Qt::Key_Tab);
        QVERIFY(at.isFramed(at.red));
        QVERIFY(!at.isFramed(at.blue));
        QCOMPARE(at.red.styleSheet(), QString("background-color: rgb(204, 0, 0)"));
        QTest::mouseClick(&at.blue, Qt::LeftButton);
        QVERIFY(at.isFramed(at.blue));
    }

    void aFieldTakesTheFrameAway()
    {
        Colours at;
        at.red.setFocus();
        at.field.setFocus();
        QVERIFY(!at.isFramed(at.red));
        QVERIFY(!at.isFramed(at.field));
    }

    void theFrameFollowsItsButton()
    {
        Colours at;
        at.red.setFocus();
        at.red.setGeometry(150, 30, 120, 60);
        QVERIFY(at.isFramed(at.red));
        at.red.hide();
        const auto frames = at.window.findChildren<QFocusFrame*>();
        for (const QFocusFrame* frame : frames) {
            QVERIFY(!frame->isVisible());
        }
    }

    void theFrameLetsClicksThrough()
    {
        Colours at;
        at.red.setFocus();
        QCOMPARE(at.window.childAt(at.red.pos() + QPoint(1, 1)), &at.red);
    }

    void aWindowThatIsGoneLeavesTheFrameToTheNext()
    {
        for (int time = 0; time < 2; ++time) {
            auto at = std::make_unique<Colours>();
            at->blue.setFocus();
            QVERIFY(at->isFramed(at->blue));
            auto removed = std::make_unique<QPushButton>(&at->window);
            removed->show();
            removed->setFocus();
            removed.reset();
            at->red.setFocus();
            QVERIFY(at->isFramed(at->red));
        }
    }

    void aBoxsButtonIsFramed()
    {
        Colours at;
        at.blue.setFocus();
        bool isFramed = false;
        const AnswerBox box(QMessageBox::Ok, [&](QMessageBox& shown) {
            isFramed = QTest::qWaitFor([&shown] {
                const auto* frame = shown.findChild<QFocusFrame*>();
                return frame != nullptr && frame->isVisible()
                    && frame->widget() == shown.button(QMessageBox::Ok);
            });
        });
        notice(&at.window, "Saisir un montant", "+/-");
        QVERIFY(isFramed);
        at.window.activateWindow();
        QTRY_VERIFY(at.isFramed(at.blue));
    }
};

VENDEL_TEST(TestButtonFrame)
#include "tst_ButtonFrame.moc"
