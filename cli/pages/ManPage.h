#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/pages/CommandTree.h"

namespace korvande {

// The page of `man korvande-cli`, in the language of troff with the macros "man"; UTF-8.
std::string ManPage(const std::vector<Command>& commands, std::string_view version);

}  // namespace korvande
