#include <windows.h>

#include <array>
#include <cstring>
#include <new>
#include <vector>

#include "core/WideText_windows.h"
#include "host/RegistryCalls.h"

// The registry calls of Windows.
namespace korvande::regcalls {

namespace {

// The system's handles of the hives are signed numbers of 32 bits.
HKEY SystemKey(RegKey key) {
    if (key < hives::classesRoot || key > hives::users) return reinterpret_cast<HKEY>(key);
    return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(static_cast<std::uint32_t>(key))));
}

RegKey OurKey(HKEY key) { return reinterpret_cast<RegKey>(key); }

// A handle that nobody opened may by chance be that of something else.
bool IsOpen(RegKey key) { return !RegKeyName(key).empty(); }

// To the system a name would end there.
bool HasNul(TextView name) { return name.find(u'\0') != TextView::npos; }

// Keys are opened with all the rights that the user has to them, so that one that may only be read can be read.
constexpr REGSAM allRights = MAXIMUM_ALLOWED;

template <class Action>
std::int32_t Guarded(Action action) noexcept {
    try {
        return static_cast<std::int32_t>(action());
    } catch (const std::bad_alloc&) {
        return ERROR_OUTOFMEMORY;
    }
}

// The text in a value's bytes, without the NUL character that should be at its end.
Text TextFrom(const std::vector<BYTE>& bytes) {
    Text text(bytes.size() / sizeof(char16_t), u'\0');
    std::memcpy(text.data(), bytes.data(), text.size() * sizeof(char16_t));
    if (text.ends_with(u'\0')) text.pop_back();
    return text;
}

}  // namespace

std::int32_t OpenKey(RegKey parent, TextView name, RegKey& key) {
    return Guarded([&]() -> LSTATUS {
        if (!IsOpen(parent)) return regcodes::invalidHandle;
        if (HasNul(name)) return ERROR_INVALID_PARAMETER;
        HKEY opened = nullptr;
        const LSTATUS result = ::RegOpenKeyExW(SystemKey(parent), ToWide(name).c_str(), 0, allRights, &opened);
        if (result == ERROR_SUCCESS) key = OurKey(opened);
        return result;
    });
}

std::int32_t CreateKey(RegKey parent, TextView name, RegKey& key) {
    return Guarded([&]() -> LSTATUS {
        if (!IsOpen(parent)) return regcodes::invalidHandle;
        if (HasNul(name)) return ERROR_INVALID_PARAMETER;
        HKEY created = nullptr;
        const LSTATUS result = ::RegCreateKeyExW(SystemKey(parent), ToWide(name).c_str(), 0, nullptr,
                                                 REG_OPTION_NON_VOLATILE, allRights, nullptr, &created, nullptr);
        if (result == ERROR_SUCCESS) key = OurKey(created);
        return result;
    });
}

std::int32_t CloseKey(RegKey key) {
    return IsOpen(key) ? static_cast<std::int32_t>(::RegCloseKey(SystemKey(key))) : regcodes::invalidHandle;
}

std::int32_t EnumKey(RegKey key, std::uint32_t index, Text& name) {
    return Guarded([&]() -> LSTATUS {
        if (!IsOpen(key)) return regcodes::invalidHandle;
        std::array<wchar_t, 300> buffer{};
        auto length = static_cast<DWORD>(buffer.size());
        const LSTATUS result =
            ::RegEnumKeyExW(SystemKey(key), index, buffer.data(), &length, nullptr, nullptr, nullptr, nullptr);
        if (result == ERROR_SUCCESS) name = FromWide({buffer.data(), length});
        return result;
    });
}

std::int32_t QueryValue(RegKey key, TextView name, RegValue& value) {
    return Guarded([&]() -> LSTATUS {
        if (!IsOpen(key)) return regcodes::invalidHandle;
        if (HasNul(name)) return regcodes::notFound;
        const std::wstring wideName = ToWide(name);
        std::vector<BYTE> bytes(2048);
        DWORD type = REG_NONE;
        LSTATUS result = ERROR_MORE_DATA;
        // Another program may make the value longer between two tries.
        while (result == ERROR_MORE_DATA) {
            auto size = static_cast<DWORD>(bytes.size());
            result = ::RegQueryValueExW(SystemKey(key), wideName.c_str(), nullptr, &type, bytes.data(), &size);
            bytes.resize(size);
        }
        if (result != ERROR_SUCCESS) return result;
        if (type == REG_SZ) {
            value.type = RegValueType::String;
            value.text = TextFrom(bytes);
        } else if (type == REG_DWORD && bytes.size() == sizeof value.doubleWord) {
            value.type = RegValueType::DoubleWord;
            std::memcpy(&value.doubleWord, bytes.data(), sizeof value.doubleWord);
        }
        return result;
    });
}

std::int32_t SetTextValue(RegKey key, TextView name, TextView text) {
    return Guarded([&]() -> LSTATUS {
        if (!IsOpen(key)) return regcodes::invalidHandle;
        if (HasNul(name)) return ERROR_INVALID_PARAMETER;
        const std::wstring wide = ToWide(text);
        const auto size = static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t));
        return ::RegSetValueExW(SystemKey(key), ToWide(name).c_str(), 0, REG_SZ,
                                reinterpret_cast<const BYTE*>(wide.c_str()), size);
    });
}

}  // namespace korvande::regcalls
