// Runs a program with the streams of the console that this one is started in: InConsole PROGRAM [ARGUMENT...]
// A test's own streams would reach the program otherwise. Sends the console an interrupt, as Ctrl+C does, when the test
// sets the event that KORVANDE_INTERRUPT names: only who is in a console can do so.
#include <windows.h>

#include <array>
#include <string>

namespace {

// Interrupts are the program's affair.
BOOL WINAPI LeaveInterrupts(DWORD) { return TRUE; }

HANDLE Open(const wchar_t* name) {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    return ::CreateFileW(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                         OPEN_EXISTING, 0, nullptr);
}

}  // namespace

int main() {
    constexpr int cannotStart = 99;
    ::SetConsoleCtrlHandler(LeaveInterrupts, TRUE);
    // The test has put every word between quotes.
    std::wstring command = ::GetCommandLineW();
    command.erase(0, command.find(L"\" \"") + 2);
    STARTUPINFOW how{};
    how.cb = sizeof how;
    how.dwFlags = STARTF_USESTDHANDLES;
    how.hStdInput = Open(L"CONIN$");
    how.hStdOutput = how.hStdError = Open(L"CONOUT$");
    PROCESS_INFORMATION process{};
    if (::CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &how, &process) == 0) {
        return cannotStart;
    }
    std::array<wchar_t, 100> eventName{};
    ::GetEnvironmentVariableW(L"KORVANDE_INTERRUPT", eventName.data(), static_cast<DWORD>(eventName.size()));
    const std::array<HANDLE, 2> awaited = {process.hProcess, ::OpenEventW(SYNCHRONIZE, FALSE, eventName.data())};
    while (::WaitForMultipleObjects(2, awaited.data(), FALSE, INFINITE) == WAIT_OBJECT_0 + 1) {
        ::GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
    }
    DWORD status = 0;
    ::GetExitCodeProcess(process.hProcess, &status);
    return static_cast<int>(status);
}
