#include "geopackage/SqliteLibrary.h"

namespace korvande {

// It is part of the program.
SqliteLibrary::SqliteLibrary()
    : bindBlob(sqlite3_bind_blob),
      bindDouble(sqlite3_bind_double),
      bindInt64(sqlite3_bind_int64),
      bindNull(sqlite3_bind_null),
      bindText(sqlite3_bind_text),
      close(sqlite3_close),
      errorMessage(sqlite3_errmsg),
      execute(sqlite3_exec),
      fileControl(sqlite3_file_control),
      finalize(sqlite3_finalize),
      open(sqlite3_open_v2),
      prepare(sqlite3_prepare_v3),
      reset(sqlite3_reset),
      step(sqlite3_step),
      systemError(sqlite3_system_errno) {}

}  // namespace korvande
