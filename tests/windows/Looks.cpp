#include "tests/windows/Looks.h"

#include <string>
#include <vector>

#include "tests/windows/Controls.h"

namespace {

RECT PlaceOf(HWND window) {
    RECT place{};
    ::GetWindowRect(window, &place);
    return place;
}

// The part of a control that none of the windows it stands in cuts off; without width or height when there is none.
RECT SeenOf(HWND top, HWND control) {
    RECT seen = PlaceOf(control);
    for (HWND parent = ::GetParent(control); parent != nullptr;
         parent = parent == top ? nullptr : ::GetParent(parent)) {
        RECT room{};
        ::GetClientRect(parent, &room);
        ::MapWindowPoints(parent, nullptr, reinterpret_cast<POINT*>(&room), 2);
        RECT both{};
        if (::IntersectRect(&both, &seen, &room) == 0) return {};
        seen = both;
    }
    return seen;
}

// Whether a line across an edge, in the middle of what is seen there, meets more than one colour.
bool HasLine(HDC screen, POINT from, bool across) {
    constexpr int length = 9;
    const COLORREF first = ::GetPixel(screen, from.x, from.y);
    for (int i = 1; i < length; ++i) {
        if (::GetPixel(screen, from.x + (across ? i : 0), from.y + (across ? 0 : i)) != first) return true;
    }
    return false;
}

// Whether a frame is drawn: the edges that are seen, without the upper one, which has the caption.
bool IsDrawn(HDC screen, const RECT& whole, const RECT& seen) {
    constexpr int before = 4;
    const LONG x = (seen.left + seen.right) / 2;
    const LONG y = (seen.top + seen.bottom) / 2;
    if (seen.left == whole.left && !HasLine(screen, {whole.left - before, y}, true)) return false;
    if (seen.right == whole.right && !HasLine(screen, {whole.right - 1 - before, y}, true)) return false;
    return seen.bottom != whole.bottom || HasLine(screen, {x, whole.bottom - 1 - before}, false);
}

// The font of the system's windows, on the display of one.
HFONT SystemFont(HWND window) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof(metrics);
    ::SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0, ::GetDpiForWindow(window));
    return ::CreateFontIndirectW(&metrics.lfMessageFont);
}

SIZE ExtentOf(HDC screen, const std::wstring& text) {
    RECT extent{};
    ::DrawTextW(screen, text.c_str(), static_cast<int>(text.size()), &extent, DT_CALCRECT | DT_NOPREFIX);
    return {extent.right, extent.bottom};
}

bool IsFrame(HWND control) {
    return ClassOf(control) == L"Button" && (::GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
}

// Whether a text has less room than it takes in the system's font, or a control reaches out of what it stands in.
bool IsCut(HDC screen, HWND control) {
    const std::wstring name = ClassOf(control);
    if (name != L"Static" && name != L"Button" && name != L"ComboBox") return false;
    const RECT place = PlaceOf(control);
    // Static texts that tell of something long are shortened with dots.
    const bool isShortened = name == L"Static" && (::GetWindowLongW(control, GWL_STYLE) & SS_ELLIPSISMASK) != 0;
    const SIZE text = ExtentOf(screen, WithoutShortcut(TextOf(control)));
    const bool isTooSmall = place.right - place.left < text.cx || place.bottom - place.top < text.cy;
    if (isTooSmall && !isShortened && !IsFrame(control)) return true;
    const RECT parent = PlaceOf(::GetParent(control));
    return IsFrame(::GetParent(control)) && (place.right > parent.right || place.bottom > parent.bottom ||
                                             place.left < parent.left || place.top < parent.top);
}

}  // namespace

bool PrintLooks(HWND window) {
    HDC const screen = ::GetDC(nullptr);
    HGDIOBJ const before = ::SelectObject(screen, SystemFont(window));
    std::vector<std::wstring> wrong;
    for (HWND const control : ControlsOf(window)) {
        const RECT seen = SeenOf(window, control);
        if (::IsRectEmpty(&seen) != 0) continue;
        const std::wstring caption = TextOf(control);
        if (IsFrame(control)) {
            PrintLine(caption);
            if (!IsDrawn(screen, PlaceOf(control), seen)) wrong.push_back(L"no frame: " + caption);
        }
        if (IsCut(screen, control)) wrong.push_back(L"cut: " + ClassOf(control) + L" " + caption);
    }
    ::DeleteObject(::SelectObject(screen, before));
    ::ReleaseDC(nullptr, screen);
    for (const std::wstring& line : wrong) PrintLine(line);
    return wrong.empty();
}
