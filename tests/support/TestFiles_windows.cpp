#include <process.h>
#include <stdlib.h>
#include <windows.h>

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

std::ptrdiff_t OpenFiles() {
    DWORD count = 0;
    ::GetProcessHandleCount(::GetCurrentProcess(), &count);
    return static_cast<std::ptrdiff_t>(count);
}

// A variable cannot be set to nothing: that is to be without it.
EnvironmentValue::EnvironmentValue(const char* variable, std::optional<std::string> value) : name(variable) {
    if (const char* const old = ::getenv(variable)) previous = old;
    ::_putenv_s(variable, value.value_or("").c_str());
}

EnvironmentValue::~EnvironmentValue() { ::_putenv_s(name.c_str(), previous.value_or("").c_str()); }

}  // namespace korvande::testing
