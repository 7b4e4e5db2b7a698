// A program of somebody else, which ours must not run: when it is started, it leaves a file "<its own name>.gestart"
// beside itself.

#include <windows.h>

#include <string>

int wmain() {
    std::wstring name(MAX_PATH, L'\0');
    name.resize(::GetModuleFileNameW(nullptr, name.data(), MAX_PATH));
    const HANDLE mark =
        ::CreateFileW((name + L".gestart").c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (mark == INVALID_HANDLE_VALUE) return 1;
    ::CloseHandle(mark);
    return 0;
}
