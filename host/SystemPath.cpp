#include "host/SystemPath.h"

#include <string>
#include <type_traits>

#include "core/NativePath.h"
#include "core/RuntimeError.h"

namespace korvande {

namespace {

namespace fs = std::filesystem;

// The library keeps paths as the system does: in our characters, or in bytes.
constexpr bool pathsAreWide = std::is_same_v<fs::path::value_type, wchar_t>;

}  // namespace

fs::path PathOf(TextView name) {
    if (name.find(u'\0') != TextView::npos) throw RuntimeError(errors::badFileName);
    if (pathsAreWide) return {std::wstring(name.begin(), name.end())};
    const std::string native = NativePath(name);
    return {std::u8string(native.begin(), native.end())};
}

Text NameOf(const fs::path& path) {
    if (pathsAreWide) return {path.native().begin(), path.native().end()};
    const std::u8string name = path.u8string();
    return FromUtf8(std::string(name.begin(), name.end()));
}

}  // namespace korvande
