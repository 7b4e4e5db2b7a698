#include "core/NativePath.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <array>
#include <cstdint>
#include <string>

#include "core/RuntimeError.h"
#include "core/WideText_windows.h"

namespace korvande {

namespace {

// Whether the name begins with the letter of a drive that is not there.
bool IsOnMissingDrive(TextView name) {
    if (name.size() < 2 || name[1] != u':') return false;
    const std::array<wchar_t, 4> root = {static_cast<wchar_t>(name[0]), L':', L'\\', L'\0'};
    return ::GetDriveTypeW(root.data()) == DRIVE_NO_ROOT_DIR;
}

bool HasAttribute(const std::wstring& path, DWORD attribute) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & attribute) != 0;
}

// The run-time error for a file that the system did not open.
int ErrorNumberOfOpening(DWORD systemError, TextView name, OpenMode mode) noexcept {
    switch (systemError) {
        case ERROR_FILE_NOT_FOUND:
            if (IsOnMissingDrive(name)) return errors::deviceNotReady;
            return mode == OpenMode::Read ? errors::fileNotFound : errors::pathNotFound;
        case ERROR_PATH_NOT_FOUND:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
            return IsOnMissingDrive(name) ? errors::deviceNotReady : errors::pathNotFound;
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_WRITE_PROTECT:
            return errors::accessDenied;
        case ERROR_NOT_READY:
        case ERROR_INVALID_DRIVE:
        case ERROR_DEV_NOT_EXIST:
            return errors::deviceNotReady;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return errors::diskFull;
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME:
        case ERROR_FILENAME_EXCED_RANGE:
            return errors::badFileName;
        case ERROR_NOT_ENOUGH_MEMORY:
        case ERROR_OUTOFMEMORY:
            return errors::outOfMemory;
        default:
            return errors::pathAccess;
    }
}

// How the system and the library are told about a mode.
struct HowToOpen {
    DWORD access;
    DWORD disposition;
    int flags;
    const char* mode;
};

HowToOpen HowToOpenFor(OpenMode mode) {
    switch (mode) {
        case OpenMode::Write:
            return {GENERIC_WRITE, CREATE_ALWAYS, _O_WRONLY, "wb"};
        case OpenMode::Append:
            return {FILE_APPEND_DATA | SYNCHRONIZE, OPEN_ALWAYS, _O_WRONLY | _O_APPEND, "ab"};
        default:
            return {GENERIC_READ, OPEN_EXISTING, _O_RDONLY, "rb"};
    }
}

// The library's file for an open one of the system; it is closed when there is none to be had.
std::FILE* FileOf(HANDLE handle, int flags, const char* mode) {
    const int descriptor = ::_open_osfhandle(reinterpret_cast<std::intptr_t>(handle), flags | _O_BINARY | _O_NOINHERIT);
    if (descriptor < 0) {
        ::CloseHandle(handle);
        throw RuntimeError(errors::pathAccess);
    }
    std::FILE* const file = ::_fdopen(descriptor, mode);
    if (file == nullptr) {
        ::_close(descriptor);
        throw RuntimeError(errors::pathAccess);
    }
    return file;
}

// Who may do what with a file, as the system keeps it; empty when there is none, or nobody tells.
std::string RightsOf(const std::wstring& path) {
    constexpr SECURITY_INFORMATION rights = DACL_SECURITY_INFORMATION;
    DWORD size = 0;
    ::GetFileSecurityW(path.c_str(), rights, nullptr, 0, &size);
    std::string descriptor(size, '\0');
    if (size == 0 || ::GetFileSecurityW(path.c_str(), rights, descriptor.data(), size, &size) == 0) return {};
    return descriptor;
}

}  // namespace

std::string NativePath(TextView name) { return ToUtf8(name); }

TextView NullDevice() noexcept { return u"NUL"; }

std::FILE* OpenNativeFile(TextView name, OpenMode mode) {
    if (name.empty() || name.find(u'\0') != TextView::npos) throw RuntimeError(errors::badFileName);
    const std::wstring path = ToWide(name);
    if (HasAttribute(path, FILE_ATTRIBUTE_DIRECTORY)) throw RuntimeError(errors::pathAccess);
    // Not every file system stops an administrator.
    if (mode != OpenMode::Read && HasAttribute(path, FILE_ATTRIBUTE_READONLY)) throw RuntimeError(errors::accessDenied);
    const HowToOpen how = HowToOpenFor(mode);
    const HANDLE handle = ::CreateFileW(path.c_str(), how.access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                        how.disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) throw RuntimeError(ErrorNumberOfOpening(::GetLastError(), name, mode));
    return FileOf(handle, how.flags, how.mode);
}

std::FILE* CreateNativeFile(TextView name, TextView rightsOf) {
    if (name.empty() || name.find(u'\0') != TextView::npos) throw RuntimeError(errors::badFileName);
    std::string rights = RightsOf(ToWide(rightsOf));
    SECURITY_ATTRIBUTES security{sizeof(SECURITY_ATTRIBUTES), rights.data(), FALSE};
    const HANDLE handle =
        ::CreateFileW(ToWide(name).c_str(), GENERIC_WRITE, FILE_SHARE_READ, rights.empty() ? nullptr : &security,
                      CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle != INVALID_HANDLE_VALUE) return FileOf(handle, _O_WRONLY, "wb");
    const DWORD systemError = ::GetLastError();
    if (systemError == ERROR_FILE_EXISTS || systemError == ERROR_ALREADY_EXISTS) return nullptr;
    throw RuntimeError(ErrorNumberOfOpening(systemError, name, OpenMode::Write));
}

// No signal ends a read or write here.
bool IsOnlyInterrupted(std::FILE*) noexcept { return false; }

void FlushToDisk(std::FILE* file) {
    const auto handle = reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(file)));
    if (::FlushFileBuffers(handle) == 0) throw RuntimeError(errors::pathAccess);
}

// The system keeps a journal of its folders.
void FlushFolderToDisk(TextView) {}

}  // namespace korvande
