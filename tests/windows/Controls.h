#pragma once

#include <windows.h>

#include <string>
#include <vector>

// What a window of another program tells when it is asked; one that hangs does not answer.

// -1 without an answer.
LRESULT Ask(HWND window, UINT message, WPARAM first = 0, LPARAM second = 0);
LRESULT AskText(HWND window, UINT message, WPARAM first, const wchar_t* text);

std::wstring TextOf(HWND window);
std::wstring ClassOf(HWND window);

// A caption without the "&" of its shortcut key.
std::wstring WithoutShortcut(std::wstring caption);

// The visible windows.
std::vector<HWND> Windows();

// All visible controls, also those inside others, in the order of the Tab key.
std::vector<HWND> ControlsOf(HWND window);

// In UTF-8; a line break inside the text as " | ".
void PrintLine(const std::wstring& text);
