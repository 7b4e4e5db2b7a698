#include "core/FolderNames.h"

#include <dirent.h>
#include <sys/stat.h>

#include <chrono>
#include <exception>
#include <memory>
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
    system_clock::time_point changed;

    bool operator==(const Stamp&) const = default;
};

Stamp StampOf(const std::string& folder) {
    struct stat status {};
    if (::stat(folder.empty() ? "." : folder.c_str(), &status) != 0) return {};
    const auto changed = std::chrono::seconds(status.st_mtim.tv_sec) + std::chrono::nanoseconds(status.st_mtim.tv_nsec);
    return {status.st_dev, status.st_ino, system_clock::time_point(changed)};
}

// A name, behind its capitals.
using Name = std::pair<Text, std::string>;

Name NameOf(std::string_view name) { return {ToCapitals(FromUtf8(name)), std::string(name)}; }

std::string_view FolderPart(std::string_view path) { return path.substr(0, path.rfind('/') + 1); }

// The folder that was looked into last.
struct Kept {
    std::string folder;
    Stamp stamp;
    system_clock::time_point readAt;
    std::set<Name> names;
};

Kept kept;

bool IsKept(const std::string& folder, const Stamp& stamp) {
    return stamp.number != 0 && kept.folder == folder && kept.stamp == stamp;
}

std::set<Name> NamesIn(const std::string& folder) {
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(::opendir(folder.empty() ? "." : folder.c_str()), ::closedir);
    std::set<Name> names;
    if (!entries) return names;
    while (const dirent* const entry = ::readdir(entries.get())) names.insert(NameOf(entry->d_name));
    return names;
}

void Read(const std::string& folder, Stamp stamp, system_clock::time_point now) {
    // Within so short a time the system may give a second change the time of the first.
    constexpr auto tick = std::chrono::milliseconds(50);
    const bool isOwnChange = IsKept(folder, stamp);
    kept.names = NamesIn(folder);
    kept.folder = folder;
    kept.stamp = isOwnChange || now - stamp.changed > tick ? stamp : Stamp();
    kept.readAt = now;
}

}  // namespace

std::string FindWithoutCase(const std::string& folder, std::string_view wanted) {
    constexpr auto longest = std::chrono::seconds(2);
    const Stamp stamp = StampOf(folder);
    const auto now = system_clock::now();
    const auto age = now - kept.readAt;
    if (!IsKept(folder, stamp) || age > longest || age < system_clock::duration::zero()) Read(folder, stamp, now);
    const Name first(ToCapitals(FromUtf8(wanted)), std::string());
    const auto found = kept.names.lower_bound(first);
    return found == kept.names.end() || found->first != first.first ? std::string() : found->second;
}

OwnChange::OwnChange(std::string_view nativePath) {
    const std::string folder(FolderPart(nativePath));
    if (IsKept(folder, StampOf(folder))) path = nativePath;
}

OwnChange::~OwnChange() {
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
    } catch (const std::exception&) {
        // No memory to keep it with: it is read again.
        kept.stamp = Stamp();
    }
}

}  // namespace korvande
