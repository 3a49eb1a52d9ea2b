// SPDX-License-Identifier: MIT
#pragma once

class QApplication;

/// What the whole program needs before its first window.
namespace Application {
/// Sets what Qt wants to know before the application object exists.
void setAttributes();

/// Gives \a application the till's typeface, Qt's French texts and the translation of the working
/// directory, "FormVendelTr_Us", and its buttons their keys and the frame of the one that has the
/// focus. A missing file is no error.
void setUp(QApplication& application);
} // namespace Application
