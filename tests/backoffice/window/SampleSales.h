// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/SalesSource.h"

#include <atomic>
#include <thread>

/// What a test and the source that a window reads share.
struct SampleShop
{
    /// Of the only article's lines, 10.00 each, sold each day at 9 o'clock.
    std::atomic<int> lines = 3;
    std::atomic<bool> isChanged = true;
    /// Nothing can be read.
    std::atomic<bool> isMissing = false;
    /// Reading does not end by itself.
    std::atomic<bool> isSlow = false;
    /// Number of readings that began, and of sources that live.
    std::atomic<int> readings = 0;
    std::atomic<int> sources = 0;
};

/// Sales made up by a test, of "Café" and as many more articles as were asked for.
class SampleSales : public SalesSource
{
public:
    explicit SampleSales(SampleShop& shop)
        : shop_(shop)
    {
        if (shop_.isMissing) {
            throw SalesError(QStringLiteral("La base de la caisse manque."));
        }
        ++shop_.sources;
    }
    SampleSales(const SampleSales&) = delete;
    SampleSales& operator=(const SampleSales&) = delete;
    SampleSales(SampleSales&&) = delete;
    SampleSales& operator=(SampleSales&&) = delete;
    ~SampleSales() override { --shop_.sources; }

    std::vector<QString> tills() const override { return {QStringLiteral("Caisse")}; }

    std::vector<HourSales> hours(const DayRange& range, const Reading& reading) override
    {
        begin(reading);
        std::vector<HourSales> sold;
        for (QDate day = range.first; day <= range.last; day = day.addDays(1)) {
            sold.push_back({day, 9, shop_.lines, shop_.lines * price, 0});
        }
        return sold;
    }

    std::vector<ArticleSales> articles(const DayRange&, const Reading& reading) override
    {
        begin(reading);
        std::vector<ArticleSales> sold{{QStringLiteral("Café"), shop_.lines, shop_.lines * price}};
        for (int number = 1; number <= others; ++number) {
            sold.push_back({QStringLiteral("Thé %1").arg(number), number, number * price / 10});
        }
        return sold;
    }

    std::vector<Use> uses(const DayRange&, const Reading&) override { return {}; }
    std::vector<MenuArticle> menu() override { return {}; }
    double taxRate() override { return 20; }
    bool isChanged() override
    {
        if (shop_.isMissing) {
            throw SalesError(QStringLiteral("La base de la caisse manque."));
        }
        return shop_.isChanged.exchange(false);
    }

private:
    static constexpr Amount price = 100000;
    static constexpr int others = 60;

    void begin(const Reading& reading)
    {
        ++shop_.readings;
        if (shop_.isMissing) {
            throw SalesError(QStringLiteral("La base de la caisse manque."));
        }
        while (shop_.isSlow) {
            reading.advance(0.25);
            std::this_thread::yield();
        }
    }

    SampleShop& shop_;
};
