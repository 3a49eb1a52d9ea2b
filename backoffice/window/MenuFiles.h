// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/menu/Import.h"
#include "backoffice/output/CsvFile.h"

#include <QLocale>
#include <QObject>

class QMenu;
class QWidget;

/// What the window does with files of the menu and of recipes: actions for its menu bar.
class MenuFiles : public QObject
{
    Q_OBJECT

public:
    /// For the data folder \a folder; exports are written as \a format says. \a window owns this
    /// and what it opens.
    MenuFiles(const QString& folder, const QLocale& locale, CsvFormat format, QWidget* window);

    /// Appends the actions to \a menu.
    void addTo(QMenu& menu);

signals:
    /// The menu or recipes were imported.
    void imported();

private:
    void importFile(ImportKind kind);
    void exportFile(ImportKind kind);
    Import import() const;

    QString folder_;
    QLocale locale_;
    CsvFormat format_;
    QWidget* window_;
};
