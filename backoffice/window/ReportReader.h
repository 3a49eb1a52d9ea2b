// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/reports/Report.h"

#include <QObject>
#include <QThread>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

/// Reads reports in a thread of its own, which also owns the source, and looks twice a second
/// whether sales were added since. Every signal is sent in the thread of the object.
class ReportReader : public QObject
{
    Q_OBJECT

public:
    /// Opens the sales, in the reader's thread. Throws SalesError.
    using Open = std::function<std::unique_ptr<SalesSource>()>;
    using Make = std::function<Report(const ReportOrder&, SalesSource&, const Reading&)>;

    ReportReader(Open open, Make make);
    ReportReader(const ReportReader&) = delete;
    ReportReader& operator=(const ReportReader&) = delete;
    ReportReader(ReportReader&&) = delete;
    ReportReader& operator=(ReportReader&&) = delete;
    /// Stops what is being read and waits for it.
    ~ReportReader() override;

    /// Reads \a order in place of what is being read. finished() or failed() follows, or nothing
    /// when another order or stop() comes in between.
    void read(const ReportOrder& order);
    /// Reads no more, and looks for no more sales, until the next order.
    void stop();

signals:
    /// The configured tax rate, in per cent; before the first report, and when it has changed.
    void taxRateRead(double rate);
    /// The tills that can be chosen; before the first report, and when they have changed.
    void tillsRead(const std::vector<QString>& names);
    /// How much of the order is read, 0 to 1.
    void progressed(double done);
    void finished(const Report& report);
    /// Nothing can be read, and why; it is tried again until it can, which is changed().
    void failed(const QString& sentence);
    /// What was read last may no longer be so.
    void changed();
    /// From one thread to the other.
    void posted();

private:
    struct Order
    {
        int number = 0;
        ReportOrder what;
    };

    void run();
    /// The next order, or none after half a second; not valid when the reader ends.
    std::optional<Order> awaitOrder();
    void carryOut(const Order& order);
    void look();
    void openSource();
    void offerTills();
    /// Runs \a report in the object's thread, unless order \a number is out of date there.
    void send(int number, std::function<void()> report);
    void deliver();

    Open open_;
    Make make_;

    std::mutex mutex_;
    std::condition_variable wake_;
    std::optional<Order> waiting_;
    std::vector<std::pair<int, std::function<void()>>> sent_;
    bool ends_ = false;
    std::atomic<bool> isStopped_ = false;
    /// Of the last order, which is the only one whose outcome is still wanted; 0 after a stop.
    std::atomic<int> wanted_ = 0;
    int given_ = 0;

    // What only the thread uses.
    std::unique_ptr<SalesSource> source_;
    std::optional<double> taxRate_;
    std::vector<QString> tills_;
    bool hasFailed_ = false;

    std::unique_ptr<QThread> thread_;
};
