// SPDX-License-Identifier: MIT
// Loaded into the till by the faults: does one act in the till's own windows with mouse and keys,
// answers the boxes that come up with Yes or OK, writes down what was seen, and ends the till. It
// needs no display, so that an act can be repeated for each system call that it makes.
#include "tests/support/Widgets.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <cstdio>
#include <functional>
#include <map>

#include <unistd.h>

namespace {
constexpr int lookMs = 5;

/// Adds a line to the report; it is there even when the till dies right after it.
void note(const QStringList& words)
{
    static std::FILE* report = std::fopen(qgetenv("VENDEL_HAND_REPORT").constData(), "a");
    const QString line = words.join('\t').replace('\n', ' ');
    std::fputs((line + '\n').toUtf8().constData(), report);
    std::fflush(report);
}

QString className(const QWidget& widget)
{
    return QString::fromLatin1(widget.metaObject()->className());
}

QWidget* visibleWindow(const char* name)
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->isVisible() && className(*window) == QLatin1String(name)) {
            return window;
        }
    }
    return nullptr;
}

QWidget& window(const char* name)
{
    QWidget* found = visibleWindow(name);
    if (found == nullptr) {
        qFatal("no window %s", name);
    }
    return *found;
}

void fill(QWidget& dialog, const char* name, const char* text)
{
    auto& field = child<QLineEdit>(dialog, name);
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&field, QString::fromUtf8(text));
}

/// Answers each message box as soon as it is shown.
class Answers : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(watched) : nullptr;
        if (box != nullptr) {
            QTimer::singleShot(0, box, [box] { answer(*box); });
        }
        return false;
    }

private:
    static void answer(QMessageBox& box)
    {
        note({QString("box"), box.windowTitle(), box.text()});
        auto* yes = box.button(QMessageBox::Yes);
        QTest::mouseClick(yes == nullptr ? box.button(QMessageBox::Ok) : yes, Qt::LeftButton);
    }
};

/// A system call that the watcher of the till sees: those before it only lead to the act.
void begin() { [[maybe_unused]] const int result = ::access("the-act-begins", F_OK); }

/// Writes down how many rows the list \a name shows.
void noteRows(QWidget& dialog, const char* name)
{
    note({QString("rows"), QString::number(rowCount(dialog, name))});
}

void showTicket(QWidget& till) { click(till, "btn_Ticket"); }

void payTicket(QWidget& till)
{
    showTicket(till);
    begin();
    click(till, "btn_Payer");
    noteRows(till, "tableView2");
    if (visibleWindow("FormVendelTicket") != nullptr) {
        note({QString("receipt")});
    }
}

void removeTicketLine(QWidget& till)
{
    showTicket(till);
    begin();
    clickCell(till, "tableView2", 1, 2);
    noteRows(till, "tableView2");
}

void removeStockArticle(QWidget& till)
{
    chooseMenu(till, "menuVendel", "actionHistorique");
    chooseMenu(window("FormVendelHistorique"), "menuStock", "actionSaisie_Stock");
    auto& stock = window("FormVendelSaisieStock");
    click(stock, "btn_Display");
    clickCell(stock, "tableView1", 0, 1);
    begin();
    click(stock, "btn_Remove");
    noteRows(stock, "tableView1");
}

void changeArticle(QWidget& till)
{
    chooseMenu(till, "menuVendel", "actionSaisie_Article");
    auto& editor = window("FormVendelSaisieArticle");
    click(editor, "btn_Afficher");
    doubleClickCell(editor, "tableView", 0, 2);
    fill(editor, "txt_Article", "Grand cafe");
    fill(editor, "txt_Montant", "2.8");
    begin();
    click(editor, "btn_Renommer");
    noteRows(editor, "tableView");
}

void purgeDay(QWidget& till)
{
    chooseMenu(till, "menuVendel", "actionHistorique");
    auto& history = window("FormVendelHistorique");
    fill(history, "txt_First_Date", "01/05/2026");
    fill(history, "txt_Second_Date", "01/06/2026");
    begin();
    click(history, "btn_Clear");
}

const std::map<QByteArray, std::function<void(QWidget&)>>& acts()
{
    static const std::map<QByteArray, std::function<void(QWidget&)>> acts{
        {"start", [](QWidget&) {}},
        {"payment", payTicket},
        {"line", removeTicketLine},
        {"stock", removeStockArticle},
        {"article", changeArticle},
        {"purge", purgeDay},
    };
    return acts;
}

void act()
{
    QTest::keyClick(visibleWindow("FormVendelStart"), Qt::Key_Escape);
    acts().at(qgetenv("VENDEL_HAND_ACT"))(window("FormVendel"));
    note({QString("over")});
    QCoreApplication::quit();
}

void lendHand()
{
    auto* application = qobject_cast<QApplication*>(QCoreApplication::instance());
    if (application == nullptr) {
        return;
    }
    application->installEventFilter(new Answers(application));
    auto* timer = new QTimer(application);
    QObject::connect(timer, &QTimer::timeout, timer, [timer] {
        if (visibleWindow("FormVendelStart") != nullptr) {
            timer->stop();
            act();
        }
    });
    timer->start(lookMs);
}
} // namespace

Q_COREAPP_STARTUP_FUNCTION(lendHand)
