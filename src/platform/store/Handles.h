#pragma once

#include <sqlite3.h>

#include <memory>

// The SQLite library's own handles, closed by themselves; for this folder's sources alone.

namespace store {

struct CloseDatabase {
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};
using Database = std::unique_ptr<sqlite3, CloseDatabase>;

struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

} // namespace store
