// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>
#include <QWidget>

#include <functional>
#include <memory>

/// A window of the till and how a test opens it.
struct EveryWindow
{
    /// The class, which is also the context of the form's texts.
    const char* name;
    /// The title of the form in French.
    const char* title;
    std::function<std::unique_ptr<QWidget>(QWidget* opener)> make;
    /// The buttons that fill its lists.
    QVector<const char*> buttons;
};

/// A row of the running test's data for each window.
void eachWindow();

/// The window of the running row.
const EveryWindow& windowOfRow();

/// Opens the window of the running row above \a opener, its lists filled and its clock set.
std::unique_ptr<QWidget> openWindowOfRow(QWidget& opener);

/// The window of the class \a name, not shown.
std::unique_ptr<QWidget> makeWindow(const QString& name);
