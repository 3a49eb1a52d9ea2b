// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// Translates what the form of \a window shows (title, labels, buttons, menus, groups)
/// and what a screen reader says of it, in the
/// contexts of its class. To be called once, before anything but the form is in the window.
void translateCaptions(QWidget& window);
