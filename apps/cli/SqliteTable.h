// Records as tables of a SQLite database.
#pragma once

#include <memory>
#include <string>

#include "apps/cli/IRecordTable.h"

namespace corvex {

// A table for each command, with a row for each of its records and an index by time, and one of the logs. The file
// takes its place when all is in it. Null when this build leaves SQLite out.
std::unique_ptr<IRecordTable> MakeSqliteTable(const std::string& path);

}  // namespace corvex
