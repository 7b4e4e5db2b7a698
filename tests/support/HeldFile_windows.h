#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include "core/WideText_windows.h"

namespace korvande::testing {

// A file that another program holds open as long as this object lives, and lets others do with it what `shared` says
// (FILE_SHARE_READ and the like): by itself nothing.
class HeldFile {
 public:
    explicit HeldFile(const Text& name, DWORD shared = 0)
        : handle(::CreateFileW(ToWide(name).c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING, 0, nullptr)) {
        EXPECT_NE(handle, INVALID_HANDLE_VALUE);
    }
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;
    ~HeldFile() { ::CloseHandle(handle); }

 private:
    HANDLE handle;
};

}  // namespace korvande::testing
