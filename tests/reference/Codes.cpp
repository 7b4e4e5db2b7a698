#include "tests/reference/Codes.h"

#include "tests/reference/Texts.h"

namespace korvande::reference {

namespace {

int Find(const Table& table, std::string Row::*field, const std::string& code) {
    const std::string wanted = Left(code, 7);
    for (int row = static_cast<int>(table.size()) - 1; row > 0; --row) {
        if (table[static_cast<std::size_t>(row)].*field == wanted) return row;
    }
    return 0;
}

int Counted(Table& table, int row) {
    if (!table.empty()) ++table[static_cast<std::size_t>(row)].uses;
    return row;
}

}  // namespace

int FindByLiscad(const Table& table, const std::string& code) { return Find(table, &Row::liscad, code); }

int FindByLki(const Table& table, const std::string& code) { return Find(table, &Row::lki, code); }

int LookUpByLiscad(Table& table, const std::string& code) { return Counted(table, FindByLiscad(table, code)); }

int LookUpByLki(Table& table, const std::string& code) { return Counted(table, FindByLki(table, code)); }

}  // namespace korvande::reference
