#pragma once

#include <string>
#include <vector>

namespace korvande {

// `controleer`: the exit status.
int Check(const std::string& project, const std::vector<std::string>& files);

}  // namespace korvande
