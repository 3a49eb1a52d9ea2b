// SPDX-License-Identifier: MIT
#include "tests/support/StatementLog.h"

#include <algorithm>

#include <sqlite3.h>

namespace {
std::vector<std::string> seen;

int note(unsigned, void*, void*, void* text)
{
    seen.emplace_back(static_cast<const char*>(text));
    return 0;
}

int watch(sqlite3* connection, const char**, const struct sqlite3_api_routines*)
{
    return sqlite3_trace_v2(connection, SQLITE_TRACE_STMT, note, nullptr);
}

// SQLite calls its extensions with the arguments of watch().
void (*extension())() { return reinterpret_cast<void (*)()>(watch); }
} // namespace

StatementLog::StatementLog()
{
    seen.clear();
    sqlite3_auto_extension(extension());
}

StatementLog::~StatementLog() { sqlite3_cancel_auto_extension(extension()); }

const std::vector<std::string>& StatementLog::statements() const { return seen; }

long StatementLog::count(const std::string& head) const
{
    return std::count_if(seen.begin(), seen.end(),
        [&](const std::string& statement) { return statement.starts_with(head); });
}
