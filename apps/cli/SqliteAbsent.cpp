#include "apps/cli/SqliteTable.h"

namespace corvex {

std::unique_ptr<IRecordTable> MakeSqliteTable(const std::string&) {
    return nullptr;
}

}  // namespace corvex
