// SPDX-License-Identifier: MIT
#include "backoffice/window/ReportReader.h"

#include <QElapsedTimer>

#include <chrono>

namespace {
/// The number of what is said once, whichever order is wanted by then.
constexpr int ofEveryOrder = -1;
} // namespace

ReportReader::ReportReader(Open open, Make make)
    : open_(std::move(open))
    , make_(std::move(make))
    , thread_(QThread::create([this] { run(); }))
{
    connect(this, &ReportReader::posted, this, &ReportReader::deliver, Qt::QueuedConnection);
    thread_->start();
}

ReportReader::~ReportReader()
{
    {
        const std::lock_guard lock(mutex_);
        ends_ = true;
        isStopped_ = true;
    }
    wake_.notify_one();
    thread_->wait();
}

void ReportReader::read(const ReportOrder& order)
{
    {
        const std::lock_guard lock(mutex_);
        wanted_ = ++given_;
        waiting_ = Order{given_, order};
        isStopped_ = true;
    }
    wake_.notify_one();
}

void ReportReader::stop()
{
    const std::lock_guard lock(mutex_);
    wanted_ = 0;
    waiting_.reset();
    isStopped_ = true;
}

void ReportReader::run()
{
    while (true) {
        const std::optional<Order> order = awaitOrder();
        if (order) {
            carryOut(*order);
            continue;
        }
        {
            const std::lock_guard lock(mutex_);
            if (ends_) {
                break;
            }
        }
        look();
    }
    // A connection to a database is closed by the thread that has opened it.
    source_.reset();
}

std::optional<ReportReader::Order> ReportReader::awaitOrder()
{
    constexpr std::chrono::milliseconds halfASecond(500);
    std::unique_lock lock(mutex_);
    wake_.wait_for(lock, halfASecond, [this] { return ends_ || waiting_.has_value(); });
    if (ends_) {
        return {};
    }
    isStopped_ = false;
    return std::exchange(waiting_, {});
}

void ReportReader::openSource()
{
    if (source_ == nullptr) {
        source_ = open_();
    }
}

void ReportReader::offerTills()
{
    const std::vector<QString> tills = source_->allTills();
    if (tills_ != tills) {
        tills_ = tills;
        send(ofEveryOrder, [this, tills] { emit tillsRead(tills); });
    }
}

void ReportReader::carryOut(const Order& order)
{
    const int number = order.number;
    try {
        openSource();
        // Tills that are not there any more are refused: those that are have to be offered first.
        offerTills();
        source_->choose(order.what.tills);
        source_->isChanged();
        offerTills();
        const double rate = source_->taxRate();
        if (taxRate_ != rate) {
            taxRate_ = rate;
            send(ofEveryOrder, [this, rate] { emit taxRateRead(rate); });
        }
        QElapsedTimer sinceSaid;
        sinceSaid.start();
        Reading reading;
        reading.isStopped = &isStopped_;
        reading.progress = [&](double done) {
            constexpr qint64 pause = 50;
            if (sinceSaid.elapsed() >= pause) {
                sinceSaid.restart();
                send(number, [this, done] { emit progressed(done); });
            }
        };
        const auto report = std::make_shared<const Report>(make_(order.what, *source_, reading));
        hasFailed_ = false;
        send(number, [this, report] { emit finished(*report); });
    } catch (const ReadingStopped&) {
        // Whoever stopped it waits for nothing.
    } catch (const SalesError& error) {
        source_.reset();
        hasFailed_ = true;
        send(number, [this, sentence = error.sentence()] { emit failed(sentence); });
    } catch (const std::exception& error) {
        source_.reset();
        hasFailed_ = true;
        send(number, [this, text = QString::fromUtf8(error.what())] { emit failed(text); });
    }
}

void ReportReader::look()
{
    const int number = wanted_;
    if (number == 0) {
        return;
    }
    try {
        openSource();
        if (source_->isChanged() || hasFailed_) {
            hasFailed_ = false;
            send(number, [this] { emit changed(); });
        }
    } catch (const std::exception&) {
        // The next order says why, when there is one; until then what was read is shown.
        source_.reset();
        if (!std::exchange(hasFailed_, true)) {
            send(number, [this] { emit changed(); });
        }
    }
}

void ReportReader::send(int number, std::function<void()> report)
{
    {
        const std::lock_guard lock(mutex_);
        sent_.emplace_back(number, std::move(report));
    }
    emit posted();
}

void ReportReader::deliver()
{
    std::vector<std::pair<int, std::function<void()>>> sent;
    {
        const std::lock_guard lock(mutex_);
        sent.swap(sent_);
    }
    for (const auto& [number, report] : sent) {
        if (number == wanted_ || number == ofEveryOrder) {
            report();
        }
    }
}
