// SPDX-License-Identifier: MIT
#include "tests/support/AccessTree.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMetaEnum>
#include <QRadioButton>
#include <QSet>
#include <QTest>
#include <QTextEdit>

#include <functional>

namespace {
/// Whether a user acts on or reads what has \a role, so that it must have a name.
bool isControl(QAccessible::Role role)
{
    static const QSet<int> controls{QAccessible::Window, QAccessible::Dialog,
        QAccessible::AlertMessage, QAccessible::PushButton, QAccessible::ButtonMenu,
        QAccessible::ButtonDropDown, QAccessible::CheckBox, QAccessible::RadioButton,
        QAccessible::ComboBox, QAccessible::EditableText, QAccessible::SpinBox, QAccessible::Slider,
        QAccessible::List, QAccessible::ListItem, QAccessible::Table, QAccessible::Tree,
        QAccessible::TreeItem, QAccessible::Cell, QAccessible::ColumnHeader, QAccessible::RowHeader,
        QAccessible::PageTab, QAccessible::Link, QAccessible::MenuItem};
    return controls.contains(role);
}

/// The words of the labels that name \a control.
QString labelsOf(const QAccessibleInterface& control)
{
    QString words;
    const auto relations = control.relations(QAccessible::Label);
    for (const auto& relation : relations) {
        words += relation.first->text(QAccessible::Name);
    }
    return words;
}

QString nameOf(const QAccessibleInterface& control)
{
    // Where there is X11, Qt gives the choice of a combo box as its name: its label, or else its
    // description, says what is chosen there.
    if (control.role() == QAccessible::ComboBox) {
        const QString words = labelsOf(control);
        return words.isEmpty() ? control.text(QAccessible::Description) : words;
    }
    return control.text(QAccessible::Name);
}

bool isWord(const QString& name)
{
    for (const QChar letter : name) {
        if (letter.isLetterOrNumber()) {
            return true;
        }
    }
    return false;
}

/// What \a control has for a name is enough to be said: for a button or a field, a word; a box
/// shows a text beside its title.
bool isNamed(const QAccessibleInterface& control)
{
    static const QSet<int> shown{QAccessible::Cell, QAccessible::ListItem, QAccessible::TreeItem,
        QAccessible::MenuItem, QAccessible::AlertMessage, QAccessible::Dialog};
    const QString name = nameOf(control);
    return shown.contains(control.role()) ? !name.isEmpty() : isWord(name);
}

QString placeOf(const QAccessibleInterface& control)
{
    const auto* const kind = QMetaEnum::fromType<QAccessible::Role>().valueToKey(control.role());
    QString place = QString::fromLatin1(kind);
    for (const auto* at = &control; at != nullptr; at = at->parent()) {
        const QString name = at->object() == nullptr ? QString() : at->object()->objectName();
        if (!name.isEmpty()) {
            return place + QLatin1String(" in ") + name + QLatin1String(" \"") + nameOf(control)
                + QLatin1Char('"');
        }
    }
    return place;
}

using Visit = std::function<void(const QAccessibleInterface&)>;

void walk(const QAccessibleInterface& root, const Visit& visit)
{
    visit(root);
    for (int number = 0; number < root.childCount(); ++number) {
        if (const auto* child = root.child(number)) {
            walk(*child, visit);
        }
    }
}

const QAccessibleInterface& treeOf(QObject& object)
{
    const auto* tree = QAccessible::queryAccessibleInterface(&object);
    if (tree == nullptr) {
        qFatal("a screen reader does not see %s", qPrintable(object.objectName()));
    }
    return *tree;
}

/// Whether the keyboard must be able to reach \a widget: Qt's own parts are reached through theirs.
bool mustBeReached(const QWidget& widget)
{
    const bool acts = qobject_cast<const QAbstractButton*>(&widget) != nullptr
        || qobject_cast<const QAbstractItemView*>(&widget) != nullptr
        || qobject_cast<const QComboBox*>(&widget) != nullptr
        || qobject_cast<const QLineEdit*>(&widget) != nullptr
        || qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr
        || qobject_cast<const QTextEdit*>(&widget) != nullptr;
    const bool isPart = widget.objectName().startsWith(QLatin1String("qt_"))
        || widget.inherits("QTableCornerButton") || widget.inherits("QHeaderView");
    return acts && !isPart && widget.isVisible() && widget.isEnabled();
}

/// Presses \a key until the focus is where it was before; what has had it on the way.
QSet<const QWidget*> cycle(QWidget& window, Qt::Key key)
{
    QSet<const QWidget*> reached;
    constexpr int mostControls = 100;
    for (int press = 0; press < mostControls; ++press) {
        QWidget* focused = window.focusWidget();
        if (focused == nullptr || (reached.contains(focused) && press > 0)) {
            break;
        }
        reached << focused;
        QTest::keyClick(focused, key);
    }
    return reached;
}

/// Adds the radio buttons to \a reached that the arrows lead to from one that Tab has reached.
void addRadioButtons(const QWidget& window, QSet<const QWidget*>& reached)
{
    const auto radios = window.findChildren<QRadioButton*>();
    for (QRadioButton* radio : radios) {
        if (!reached.contains(radio)) {
            continue;
        }
        radio->setFocus();
        for (int press = 0; press < radios.size(); ++press) {
            for (const auto key : {Qt::Key_Down, Qt::Key_Right}) {
                QTest::keyClick(window.focusWidget(), key);
                reached << window.focusWidget();
            }
        }
    }
}
} // namespace

QStringList namelessControls(QObject& window)
{
    QStringList nameless;
    walk(treeOf(window), [&nameless](const QAccessibleInterface& control) {
        if (isControl(control.role()) && !isNamed(control)) {
            nameless << placeOf(control);
        }
    });
    return nameless;
}

QStringList ambiguousNames(QObject& window)
{
    static const QSet<int> kinds{QAccessible::PushButton, QAccessible::CheckBox,
        QAccessible::RadioButton, QAccessible::ComboBox, QAccessible::EditableText,
        QAccessible::Table, QAccessible::Tree};
    QSet<QString> known;
    QStringList shared;
    walk(treeOf(window), [&](const QAccessibleInterface& control) {
        const QString name = QString::number(control.role()) + nameOf(control);
        if (kinds.contains(control.role()) && known.contains(name)) {
            shared << placeOf(control);
        }
        known << name;
    });
    return shared;
}

QString spokenName(QObject& widget) { return nameOf(treeOf(widget)); }

QStringList controlsOutOfReach(QWidget& window)
{
    QSet<const QWidget*> forwards = cycle(window, Qt::Key_Tab);
    QSet<const QWidget*> backwards = cycle(window, Qt::Key_Backtab);
    addRadioButtons(window, forwards);
    addRadioButtons(window, backwards);
    QStringList missed;
    const auto widgets = window.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (widget->window() == &window && mustBeReached(*widget)
            && !(forwards.contains(widget) && backwards.contains(widget))) {
            missed << widget->objectName();
        }
    }
    return missed;
}
