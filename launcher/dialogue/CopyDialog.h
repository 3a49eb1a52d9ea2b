// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QStringList>

class QTreeWidget;

/// Lets one of the copies of the database be chosen.
class CopyDialog : public QDialog
{
    Q_OBJECT

public:
    /// Asks \a question. Each of \a lines is a copy's name, a tab and its size.
    CopyDialog(const QString& question, const QStringList& lines, bool isEnglish);

    /// The chosen copy's name.
    QString chosen() const;

    /// Stays open as long as none is chosen.
    void accept() override;

private:
    void fill(const QStringList& lines);

    QTreeWidget* list_;
};
