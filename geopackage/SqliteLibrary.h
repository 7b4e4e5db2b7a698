#pragma once

#include <sqlite3.h>

namespace korvande {

// The procedures of the library of databases, which on some systems is loaded when a database is made: linked, it would
// make every start of a program slower.
struct SqliteLibrary {
    // Platform. A run-time error when the system does not have it.
    SqliteLibrary();

    decltype(&sqlite3_bind_blob) bindBlob = nullptr;
    decltype(&sqlite3_bind_double) bindDouble = nullptr;
    decltype(&sqlite3_bind_int64) bindInt64 = nullptr;
    decltype(&sqlite3_bind_null) bindNull = nullptr;
    decltype(&sqlite3_bind_text) bindText = nullptr;
    decltype(&sqlite3_close) close = nullptr;
    decltype(&sqlite3_errmsg) errorMessage = nullptr;
    decltype(&sqlite3_exec) execute = nullptr;
    decltype(&sqlite3_file_control) fileControl = nullptr;
    decltype(&sqlite3_finalize) finalize = nullptr;
    decltype(&sqlite3_open_v2) open = nullptr;
    decltype(&sqlite3_prepare_v3) prepare = nullptr;
    decltype(&sqlite3_reset) reset = nullptr;
    decltype(&sqlite3_step) step = nullptr;
    decltype(&sqlite3_system_errno) systemError = nullptr;
};

}  // namespace korvande
