#include "ui/Viewer.h"

#include <windows.h>

#include <string>

#include "core/WideText_windows.h"

namespace korvande {

namespace {

// The system's own: a name without a folder would be looked for in the current folder too, where anybody's program of
// that name may lie. Empty when the system does not tell its folder.
std::wstring NotepadPath() {
    std::wstring folder(MAX_PATH, L'\0');
    const UINT length = ::GetSystemDirectoryW(folder.data(), MAX_PATH);
    if (length == 0 || length >= MAX_PATH) return {};
    folder.resize(length);
    return folder + L"\\notepad.exe";
}

}  // namespace

TextView ViewerPlace() noexcept { return u"In Kladblok"; }

bool StartViewer(TextView fileName) {
    const std::wstring program = NotepadPath();
    if (program.empty()) return false;
    std::wstring command = ToWide(Concat(u"NOTEPAD ", fileName));
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESHOWWINDOW;
    start.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION process{};
    if (::CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                         &process) == 0) {
        return false;
    }
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return true;
}

}  // namespace korvande
