// SPDX-License-Identifier: MIT
// Loaded into the till by the tour: writes down what stands on the screen and where, one thing a
// line, so that the tour finds buttons and rows without knowing how a window is laid out. It only
// looks; mouse and keys come from the display.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTableView>
#include <QTextEdit>
#include <QTimer>

#include <cstdio>

namespace {
constexpr int lookMs = 30;

/// One line: \a words separated by tabs, each on one line.
QString line(const QStringList& words)
{
    QStringList plain;
    for (QString word : words) {
        plain << word.replace('\n', ' ').remove('\t');
    }
    return plain.join('\t') + '\n';
}

QString className(const QWidget& widget)
{
    return QString::fromLatin1(widget.metaObject()->className());
}

/// The middle of \a part of \a widget, on the screen.
QString middle(const QWidget& widget, const QRect& part)
{
    const QPoint point = widget.mapToGlobal(part.center());
    return QString("%1 %2").arg(point.x()).arg(point.y());
}

QString withoutMnemonic(QString text) { return text.remove('&'); }

QString textOf(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->text();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return withoutMnemonic(button->text());
    }
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
        return edit->text();
    }
    if (const auto* edit = qobject_cast<const QTextEdit*>(&widget)) {
        return edit->toPlainText();
    }
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        return box->currentText();
    }
    return {};
}

/// The rows in view, with the texts of the columns that are not hidden.
QString rowsOf(const QTableView& view, const QString& window)
{
    QString text;
    const auto* model = view.model();
    const int first = view.rowAt(0);
    for (int row = first; first >= 0 && row < model->rowCount(); ++row) {
        QStringList cells;
        QRect widest;
        for (int column = 0; column < model->columnCount(); ++column) {
            const auto index = model->index(row, column);
            if (view.isColumnHidden(column)) {
                continue;
            }
            cells << index.data().toString();
            if (view.visualRect(index).width() > widest.width()) {
                widest = view.visualRect(index);
            }
        }
        if (!view.viewport()->rect().contains(widest.center())) {
            break;
        }
        text += line({QString("row"), window, view.objectName(), middle(*view.viewport(), widest),
            cells.join('|')});
    }
    return text;
}

QString actionsOf(const QMenu& menu)
{
    QString text;
    const auto actions = menu.actions();
    for (const QAction* action : actions) {
        text += line({QString("action"), withoutMnemonic(action->text()),
            middle(menu, menu.actionGeometry(const_cast<QAction*>(action)))});
    }
    return text;
}

QString itemsOf(const QWidget& popup)
{
    QString text;
    if (const auto* list = popup.findChild<QListView*>()) {
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            const auto index = list->model()->index(row, 0);
            text += line({QString("item"), index.data().toString(),
                middle(*list->viewport(), list->visualRect(index))});
        }
    }
    return text;
}

QString partsOf(const QWidget& top, const QString& window)
{
    QString text;
    const auto widgets = top.findChildren<QWidget*>();
    for (const auto* widget : widgets) {
        if (!widget->isVisible() || widget->window() != &top) {
            continue;
        }
        if (const auto* bar = qobject_cast<const QMenuBar*>(widget)) {
            const auto menus = bar->actions();
            for (QAction* action : menus) {
                text += line({QString("menu"), window, withoutMnemonic(action->text()),
                    middle(*bar, bar->actionGeometry(action))});
            }
        }
        if (const auto* view = qobject_cast<const QTableView*>(widget)) {
            text += rowsOf(*view, window);
        }
        const bool isButton = qobject_cast<const QAbstractButton*>(widget) != nullptr;
        const QString name = widget->objectName().startsWith(QLatin1String("qt_"))
            ? QString()
            : widget->objectName();
        if (isButton || !name.isEmpty()) {
            text += line({QString("widget"), window, name, middle(*widget, widget->rect()),
                textOf(*widget)});
        }
    }
    return text;
}

QString everything()
{
    QString text;
    if (const auto* active = QApplication::activeWindow()) {
        text += line({QString("active"), className(*active)});
    }
    const auto windows = QApplication::topLevelWidgets();
    for (const auto* top : windows) {
        if (!top->isVisible()) {
            continue;
        }
        if (const auto* box = qobject_cast<const QMessageBox*>(top)) {
            text += line({QString("box"), box->windowTitle(), box->text()});
            text += partsOf(*top, box->windowTitle());
        } else if (const auto* menu = qobject_cast<const QMenu*>(top)) {
            text += actionsOf(*menu);
        } else if (top->inherits("QTipLabel")) {
            text += line({QString("tip"), textOf(*top)});
        } else if (top->inherits("QComboBoxPrivateContainer")) {
            text += itemsOf(*top);
        } else {
            text += line({QString("window"), className(*top), QString::number(top->winId())});
            text += partsOf(*top, className(*top));
        }
    }
    return text;
}

/// Puts \a text in the place of the file at once, so that nobody reads half of it. It does not wait
/// for the disk: a busy one would hold up the till's only thread for as long.
bool writeDown(const QString& text)
{
    const QByteArray path = qgetenv("VENDEL_TOUR_EYE");
    const QByteArray draft = path + ".new";
    QFile file(QFile::decodeName(draft));
    const QByteArray bytes = text.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
        return false;
    }
    file.close();
    return std::rename(draft.constData(), path.constData()) == 0;
}

void openEye()
{
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
        return;
    }
    auto* timer = new QTimer(QCoreApplication::instance());
    QObject::connect(timer, &QTimer::timeout, timer, [last = QString()]() mutable {
        const QString now = everything();
        if (now != last && writeDown(now)) {
            last = now;
        }
    });
    timer->start(lookMs);
}
} // namespace

Q_COREAPP_STARTUP_FUNCTION(openEye)
