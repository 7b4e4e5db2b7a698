#include "host/modRegistry.h"

#include <algorithm>
#include <array>
#include <utility>

#include "host/RegistryCalls.h"

namespace korvande {

namespace {

// In the order of the hives' handles.
constexpr std::array<TextView, 4> hiveNames = {u"HKEY_CLASSES_ROOT", u"HKEY_CURRENT_USER", u"HKEY_LOCAL_MACHINE",
                                               u"HKEY_USERS"};

// Characters that a subkey's name may have, its end not counted.
constexpr std::size_t subKeyRoom = 299;

using OpenKeyEntry = std::pair<RegKey, Text>;

std::vector<OpenKeyEntry>& OpenKeys() {
    static std::vector<OpenKeyEntry> table;
    return table;
}

std::vector<OpenKeyEntry>::iterator FindOpenKey(RegKey key) {
    return std::find_if(OpenKeys().begin(), OpenKeys().end(), [key](const auto& entry) { return entry.first == key; });
}

void RememberKey(RegKey parent, TextView name, RegKey key) {
    const Text fullName = Concat(RegKeyName(parent), u"\\", name);
    const auto known = FindOpenKey(key);
    if (known == OpenKeys().end()) {
        OpenKeys().emplace_back(key, fullName);
    } else {
        known->second = fullName;
    }
}

}  // namespace

bool RegCreateSubKey(RegKey parent, TextView name, RegKey& key) {
    if (regcalls::CreateKey(parent, name, key) != regcodes::success) return false;
    RememberKey(parent, name, key);
    return true;
}

bool RegOpenSubKey(RegKey parent, TextView name, RegKey& key) {
    if (regcalls::OpenKey(parent, name, key) != regcodes::success) return false;
    RememberKey(parent, name, key);
    return true;
}

std::int32_t RegEnumSubKey(RegKey key, std::uint32_t index, Text& name) {
    name.clear();
    const std::int32_t result = regcalls::EnumKey(key, index, name);
    if (name.size() <= subKeyRoom) return result;
    name.clear();
    return regcodes::moreData;
}

bool RegCloseKeyHandle(RegKey key) {
    if (regcalls::CloseKey(key) != regcodes::success) return false;
    const auto known = FindOpenKey(key);
    if (known != OpenKeys().end()) OpenKeys().erase(known);
    return true;
}

bool RegKeyIsKnown(RegKey key) noexcept {
    return (key >= hives::classesRoot && key <= hives::users) || FindOpenKey(key) != OpenKeys().end();
}

Text RegKeyName(RegKey key) {
    if (key >= hives::classesRoot && key <= hives::users) return Text(hiveNames[key - hives::classesRoot]);
    const auto known = FindOpenKey(key);
    return known == OpenKeys().end() ? Text() : known->second;
}

std::int32_t RegQueryValue(RegKey key, TextView name, RegValue& value) {
    value = {};
    return regcalls::QueryValue(key, name, value);
}

std::int32_t RegSetTextValue(RegKey key, TextView name, TextView text) {
    return regcalls::SetTextValue(key, name, text);
}

}  // namespace korvande
