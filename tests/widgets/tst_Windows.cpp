// SPDX-License-Identifier: MIT
#include "tests/support/TestProgram.h"
#include "widgets/OpenWindow.h"

#include <QDialog>
#include <QPointer>
#include <QWidget>

#include <memory>

namespace {
class Dialog : public QDialog
{
public:
    explicit Dialog(const QString& first, const QString& second, QWidget* parent)
        : QDialog(parent)
    {
        setWindowTitle(first + second);
    }
};

/// The dialog that is opened above \a opener.
QPointer<QDialog> openAbove(QWidget& opener)
{
    openWindow<Dialog>(&opener, QString("05/01/2019"), QString("05/02/2019"));
    return opener.findChild<QDialog*>();
}
} // namespace

class TestWindows : public QObject
{
    Q_OBJECT

private slots:
    void anOpenedWindowIsShownOnTopOfItsOpener()
    {
        QWidget opener;
        const auto dialog = openAbove(opener);
        QVERIFY(dialog != nullptr);
        QVERIFY(dialog->isVisible());
        QCOMPARE(dialog->parentWidget(), &opener);
        QCOMPARE(dialog->windowTitle(), QString("05/01/201905/02/2019"));
        dialog->close();
        QTRY_VERIFY(dialog.isNull());
    }

    void aWindowGoesWithItsOpener()
    {
        auto opener = std::make_unique<QWidget>();
        const auto dialog = openAbove(*opener);
        opener.reset();
        QVERIFY(dialog.isNull());
    }

    void theOpenerOfAClosedWindowGetsTheKeyboard()
    {
        QWidget opener;
        opener.show();
        const auto dialog = openAbove(opener);
        QWidget another;
        another.show();
        another.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&another));
        dialog->close();
        activateOpener(*dialog);
        QVERIFY(QTest::qWaitForWindowActive(&opener));
        activateOpener(opener);
    }
};

VENDEL_TEST(TestWindows)
#include "tst_Windows.moc"
