// Looks at the windows of other programs and works them, for the end-to-end tests: a pair of eyes and hands for a
// script. A window is meant by its whole title, or by its class, a slash and its title. Captions are compared without
// the "&" of their shortcut keys. Exit status: 0 done, 1 not found (in time), 2 wrong usage.

#include <windows.h>
// Behind the header above.
#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "tests/windows/Controls.h"
#include "tests/windows/Life.h"
#include "tests/windows/Looks.h"

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
    "       windowtool place TITLE CLASS       where the first control of a class is that holds no others: left, top,\n"
    "                                          width and height on the screen\n"
    "       windowtool looks TITLE             the frames that are seen, then what is wrong: a frame that is not\n"
    "                                          drawn, a control that is cut; status 1 when something is\n"
    "       windowtool life TITLE CAPTION BOX TIMES\n"
    "                                          presses a button so many times, and OK in each box that comes;\n"
    "                                          tells now and then what the window's program uses: times, memory in\n"
    "                                          kilobytes, handles, GDI objects, seconds of the processor\n"
    "       windowtool close TITLE\n";

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

bool WaitUntil(unsigned long seconds, const std::function<bool()>& condition, DWORD pause = 50 /* milliseconds */) {
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

bool LiveLong(HWND window, const std::wstring& caption, const std::wstring& box, const std::wstring& times) {
    constexpr unsigned long seconds = 30;
    constexpr int between = 100;  // times from line to line
    constexpr DWORD pause = 2;    // milliseconds
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    const long count = std::wcstol(times.c_str(), nullptr, 10);
    if (!CanTellWhatIsUsed()) return false;
    for (int i = 1; i <= count; ++i) {
        if (!WaitUntil(
                seconds, [&] { return Press(window, caption); }, pause))
            return false;
        HWND shown = nullptr;
        const auto isShown = [&] { return (shown = FindTitle(box)) != nullptr; };
        const auto isGone = [&] { return FindTitle(box) == nullptr; };
        if (!WaitUntil(seconds, isShown, pause)) return false;
        if (!WaitUntil(
                seconds, [&] { return Press(shown, L"OK"); }, pause))
            return false;
        if (!WaitUntil(seconds, isGone, pause)) return false;
        if (i % between == 0 && !PrintWhatIsUsed(process, i)) return false;
    }
    return true;
}

bool PrintPlace(HWND window, const std::wstring& name) {
    for (HWND const control : ControlsOfClass(window, name.c_str())) {
        if (!ControlsOf(control).empty()) continue;
        RECT place{};
        ::GetWindowRect(control, &place);
        std::printf("%ld %ld %ld %ld\n", place.left, place.top, place.right - place.left, place.bottom - place.top);
        return true;
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
    if (command == L"place" && count == 3) return status([&] { return PrintPlace(window, words[2]); });
    if (command == L"press" && count == 3) return status([&] { return Press(window, words[2]); });
    if (command == L"life" && count == 5) return status([&] { return LiveLong(window, words[2], words[3], words[4]); });
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
