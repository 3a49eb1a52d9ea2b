// SPDX-License-Identifier: MIT
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"
#include "widgets/MessageBoxes.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

namespace {
/// Two buttons of a window, which count how often they are pressed.
template <class Window> struct Buttons
{
    Window window;
    QPushButton first{"first", &window};
    QPushButton second{"second", &window};
    QStringList pressed;

    Buttons()
    {
        for (QPushButton* button : {&first, &second}) {
            button->setAutoDefault(false);
            QObject::connect(
                button, &QPushButton::clicked, button, [this, button] { note(button->text()); });
        }
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window)) {
            qFatal("the window does not become active");
        }
        first.setFocus();
    }

    void note(const QString& name) { pressed << name; }
};

void send(QWidget& widget, QEvent::Type type, Qt::Key key, ulong moment, bool isRepeat = false)
{
    QKeyEvent event(type, key, Qt::NoModifier, QString(), isRepeat);
    event.setTimestamp(moment);
    QApplication::sendEvent(&widget, &event);
}

/// Holds \a key for three repetitions, as X11 tells it when Qt takes them for presses.
void hold(QWidget& widget, Qt::Key key, ulong from)
{
    send(widget, QEvent::KeyPress, key, from);
    for (const ulong moment : {from + 500, from + 530, from + 560}) {
        send(*QApplication::focusWidget(), QEvent::KeyRelease, key, moment);
        send(*QApplication::focusWidget(), QEvent::KeyPress, key, moment);
    }
    send(*QApplication::focusWidget(), QEvent::KeyRelease, key, from + 600);
}

constexpr auto pressKeys = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space};
} // namespace

/// The keys of every button.
class TestButtonKeys : public QObject
{
    Q_OBJECT

private slots:
    void returnEnterAndSpacePressTheButtonWithTheFocus()
    {
        for (const Qt::Key key : pressKeys) {
            Buttons<QWidget> plain;
            QTest::keyClick(&plain.first, key);
            QCOMPARE(plain.pressed, QStringList("first"));
            Buttons<QDialog> dialog;
            dialog.second.setFocus();
            QTest::keyClick(&dialog.second, key);
            QCOMPARE(dialog.pressed, QStringList("second"));
        }
    }

    void theDefaultButtonStaysTheOneOfTheFields()
    {
        Buttons<QDialog> at;
        QLineEdit field(&at.window);
        field.show();
        field.setFocus();
        QTest::keyClick(&field, Qt::Key_Return);
        QCOMPARE(at.pressed, QStringList());
        at.second.setDefault(true);
        QTest::keyClick(&field, Qt::Key_Return);
        QCOMPARE(at.pressed, QStringList("second"));
        QTest::keyClick(&at.first, Qt::Key_Return);
        QTest::keyClick(&at.second, Qt::Key_Return);
        QCOMPARE(at.pressed, QStringList({"second", "first", "second"}));
    }

    void otherKeysAndOtherControlsAreLeftAlone()
    {
        Buttons<QWidget> at;
        QCheckBox box(&at.window);
        box.show();
        QTest::keyClick(&box, Qt::Key_Return);
        QVERIFY(!box.isChecked());
        for (const Qt::Key key : {Qt::Key_1, Qt::Key_Escape, Qt::Key_Delete}) {
            QTest::keyClick(&at.first, key);
        }
        QTest::keyClick(&at.first, Qt::Key_Return, Qt::ControlModifier);
        at.first.setEnabled(false);
        QTest::keyClick(&at.first, Qt::Key_Return);
        QCOMPARE(at.pressed, QStringList());
    }

    void aHeldKeyPressesOnce()
    {
        for (const Qt::Key key : pressKeys) {
            Buttons<QWidget> at;
            hold(at.first, key, 1000);
            QCOMPARE(at.pressed, QStringList("first"));
            hold(at.first, key, 1700);
            QCOMPARE(at.pressed, QStringList({"first", "first"}));
        }
    }

    void aHeldKeyThatQtSeesPressesOnce()
    {
        for (const Qt::Key key : pressKeys) {
            Buttons<QWidget> at;
            send(at.first, QEvent::KeyPress, key, 1000);
            for (const ulong moment : {1500UL, 1530UL}) {
                send(at.first, QEvent::KeyRelease, key, moment, true);
                send(at.first, QEvent::KeyPress, key, moment, true);
            }
            send(at.first, QEvent::KeyRelease, key, 1600);
            QCOMPARE(at.pressed, QStringList("first"));
        }
    }

    void aHeldKeyStopsAtTheNextButton()
    {
        for (const Qt::Key key : pressKeys) {
            Buttons<QDialog> at;
            QObject::connect(
                &at.first, &QPushButton::clicked, &at.second, [&at] { at.second.setFocus(); });
            at.second.setDefault(true);
            hold(at.first, key, 1000);
            QCOMPARE(at.pressed, QStringList("first"));
        }
    }

    void aKeyHeldInAFieldPressesTheDefaultButtonOnce()
    {
        Buttons<QDialog> at;
        QLineEdit field(&at.window);
        field.show();
        field.setFocus();
        at.second.setDefault(true);
        hold(field, Qt::Key_Return, 1000);
        QCOMPARE(at.pressed, QStringList("second"));
    }

    void aHeldKeyDoesNotAnswerTheBoxThatItOpens()
    {
        Buttons<QWidget> at;
        const AnswerBox box(QMessageBox::No, [](QMessageBox& question) {
            QWidget& yes = *question.button(QMessageBox::Yes);
            for (const ulong moment : {1500UL, 1530UL}) {
                send(yes, QEvent::KeyRelease, Qt::Key_Return, moment);
                send(yes, QEvent::KeyPress, Qt::Key_Return, moment);
            }
            QVERIFY(question.isVisible());
        });
        QObject::connect(&at.first, &QPushButton::clicked, &at.window,
            [&at] { at.note(confirm(&at.window, "Payer ?", "Payer") ? "yes" : "no"); });
        send(at.first, QEvent::KeyPress, Qt::Key_Return, 1000);
        QCOMPARE(at.pressed, QStringList({"first", "no"}));
    }
};

VENDEL_TEST(TestButtonKeys)
#include "tst_ButtonKeys.moc"
