#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <optional>

#include "core/FolderNames.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"

namespace korvande {

namespace {

bool Exists(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0;
}

bool IsFolder(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// The folder that stands for a drive letter.
std::string DriveFolder(char letter) {
    const std::string variable = std::string("KORVANDE_DRIVE_") + ToCapital(letter);
    const char* const folder = std::getenv(variable.c_str());
    if (folder == nullptr || *folder == '\0') throw RuntimeError(errors::deviceNotReady);
    return folder;
}

bool BeginsWithDrive(std::string_view name) {
    return name.size() >= 2 && name[1] == ':' && ToCapital(name[0]) >= 'A' && ToCapital(name[0]) <= 'Z';
}

// Spells the path as the file system does, component by component; from the first one that does not exist on it stays
// as it is.
std::string FollowCase(const std::string& path) {
    if (Exists(path)) return path;
    std::string resolved = path.starts_with('/') ? "/" : "";
    std::size_t at = resolved.size();
    while (at < path.size()) {
        const std::size_t end = std::min(path.find('/', at), path.size());
        std::string component = path.substr(at, end - at);
        if (!component.empty() && !Exists(resolved + component)) {
            const std::string found = FindWithoutCase(resolved, component);
            if (found.empty()) return resolved + path.substr(at);
            component = found;
        }
        resolved += component;
        if (end < path.size()) resolved += '/';
        at = end + 1;
    }
    return resolved;
}

}  // namespace

std::string NativePath(TextView name) {
    std::string path = ToUtf8(name);
    std::replace(path.begin(), path.end(), '\\', '/');
    if (BeginsWithDrive(path)) {
        std::string folder = DriveFolder(path[0]);
        std::string rest = path.substr(2);
        if (!rest.starts_with('/') && !folder.ends_with('/')) rest.insert(rest.begin(), '/');
        path = folder + rest;
    }
    return FollowCase(path);
}

TextView NullDevice() noexcept { return u"/dev/null"; }

std::FILE* OpenNativeFile(TextView name, OpenMode mode) {
    const std::string path = NativePath(name);
    if (path.empty() || path.find('\0') != std::string::npos) throw RuntimeError(errors::badFileName);
    if (IsFolder(path)) throw RuntimeError(errors::pathAccess);
    std::optional<OwnChange> change;
    if (mode != OpenMode::Read) change.emplace(path);
    const char* const how = mode == OpenMode::Read ? "rbe" : mode == OpenMode::Write ? "wbe" : "abe";
    std::FILE* const file = std::fopen(path.c_str(), how);
    if (file == nullptr) {
        const int number = ErrorNumberOf(errno);
        const bool folderMissing = number == errors::fileNotFound && mode != OpenMode::Read;
        throw RuntimeError(folderMissing ? errors::pathNotFound : number);
    }
    return file;
}

}  // namespace korvande
