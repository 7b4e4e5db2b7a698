#include "geopackage/Database.h"

#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "geopackage/FailedWrite.h"
#include "geopackage/SqliteLibrary.h"

namespace korvande {

namespace {

constexpr int leastOfAByte = 0xFF;  // the kind of an error, without what is told beside it

// The system's own number of what went wrong last with the file; 0: it tells none.
int SystemErrorOf(const SqliteLibrary& library, sqlite3* database) {
    int systemError = 0;
    library.fileControl(database, "main", SQLITE_FCNTL_LAST_ERRNO, &systemError);
    // Of a file that could not be opened only the database knows it.
    return systemError != 0 ? systemError : library.systemError(database);
}

[[noreturn]] void Fail(const SqliteLibrary& library, sqlite3* database, int result) {
    const int systemError = SystemErrorOf(library, database);
    switch (result & leastOfAByte) {
        case SQLITE_NOMEM:
            throw RuntimeError(errors::outOfMemory);
        case SQLITE_FULL:
            throw RuntimeError(errors::diskFull);
        case SQLITE_CANTOPEN:
        case SQLITE_PERM:
        case SQLITE_READONLY:
            throw RuntimeError(NumberOfFailedWrite(systemError, errors::accessDenied));
        case SQLITE_IOERR:
            throw RuntimeError(NumberOfFailedWrite(systemError, errors::pathAccess));
        case SQLITE_CORRUPT:
            // So it calls a page that could not be read.
            if (systemError != 0) throw RuntimeError(NumberOfFailedWrite(systemError, errors::pathAccess));
            [[fallthrough]];
        default:
            throw RuntimeError(errors::invalidCall, FromUtf8(library.errorMessage(database)));
    }
}

void Require(const SqliteLibrary& library, sqlite3* database, int result) {
    if (result != SQLITE_OK) Fail(library, database, result);
}

}  // namespace

void Database::Closer::operator()(sqlite3* opened) const noexcept { library->close(opened); }

Database::Database(TextView name)
    : library(std::make_unique<const SqliteLibrary>()), handle(nullptr, Closer{library.get()}) {
    sqlite3* opened = nullptr;
    const int result =
        library->open(NativePath(name).c_str(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    handle.reset(opened);
    if (opened == nullptr) throw RuntimeError(errors::outOfMemory);
    Require(*library, opened, result);
    Execute(
        "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA locking_mode = EXCLUSIVE;"
        "PRAGMA cache_size = -16000; PRAGMA temp_store = MEMORY;");
}

Database::~Database() = default;

void Database::Execute(const std::string& statements) {
    Require(*library, handle.get(), library->execute(handle.get(), statements.c_str(), nullptr, nullptr, nullptr));
}

void Database::Close() {
    Require(*library, handle.get(), library->close(handle.get()));
    // It is closed by now.
    static_cast<void>(handle.release());
}

void Statement::Closer::operator()(sqlite3_stmt* prepared) const noexcept { library->finalize(prepared); }

Statement::Statement(Database& itsDatabase, std::string_view sql)
    : library(*itsDatabase.library), database(itsDatabase.handle.get()), handle(nullptr, Closer{&library}) {
    sqlite3_stmt* prepared = nullptr;
    Require(library.prepare(database, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT, &prepared,
                            nullptr));
    handle.reset(prepared);
}

void Statement::Require(int result) const { korvande::Require(library, database, result); }

// Nothing is copied: what is shown stays until the run.
Statement& Statement::Put(std::string_view utf8) {
    // No place at all would be no text at all.
    const char* const bytes = utf8.data() == nullptr ? "" : utf8.data();
    Require(library.bindText(handle.get(), ++values, bytes, static_cast<int>(utf8.size()), nullptr));
    return *this;
}

Statement& Statement::PutBytes(std::string_view bytes) {
    Require(library.bindBlob(handle.get(), ++values, bytes.data(), static_cast<int>(bytes.size()), nullptr));
    return *this;
}

Statement& Statement::Put(std::int64_t number) {
    Require(library.bindInt64(handle.get(), ++values, number));
    return *this;
}

Statement& Statement::Put(double number) {
    Require(library.bindDouble(handle.get(), ++values, number));
    return *this;
}

Statement& Statement::PutNothing() {
    Require(library.bindNull(handle.get(), ++values));
    return *this;
}

void Statement::Run() {
    const int result = library.step(handle.get());
    library.reset(handle.get());
    values = 0;
    if (result != SQLITE_DONE && result != SQLITE_ROW) Fail(library, database, result);
}

}  // namespace korvande
