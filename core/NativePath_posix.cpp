#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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

// With the system's separators, and the folder that stands for its drive.
std::string SystemPath(TextView name) {
    std::string path = ToUtf8(name);
    std::replace(path.begin(), path.end(), '\\', '/');
    if (BeginsWithDrive(path)) {
        std::string folder = DriveFolder(path[0]);
        std::string rest = path.substr(2);
        if (!rest.starts_with('/') && !folder.ends_with('/')) rest.insert(rest.begin(), '/');
        path = folder + rest;
    }
    return path;
}

// Of a file that is made new: its name stays as it is, whatever other spellings of it are there.
std::string NewPath(TextView name) {
    const std::string path = SystemPath(name);
    const std::size_t folderSize = path.rfind('/') + 1;
    return FollowCase(path.substr(0, folderSize)) + path.substr(folderSize);
}

// Gives a new file, still empty, the owner and the rights of another one. A group that it cannot have gets no more than
// everybody.
void TakeRights(int descriptor, const struct stat& other) {
    constexpr mode_t rightsBits = 07777;
    constexpr mode_t groupBits = 0070;
    mode_t rights = other.st_mode & rightsBits;
    const bool hasGroup = ::fchown(descriptor, other.st_uid, other.st_gid) == 0 ||
                          ::fchown(descriptor, static_cast<uid_t>(-1), other.st_gid) == 0;
    if (!hasGroup) rights = (rights & ~groupBits) | (rights & groupBits & ((rights & 0007) << 3));
    if (::fchmod(descriptor, rights) != 0) throw RuntimeError(ErrorNumberOf(errno));
}

// Anything else keeps whoever opens it waiting, until a signal ends that.
bool IsRegularOrMissing(const char* path) {
    struct stat status {};
    return ::stat(path, &status) != 0 || S_ISREG(status.st_mode);
}

std::FILE* OpenUninterrupted(const char* path, const char* how) {
    std::FILE* file = nullptr;
    do {
        errno = 0;
        file = std::fopen(path, how);
    } while (file == nullptr && errno == EINTR && IsRegularOrMissing(path));
    return file;
}

int CreateUninterrupted(const char* path, mode_t rights) {
    int descriptor = 0;
    do {
        descriptor = ::open(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, rights);
    } while (descriptor < 0 && errno == EINTR);
    return descriptor;
}

// Until it is done, or what stopped it is no signal.
int Synchronise(int descriptor) {
    int result = 0;
    do {
        result = ::fsync(descriptor);
    } while (result != 0 && errno == EINTR);
    return result;
}

}  // namespace

std::string NativePath(TextView name) { return FollowCase(SystemPath(name)); }

TextView NullDevice() noexcept { return u"/dev/null"; }

std::FILE* OpenNativeFile(TextView name, OpenMode mode) {
    const std::string path = NativePath(name);
    if (path.empty() || path.find('\0') != std::string::npos) throw RuntimeError(errors::badFileName);
    if (IsFolder(path)) throw RuntimeError(errors::pathAccess);
    std::optional<OwnChange> change;
    if (mode != OpenMode::Read) change.emplace(path);
    const char* const how = mode == OpenMode::Read ? "rbe" : mode == OpenMode::Write ? "wbe" : "abe";
    std::FILE* const file = OpenUninterrupted(path.c_str(), how);
    if (file == nullptr) {
        const int number = ErrorNumberOf(errno);
        const bool folderMissing = number == errors::fileNotFound && mode != OpenMode::Read;
        throw RuntimeError(folderMissing ? errors::pathNotFound : number);
    }
    return file;
}

std::FILE* CreateNativeFile(TextView name, TextView rightsOf) {
    const std::string path = NewPath(name);
    struct stat other {};
    const bool takesRights = ::stat(NativePath(rightsOf).c_str(), &other) == 0;
    if (!takesRights && errno != ENOENT && errno != ENOTDIR) throw RuntimeError(ErrorNumberOf(errno));
    const OwnChange change(path);
    // Whoever may not read the other file never may read this one.
    const int descriptor = CreateUninterrupted(path.c_str(), takesRights ? 0600 : 0666);
    if (descriptor < 0 && errno == EEXIST) return nullptr;
    if (descriptor < 0) throw RuntimeError(errno == ENOENT ? errors::pathNotFound : ErrorNumberOf(errno));
    try {
        if (takesRights) TakeRights(descriptor, other);
        std::FILE* const file = ::fdopen(descriptor, "wb");
        if (file == nullptr) throw RuntimeError(ErrorNumberOf(errno));
        return file;
    } catch (...) {
        ::close(descriptor);
        ::unlink(path.c_str());
        throw;
    }
}

bool IsOnlyInterrupted(std::FILE* file) noexcept {
    if (errno != EINTR) return false;
    struct stat status {};
    return ::fstat(::fileno(file), &status) == 0 && S_ISREG(status.st_mode);
}

void FlushToDisk(std::FILE* file) {
    if (Synchronise(::fileno(file)) != 0) throw RuntimeError(ErrorNumberOf(errno));
}

void FlushFolderToDisk(TextView folder) {
    const std::string path = folder.empty() ? "." : NativePath(folder);
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    const bool hasFailed = Synchronise(descriptor) != 0 && errno != EINVAL && errno != ENOTSUP;
    const int cause = errno;
    ::close(descriptor);
    if (hasFailed) throw RuntimeError(ErrorNumberOf(cause));
}

}  // namespace korvande
