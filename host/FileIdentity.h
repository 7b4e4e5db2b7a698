#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace korvande {

// Platform: what identifies an existing file or folder to the system, whatever path leads to it; nothing when there is
// none.
std::optional<std::string> ExistingFileIdentity(const std::filesystem::path& path);

}  // namespace korvande
