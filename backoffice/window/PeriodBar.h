// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/DayRange.h"

#include <QLocale>
#include <QWidget>

#include <functional>

class QComboBox;
class QDateEdit;
class QLabel;

/// The choice of a period: one that the calendar names, or two dates.
class PeriodBar : public QWidget
{
    Q_OBJECT

public:
    PeriodBar(const QLocale& locale, std::function<QDate()> today, QWidget* parent = nullptr);

    /// The chosen days, as of today.
    DayRange range() const;
    /// Shows what "today" is now.
    void followTheDay();

signals:
    void chosen();

private:
    void choose(int index);
    void showRange(const DayRange& range);
    /// Keeps the two dates in order by moving the one that was not changed.
    void takeFirst(QDate day);
    void takeLast(QDate day);
    QDateEdit* addDate(const QString& name);

    QLocale locale_;
    std::function<QDate()> today_;
    QComboBox* presets_;
    QDateEdit* first_ = nullptr;
    QDateEdit* last_ = nullptr;
};
