#include <dlfcn.h>

#include <cerrno>

#include "core/RuntimeError.h"
#include "geopackage/SqliteLibrary.h"

namespace korvande {

namespace {

// Takes procedures out of the library, which stays for good: whoever makes one database often makes another.
class Loader {
 public:
    Loader() {
        if (handle == nullptr && errno == ENOMEM) throw RuntimeError(errors::outOfMemory);
    }

    template <class Procedure>
    void operator()(Procedure& procedure, const char* name) const {
        procedure = reinterpret_cast<Procedure>(handle == nullptr ? nullptr : dlsym(handle, name));
        if (procedure == nullptr) {
            throw RuntimeError(errors::fileNotFound, u"De databasebibliotheek libsqlite3.so.0 is niet gevonden");
        }
    }

 private:
    void* handle = dlopen("libsqlite3.so.0", RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
};

}  // namespace

SqliteLibrary::SqliteLibrary() {
    const Loader take;
    take(bindBlob, "sqlite3_bind_blob");
    take(bindDouble, "sqlite3_bind_double");
    take(bindInt64, "sqlite3_bind_int64");
    take(bindNull, "sqlite3_bind_null");
    take(bindText, "sqlite3_bind_text");
    take(close, "sqlite3_close");
    take(errorMessage, "sqlite3_errmsg");
    take(execute, "sqlite3_exec");
    take(fileControl, "sqlite3_file_control");
    take(finalize, "sqlite3_finalize");
    take(open, "sqlite3_open_v2");
    take(prepare, "sqlite3_prepare_v3");
    take(reset, "sqlite3_reset");
    take(step, "sqlite3_step");
    take(systemError, "sqlite3_system_errno");
}

}  // namespace korvande
