// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/reports/Report.h"

/// The pages, one function each; makeReport() chooses.
namespace Pages {
Report sales(const ReportOrder& order, SalesSource& source, const Reading& reading);
Report articles(const ReportOrder& order, SalesSource& source, const Reading& reading);
Report hours(const ReportOrder& order, SalesSource& source, const Reading& reading);
Report uses(const ReportOrder& order, SalesSource& source, const Reading& reading);
Report closing(const ReportOrder& order, SalesSource& source, const Reading& reading);
} // namespace Pages
