#pragma once

#include <string>
#include <vector>

namespace korvande {

// File arguments with the patterns among them, names whose last component has "*" or "?" in it, replaced by the names
// of the files that match, sorted. A UsageError that names the pattern when none does.
std::vector<std::string> WithPatternsExpanded(const std::vector<std::string>& files);

// The same of file arguments of which only the first is an input, with the output behind it: a pattern stands for one
// file there, and a UsageError names one that more files match.
std::vector<std::string> WithPatternsOfOneExpanded(const std::vector<std::string>& files);

}  // namespace korvande
