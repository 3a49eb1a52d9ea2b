// SPDX-License-Identifier: MIT
#include "backoffice/reports/Report.h"

#include "backoffice/reports/Pages.h"
#include "backoffice/reports/TillColumn.h"

namespace {
Report makePage(const ReportOrder& order, SalesSource& source, const Reading& reading)
{
    switch (order.page) {
    case Page::Articles:
        return Pages::articles(order, source, reading);
    case Page::Hours:
        return Pages::hours(order, source, reading);
    case Page::Uses:
        return Pages::uses(order, source, reading);
    case Page::Closing:
        return Pages::closing(order, source, reading);
    case Page::Sales:
        break;
    }
    return Pages::sales(order, source, reading);
}
} // namespace

Report makeReport(const ReportOrder& order, SalesSource& source, const Reading& reading)
{
    // What the book says of all tills is the sum of what it says of each.
    const std::shared_ptr<void> moment = source.hold();
    Report report = makePage(order, source, reading);
    TillColumn::addHead(report, order, source);
    return report;
}
