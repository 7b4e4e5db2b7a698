#include "tests/support/RunProgram.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <stdexcept>
#include <thread>
#include <utility>

#include "core/WideText_windows.h"

// Without terminals and limits on the size of files, which this system does not know in this way.
namespace korvande::testing {

namespace {

void Require(bool success, const char* what) {
    if (!success) throw std::runtime_error(std::string(what) + ": error " + std::to_string(::GetLastError()));
}

std::wstring Wide(const std::string& utf8) { return ToWide(FromUtf8(utf8)); }

// A handle of the system, closed with this object.
class Handle {
 public:
    Handle() = default;
    explicit Handle(HANDLE itsHandle) : handle(itsHandle) {}
    Handle(Handle&& other) noexcept : handle(std::exchange(other.handle, nullptr)) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(handle, other.handle);
        return *this;
    }
    ~Handle() { Close(); }

    HANDLE Get() const { return handle; }
    void Close() {
        if (handle != nullptr && handle != INVALID_HANDLE_VALUE) ::CloseHandle(handle);
        handle = nullptr;
    }

 private:
    HANDLE handle = nullptr;
};

struct Pipe {
    Handle reading;
    Handle writing;
};

// A pipe of which the program gets one end.
Pipe MakePipe(bool programReads) {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE reading = nullptr;
    HANDLE writing = nullptr;
    Require(::CreatePipe(&reading, &writing, &inherited, 0) != 0, "CreatePipe");
    ::SetHandleInformation(programReads ? writing : reading, HANDLE_FLAG_INHERIT, 0);
    return {Handle(reading), Handle(writing)};
}

Handle CreateOutput(const std::string& name) {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    Handle file(::CreateFileW(Wide(name).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                              CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    Require(file.Get() != INVALID_HANDLE_VALUE, name.c_str());
    return file;
}

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

std::wstring CommandOf(const Start& start) {
    std::wstring command = Quoted(Wide(start.program));
    for (const std::string& argument : start.arguments) command += L' ' + Quoted(Wide(argument));
    return command;
}

// The test's own variables with the changes, each ended by a NUL character, and one more behind the last.
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

void Feed(HANDLE pipe, const std::string& text) {
    DWORD written = 0;
    if (!text.empty()) ::WriteFile(pipe, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

std::string ReadAll(HANDLE pipe) {
    std::string text;
    std::array<char, 65536> buffer;
    DWORD count = 0;
    while (::ReadFile(pipe, buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr) != 0 && count > 0) {
        text.append(buffer.data(), count);
    }
    return text;
}

// Starts the program with these streams; a stream without a handle is not there.
Handle StartProgram(const Start& start, HANDLE input, HANDLE output, HANDLE error) {
    std::array<HANDLE, 3> streams = {input, output, error};
    for (const int closed : start.closedStreams) streams[static_cast<std::size_t>(closed)] = nullptr;
    STARTUPINFOW how{};
    how.cb = sizeof how;
    how.dwFlags = STARTF_USESTDHANDLES;
    how.hStdInput = streams[0];
    how.hStdOutput = streams[1];
    how.hStdError = streams[2];
    PROCESS_INFORMATION process{};
    std::wstring command = CommandOf(start);
    std::wstring environment = EnvironmentOf(start);
    const std::wstring folder = Wide(start.folder);
    Require(::CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, CREATE_UNICODE_ENVIRONMENT,
                             environment.data(), folder.empty() ? nullptr : folder.c_str(), &how, &process) != 0,
            start.program.c_str());
    ::CloseHandle(process.hThread);
    return Handle(process.hProcess);
}

}  // namespace

ProgramResult RunProgram(const Start& start) {
    EXPECT_TRUE(start.terminal == Terminal::None && !start.largestFile) << "not on this system";
    Pipe input = MakePipe(true);
    Pipe output = MakePipe(false);
    Pipe error = MakePipe(false);
    if (!start.outputFile.empty()) output.writing = CreateOutput(start.outputFile);
    const Handle process = StartProgram(start, input.reading.Get(), output.writing.Get(), error.writing.Get());
    input.reading.Close();
    output.writing.Close();
    error.writing.Close();

    ProgramResult result;
    std::thread feeder([&] {
        Feed(input.writing.Get(), start.input);
        input.writing.Close();
    });
    std::thread outputReader([&] { result.output = ReadAll(output.reading.Get()); });
    std::thread errorReader([&] { result.error = ReadAll(error.reading.Get()); });
    const auto limit = std::chrono::duration_cast<std::chrono::milliseconds>(start.timeLimit);
    if (::WaitForSingleObject(process.Get(), static_cast<DWORD>(limit.count())) != WAIT_OBJECT_0) {
        ADD_FAILURE() << start.program << " takes longer than " << start.timeLimit.count() << " s";
        ::TerminateProcess(process.Get(), 1);
    }
    for (std::thread* const thread : {&feeder, &outputReader, &errorReader}) thread->join();
    DWORD status = 0;
    ::GetExitCodeProcess(process.Get(), &status);
    result.status = static_cast<int>(status);
    return result;
}

}  // namespace korvande::testing
