// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/menu/ImportPlan.h"

#include <array>

/// The plan for a file with \a bytes, in French.
inline ImportPlan planOf(const QByteArray& bytes, ImportKind kind)
{
    return ImportPlan::of(ImportFile::of(bytes, kind), QLocale(QLocale::French, QLocale::France));
}

/// Each line of \a plan as "2 changed 1,50 → 1,80", with "!" behind the action for a warning.
inline QStringList look(const ImportPlan& plan)
{
    constexpr std::array<const char*, 4> actions{"new", "changed", "unchanged", "refused"};
    QStringList all;
    for (const PlannedLine& line : plan.lines) {
        all += QString("%1 %2%3 %4")
                   .arg(QString::number(line.line.line),
                       QString(actions.at(static_cast<std::size_t>(line.action))),
                       QString(line.isWarning ? "!" : ""), line.remark)
                   .trimmed();
    }
    return all;
}

inline QStringList look(const QByteArray& bytes, ImportKind kind)
{
    return look(planOf(bytes, kind));
}
