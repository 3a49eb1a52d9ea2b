// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/BookDatabase.h"
#include "backoffice/sales/SalesSource.h"

#include <optional>

/// The sales of several tills, read from the sums of their central book.
class BookSource : public SalesSource
{
    Q_DECLARE_TR_FUNCTIONS(BookSource)

public:
    /// The book at \a uri, of which all tills are read. Throws SalesError.
    explicit BookSource(const QString& uri);

    bool namesTills() const override { return true; }
    std::vector<QString> allTills() const override;
    std::vector<QString> tills() const override;
    void choose(const std::vector<QString>& names) override;
    std::shared_ptr<void> hold() override;
    std::vector<HourSales> hours(const DayRange& range, const Reading& reading) override;
    std::vector<HourSales> tillSales(
        const DayRange& range, TillPart part, const Reading& reading) override;
    std::vector<ArticleSales> articles(const DayRange& range, const Reading& reading) override;
    std::vector<Use> uses(const DayRange& range, const Reading& reading) override;
    std::vector<MenuArticle> menu() override;
    double taxRate() override;
    std::optional<QString> taxRemark(const QLocale& locale) override;
    bool isChanged() override;

private:
    struct Till
    {
        int id = 0;
        QString name;
        double taxRate = 0;
    };

    void readTills();
    std::vector<Till> chosen() const;
    std::vector<int> chosenKeys() const;
    QString keys() const;
    int place(const QVariant& key) const;

    BookDatabase database_;
    std::vector<Till> tills_;
    /// Keys; empty for all.
    std::vector<int> chosen_;
    std::optional<QString> seen_;
};
