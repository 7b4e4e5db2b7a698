#include "tests/support/ChildProcess_windows.h"

#include <stdexcept>

#include "core/WideText_windows.h"

namespace korvande::testing {

namespace {

// A word in the form from which the program gets it back as it is.
std::wstring Quoted(const std::wstring& word) {
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t character : word) {
        // Before a quote, those are escapes.
        if (character == L'"') quoted.append(backslashes + 1, L'\\');
        backslashes = character == L'\\' ? backslashes + 1 : 0;
        quoted.push_back(character);
    }
    return quoted.append(backslashes, L'\\') + L'"';
}

}  // namespace

void Require(bool success, const char* what) {
    if (!success) throw std::runtime_error(std::string(what) + ": error " + std::to_string(::GetLastError()));
}

std::wstring Wide(const std::string& utf8) { return ToWide(FromUtf8(utf8)); }

Pipe MakePipe(bool programReads) {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE reading = nullptr;
    HANDLE writing = nullptr;
    Require(::CreatePipe(&reading, &writing, &inherited, 0) != 0, "CreatePipe");
    ::SetHandleInformation(programReads ? writing : reading, HANDLE_FLAG_INHERIT, 0);
    return {Handle(reading), Handle(writing)};
}

std::wstring CommandOf(const Start& start) {
    std::wstring command = Quoted(Wide(start.program));
    for (const std::string& argument : start.arguments) command += L' ' + Quoted(Wide(argument));
    return command;
}

std::wstring EnvironmentOf(const Start& start) {
    std::wstring block;
    wchar_t* const own = ::GetEnvironmentStringsW();
    for (const wchar_t* variable = own; *variable != L'\0'; variable += std::wstring_view(variable).size() + 1) {
        const std::string text = ToUtf8(FromWide(variable));
        if (start.environment.count(text.substr(0, text.find('=', 1))) == 0) block.append(variable).push_back(L'\0');
    }
    ::FreeEnvironmentStringsW(own);
    for (const auto& [name, value] : start.environment) {
        if (value) block.append(Wide(name + "=" + *value)).push_back(L'\0');
    }
    block.push_back(L'\0');
    return block;
}

}  // namespace korvande::testing
