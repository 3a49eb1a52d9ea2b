// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <exception>
#include <utility>

/// Runs a slot's body; what it throws becomes one critical log line, "Errors", then \a where,
/// because an exception that leaves a slot would end the till. Returns whether it ran to its end.
/// Logs are searched for \a where: each stays letter for letter, slips included.
template <class Body> bool guarded(const char* where, Body&& body)
{
    try {
        std::forward<Body>(body)();
        return true;
    } catch (const std::exception& error) {
        qCritical("Errors %s : %s", where, error.what());
        return false;
    }
}
