// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/SalesSource.h"

#include <QLocale>
#include <QString>
#include <QVariant>

#include <optional>
#include <vector>

/// What a column's cells are, and so how they are written and aligned. A cell without a value is an
/// invalid QVariant.
enum class CellKind
{
    /// QString.
    Text,
    /// QDate.
    Day,
    /// QDate, of which only month and year count.
    Month,
    /// int, an hour from 0 to 23.
    Hour,
    /// qint64.
    Count,
    /// qint64, an Amount.
    Money,
    /// double, 12.5 for 12.5 %.
    Percent,
    /// double, 12.5 for 12.5 % more than before.
    Change,
    /// double.
    Quantity
};

struct Column
{
    QString title;
    CellKind kind = CellKind::Text;
};

/// Figures in rows and columns, for the screen, paper and a spreadsheet alike.
struct Table
{
    QString title;
    std::vector<Column> columns;
    std::vector<std::vector<QVariant>> rows;
};

/// One figure that is shown by itself.
struct KeyFigure
{
    QString title;
    QVariant value;
    CellKind kind = CellKind::Text;
    /// Is shown behind the value: a day's takings behind the best day.
    QString remark;
};

/// Bars, and beside them a line to compare them with; an empty line is none. All have a value for
/// each category.
struct BarChart
{
    QString title;
    /// Under the axis, as short as they have to be.
    std::vector<QString> categories;
    /// Under the mouse: the category in full.
    std::vector<QString> categoryNames;
    /// Values as the cells of the kind are: money is an Amount. Where the line has no value,
    /// because the period before has no such day, it is not a number.
    struct Values
    {
        QString name;
        std::vector<double> values;
    };
    /// Several are drawn side by side.
    std::vector<Values> bars;
    std::optional<Values> line;
    CellKind kind = CellKind::Money;
    /// Lying bars suit long names.
    bool isHorizontal = false;
};

/// A field of cells, darker where there is more.
struct HeatMap
{
    QString title;
    std::vector<QString> rows;
    std::vector<QString> columns;
    /// One for each row and column, row by row, as the cells of the kind are: money is an Amount.
    std::vector<double> values;
    CellKind kind = CellKind::Money;
};

/// One page of the back office: what the window shows, what is printed and what is written to
/// files.
struct Report
{
    QString title;
    /// The period in words, and what else the reader has to know.
    QString subtitle;
    std::vector<KeyFigure> figures;
    std::vector<BarChart> charts;
    std::optional<HeatMap> heatMap;
    /// The first is the one that a CSV file gets.
    std::vector<Table> tables;
    /// What a CSV file gets instead, where the first table sums up what a page has no room for.
    std::optional<Table> whole;
    /// Under everything else.
    std::vector<QString> notes;
    /// On paper it has one sheet, as small as it has to be written.
    bool isOnePage = false;

    /// The table for a CSV file.
    const Table& file() const { return whole ? *whole : tables.front(); }
};

/// The pages.
enum class Page
{
    Sales,
    Articles,
    Hours,
    Uses,
    Closing
};

/// What a page is to be about.
struct ReportOrder
{
    Page page = Page::Sales;
    DayRange range;
    /// The names of the tills; none for all of them.
    std::vector<QString> tills = {};
    /// In per cent; the configured one if there is none.
    std::optional<double> taxRate;
    enum class Ranking
    {
        Takings,
        Lines
    };
    /// What makes an article the best.
    Ranking ranking = Ranking::Takings;
    /// Days after this one have not happened yet.
    QDate today;
    /// Writes the dates, weekdays and numbers in titles, notes and categories.
    QLocale locale;
};

/// Reads from \a source what \a order asks for; the source has its tills chosen. The closing is
/// about the last day of the range. Throws SalesError and ReadingStopped.
Report makeReport(const ReportOrder& order, SalesSource& source, const Reading& reading);
