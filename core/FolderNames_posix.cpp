#include "core/FolderNames.h"

#include <dirent.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdint>
#include <ctime>
#include <exception>
#include <memory>
#include <mutex>
#include <vector>

#include "core/CharacterSet.h"
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

// Of the capitals of a name; names that differ in case only have the same one.
std::uint64_t HashOfCapitals(std::string_view name) {
    constexpr std::uint64_t basis = 0xCBF29CE484222325;
    constexpr std::uint64_t prime = 0x100000001B3;
    std::uint64_t hash = basis;
    if (!HasHighByte(name)) {
        for (const char byte : name) hash = (hash ^ static_cast<unsigned char>(ToCapital(byte))) * prime;
        return hash;
    }
    for (const char16_t character : FromUtf8(name)) hash = (hash ^ ToCapital(character)) * prime;
    return hash;
}

// The names of a folder, in no order: reading a folder is most of the work, looking through what was read next to none.
class Names {
 public:
    void Add(std::string_view name) {
        entries.push_back({HashOfCapitals(name), bytes.size(), name.size()});
        bytes.append(name);
    }

    void Remove(std::string_view name) {
        std::erase_if(entries, [&](const Entry& entry) { return NameOf(entry) == name; });
    }

    // The first in order of those that differ from the wanted one in case only, or an empty one.
    std::string Find(std::string_view wanted) const {
        const std::uint64_t hash = HashOfCapitals(wanted);
        const Text capitals = ToCapitals(FromUtf8(wanted));
        std::string_view first;
        for (const Entry& entry : entries) {
            if (entry.hash != hash) continue;
            const std::string_view name = NameOf(entry);
            if ((first.empty() || name < first) && ToCapitals(FromUtf8(name)) == capitals) first = name;
        }
        return std::string(first);
    }

 private:
    struct Entry {
        std::uint64_t hash;
        std::size_t begin;  // in the bytes
        std::size_t size;
    };

    std::string_view NameOf(const Entry& entry) const {
        return std::string_view(bytes).substr(entry.begin, entry.size);
    }

    std::string bytes;
    std::vector<Entry> entries;
};

std::string_view FolderPart(std::string_view path) { return path.substr(0, path.rfind('/') + 1); }

// The folder that was looked into last.
struct Kept {
    std::string folder;
    Stamp stamp;
    Names names;
    system_clock::time_point readAt;
    bool isOwnState = false;  // this program was the last to change it
    bool isWhole = false;     // all of it was read
    bool isSettled = false;   // while its stamp is the same, so are its names
};

// The one value that translations share, whatever their thread: it only saves reading a folder again.
Kept kept;
std::mutex keptLock;

bool HasKept(const std::string& folder, const Stamp& stamp) {
    return stamp.number != 0 && kept.folder == folder && kept.stamp == stamp;
}

Names NamesIn(const std::string& folder) {
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(::opendir(folder.empty() ? "." : folder.c_str()), ::closedir);
    Names names;
    if (!entries) return names;
    while (const dirent* const entry = ::readdir(entries.get())) names.Add(entry->d_name);
    return names;
}

// Whether what was read just now, or a while ago, may be answered from.
bool IsFresh(system_clock::time_point now) {
    constexpr auto longest = std::chrono::seconds(2);
    constexpr auto longestUnsettled = std::chrono::milliseconds(100);
    const auto age = now - kept.readAt;
    return age >= system_clock::duration::zero() && age <= (kept.isSettled ? longest : longestUnsettled);
}

void Read(const std::string& folder, const Stamp& stamp, system_clock::time_point now) {
    kept.isOwnState = kept.isOwnState && HasKept(folder, stamp);
    kept.isWhole = false;
    // Of a folder that another program has changed just now a further change may not show.
    const bool isOld = stamp.seconds < system_clock::to_time_t(now) - 1;
    kept.names = NamesIn(folder);
    kept.folder = folder;
    kept.stamp = stamp;
    kept.readAt = now;
    kept.isSettled = kept.isOwnState || isOld;
    kept.isWhole = true;
}

}  // namespace

std::string FindWithoutCase(const std::string& folder, std::string_view wanted) {
    const std::lock_guard lock(keptLock);
    const Stamp stamp = StampOf(folder);
    const auto now = system_clock::now();
    if (!kept.isWhole || !HasKept(folder, stamp) || !IsFresh(now)) Read(folder, stamp, now);
    return kept.names.Find(wanted);
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
        const std::string_view name = std::string_view(path).substr(kept.folder.size());
        struct stat status {};
        kept.names.Remove(name);
        if (::lstat(path.c_str(), &status) == 0) kept.names.Add(name);
        kept.stamp = StampOf(kept.folder);
        kept.isOwnState = true;
    } catch (const std::exception&) {
        // No memory to keep it with: it is read again.
        kept.isWhole = kept.isOwnState = false;
    }
}

}  // namespace korvande
