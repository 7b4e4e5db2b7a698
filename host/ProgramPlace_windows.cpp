#include "host/ProgramPlace.h"

#include <windows.h>

#include "core/WideText_windows.h"

namespace korvande {

ProgramPlace RunningProgram() {
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = 0;
    // A name that does not fit is cut off to the room that there is.
    while ((length = ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()))) == path.size()) {
        path.resize(path.size() * 2);
    }
    path.resize(length);
    const std::size_t separator = path.rfind(L'\\');
    if (separator == std::wstring::npos) return {};
    const std::wstring name = path.substr(separator + 1);
    return {FromWide(path.substr(0, separator)), FromWide(name.substr(0, name.rfind(L'.')))};
}

}  // namespace korvande
