#include "host/FileIdentity.h"

#include <windows.h>

namespace korvande {

namespace {

// To ask about a file or a folder only; without the flag a folder cannot be opened.
HANDLE OpenToAsk(const std::filesystem::path& path) {
    constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return ::CreateFileW(path.c_str(), 0, shareAll, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}

}  // namespace

std::optional<std::string> ExistingFileIdentity(const std::filesystem::path& path) {
    const HANDLE file = OpenToAsk(path);
    if (file == INVALID_HANDLE_VALUE) return {};
    BY_HANDLE_FILE_INFORMATION information{};
    const bool isKnown = ::GetFileInformationByHandle(file, &information) != 0;
    ::CloseHandle(file);
    if (!isKnown) return {};
    return std::to_string(information.dwVolumeSerialNumber) + ":" + std::to_string(information.nFileIndexHigh) + ":" +
           std::to_string(information.nFileIndexLow);
}

// "NUL", "CON" and their like, in whatever folder.
bool IsUnlistedDevice(const std::filesystem::path& path) {
    const HANDLE file = OpenToAsk(path);
    if (file == INVALID_HANDLE_VALUE) return false;
    const DWORD type = ::GetFileType(file);
    ::CloseHandle(file);
    return type == FILE_TYPE_CHAR || type == FILE_TYPE_PIPE;
}

}  // namespace korvande
