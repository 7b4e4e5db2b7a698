#pragma once

#include <string>

#include "project/CodeTables.h"
#include "project/Options.h"

namespace korvande {

// The control table's text, in Windows-1252; the owner as it stands in its boxes.
std::string ControlTableText(const Options& options, const CodeTables& codes);

}  // namespace korvande
