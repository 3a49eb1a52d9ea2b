// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/KeptFigures.h"
#include "backoffice/sales/SalesSource.h"
#include "backoffice/sales/TillDatabase.h"
#include "backoffice/sales/TillFigures.h"

#include <optional>

/// The sales of one till, read from its database in portions, so that the till can sell meanwhile.
/// What was read of days gone by is kept: to see one more sale of a long range, only the last day
/// is read again.
class TillSource : public SalesSource
{
    Q_DECLARE_TR_FUNCTIONS(TillSource)

public:
    /// The till of the data folder \a folder. Nothing is opened yet, so this does not fail.
    explicit TillSource(const QString& folder, const Timing& timing = Timing::ofTheMachine());

    std::vector<QString> tills() const override;
    std::vector<HourSales> hours(const DayRange& range, const Reading& reading) override;
    std::vector<ArticleSales> articles(const DayRange& range, const Reading& reading) override;
    std::vector<Use> uses(const DayRange& range, const Reading& reading) override;
    std::vector<MenuArticle> menu() override;
    double taxRate() override;
    bool isChanged() override;

private:
    template <class Body> auto again(Body body);
    template <class Figures>
    Figures figures(KeptRanges<Figures>& kept, const DayRange& range, const Reading& reading);
    template <class Figures>
    void readDays(KeptFigures<Figures>& into, QDate end, TillPace& pace, const Reading& reading);
    template <class Figures>
    bool isAsRead(const KeptFigures<Figures>& kept, TillPace& pace, const Reading& reading);
    LastLine lastLine(const Reading& reading);
    QVariant value(const QString& sql, const QVariantList& values, const Reading& reading);
    void readRows(const QString& sql, const TillDatabase::Row& row, const Reading& reading);

    TillDatabase database_;
    KeptRanges<HourFigures> hours_;
    KeptRanges<ArticleFigures> articles_;
    KeptRanges<CountFigures> counts_;
    std::optional<TillDatabase::State> seen_;
};
