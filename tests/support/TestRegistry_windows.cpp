#include <windows.h>

#include <array>
#include <string>

#include "core/WideText_windows.h"
#include "tests/support/TestRegistry.h"

namespace korvande::testing {

namespace {

void Expect(LSTATUS result, const char* call) { EXPECT_EQ(result, ERROR_SUCCESS) << call; }

void SetData(TextView key, TextView valueName, DWORD type, const void* data, std::size_t size) {
    TestRegistry::AddKey(key);
    Expect(::RegSetKeyValueW(HKEY_CURRENT_USER, ToWide(key).c_str(), ToWide(valueName).c_str(), type, data,
                             static_cast<DWORD>(size)),
           "RegSetKeyValue");
}

// A key's values and subkeys, a line for each, behind the key's name.
std::string Described(HKEY key, const std::wstring& name) {
    std::string text;
    std::array<wchar_t, 16384> itemName;
    std::array<BYTE, 16384> data;
    auto length = static_cast<DWORD>(itemName.size());
    auto size = static_cast<DWORD>(data.size());
    DWORD type = 0;
    for (DWORD i = 0; ::RegEnumValueW(key, i, itemName.data(), &length, nullptr, &type, data.data(), &size) == 0; ++i) {
        text += ToUtf8(FromWide(name + L"@" + itemName.data())) + "=" + std::to_string(type) + ":";
        text.append(reinterpret_cast<const char*>(data.data()), size).push_back('\n');
        length = static_cast<DWORD>(itemName.size());
        size = static_cast<DWORD>(data.size());
    }
    for (DWORD i = 0; ::RegEnumKeyW(key, i, itemName.data(), static_cast<DWORD>(itemName.size())) == 0; ++i) {
        const std::wstring subKeyName = name + L"\\" + itemName.data();
        HKEY subKey = nullptr;
        Expect(::RegOpenKeyExW(key, itemName.data(), 0, KEY_READ, &subKey), "RegOpenKeyEx");
        text += ToUtf8(FromWide(subKeyName)) + "\n" + Described(subKey, subKeyName);
        ::RegCloseKey(subKey);
    }
    return text;
}

}  // namespace

struct TestRegistry::Place {
    std::wstring name;
    HKEY key = nullptr;
};

TestRegistry::TestRegistry(const TestFolder&) : place(new Place) {
    place->name = L"Software\\korvande-test-" + std::to_wstring(ProcessNumber());
    ::RegDeleteTreeW(HKEY_CURRENT_USER, place->name.c_str());
    Expect(::RegCreateKeyExW(HKEY_CURRENT_USER, place->name.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                             KEY_ALL_ACCESS, nullptr, &place->key, nullptr),
           "RegCreateKeyEx");
    Expect(::RegOverridePredefKey(HKEY_CURRENT_USER, place->key), "RegOverridePredefKey");
}

TestRegistry::~TestRegistry() {
    Expect(::RegOverridePredefKey(HKEY_CURRENT_USER, nullptr), "RegOverridePredefKey");
    Expect(::RegCloseKey(place->key), "RegCloseKey");
    Expect(::RegDeleteTreeW(HKEY_CURRENT_USER, place->name.c_str()), "RegDeleteTree");
}

void TestRegistry::SetDoubleWord(TextView key, TextView valueName, std::uint32_t number) {
    SetData(key, valueName, REG_DWORD, &number, sizeof number);
}

void TestRegistry::SetBytes(TextView key, TextView valueName) { SetData(key, valueName, REG_BINARY, "\1\2", 2); }

void TestRegistry::SetRawText(TextView key, TextView valueName, TextView text) {
    const std::wstring wide = ToWide(text);
    SetData(key, valueName, REG_SZ, wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
}

std::string TestRegistry::Contents() const { return Described(place->key, L""); }

}  // namespace korvande::testing
