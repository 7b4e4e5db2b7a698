#include "core/FolderNames.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <ctime>
#include <exception>
#include <memory>
#include <mutex>
#include <vector>

#include "core/CaseVariants.h"
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
    off_t bytes = 0;  // that its list of names takes, of which it tells nothing else

    bool operator==(const Stamp& other) const {
        return device == other.device && number == other.number && seconds == other.seconds &&
               nanoseconds == other.nanoseconds;
    }
};

Stamp StampOf(const std::string& folder) {
    struct stat status {};
    if (::stat(folder.empty() ? "." : folder.c_str(), &status) != 0) return {};
    return {status.st_dev, status.st_ino, status.st_mtim.tv_sec, status.st_mtim.tv_nsec, status.st_size};
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
    std::vector<std::string> asked;  // in capitals, the names that it was asked for, each in all spellings
    std::size_t looks = 0;           // that it was asked for them
    system_clock::time_point readAt;
    bool isOwnState = false;  // this program was the last to change it
    bool isTrue = false;      // what is kept of it
    bool isRead = false;      // all of it was read
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

// Begins anew with a folder of which nothing is known.
void Begin(const std::string& folder, const Stamp& stamp, system_clock::time_point now) {
    kept.isOwnState = kept.isOwnState && HasKept(folder, stamp);
    kept.isTrue = kept.isRead = false;
    // Of a folder that another program has changed just now a further change may not show.
    const bool isOld = stamp.seconds < system_clock::to_time_t(now) - 1;
    kept.names = Names();
    kept.asked.clear();
    kept.looks = 0;
    kept.folder = folder;
    kept.stamp = stamp;
    kept.readAt = now;
    kept.isSettled = kept.isOwnState || isOld;
    kept.isTrue = true;
}

void Read(const std::string& folder, const Stamp& stamp, system_clock::time_point now) {
    Begin(folder, stamp, now);
    kept.names = NamesIn(folder);
    kept.isRead = true;
}

// Of a folder with very many names: asks for each spelling of the wanted one, unless all that are asked for would take
// longer than reading it. A look takes as long as reading three or four names of some thirty bytes.
bool AskFor(const std::string& folder, std::string_view wanted) {
    constexpr off_t smallest = off_t{1} << 16;
    constexpr std::size_t bytesOfLook = 128;
    const std::size_t looks = CaseVariantCount(wanted);
    const off_t bytes = kept.stamp.bytes;
    if (looks == 0 || bytes < smallest || (kept.looks + looks) * bytesOfLook > static_cast<std::size_t>(bytes))
        return false;
    std::vector<std::string> found;
    if (!TryCaseVariants(folder, wanted, found)) return false;
    for (const std::string& name : found) kept.names.Add(name);
    kept.asked.push_back(ToCapitals(std::string(wanted)));
    kept.looks += looks;
    return true;
}

bool Knows(std::string_view wanted) {
    return kept.isRead ||
           std::find(kept.asked.begin(), kept.asked.end(), ToCapitals(std::string(wanted))) != kept.asked.end();
}

}  // namespace

std::string FindWithoutCase(const std::string& folder, std::string_view wanted) {
    const std::lock_guard lock(keptLock);
    const Stamp stamp = StampOf(folder);
    const auto now = system_clock::now();
    if (!kept.isTrue || !HasKept(folder, stamp) || !IsFresh(now)) Begin(folder, stamp, now);
    if (!Knows(wanted) && !AskFor(folder, wanted)) Read(folder, stamp, now);
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
        kept.isTrue = kept.isOwnState = false;
    }
}

}  // namespace korvande
