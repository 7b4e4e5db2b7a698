#include <gtest/gtest.h>
#include <process.h>
#include <stdlib.h>
#include <windows.h>

#include <algorithm>
#include <array>

#include "core/WideText_windows.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

int ProcessNumber() { return ::_getpid(); }

Text TestProgram() {
    std::array<wchar_t, 1024> name{};
    auto length = static_cast<DWORD>(name.size());
    ::QueryFullProcessImageNameW(::GetCurrentProcess(), 0, name.data(), &length);
    return FromWide({name.data(), length});
}

// A variable cannot be set to nothing: that is to be without it.
EnvironmentValue::EnvironmentValue(const char* variable, std::optional<std::string> value) : name(variable) {
    if (const char* const old = ::getenv(variable)) previous = old;
    ::_putenv_s(variable, value.value_or("").c_str());
}

EnvironmentValue::~EnvironmentValue() { ::_putenv_s(name.c_str(), previous.value_or("").c_str()); }

// It stands for the folder in the programs that a test starts, too.
DriveFolder::DriveFolder(char itsLetter, const std::string& folder) : letter(itsLetter) {
    const std::wstring drive = {static_cast<wchar_t>(letter), L':'};
    std::wstring target = ToWide(FromUtf8(folder));
    std::replace(target.begin(), target.end(), L'/', L'\\');
    EXPECT_NE(::DefineDosDeviceW(0, drive.c_str(), target.c_str()), 0);
}

DriveFolder::~DriveFolder() {
    const std::wstring drive = {static_cast<wchar_t>(letter), L':'};
    EXPECT_NE(::DefineDosDeviceW(DDD_REMOVE_DEFINITION, drive.c_str(), nullptr), 0);
}

}  // namespace korvande::testing
