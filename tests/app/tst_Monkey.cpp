// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"
#include "forms/FormVendelStockCalculation.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "widgets/OpenWindow.h"

#include <QAction>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <functional>
#include <iterator>

#include <unistd.h>

namespace {
constexpr unsigned hangSeconds = 60;
constexpr int mostSteps = 400000;

/// Clicks, types and scrolls at random in whatever window is on top, boxes and menus included. The
/// same seed plays the same game.
class Monkey : public QObject
{
public:
    explicit Monkey(quint32 seed, QWidget& till)
        : random_(seed)
        , till_(till)
    { }

    /// Plays until \a isOver, then closes what stands open above the till.
    void play(const std::function<bool()>& isOver)
    {
        isOver_ = isOver;
        next();
        end_.exec();
    }

    QSet<QString> windowsSeen() const { return seen_; }

private:
    // The next step is asked for before this one is done: one that opens a box comes back only when
    // the box has been sent away, by a later step.
    void next()
    {
        QTimer::singleShot(0, this, [this] {
            ::alarm(hangSeconds);
            const bool isOver = isOver_();
            if (isOver && isAlone()) {
                end_.quit();
                return;
            }
            next();
            isOver ? closeTopmost() : step();
        });
    }

    static bool isAlone()
    {
        return QApplication::activeModalWidget() == nullptr
            && QApplication::activePopupWidget() == nullptr;
    }

    static void closeTopmost()
    {
        QWidget* popup = QApplication::activePopupWidget();
        (popup != nullptr ? popup : QApplication::activeModalWidget())->close();
    }

    QWidget* topmost()
    {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            return popup;
        }
        if (QWidget* modal = QApplication::activeModalWidget()) {
            return modal;
        }
        QWidgetList windows;
        const auto all = QApplication::topLevelWidgets();
        for (QWidget* window : all) {
            if (window->isVisible() && window->windowType() != Qt::ToolTip) {
                windows << window;
            }
        }
        return windows.isEmpty() ? nullptr : windows.at(number(windows.size()));
    }

    void step()
    {
        QWidget* window = topmost();
        if (window == nullptr) {
            till_.show();
            return;
        }
        seen_ << window->metaObject()->className();
        // A till that is closed has ended; nothing is learned from that.
        if (number(60) == 0 && window != &till_) {
            window->close();
            return;
        }
        if (number(40) == 0 && chooseFromMenu(*window)) {
            return;
        }
        // Two dates in order are rarely typed by a monkey.
        if (number(2000) == 0 && window->inherits("FormVendelHistorique")) {
            openWindow<FormVendelStockCalculation>(
                window, QString("01/05/2019"), QString("30/05/2019"));
            return;
        }
        const QPoint point(number(window->width()), number(window->height()));
        QWidget* widget = window->childAt(point);
        if (widget == nullptr) {
            widget = window;
        }
        act(*widget, widget->mapFrom(window, point));
    }

    bool chooseFromMenu(const QWidget& window)
    {
        const auto* bar = window.findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly);
        if (bar == nullptr) {
            return false;
        }
        const auto menus = bar->findChildren<QMenu*>();
        const auto actions = menus.at(number(menus.size()))->actions();
        actions.at(number(actions.size()))->trigger();
        return true;
    }

    void act(QWidget& widget, const QPoint& point)
    {
        switch (number(8)) {
        case 0:
            type(widget);
            break;
        case 1:
            QTest::mouseDClick(&widget, Qt::LeftButton, Qt::NoModifier, point);
            break;
        case 2:
            QTest::mouseMove(&widget, point);
            break;
        case 3:
            scroll(widget, point);
            break;
        default:
            QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, point);
        }
    }

    void type(QWidget& widget)
    {
        static constexpr Qt::Key keys[]{Qt::Key_Tab, Qt::Key_Return, Qt::Key_Backspace,
            Qt::Key_Delete, Qt::Key_Down, Qt::Key_Space, Qt::Key_Left, Qt::Key_Escape};
        static const QStringList texts{"Thé", "L'été", "2.50", "-1", "01/05/2019", "30/05/2019",
            "05/05/2019 12:00:00.000", "%_\"", "abcdefghijklmnop", "1e999", "nan"};
        QWidget* focus = widget.window()->focusWidget();
        const QPointer<QWidget> target = focus != nullptr ? focus : &widget;
        if (number(2) == 0) {
            press(target, keys[number(int(std::size(keys)))], QString());
            return;
        }
        // A field that is never emptied holds nothing but nonsense soon.
        if (auto* field = qobject_cast<QLineEdit*>(target); field != nullptr && number(2) == 0) {
            field->selectAll();
        }
        const QString text = texts.at(number(texts.size()));
        for (const QChar letter : text) {
            press(target, Qt::Key_unknown, letter);
        }
    }

    /// A key may end the widget that it is pressed in.
    static void press(const QPointer<QWidget>& target, Qt::Key key, const QString& text)
    {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            if (target != nullptr) {
                QKeyEvent event(type, key, Qt::NoModifier, text);
                QCoreApplication::sendEvent(target, &event);
            }
        }
    }

    void scroll(QWidget& widget, const QPoint& point)
    {
        const QPoint angle(0, number(2) == 0 ? 360 : -360);
        QWheelEvent event(point, widget.mapToGlobal(point), QPoint(), angle, Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&widget, &event);
    }

    int number(qsizetype below)
    {
        return random_.bounded(static_cast<int>(std::max<qsizetype>(below, 1)));
    }

    QRandomGenerator random_;
    QWidget& till_;
    std::function<bool()> isOver_;
    QEventLoop end_;
    QSet<QString> seen_;
};

