#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <atomic>
#include <cstdio>

#include "cli/Process.h"

namespace korvande {

namespace {

std::atomic<bool> interrupted = false;

// Called in a thread of its own.
BOOL WINAPI NoteInterrupt(DWORD event) {
    interrupted = true;
    // When the window or the session is closed, the process ends as soon as this returns: leave the run the time that
    // the system grants, to clean up and to end by itself.
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) ::Sleep(INFINITE);
    return TRUE;
}

bool IsConsole(DWORD stream) {
    DWORD mode = 0;
    return ::GetConsoleMode(::GetStdHandle(stream), &mode) != 0;
}

// Lets a console follow the escape sequences with which progress is drawn; false when it cannot.
bool FollowsEscapeSequences(DWORD stream) {
    const HANDLE handle = ::GetStdHandle(stream);
    DWORD mode = 0;
    return ::GetConsoleMode(handle, &mode) != 0 &&
           ::SetConsoleMode(handle, mode | ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

// Whether a stream leads anywhere: it may have no descriptor, or one without a handle behind it.
bool IsThere(std::FILE* stream) noexcept {
    const int descriptor = ::_fileno(stream);
    if (descriptor < 0) return false;
    const auto handle = reinterpret_cast<HANDLE>(::_get_osfhandle(descriptor));
    return handle != nullptr && handle != INVALID_HANDLE_VALUE && ::GetFileType(handle) != FILE_TYPE_UNKNOWN;
}

}  // namespace

void PrepareProcess() {
    for (std::FILE* const stream : {stdin, stdout, stderr}) {
        if (!IsThere(stream)) std::freopen("NUL", stream == stdin ? "r" : "w", stream);
    }
    // Lines end as they do elsewhere, so that a script finds the same bytes everywhere.
    for (std::FILE* const stream : {stdout, stderr}) ::_setmode(::_fileno(stream), _O_BINARY);
    ::SetConsoleCtrlHandler(NoteInterrupt, TRUE);
}

bool ShellsLeavePatterns() noexcept { return true; }

bool IsInterrupted() noexcept { return interrupted; }

bool OutputIsThere() noexcept { return IsThere(stdout); }

bool InputIsTerminal() noexcept { return IsConsole(STD_INPUT_HANDLE); }

// An interrupt ends a wait for the console, whatever thread it is on.
bool AwaitInput() noexcept { return !IsInterrupted(); }

bool ErrorIsTerminal() noexcept { return FollowsEscapeSequences(STD_ERROR_HANDLE); }

}  // namespace korvande
