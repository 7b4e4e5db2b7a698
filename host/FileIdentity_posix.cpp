#include "host/FileIdentity.h"

#include <sys/stat.h>

namespace korvande {

std::optional<std::string> ExistingFileIdentity(const std::filesystem::path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return {};
    return std::to_string(status.st_dev) + ":" + std::to_string(status.st_ino);
}

// Devices stand in folders here, like files.
bool IsUnlistedDevice(const std::filesystem::path&) { return false; }

}  // namespace korvande
