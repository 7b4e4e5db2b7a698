#pragma once

#include <string>

namespace korvande {

struct CodeTables;
struct Options;

// The control table's text, in Windows-1252; the owner as it stands in its boxes.
std::string ControlTableText(const Options& options, const CodeTables& codes);

}  // namespace korvande
