// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/reports/Format.h"
#include "backoffice/reports/Report.h"

#include <QStringList>

/// Sales that a test has written down.
class FixedSales : public SalesSource
{
public:
    std::vector<QString> names{QStringLiteral("Caisse")};
    std::vector<HourSales> hourSales;
    std::vector<ArticleSales> articleSales;
    std::vector<Use> allUses;
    std::vector<MenuArticle> articlesOnTheMenu;
    double rate = 20;
    bool isBook = false;
    std::optional<QString> remark;
    /// Number of readings while the source was held, and while it was not.
    int held = 0;
    int free = 0;

    std::vector<QString> tills() const override { return names; }
    std::shared_ptr<void> hold() override
    {
        auto moment = std::make_shared<int>(0);
        moment_ = moment;
        return moment;
    }
    std::vector<HourSales> hours(const DayRange& range, const Reading& reading) override
    {
        count();
        reading.advance(1);
        std::vector<HourSales> found;
        for (const HourSales& part : hourSales) {
            if (range.contains(part.day)) {
                found.push_back(part);
            }
        }
        return found;
    }
    std::vector<ArticleSales> articles(const DayRange& /*range*/, const Reading& reading) override
    {
        count();
        reading.advance(1);
        return articleSales;
    }
    std::vector<Use> uses(const DayRange& /*range*/, const Reading& /*reading*/) override
    {
        count();
        return allUses;
    }
    std::vector<MenuArticle> menu() override { return articlesOnTheMenu; }
    double taxRate() override { return rate; }
    std::optional<QString> taxRemark(const QLocale& /*locale*/) override { return remark; }
    bool namesTills() const override { return isBook; }
    bool isChanged() override { return false; }

private:
    void count() { ++(moment_.expired() ? free : held); }

    std::weak_ptr<void> moment_;
};

/// Reports as their readers see them, in lines of text whose blanks are plain ones.
namespace Seen {
inline const QLocale french(QLocale::French, QLocale::France);
inline const QLocale english(QLocale::English, QLocale::UnitedKingdom);

inline QString plain(QString text)
{
    return text.replace(QChar(0xa0), QLatin1Char(' ')).replace(QChar(0x202f), QLatin1Char(' '));
}

inline QStringList figures(const Report& report)
{
    QStringList lines;
    for (const KeyFigure& figure : report.figures) {
        QString line
            = figure.title + QStringLiteral(" = ") + format(figure.value, figure.kind, french);
        if (!figure.remark.isEmpty()) {
            line += QStringLiteral(" (") + figure.remark + QLatin1Char(')');
        }
        lines += plain(line);
    }
    return lines;
}

inline QString titles(const Table& table)
{
    QStringList cells;
    for (const Column& column : table.columns) {
        cells += column.title;
    }
    return plain(cells.join(QLatin1Char('|')));
}

inline QStringList rows(const Table& table)
{
    QStringList lines;
    for (const std::vector<QVariant>& row : table.rows) {
        QStringList cells;
        for (std::size_t place = 0; place < row.size(); ++place) {
            cells += format(row.at(place), table.columns.at(place).kind, french);
        }
        lines += plain(cells.join(QLatin1Char('|')));
    }
    return lines;
}

/// "name: value value", money in cents; "-" is not a number.
inline QString values(const BarChart::Values& values, CellKind kind)
{
    QStringList numbers;
    for (const double value : values.values) {
        numbers += qIsNaN(value) ? QStringLiteral("-")
                                 : QString::number(kind == CellKind::Money ? value / 100 : value);
    }
    return values.name + QStringLiteral(": ") + numbers.join(QLatin1Char(' '));
}

inline QString names(const std::vector<QString>& all)
{
    return plain(QStringList(all.begin(), all.end()).join(QLatin1Char('|')));
}
} // namespace Seen
