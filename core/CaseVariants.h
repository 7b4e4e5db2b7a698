#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace korvande {

// Platform: the spellings of a name that differ in case only, which a file system that heeds case can be asked for one
// by one. In a folder of many names that is less work than reading it.

// How many spellings an ASCII name has. 0: more than are worth asking for, or other characters, whose spellings only
// the names of a folder tell.
std::size_t CaseVariantCount(std::string_view name) noexcept;

// Adds those that a folder holds ("" is the current one; any other ends in "/") to what was found. False: the system
// did not answer for each of them, and only reading the folder can tell.
bool TryCaseVariants(const std::string& folder, std::string_view name, std::vector<std::string>& found);

}  // namespace korvande
