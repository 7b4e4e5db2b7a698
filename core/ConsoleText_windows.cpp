#include "core/ConsoleText.h"

#include <windows.h>

#include "core/WideText_windows.h"

namespace korvande {

void PutText(std::FILE* stream, std::string_view utf8) {
    const HANDLE handle = ::GetStdHandle(stream == stdout ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
    DWORD mode = 0;
    if (::GetConsoleMode(handle, &mode) == 0) {
        std::fwrite(utf8.data(), 1, utf8.size(), stream);
        return;
    }
    const std::wstring text = ToWide(FromUtf8(utf8));
    DWORD written = 0;
    ::WriteConsoleW(handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

}  // namespace korvande
