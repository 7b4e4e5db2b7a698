#pragma once

#include <string>
#include <vector>

#include "cli/pages/CommandTree.h"

// Scripts by which a shell completes a command line: commands, options, the words and files that they take.
namespace korvande {

std::string BashCompletion(const std::vector<Command>& commands);
std::string ZshCompletion(const std::vector<Command>& commands);
std::string FishCompletion(const std::vector<Command>& commands);

}  // namespace korvande
