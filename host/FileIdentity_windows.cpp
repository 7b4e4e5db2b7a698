#include "host/FileIdentity.h"

#include <windows.h>

namespace korvande {

std::optional<std::string> ExistingFileIdentity(const std::filesystem::path& path) {
    constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    // Without this flag a folder cannot be opened.
    const HANDLE file =
        ::CreateFileW(path.c_str(), 0, shareAll, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) return {};
    BY_HANDLE_FILE_INFORMATION information{};
    const bool isKnown = ::GetFileInformationByHandle(file, &information) != 0;
    ::CloseHandle(file);
    if (!isKnown) return {};
    return std::to_string(information.dwVolumeSerialNumber) + ":" + std::to_string(information.nFileIndexHigh) + ":" +
           std::to_string(information.nFileIndexLow);
}

}  // namespace korvande
