#include "core/CaseVariants.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

#include "core/CharacterSet.h"
#include "core/Text.h"

namespace korvande {

namespace {

constexpr std::size_t mostLetters = 12;

bool IsLetter(char byte) { return ToCapital(byte) >= 'A' && ToCapital(byte) <= 'Z'; }

// An open folder, or none.
class Folder {
 public:
    explicit Folder(const std::string& path)
        : descriptor(::open(path.empty() ? "." : path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() {
        if (descriptor >= 0) ::close(descriptor);
    }

    bool IsOpen() const { return descriptor >= 0; }

    // 0 when the name is there, else the system's error number.
    int Look(const std::string& name) const {
        struct stat status {};
        return ::fstatat(descriptor, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 ? 0 : errno;
    }

 private:
    int descriptor;
};

}  // namespace

std::size_t CaseVariantCount(std::string_view name) noexcept {
    if (HasHighByte(name) || name.find('\0') != std::string_view::npos) return 0;
    std::size_t letters = 0;
    for (const char byte : name) letters += IsLetter(byte) ? 1 : 0;
    return letters > mostLetters ? 0 : std::size_t{1} << letters;
}

bool TryCaseVariants(const std::string& folder, std::string_view name, std::vector<std::string>& found) {
    const Folder open(folder);
    if (!open.IsOpen()) return false;
    std::string variant = ToCapitals(std::string(name));
    std::vector<std::size_t> letters;
    for (std::size_t i = 0; i < variant.size(); ++i) {
        if (IsLetter(variant[i])) letters.push_back(i);
    }
    const std::size_t count = CaseVariantCount(name);
    for (std::size_t spelling = 0; spelling < count; ++spelling) {
        for (std::size_t i = 0; i < letters.size(); ++i) {
            constexpr char small = 'a' - 'A';
            const char capital = ToCapital(variant[letters[i]]);
            const bool isSmall = (spelling >> i & 1) != 0;
            variant[letters[i]] = isSmall ? static_cast<char>(capital + small) : capital;
        }
        const int error = open.Look(variant);
        if (error == 0) found.push_back(variant);
        if (error != 0 && error != ENOENT) return false;
    }
    return count != 0;
}

}  // namespace korvande
