// SPDX-License-Identifier: MIT
#include "widgets/Captions.h"

#include "common/Texts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>

namespace {
/// Translates one text of \a widget in the contexts of \a window.
template <class Widget>
void translate(const QWidget& window, Widget& widget, QString (Widget::*text)() const,
    void (Widget::*setText)(const QString&))
{
    const QString source = (widget.*text)();
    if (!source.isEmpty()) {
        (widget.*setText)(Texts::caption(window.metaObject()->className(), source));
    }
}

/// Translates one text of each \a Widget in \a window.
template <class Widget>
void translateEach(
    QWidget& window, QString (Widget::*text)() const, void (Widget::*setText)(const QString&))
{
    const auto widgets = window.findChildren<Widget*>();
    for (Widget* widget : widgets) {
        translate(window, *widget, text, setText);
    }
}

/// A combo box is called by its label, or else by the form; so is the list that it opens.
void nameChoices(QWidget& window)
{
    const auto boxes = window.findChildren<QComboBox*>();
    for (const QComboBox* box : boxes) {
        box->view()->setAccessibleName(box->accessibleName());
    }
    const auto labels = window.findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (const auto* box = qobject_cast<const QComboBox*>(label->buddy())) {
            box->view()->setAccessibleName(label->text());
        }
    }
}
} // namespace

void translateCaptions(QWidget& window)
{
    window.setWindowTitle(Texts::caption(window.metaObject()->className(), window.windowTitle()));
    translateEach(window, &QLabel::text, &QLabel::setText);
    translateEach(window, &QAbstractButton::text, &QAbstractButton::setText);
    translateEach(window, &QGroupBox::title, &QGroupBox::setTitle);
    // A menu's title is the text of its action.
    translateEach(window, &QAction::text, &QAction::setText);
    translate<QWidget>(window, window, &QWidget::accessibleName, &QWidget::setAccessibleName);
    translateEach(window, &QWidget::accessibleName, &QWidget::setAccessibleName);
    translateEach(window, &QWidget::accessibleDescription, &QWidget::setAccessibleDescription);
    nameChoices(window);
}
