// SPDX-License-Identifier: MIT
#pragma once

#include "common/Texts.h"

#include <array>
#include <string>

class QWidget;

/// Shows the notice \a message (text, title) with the button OK and waits for it; "%n" in its text
/// becomes \a count.
void notice(
    QWidget* parent, const Texts& texts, const std::array<std::string, 2>& message, int count = -1);

/// Shows a notice whose \a text is composed by the caller under \a title, both translated already.
void notice(QWidget* parent, const QString& text, const QString& title);

/// The button of a question that has the focus when it opens.
enum class Preset
{
    /// Qt's choice.
    First,
    /// For what cannot be undone: a stray key then does no harm.
    No
};

/// Asks the composed \a text under \a title with the buttons Yes and No; returns whether the answer
/// is Yes. A box that is sent away unanswered counts as No.
bool confirm(
    QWidget* parent, const QString& text, const QString& title, Preset preset = Preset::First);

/// Asks the question \a message (head, tail, title) around \a name.
bool confirm(QWidget* parent, const Texts& texts, const std::array<std::string, 3>& message,
    const QString& name, Preset preset = Preset::First);
