#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "host/RegistryCalls.h"
#include "host/RegistryFile.h"
#include "host/modFileHandling.h"

// The registry where the system has none: a text file, read anew at every call so that programs that run side by side
// see each other's changes. Which key a handle stands for is taken from the table of open keys.
namespace korvande::regcalls {

namespace {

constexpr std::int32_t failed = 1;
constexpr std::int32_t invalidParameter = 87;
constexpr std::size_t longestKeyName = 255;

const char* Variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr || *value == '\0' ? nullptr : value;
}

// The user's configuration folder, by the XDG rules: a relative one does not count.
std::string ConfigurationFolder() {
    if (const char* const folder = Variable("XDG_CONFIG_HOME"); folder != nullptr && *folder == '/') return folder;
    if (const char* const home = Variable("HOME")) return std::string(home) + "/.config";
    throw RuntimeError(errors::pathNotFound);
}

Text FileName() {
    if (const char* const name = Variable("KORVANDE_REGISTRY")) return FromUtf8(name);
    return FromUtf8(ConfigurationFolder() + "/korvande/registry.reg");
}

void Save(const RegistryFile& file) {
    // A folder that somebody named is theirs to make.
    if (Variable("KORVANDE_REGISTRY") == nullptr) {
        std::filesystem::create_directories(ConfigurationFolder() + "/korvande");
    }
    file.Save();
}

bool HasControlCharacter(TextView text) {
    return std::any_of(text.begin(), text.end(), [](char16_t c) { return c < u' ' && c != u'\t'; });
}

// The full name of a key, without a "\" at its end; empty for a handle that is not open.
Text NameOf(RegKey key) {
    Text name = RegKeyName(key);
    while (name.ends_with(u'\\')) name.pop_back();
    return name;
}

// The same of a key below another one; empty when the name cannot be one.
Text NameBelow(RegKey parent, TextView name) {
    Text parentName = NameOf(parent);
    while (name.ends_with(u'\\')) name.remove_suffix(1);
    if (parentName.empty() || HasControlCharacter(name)) return {};
    if (name.empty()) return parentName;
    for (TextView rest = name; !rest.empty();) {
        const std::size_t end = std::min(rest.find(u'\\'), rest.size());
        if (end == 0 || end > longestKeyName) return {};
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return Concat(parentName, u"\\", name);
}

bool IsHive(TextView name) { return name.find(u'\\') == TextView::npos; }

RegKey NewHandle() {
    static RegKey last = 0;
    return ++last;
}

template <class Action>
std::int32_t Guarded(Action action) noexcept {
    try {
        return action();
    } catch (const std::exception&) {
        return failed;
    }
}

}  // namespace

std::int32_t OpenKey(RegKey parent, TextView name, RegKey& key) {
    return Guarded([&] {
        const Text fullName = NameBelow(parent, name);
        if (fullName.empty()) return invalidParameter;
        if (!IsHive(fullName) && !RegistryFile(FileName()).HasKey(fullName)) return regcodes::notFound;
        key = NewHandle();
        return regcodes::success;
    });
}

std::int32_t CreateKey(RegKey parent, TextView name, RegKey& key) {
    return Guarded([&] {
        const Text fullName = NameBelow(parent, name);
        if (fullName.empty()) return invalidParameter;
        RegistryFile file(FileName());
        if (!IsHive(fullName) && !file.HasKey(fullName)) {
            file.AddKey(fullName);
            Save(file);
        }
        key = NewHandle();
        return regcodes::success;
    });
}

std::int32_t CloseKey(RegKey key) { return RegKeyIsKnown(key) ? regcodes::success : regcodes::invalidHandle; }

std::int32_t EnumKey(RegKey key, std::uint32_t index, Text& name) {
    return Guarded([&] {
        const Text fullName = NameOf(key);
        if (fullName.empty()) return regcodes::invalidHandle;
        const std::vector<Text> subKeys = RegistryFile(FileName()).SubKeys(fullName);
        if (index >= subKeys.size()) return regcodes::noMoreItems;
        name = subKeys[index];
        return regcodes::success;
    });
}

std::int32_t QueryValue(RegKey key, TextView name, RegValue& value) {
    return Guarded([&] {
        const Text fullName = NameOf(key);
        if (fullName.empty()) return regcodes::invalidHandle;
        const std::optional<RegValue> found = RegistryFile(FileName()).FindValue(fullName, name);
        if (!found) return regcodes::notFound;
        value = *found;
        return regcodes::success;
    });
}

std::int32_t SetTextValue(RegKey key, TextView name, TextView text) {
    return Guarded([&] {
        const Text fullName = NameOf(key);
        if (fullName.empty()) return regcodes::invalidHandle;
        // The file has no way to write these.
        if (HasControlCharacter(name) || HasControlCharacter(text)) return invalidParameter;
        RegistryFile file(FileName());
        if (!IsHive(fullName) && !file.HasKey(fullName)) return regcodes::notFound;
        file.SetText(fullName, name, text);
        Save(file);
        return regcodes::success;
    });
}

}  // namespace korvande::regcalls
