#pragma once

#include <map>
#include <string>
#include <vector>

namespace korvande::reference {

inline const std::string idexBlanks = " \t";

// The fields of a row: up to its terminator, split at the separators outside quotes. Each keeps its quotes.
std::vector<std::string> FieldsOf(const std::string& row, char separator, char terminator);

// A text without its quotes; those inside become single ones.
std::string Unquoted(const std::string& field);

// The names of a table's columns, and the fields of its rows by them.
class TableColumns {
 public:
    TableColumns(const std::string& list, char separator, char terminator);

    // The field of a column; empty when the table or the row has none.
    std::string operator()(const std::vector<std::string>& fields, const std::string& column) const;

 private:
    std::map<std::string, std::size_t> places;
};

}  // namespace korvande::reference
