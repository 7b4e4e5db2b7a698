#include "core/FolderNames.h"

#include <dirent.h>
#include <sys/stat.h>

#include <chrono>
#include <ctime>
#include <exception>
#include <memory>
#include <mutex>
#include <set>
#include <utility>

#include "core/Text.h"

namespace korvande {

namespace {

using std::chrono::system_clock;

// What tells one state of a folder from another.
struct Stamp {
    dev_t device = 0;
    ino_t number = 0;
    std::time_t seconds = 0;  // when it was last changed
    long nanoseconds = 0;

    bool operator==(const Stamp&) const = default;
};

Stamp StampOf(const std::string& folder) {
    struct stat status {};
    if (::stat(folder.empty() ? "." : folder.c_str(), &status) != 0) return {};
    return {status.st_dev, status.st_ino, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

// A name, behind its capitals.
using Name = std::pair<Text, std::string>;

Name NameOf(std::string_view name) { return {ToCapitals(FromUtf8(name)), std::string(name)}; }

std::string_view FolderPart(std::string_view path) { return path.substr(0, path.rfind('/') + 1); }

// The folder that was looked into last.
struct Kept {
    std::string folder;
    Stamp stamp;
    std::set<Name> names;
    system_clock::time_point readAt;
    bool isOwnState = false;  // this program was the last to change it
    bool isTrusted = false;   // while its stamp is the same, so are its names
};

// The one value that translations share, whatever their thread: it only saves reading a folder again.
Kept kept;
std::mutex keptLock;

bool HasKept(const std::string& folder, const Stamp& stamp) {
    return stamp.number != 0 && kept.folder == folder && kept.stamp == stamp;
}

std::set<Name> NamesIn(const std::string& folder) {
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(::opendir(folder.empty() ? "." : folder.c_str()), ::closedir);
    std::set<Name> names;
    if (!entries) return names;
    while (const dirent* const entry = ::readdir(entries.get())) names.insert(NameOf(entry->d_name));
    return names;
}

bool IsFresh(system_clock::time_point now) {
    constexpr auto longest = std::chrono::seconds(2);
    const auto age = now - kept.readAt;
    return age >= system_clock::duration::zero() && age <= longest;
}

void Read(const std::string& folder, const Stamp& stamp, system_clock::time_point now) {
    kept.isOwnState = kept.isOwnState && HasKept(folder, stamp);
    kept.isTrusted = false;  // until all is read
    // Of a folder that another program has changed just now a further change may not show.
    const bool isSettled = stamp.seconds < system_clock::to_time_t(now) - 1;
    kept.names = NamesIn(folder);
    kept.folder = folder;
    kept.stamp = stamp;
    kept.readAt = now;
    kept.isTrusted = kept.isOwnState || isSettled;
}

}  // namespace

std::string FindWithoutCase(const std::string& folder, std::string_view wanted) {
    const std::lock_guard lock(keptLock);
    const Stamp stamp = StampOf(folder);
    const auto now = system_clock::now();
    if (!kept.isTrusted || !HasKept(folder, stamp) || !IsFresh(now)) Read(folder, stamp, now);
    const Name first(ToCapitals(FromUtf8(wanted)), std::string());
    const auto found = kept.names.lower_bound(first);
    return found == kept.names.end() || found->first != first.first ? std::string() : found->second;
}

OwnChange::OwnChange(std::string_view nativePath) {
    const std::lock_guard lock(keptLock);
    const std::string folder(FolderPart(nativePath));
    if (HasKept(folder, StampOf(folder))) path = nativePath;
}

OwnChange::~OwnChange() {
    const std::lock_guard lock(keptLock);
    if (path.empty() || FolderPart(path) != kept.folder) return;
    try {
        const Name name = NameOf(std::string_view(path).substr(kept.folder.size()));
        struct stat status {};
        if (::lstat(path.c_str(), &status) == 0) {
            kept.names.insert(name);
        } else {
            kept.names.erase(name);
        }
        kept.stamp = StampOf(kept.folder);
        kept.isOwnState = true;
    } catch (const std::exception&) {
        // No memory to keep it with: it is read again.
        kept.isTrusted = kept.isOwnState = false;
    }
}

}  // namespace korvande
