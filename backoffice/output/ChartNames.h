// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

// Qt 5 has its charts in a namespace that Qt 6 has not.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
QT_BEGIN_NAMESPACE
namespace QtCharts { }
QT_END_NAMESPACE
using namespace QtCharts;
#endif
