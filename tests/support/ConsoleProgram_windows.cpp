#include "tests/support/ConsoleProgram_windows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <mutex>
#include <thread>
#include <vector>

#include "tests/support/ChildProcess_windows.h"

namespace korvande::testing {

namespace {

constexpr int patience = 30000;  // milliseconds

// A console that is shown nowhere: what would be is read from one pipe, its keyboard is the other.
class Console {
 public:
    Console(HANDLE keyboard, HANDLE screen) {
        constexpr COORD size = {200, 50};
        Require(SUCCEEDED(::CreatePseudoConsole(size, keyboard, screen, 0, &handle)), "CreatePseudoConsole");
    }
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;
    ~Console() { Close(); }

    HPCON Get() const { return handle; }
    void Close() {
        if (handle != nullptr) ::ClosePseudoConsole(handle);
        handle = nullptr;
    }

 private:
    HPCON handle = nullptr;
};

const std::string interruptName = "korvande-interrupt-" + std::to_string(::GetCurrentProcessId());

// Starts the helper that gives the program the console's own streams, in this console.
Handle StartIn(const Console& console, Start start) {
    start.arguments.insert(start.arguments.begin(), start.program);
    start.program = KORVANDE_IN_CONSOLE;
    start.environment["KORVANDE_INTERRUPT"] = interruptName;

    SIZE_T size = 0;
    ::InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    std::vector<char> attributes(size);
    STARTUPINFOEXW how{};
    how.StartupInfo.cb = sizeof how;
    how.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
    how.lpAttributeList = reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(attributes.data());
    Require(::InitializeProcThreadAttributeList(how.lpAttributeList, 1, 0, &size) != 0, "attributes");
    Require(::UpdateProcThreadAttribute(how.lpAttributeList, 0, PROC_THREAD_ATTRIBUTE_PSEUDOCONSOLE, console.Get(),
                                        sizeof(HPCON), nullptr, nullptr) != 0,
            "console");
    PROCESS_INFORMATION process{};
    std::wstring command = CommandOf(start);
    std::wstring environment = EnvironmentOf(start);
    const std::wstring folder = Wide(start.folder);
    Require(::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE,
                             EXTENDED_STARTUPINFO_PRESENT | CREATE_UNICODE_ENVIRONMENT, environment.data(),
                             folder.empty() ? nullptr : folder.c_str(), &how.StartupInfo, &process) != 0,
            start.program.c_str());
    ::CloseHandle(process.hThread);
    return Handle(process.hProcess);
}

// The text of a screen whose cursor never goes back: a move to the right is blanks.
std::string WithoutSequences(const std::string& bytes) {
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] == '\r') continue;
        if (bytes.compare(i, 2, "\x1B[") != 0) {
            text.push_back(bytes[i]);
            continue;
        }
        const std::size_t numbers = i + 2;
        i = std::min(bytes.find_first_not_of("?;0123456789", numbers), bytes.size() - 1);
        if (bytes[i] == 'C') {
            text.append(static_cast<std::size_t>(std::max(std::atoi(bytes.c_str() + numbers), 1)), ' ');
        }
    }
    return text;
}

}  // namespace

struct ConsoleProgram::Parts {
    explicit Parts(const Start& start) : program(StartIn(console, start)) {
        keyboard.reading.Close();
        screen.writing.Close();
        reader = std::thread([this] { Read(); });
    }

    void Read() {
        std::array<char, 4096> buffer;
        DWORD count = 0;
        while (::ReadFile(screen.reading.Get(), buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr) !=
                   0 &&
               count > 0) {
            const std::lock_guard lock(mutex);
            bytes.append(buffer.data(), count);
        }
    }

    Handle interrupt{::CreateEventW(nullptr, FALSE, FALSE, Wide(interruptName).c_str())};
    Pipe keyboard = MakePipe(true);
    Pipe screen = MakePipe(false);
    Console console{keyboard.reading.Get(), screen.writing.Get()};
    Handle program;
    std::thread reader;
    std::mutex mutex;
    std::string bytes;
};

ConsoleProgram::ConsoleProgram(const Start& start) : parts(std::make_unique<Parts>(start)) {}

ConsoleProgram::~ConsoleProgram() {
    ::TerminateProcess(parts->program.Get(), 1);
    parts->console.Close();
    if (parts->reader.joinable()) parts->reader.join();
}

void ConsoleProgram::Type(std::string_view keys) const {
    DWORD written = 0;
    Require(::WriteFile(parts->keyboard.writing.Get(), keys.data(), static_cast<DWORD>(keys.size()), &written,
                        nullptr) != 0,
            "the keyboard");
}

void ConsoleProgram::Interrupt() const { Require(::SetEvent(parts->interrupt.Get()) != 0, "the interrupt"); }

void ConsoleProgram::WaitForText(const std::string& text) const {
    for (int waited = 0; Shown().find(text) == std::string::npos; waited += 10) {
        ASSERT_LT(waited, patience) << "not shown: " << text << "\n" << Shown();
        ::Sleep(10);
    }
}

int ConsoleProgram::Wait() {
    EXPECT_EQ(::WaitForSingleObject(parts->program.Get(), patience), WAIT_OBJECT_0) << Shown();
    DWORD status = 0;
    ::GetExitCodeProcess(parts->program.Get(), &status);
    // Only a console that goes has shown everything.
    parts->console.Close();
    parts->reader.join();
    return static_cast<int>(status);
}

std::string ConsoleProgram::Shown() const {
    const std::lock_guard lock(parts->mutex);
    return WithoutSequences(parts->bytes);
}

}  // namespace korvande::testing