void stock(const Shop& shop)
{
    shop.fill(
        "insert into Article (article, prix) values ('Café', 1.5), ('Thé', 2.25), "
        "('Thé', 2.25), ('L''été', 3), ('Vin', 14.9);"
        "insert into ArticleStock (id, article) values (1, 'Café'), (2, 'Thé'), (9, 'Parti');"
        "insert into DoseStock (id, composition, dose, unite) values (1, 'Café moulu', 7, 'g'), "
        "(9, 'Sucre', 5, 'g'), (2, 'Eau', 20, 'cl');"
        "insert into Historique values (1, 'Café', 1.5, '2019-05-04 12:00:00.000'), "
        "(2, 'Thé', 2.25, '2019-05-05 12:00:00.000');"
        "insert into Ticket (id, article, prix) values (1, 'Café', 1.5)");
}

/// The windows that a cashier reaches.
const QSet<QString> everyWindow{"FormVendel", "FormVendelAbout", "FormVendelConfig",
    "FormVendelFormulaireTicket", "FormVendelHistorique", "FormVendelSaisieArticle",
    "FormVendelSaisieStock", "FormVendelSaisieStockComposition", "FormVendelSaisieStockCutPaste",
    "FormVendelSaisieStockMaj", "FormVendelStockCalculation", "FormVendelTicket", "QMessageBox"};

/// What Qt's offscreen platform says of itself is not the till's.
QStringList ofTheTill(const QStringList& warnings)
{
    return warnings.filter(QRegularExpression("^(?!This plugin does not support )"));
}
} // namespace

class TestMonkey : public QObject
{
    Q_OBJECT

private slots:
    void anyMouseAndKeysLeaveTheTillStanding()
    {
        bool isLong = false;
        const int seconds = qEnvironmentVariableIntValue("VENDEL_MONKEY_SECONDS", &isLong);
        const auto seed = static_cast<quint32>(qEnvironmentVariableIntValue("VENDEL_MONKEY_SEED"));
        const Shop shop;
        stock(shop);
        QApplication::setQuitOnLastWindowClosed(false);
        QStringList warnings;
        QStringList criticals;
        QSet<QString> windows;
        {
            const CapturedOutput output;
            const CapturedLog log;
            FormVendel till;
            till.show();
            Monkey monkey(seed, till);
            int steps = 0;
            QElapsedTimer timer;
            timer.start();
            monkey.play([&] {
                ++steps;
                return isLong ? timer.elapsed() > seconds * 1000
                              : steps == mostSteps
                        || (steps > 4000 && monkey.windowsSeen().contains(everyWindow));
            });
            ::alarm(0);
            windows = monkey.windowsSeen();
            warnings = ofTheTill(log.warnings());
            criticals = log.criticals();
        }
        QCOMPARE(QStringList((QSet<QString>(everyWindow) - windows).values()), QStringList());
        QCOMPARE(warnings, QStringList());
        QCOMPARE(criticals, QStringList());
        QCOMPARE(shop.cell("pragma integrity_check"), QString("ok"));
    }
};

VENDEL_TEST(TestMonkey)
#include "tst_Monkey.moc"
