#include "tests/support/RunProgram.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <thread>

#include "tests/support/ChildProcess_windows.h"

// Without terminals and limits on the size of files, which this system does not know in this way.
namespace korvande::testing {

namespace {

Handle CreateOutput(const std::string& name) {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    Handle file(::CreateFileW(Wide(name).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                              CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    Require(file.Get() != INVALID_HANDLE_VALUE, name.c_str());
    return file;
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
