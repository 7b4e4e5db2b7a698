#pragma once

#include <cstdint>
#include <vector>

#include "core/Text.h"

// The registry: keys below four hives, each with values. On Windows it is the system's; elsewhere a text file takes its
// place. Names of keys and values ignore case. A table remembers the full name of every key that is open, so that a
// handle can be told in a readable way.
namespace korvande {

// The handle of an open key; the hives are always open.
using RegKey = std::uintptr_t;

namespace hives {
inline constexpr RegKey classesRoot = 0x80000000U;
inline constexpr RegKey currentUser = 0x80000001U;
inline constexpr RegKey localMachine = 0x80000002U;
inline constexpr RegKey users = 0x80000003U;
}  // namespace hives

// The system's result codes that callers tell apart.
namespace regcodes {
inline constexpr std::int32_t success = 0;
inline constexpr std::int32_t notFound = 2;
inline constexpr std::int32_t invalidHandle = 6;
inline constexpr std::int32_t moreData = 234;  // longer than the caller has room for
inline constexpr std::int32_t noMoreItems = 259;
}  // namespace regcodes

enum class RegValueType { String = 1, DoubleWord = 4, Other = 0 };

// What is stored under a value name. Of a value that is neither text nor double word only its being there is known.
struct RegValue {
    RegValueType type = RegValueType::Other;
    Text text;
    std::uint32_t doubleWord = 0;
};

// Creates a key below another one, or opens it when it is there; its parents too when the name has several parts.
// False when that fails.
bool RegCreateSubKey(RegKey parent, TextView name, RegKey& key);

// Opens a key below another one; false when there is none.
bool RegOpenSubKey(RegKey parent, TextView name, RegKey& key);

// The name of the subkey at an index from 0, of at most 299 characters: 0, or the system's code (259 behind the last).
std::int32_t RegEnumSubKey(RegKey key, std::uint32_t index, Text& name);

// Closes a key; false for a handle that is not open. A closed handle has no name any more, for the system may give its
// number to another key.
bool RegCloseKeyHandle(RegKey key);

// Whether a handle is a hive's or that of an open key.
bool RegKeyIsKnown(RegKey key) noexcept;

// The full name, such as "HKEY_CURRENT_USER\Software"; empty for a handle that is not open.
Text RegKeyName(RegKey key);

// Reads a value of an open key ("" is its default value), and writes a text: 0 or the system's code.
std::int32_t RegQueryValue(RegKey key, TextView name, RegValue& value);
std::int32_t RegSetTextValue(RegKey key, TextView name, TextView text);

}  // namespace korvande
