// SPDX-License-Identifier: MIT
#include "tests/backoffice/window/OpenGestion.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"

#include <QAction>
#include <QApplication>
#include <QDateEdit>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QToolButton>

namespace {
QAction& action(OpenGestion& gestion, const char* text)
{
    const auto actions = gestion.window.findChildren<QAction*>();
    const auto found = std::find_if(actions.begin(), actions.end(),
        [&](const QAction* each) { return each->text() == QString::fromUtf8(text); });
    if (found == actions.end()) {
        qFatal("no action %s", text);
    }
    return **found;
}

/// Does \a use with the first \a Dialog that opens.
template <class Dialog> class WhenOpen
{
public:
    explicit WhenOpen(std::function<void(Dialog&)> use)
    {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this, use = std::move(use)] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog != nullptr) {
                timer_.stop();
                use(*dialog);
            }
        });
        timer_.start(10);
    }

private:
    QTimer timer_;
};

/// Exports by the menu entry \a text into a file \a name of \a folder; returns its bytes.
QByteArray exported(
    OpenGestion& gestion, const char* text, const QTemporaryDir& folder, const char* name)
{
    const QString path = folder.filePath(QString::fromUtf8(name));
    const WhenOpen<QFileDialog> dialog([&](QFileDialog& files) {
        child<QLineEdit>(files, "fileNameEdit").setText(path);
        QMetaObject::invokeMethod(&files, "accept");
    });
    action(gestion, text).trigger();
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

class GestionWindowFiles : public QObject
{
    Q_OBJECT

private slots:
    void savesAFileOfEachKind()
    {
        const QTemporaryDir folder;
        OpenGestion gestion;
        QTRY_VERIFY(gestion.page().report() != nullptr);
        const QByteArray csv = exported(gestion, "Exporter en &CSV…", folder, "ventes.csv");
        QVERIFY2(csv.contains(";30,00;"), csv.constData());
        QVERIFY(exported(gestion, "Exporter en &PDF…", folder, "ventes.pdf").startsWith("%PDF-"));
        const QImage image
            = QImage::fromData(exported(gestion, "Exporter en P&NG…", folder, "ventes.png"));
        QCOMPARE(image.size(), QSize(1240, 1754));
    }

    void proposesAName()
    {
        OpenGestion gestion;
        gestion.choose("period", 3);
        QTRY_VERIFY(gestion.subtitle().startsWith(QStringLiteral("Novembre 2026")));
        QString name;
        const WhenOpen<QFileDialog> dialog([&](QFileDialog& files) {
            name = QFileInfo(files.selectedFiles().value(0)).fileName();
            files.reject();
        });
        action(gestion, "Exporter en &PDF…").trigger();
        QCOMPARE(name, QStringLiteral("Ventes 2026-11-01_2026-11-30.pdf"));
    }

    void theClosingOfAMonthUnderWayIsTodays()
    {
        OpenGestion gestion;
        gestion.choose("period", 3);
        gestion.pages().setCurrentIndex(4);
        QTRY_VERIFY(gestion.subtitle().startsWith(QStringLiteral("Vendredi 20 novembre 2026")));
        QString name;
        const WhenOpen<QFileDialog> dialog([&](QFileDialog& files) {
            name = QFileInfo(files.selectedFiles().value(0)).fileName();
            files.reject();
        });
        action(gestion, "Exporter en &PDF…").trigger();
        QCOMPARE(name, QStringLiteral("Clôture 2026-11-20.pdf"));
    }

    void nothingToComeIsClosed()
    {
        OpenGestion gestion;
        child<QDateEdit>(gestion.window, "last").setDate({2026, 12, 24});
        child<QDateEdit>(gestion.window, "first").setDate({2026, 12, 1});
        gestion.pages().setCurrentIndex(4);
        QTRY_VERIFY(gestion.page().report() != nullptr);
        QCOMPARE(gestion.subtitle(), QStringLiteral("Vendredi 20 novembre 2026, journée en cours"));
        gestion.choose("period", 1);
        QTRY_COMPARE(gestion.subtitle(), QStringLiteral("Jeudi 19 novembre 2026"));
    }

    void aFileThatCannotBeWrittenIsSaid()
    {
        OpenGestion gestion;
        QTRY_VERIFY(gestion.page().report() != nullptr);
        const QString path = QStringLiteral("/proc/nowhere.pdf");
        const WhenOpen<QFileDialog> dialog([&](QFileDialog& files) {
            child<QLineEdit>(files, "fileNameEdit").setText(path);
            QMetaObject::invokeMethod(&files, "accept");
        });
        AnswerBox box;
        action(gestion, "Exporter en &PDF…").trigger();
        QVERIFY(box.wasShown());
        QVERIFY2(box.text().startsWith(
                     QStringLiteral("Le fichier «\u00a0/proc/nowhere.pdf\u00a0» n'a pas pu")),
            qPrintable(box.text()));
        QCOMPARE(box.icon(), QMessageBox::Warning);
    }

    void isSeenBeforeItIsPrinted()
    {
        OpenGestion gestion;
        gestion.pages().setCurrentIndex(1);
        QTRY_VERIFY(gestion.page().report() != nullptr);
        int sheets = 0;
        const WhenOpen<QPrintPreviewDialog> dialog([&](QPrintPreviewDialog& preview) {
            sheets = preview.findChild<QPrintPreviewWidget*>()->pageCount();
            preview.reject();
        });
        action(gestion, "&Imprimer…").trigger();
        // 61 articles have no room on one.
        QCOMPARE(sheets, 2);
    }

    void theClosingIsSeenAsItsSheet()
    {
        OpenGestion gestion;
        gestion.pages().setCurrentIndex(4);
        QTRY_VERIFY(gestion.page().report() != nullptr);
        const QImage seen = gestion.page().grab().toImage();
        int white = 0;
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x) {
                white += seen.pixelColor(x, y) == QColor(Qt::white) ? 1 : 0;
            }
        }
        // The sheet is most of the page.
        QVERIFY(white > seen.width() * seen.height() / 3);
        for (const char* name : {"Exporter en &PDF…", "&Imprimer…"}) {
            const QAction* wanted = &action(gestion, name);
            const auto buttons = gestion.page().findChildren<QToolButton*>();
            QVERIFY(std::any_of(buttons.begin(), buttons.end(),
                [wanted](const QToolButton* button) { return button->defaultAction() == wanted; }));
        }
    }
};

VENDEL_BARE_TEST(GestionWindowFiles)
#include "tst_GestionWindow_files.moc"
