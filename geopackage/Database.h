#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "core/Text.h"

struct sqlite3;
struct sqlite3_stmt;

// The database that a GeoPackage is. Whatever the library of databases refuses is a run-time error.
namespace korvande {

struct SqliteLibrary;

class Database {
 public:
    // Opens a file of its own, empty so far, that nobody else looks at: nothing is kept for taking changes back, since
    // a file that did not become whole is thrown away.
    explicit Database(TextView name);
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    ~Database();

    // Any number of statements of SQL, without results.
    void Execute(const std::string& statements);

    // Writes everything to the file. No statement may be left.
    void Close();

 private:
    friend class Statement;
    struct Closer {
        const SqliteLibrary* library;
        void operator()(sqlite3* opened) const noexcept;
    };
    std::unique_ptr<const SqliteLibrary> library;
    std::unique_ptr<sqlite3, Closer> handle;
};

// One statement that is run again and again, with other values each time.
class Statement {
 public:
    Statement(Database& itsDatabase, std::string_view sql);

    // The values of the next run, in their order. What a view shows must stay until then.
    Statement& Put(std::string_view utf8);
    Statement& PutBytes(std::string_view bytes);
    Statement& Put(std::int64_t number);
    Statement& Put(double number);
    Statement& PutNothing();

    void Run();

 private:
    struct Closer {
        const SqliteLibrary* library;
        void operator()(sqlite3_stmt* prepared) const noexcept;
    };
    void Require(int result) const;

    const SqliteLibrary& library;
    sqlite3* database;
    std::unique_ptr<sqlite3_stmt, Closer> handle;
    int values = 0;  // put for the next run
};

}  // namespace korvande
