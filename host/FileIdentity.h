#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace korvande {

// Platform: what identifies an existing file or folder to the system, whatever path leads to it; nothing when there is
// none.
std::optional<std::string> ExistingFileIdentity(const std::filesystem::path& path);

// Platform: whether the name is that of a device that the standard library takes for a file or for nothing.
bool IsUnlistedDevice(const std::filesystem::path& path);

}  // namespace korvande
