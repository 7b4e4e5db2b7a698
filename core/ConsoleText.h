#pragma once

#include <cstdio>
#include <string_view>

namespace korvande {

// Writes a text in UTF-8 to standard output or standard error. A console of Windows gets its characters whatever code
// page it is set to; anything else gets the bytes.
void PutText(std::FILE* stream, std::string_view utf8);

}  // namespace korvande
