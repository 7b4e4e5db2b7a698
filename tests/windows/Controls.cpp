#include "tests/windows/Controls.h"

#include <cstdio>

namespace {

// A program that hangs must not make this one hang.
constexpr UINT patience = 5000;  // milliseconds

std::string ToUtf8(const std::wstring& text) {
    const auto length = static_cast<int>(text.size());
    std::string utf8(
        static_cast<std::size_t>(::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr)),
        '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, utf8.data(), static_cast<int>(utf8.size()), nullptr,
                          nullptr);
    return utf8;
}

BOOL CALLBACK Collect(HWND window, LPARAM list) {
    if (::IsWindowVisible(window) != 0) reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

}  // namespace

LRESULT Ask(HWND window, UINT message, WPARAM first, LPARAM second) {
    DWORD_PTR answer = 0;
    if (::SendMessageTimeoutW(window, message, first, second, SMTO_ABORTIFHUNG, patience, &answer) == 0) return -1;
    return static_cast<LRESULT>(answer);
}

LRESULT AskText(HWND window, UINT message, WPARAM first, const wchar_t* text) {
    return Ask(window, message, first, reinterpret_cast<LPARAM>(text));
}

std::wstring TextOf(HWND window) {
    const LRESULT length = Ask(window, WM_GETTEXTLENGTH);
    if (length <= 0) return {};
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    const LRESULT copied = Ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(copied > 0 ? static_cast<std::size_t>(copied) : 0);
    return text;
}

std::wstring ClassOf(HWND window) {
    constexpr int longest = 256;
    wchar_t name[longest];
    return {name, static_cast<std::size_t>(::GetClassNameW(window, name, longest))};
}

std::wstring WithoutShortcut(std::wstring caption) {
    std::erase(caption, L'&');
    return caption;
}

void PrintLine(const std::wstring& text) {
    std::string line;
    for (const char c : ToUtf8(text)) {
        if (c == '\n') {
            line += " | ";
        } else if (c != '\r') {
            line += c;
        }
    }
    std::printf("%s\n", line.c_str());
}

std::vector<HWND> Windows() {
    std::vector<HWND> found;
    ::EnumWindows(Collect, reinterpret_cast<LPARAM>(&found));
    return found;
}

std::vector<HWND> ControlsOf(HWND window) {
    std::vector<HWND> found;
    ::EnumChildWindows(window, Collect, reinterpret_cast<LPARAM>(&found));
    return found;
}
