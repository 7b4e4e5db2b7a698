#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Changes of inputs that know how a format is built: lines, records, columns, tables, fields. Most leave what is
// around a change as it was, so that it is read; some break it. The same bytes and seed always give the same result,
// which is never longer than the limit.
namespace korvande::fuzz {

// A file of the format.
std::string MutateIdex(std::string_view file, unsigned seed, std::size_t limit);
std::string MutateExchange(std::string_view file, unsigned seed, std::size_t limit);
std::string MutateTable(std::string_view file, unsigned seed, std::size_t limit);

// The part of MutateExchange that leaves every line its columns.
std::string ChangeRecords(std::string_view file, unsigned seed, std::size_t limit);

// An input of a target: a byte of options and a drawing of either format, in front of which a control table may stand.
std::string MutateDrawing(std::string_view input, unsigned seed, std::size_t limit);
std::string MutateRun(std::string_view input, unsigned seed, std::size_t limit);

// The same of a line of calls and a drawing behind it.
std::string MutateCalls(std::string_view input, unsigned seed, std::size_t limit);

// One input with some lines of another.
std::string CrossLines(std::string_view input, std::string_view other, unsigned seed, std::size_t limit);

// Where a drawing begins behind its control table, which ends with a line "[End]"; 0 without one.
std::size_t EndOfTable(std::string_view input);

}  // namespace korvande::fuzz
