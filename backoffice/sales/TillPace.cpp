// SPDX-License-Identifier: MIT
#include "backoffice/sales/TillPace.h"

#include <QDateTime>

#include <algorithm>
#include <chrono>
#include <thread>

namespace {
constexpr qint64 firstRows = 250;
constexpr qint64 fewestRows = 20;
constexpr qint64 fullSpeedUs = 5000;
constexpr qint64 gentleUs = 3000;
/// Of eleven parts of the time, ten are the till's.
constexpr qint64 longPauses = 10;
/// Of five parts, four: what looks whether the days before are the same is short, and a payment is
/// to be seen within two seconds.
constexpr qint64 shortPauses = 4;
/// A portion that took longer has waited for the till, and has held nobody up meanwhile.
constexpr qint64 longestHeldUs = 50000;
/// A portion that was quick by chance must not make the next ones long.
constexpr qint64 growth = 2;
} // namespace

Timing Timing::ofTheMachine()
{
    using namespace std::chrono;
    return {[] {
                const auto time = steady_clock::now().time_since_epoch();
                return qint64{duration_cast<microseconds>(time).count()};
            },
        [] { return QDateTime::currentMSecsSinceEpoch(); },
        [](qint64 time) { std::this_thread::sleep_for(microseconds(time)); }};
}

TillPace::TillPace(Timing timing)
    : timing_(std::move(timing))
    , rows_(firstRows)
{ }

qint64 TillPace::timed(qint64 pauses, const std::function<void()>& portion)
{
    const qint64 begin = timing_.elapsed();
    portion();
    const qint64 taken = std::max<qint64>(timing_.elapsed() - begin, 1);
    if (pauses > 0) {
        timing_.sleep(std::min(taken, longestHeldUs) * pauses);
    }
    return taken;
}

void TillPace::run(bool isTillAtWork, const std::function<void()>& portion)
{
    const qint64 target = isTillAtWork ? gentleUs : fullSpeedUs;
    const qint64 fitting = rows_ * target / timed(isTillAtWork ? longPauses : 0, portion);
    rows_ = std::clamp(std::min(fitting, rows_ * growth), fewestRows, mostRows);
}

void TillPace::runAsIs(bool isTillAtWork, const std::function<void()>& portion)
{
    timed(isTillAtWork ? shortPauses : 0, portion);
}
