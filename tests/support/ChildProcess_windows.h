#pragma once

#include <windows.h>

#include <string>
#include <utility>

#include "tests/support/RunProgram.h"

// What starting a program takes on Windows.
namespace korvande::testing {

// Fails with the system's error unless a call has succeeded.
void Require(bool success, const char* what);

std::wstring Wide(const std::string& utf8);

// A handle of the system, closed with this object.
class Handle {
 public:
    Handle() = default;
    explicit Handle(HANDLE itsHandle) : handle(itsHandle) {}
    Handle(Handle&& other) noexcept : handle(std::exchange(other.handle, nullptr)) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(handle, other.handle);
        return *this;
    }
    ~Handle() { Close(); }

    HANDLE Get() const { return handle; }
    void Close() {
        if (handle != nullptr && handle != INVALID_HANDLE_VALUE) ::CloseHandle(handle);
        handle = nullptr;
    }

 private:
    HANDLE handle = nullptr;
};

struct Pipe {
    Handle reading;
    Handle writing;
};

// A pipe of which the program gets one end.
Pipe MakePipe(bool programReads);

// The command line from which the program gets its name and its arguments as they are.
std::wstring CommandOf(const Start& start);

// The test's own variables with the changes, each ended by a NUL character, and one more behind the last.
std::wstring EnvironmentOf(const Start& start);

}  // namespace korvande::testing
