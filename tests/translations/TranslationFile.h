// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// One text of a translation source file (.ts).
struct TranslatedText
{
    QString context;
    QString source;
    bool hasPlural = false;
    bool isFinished = false;
    /// One translation, or one for each plural form.
    QStringList forms;
};

/// All texts of the .ts file \a path; ends the test program when it is not well-formed.
QVector<TranslatedText> readTranslation(const QString& path);

/// The captions in the form \a path (.ui) with its class as their context: titles and texts of
/// windows, labels, buttons, groups, menus and actions, and what a screen reader says.
QVector<TranslatedText> readCaptions(const QString& path);

/// All texts of the catalogue, read from its source file \a path, so that none can be left out.
QStringList readCatalogue(const QString& path);
