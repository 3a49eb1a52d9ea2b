// SPDX-License-Identifier: MIT
#include "widgets/MessageBoxes.h"

#include <QMessageBox>

namespace {
/// Shows a box and returns the button that ended it. The text is plain: an article may be named
/// like a tag.
int showBox(QWidget* parent, const QString& text, const QString& title,
    QMessageBox::StandardButtons buttons, QMessageBox::StandardButton preset)
{
    QMessageBox box(QMessageBox::Information, title, QString(), buttons, parent);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setDefaultButton(preset);
    return box.exec();
}
} // namespace

void notice(
    QWidget* parent, const Texts& texts, const std::array<std::string, 2>& message, int count)
{
    notice(parent, texts(message[0], count), texts(message[1]));
}

void notice(QWidget* parent, const QString& text, const QString& title)
{
    showBox(parent, text, title, QMessageBox::Ok, QMessageBox::Ok);
}

bool confirm(QWidget* parent, const QString& text, const QString& title, Preset preset)
{
    const auto chosen = preset == Preset::No ? QMessageBox::No : QMessageBox::NoButton;
    return showBox(parent, text, title, QMessageBox::Yes | QMessageBox::No, chosen)
        == QMessageBox::Yes;
}

bool confirm(QWidget* parent, const Texts& texts, const std::array<std::string, 3>& message,
    const QString& name, Preset preset)
{
    return confirm(parent, texts(message[0]) + name + texts(message[1]), texts(message[2]), preset);
}
