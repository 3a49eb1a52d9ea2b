// SPDX-License-Identifier: MIT
#include "tests/support/TestProgram.h"
#include "widgets/OpenWindow.h"

#include <QDialog>
#include <QPointer>

namespace {
class Dialog : public QDialog
{
public:
    explicit Dialog(QWidget* parent)
        : QDialog(parent)
    { }
    Dialog(const QString& first, const QString& second, QWidget* parent)
        : QDialog(parent)
    {
        setWindowTitle(first + second);
    }
};
} // namespace

class TestWindows : public QObject
{
    Q_OBJECT

private slots:
    void anOpenedWindowIsShownOnTopOfItsOpener()
    {
        QWidget opener;
        openWindow<Dialog>(&opener);
        const auto* dialog = opener.findChild<QDialog*>();
        QVERIFY(dialog != nullptr);
        QVERIFY(dialog->isVisible());
        QCOMPARE(dialog->parentWidget(), &opener);
    }

    void argumentsReachTheWindow()
    {
        QWidget opener;
        openWindow<Dialog>(&opener, QString("05/01/2019"), QString("05/02/2019"));
        QCOMPARE(opener.findChild<QDialog*>()->windowTitle(), QString("05/01/201905/02/2019"));
    }

    void aClosedWindowIsDeleted()
    {
        QWidget opener;
        openWindow<Dialog>(&opener);
        const QPointer<QDialog> dialog = opener.findChild<QDialog*>();
        dialog->close();
        QTRY_VERIFY(dialog.isNull());
    }

    void aWindowGoesWithItsOpener()
    {
        auto opener = std::make_unique<QWidget>();
        openWindow<Dialog>(opener.get());
        const QPointer<QDialog> dialog = opener->findChild<QDialog*>();
        opener.reset();
        QVERIFY(dialog.isNull());
    }
};

VENDEL_TEST(TestWindows)
#include "tst_Windows.moc"
