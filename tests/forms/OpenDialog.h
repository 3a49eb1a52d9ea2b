// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/AnswerBox.h"
#include "tests/support/ListLook.h"
#include "tests/support/Shop.h"
#include "tests/support/Widgets.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QMouseEvent>
#include <QStringList>
#include <QToolTip>

#include <string>

/// A dialog on the screen, in a shop of its own that the statements \a sql fill.
template <class Window> class OpenDialog
{
public:
    Shop shop;
    Window window;

    explicit OpenDialog(const std::string& sql)
    {
        shop.fill(sql.c_str());
        window.show();
        // The tip of an earlier test fades out slowly, and the window's activation hides any tip.
        QToolTip::hideText();
        if (!QTest::qWaitForWindowActive(&window)
            || !QTest::qWaitFor([] { return tipText().isEmpty(); })) {
            qFatal("the dialog does not become active");
        }
    }

    /// Presses a button or a menu's entry and answers its boxes: with \a answer, or OK where there
    /// is but that. Returns what they said, "title: text", and " [Yes, No]" behind a question. A
    /// box is said to be odd unless it is the window's, shows plain text and the information icon.
    QStringList push(const char* trigger, QMessageBox::StandardButton answer = QMessageBox::Yes)
    {
        QStringList said;
        const auto note = [&](const QMessageBox& box) { said << describe(box); };
        const AnswerBox box
            = answer == QMessageBox::Yes ? AnswerBox::agreeing(note) : AnswerBox(answer, note);
        if (auto* action = window.template findChild<QAction*>(trigger)) {
            action->trigger();
        } else {
            click(window, trigger);
        }
        return said + box.said().mid(said.size());
    }

    /// Moves the mouse over \a point of the list \a name, pixels from the top left.
    void moveOver(const char* name, QPoint point)
    {
        QWidget* viewport = child<QAbstractItemView>(window, name).viewport();
        QMouseEvent move(QEvent::MouseMove, point, viewport->mapToGlobal(point), Qt::NoButton,
            Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
    }

    /// The middle of a cell of the list \a name, pixels from the list's top left.
    QPoint centreOf(const char* name, int row, int column)
    {
        const auto& view = child<QAbstractItemView>(window, name);
        return view.visualRect(view.model()->index(row, column)).center();
    }

private:
    QString describe(const QMessageBox& box) const
    {
        const bool asks = box.standardButtons() == (QMessageBox::Yes | QMessageBox::No);
        const bool isOdd = box.parent() != &window || box.icon() != QMessageBox::Information
            || box.textFormat() != Qt::PlainText
            || (!asks && box.standardButtons() != QMessageBox::Ok);
        return (isOdd ? "odd " : "") + box.windowTitle() + ": " + box.text()
            + (asks ? " [Yes, No]" : "");
    }
};
