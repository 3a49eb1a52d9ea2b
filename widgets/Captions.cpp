// SPDX-License-Identifier: MIT
#include "widgets/Captions.h"

#include "common/Texts.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>

namespace {
/// Translates one text of each \a Widget in \a window.
template <class Widget>
void translateEach(
    QWidget& window, QString (Widget::*text)() const, void (Widget::*setText)(const QString&))
{
    const char* context = window.metaObject()->className();
    const auto widgets = window.findChildren<Widget*>();
    for (Widget* widget : widgets) {
        const QString source = (widget->*text)();
        if (!source.isEmpty()) {
            (widget->*setText)(Texts::caption(context, source));
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
}
