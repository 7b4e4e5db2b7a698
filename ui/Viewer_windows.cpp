#include "ui/Viewer.h"

#include <windows.h>

#include "core/WideText_windows.h"

namespace korvande {

bool StartViewer(TextView fileName) {
    std::wstring command = ToWide(Concat(u"NOTEPAD ", fileName));
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESHOWWINDOW;
    start.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION process{};
    if (::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process) ==
        0) {
        return false;
    }
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return true;
}

}  // namespace korvande
