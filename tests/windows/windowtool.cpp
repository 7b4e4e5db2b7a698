// Looks at the windows of other programs and works them, for the end-to-end tests: a pair of eyes and hands for a
// script. A window is meant by its whole title, or by its class, a slash and its title. Captions are compared without
// the
// "&" of their shortcut keys. Prints UTF-8; a line break inside a text is printed as " | ". Exit status: 0 done, 1 not
// found (in time), 2 wrong usage.

#include <windows.h>
// Behind the header above.
#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

namespace {

constexpr const char* usage =
    "usage: windowtool list                    the titles of the visible windows, each behind its class\n"
    "       windowtool wait TITLE SECONDS      until there is such a window\n"
    "       windowtool gone TITLE SECONDS      until there is none\n"
    "       windowtool text TITLE              the visible controls: class, a tab, the text; of a button that is\n"
    "                                          marked the class and \"*\"\n"
    "       windowtool items TITLE             the items of the lists; \"> \" stands before the chosen\n"
    "       windowtool choose TITLE ITEM       chooses in the list that has the item\n"
    "       windowtool tab TITLE NUMBER        goes to a tab, counted from 0\n"
    "       windowtool fill TITLE LABEL TEXT   types into the box behind a label\n"
    "       windowtool press TITLE CAPTION     presses a button, also an option or a check box\n"
    "       windowtool looks TITLE             the frames that are seen, then what is wrong: a frame that is not\n"
    "                                          drawn, a control that is cut; status 1 when something is\n"
    "       windowtool close TITLE\n";

// A program that hangs must not make this one hang.
constexpr UINT patience = 5000;  // milliseconds

LRESULT Ask(HWND window, UINT message, WPARAM first = 0, LPARAM second = 0) {
    DWORD_PTR answer = 0;
    if (::SendMessageTimeoutW(window, message, first, second, SMTO_ABORTIFHUNG, patience, &answer) == 0) return -1;
    return static_cast<LRESULT>(answer);
}

LRESULT AskText(HWND window, UINT message, WPARAM first, const wchar_t* text) {
    return Ask(window, message, first, reinterpret_cast<LPARAM>(text));
}

std::string ToUtf8(const std::wstring& text) {
    const auto length = static_cast<int>(text.size());
    std::string utf8(
        static_cast<std::size_t>(::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr)),
        '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, utf8.data(), static_cast<int>(utf8.size()), nullptr,
                          nullptr);
    return utf8;
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

BOOL CALLBACK Collect(HWND window, LPARAM list) {
    if (::IsWindowVisible(window) != 0) reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

std::vector<HWND> Windows() {
    std::vector<HWND> found;
    ::EnumWindows(Collect, reinterpret_cast<LPARAM>(&found));
    return found;
}

// All visible controls, also those inside others, in the order of the Tab key.
std::vector<HWND> ControlsOf(HWND window) {
    std::vector<HWND> found;
    ::EnumChildWindows(window, Collect, reinterpret_cast<LPARAM>(&found));
    return found;
}

// Some windows have a blank behind their title, which nobody sees.
std::wstring TitleOf(HWND window) {
    std::wstring title = TextOf(window);
    while (title.ends_with(L' ')) title.pop_back();
    return title;
}

HWND FindTitle(const std::wstring& wanted) {
    const std::vector<HWND> all = Windows();
    const auto found = std::find_if(all.begin(), all.end(), [&wanted](HWND window) {
        const std::wstring title = TitleOf(window);
        return title == wanted || ClassOf(window) + L"/" + title == wanted;
    });
    return found == all.end() ? nullptr : *found;
}

bool WaitUntil(unsigned long seconds, const std::function<bool()>& condition) {
    constexpr DWORD pause = 50;  // milliseconds
    const ULONGLONG end = ::GetTickCount64() + 1000ULL * seconds;
    while (!condition()) {
        if (::GetTickCount64() >= end) return false;
        ::Sleep(pause);
    }
    return true;
}

bool WaitForWindow(const std::wstring& title, bool there, const std::wstring& seconds) {
    return WaitUntil(std::wcstoul(seconds.c_str(), nullptr, 10),
                     [&title, there] { return (FindTitle(title) != nullptr) == there; });
}

std::vector<HWND> ControlsOfClass(HWND window, const wchar_t* name) {
    std::vector<HWND> controls = ControlsOf(window);
    std::erase_if(controls, [name](HWND control) { return ClassOf(control) != name; });
    return controls;
}

// The messages of the two kinds of lists.
struct ListKind {
    const wchar_t* name;
    UINT count;
    UINT chosen;
    UINT length;
    UINT text;
    UINT find;
};
constexpr ListKind listKinds[] = {
    {L"ComboBox", CB_GETCOUNT, CB_GETCURSEL, CB_GETLBTEXTLEN, CB_GETLBTEXT, CB_FINDSTRINGEXACT},
    {L"ListBox", LB_GETCOUNT, LB_GETCURSEL, LB_GETTEXTLEN, LB_GETTEXT, LB_FINDSTRINGEXACT},
};

std::wstring ItemText(HWND list, const ListKind& kind, LRESULT item) {
    const LRESULT length = Ask(list, kind.length, static_cast<WPARAM>(item));
    if (length <= 0) return {};
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    Ask(list, kind.text, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

bool PrintItems(HWND window) {
    bool found = false;
    for (const ListKind& kind : listKinds) {
        for (HWND const list : ControlsOfClass(window, kind.name)) {
            found = true;
            const LRESULT count = Ask(list, kind.count);
            const LRESULT chosen = Ask(list, kind.chosen);
            for (LRESULT i = 0; i < count; ++i) PrintLine((i == chosen ? L"> " : L"  ") + ItemText(list, kind, i));
        }
    }
    return found;
}

// Moves what is chosen to a place by the arrow keys, as a person without a mouse does: a message that sets it would not
// tell the window of the change. The message asks the control where it is now.
bool MoveTo(HWND control, UINT whereNow, LRESULT place, WPARAM back, WPARAM forth) {
    constexpr unsigned long seconds = 5;
    while (true) {
        const LRESULT now = Ask(control, whereNow);
        if (now == place) return true;
        ::PostMessageW(control, WM_KEYDOWN, now < place ? forth : back, 0);
        if (!WaitUntil(seconds, [=] { return Ask(control, whereNow) != now; })) return false;
    }
}

bool Choose(HWND window, const std::wstring& item) {
    for (const ListKind& kind : listKinds) {
        for (HWND const list : ControlsOfClass(window, kind.name)) {
            const LRESULT place = AskText(list, kind.find, static_cast<WPARAM>(-1), item.c_str());
            if (place >= 0 && ::IsWindowEnabled(list) != 0) return MoveTo(list, kind.chosen, place, VK_UP, VK_DOWN);
        }
    }
    return false;
}

bool GoToTab(HWND window, const std::wstring& number) {
    const LRESULT wanted = std::wcstol(number.c_str(), nullptr, 10);
    // wxWidgets has a class of its own for them.
    const std::vector<HWND> tabs = ControlsOfClass(window, L"_wx_SysTabCtl32");
    if (tabs.empty() || wanted >= Ask(tabs.front(), TCM_GETITEMCOUNT)) return false;
    return MoveTo(tabs.front(), TCM_GETCURSEL, wanted, VK_LEFT, VK_RIGHT);
}

bool Fill(HWND window, const std::wstring& label, const std::wstring& text) {
    bool isBehindLabel = false;
    for (HWND const control : ControlsOf(window)) {
        const std::wstring name = ClassOf(control);
        if (name == L"Static" && WithoutShortcut(TextOf(control)) == label) isBehindLabel = true;
        if (!isBehindLabel || name != L"Edit") continue;
        AskText(control, WM_SETTEXT, 0, text.c_str());
        return TextOf(control) == text;
    }
    return false;
}

// Marks or clears an option or a check box. A click gets lost when the focus moves at that moment, so it is looked
// after.
bool ClickOption(HWND control, bool isOption) {
    constexpr int tries = 3;
    constexpr unsigned long seconds = 2;
    const LRESULT before = Ask(control, BM_GETCHECK);
    if (isOption && before == BST_CHECKED) return true;
    for (int i = 0; i < tries; ++i) {
        ::PostMessageW(control, BM_CLICK, 0, 0);
        if (WaitUntil(seconds, [=] { return Ask(control, BM_GETCHECK) != before; })) return true;
    }
    return false;
}

// What the button itself tells its window when it is pressed. Posted: a button that opens a box would otherwise keep
// this program waiting.
bool PressButton(HWND control) {
    const auto id = static_cast<WORD>(::GetDlgCtrlID(control));
    return ::PostMessageW(::GetParent(control), WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                          reinterpret_cast<LPARAM>(control)) != 0;
}

bool Press(HWND window, const std::wstring& caption) {
    for (HWND const control : ControlsOfClass(window, L"Button")) {
        if (WithoutShortcut(TextOf(control)) != caption || ::IsWindowEnabled(control) == 0) continue;
        switch (::GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK) {
            case BS_GROUPBOX:
                continue;
            case BS_RADIOBUTTON:
            case BS_AUTORADIOBUTTON:
                return ClickOption(control, true);
            case BS_CHECKBOX:
            case BS_AUTOCHECKBOX:
                return ClickOption(control, false);
            default:
                return PressButton(control);
        }
    }
    return false;
}

bool PrintControls(HWND window) {
    for (HWND const control : ControlsOf(window)) {
        const std::wstring name = ClassOf(control);
        const bool isMarked = name == L"Button" && Ask(control, BM_GETCHECK) == BST_CHECKED;
        PrintLine(name + (isMarked ? L"*" : L"") + L"\t" + TextOf(control));
    }
    return true;
}

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

bool PrintWindows() {
    for (HWND const window : Windows()) PrintLine(ClassOf(window) + L"\t" + TextOf(window));
    return true;
}

int WrongUsage() {
    std::fputs(usage, stderr);
    return 2;
}

int Run(const std::vector<std::wstring>& words) {
    const std::wstring command = words.empty() ? L"" : words[0];
    const std::size_t count = words.size();
    if (command == L"list" && count == 1) return PrintWindows() ? 0 : 1;
    if (command == L"wait" && count == 3) return WaitForWindow(words[1], true, words[2]) ? 0 : 1;
    if (command == L"gone" && count == 3) return WaitForWindow(words[1], false, words[2]) ? 0 : 1;
    if (count < 2) return WrongUsage();
    HWND const window = FindTitle(words[1]);
    const auto status = [window](auto work) { return window != nullptr && work() ? 0 : 1; };
    if (command == L"text" && count == 2) return status([&] { return PrintControls(window); });
    if (command == L"looks" && count == 2) return status([&] { return PrintLooks(window); });
    if (command == L"items" && count == 2) return status([&] { return PrintItems(window); });
    if (command == L"choose" && count == 3) return status([&] { return Choose(window, words[2]); });
    if (command == L"tab" && count == 3) return status([&] { return GoToTab(window, words[2]); });
    if (command == L"fill" && count == 4) return status([&] { return Fill(window, words[2], words[3]); });
    if (command == L"press" && count == 3) return status([&] { return Press(window, words[2]); });
    if (command == L"close" && count == 2) {
        return status([&] { return ::PostMessageW(window, WM_CLOSE, 0, 0) != 0; });
    }
    return WrongUsage();
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    // Places are then those on the screen.
    ::SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    return Run(std::vector<std::wstring>(argv + 1, argv + argc));
}
