#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "tests/support/RunningProgram_posix.h"
#include "tests/support/TestFiles.h"

// Behind all others, whose names it takes for its own.
#include <X11/Xlib.h>
#include <X11/Xutil.h>

// The window itself, killed at any of its calls that change files from the moment that a person closes it. It runs on a
// display of the test's own.
namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

constexpr int killed = 128 + SIGKILL;

// The display, as a window manager sees it.
class Screen {
 public:
    // How many windows of the program there are.
    std::size_t Count() const { return Windows().size(); }

    // Asks each of them to close, as the cross in a title bar does.
    void CloseAll() const {
        for (const Window window : Windows()) {
            XEvent event{};
            event.xclient.type = ClientMessage;
            event.xclient.window = window;
            event.xclient.message_type = Atom("WM_PROTOCOLS");
            event.xclient.format = 32;
            event.xclient.data.l[0] = static_cast<long>(Atom("WM_DELETE_WINDOW"));
            XSendEvent(display.get(), window, False, NoEventMask, &event);
        }
        XSync(display.get(), False);
    }

 private:
    ::Atom Atom(const char* name) const { return XInternAtom(display.get(), name, False); }

    std::vector<Window> Windows() const {
        Window root = 0;
        Window parent = 0;
        Window* children = nullptr;
        unsigned count = 0;
        XQueryTree(display.get(), XDefaultRootWindow(display.get()), &root, &parent, &children, &count);
        std::vector<Window> windows(children, children + count);
        XFree(children);
        std::erase_if(windows, [this](Window window) { return !IsTheProgram(window); });
        return windows;
    }

    bool IsTheProgram(Window window) const {
        XWindowAttributes attributes;
        char* name = nullptr;
        if (XGetWindowAttributes(display.get(), window, &attributes) == 0 || attributes.map_state != IsViewable ||
            XFetchName(display.get(), window, &name) == 0) {
            return false;
        }
        const bool isTheProgram = std::string(name) == "KORVANDE";
        XFree(name);
        return isTheProgram;
    }

    // A window may go while it is asked about.
    static int IgnoreError(Display* /*display*/, XErrorEvent* /*error*/) { return 0; }

    const std::unique_ptr<Display, int (*)(Display*)> display{XOpenDisplay(nullptr), XCloseDisplay};
    const XErrorHandler handler = XSetErrorHandler(IgnoreError);
};

class WindowKill : public ::testing::Test {
 protected:
    // A window that is going to close with a project in a folder of its own.
    struct Place {
        std::string table;
        std::string settings;
        int status = -1;
    };

    // Opens as many windows at a time, with these files, closes them all, and has them killed at the calls that begin
    // with `call`; what they left behind.
    std::vector<Place> Close(const std::string& table, const std::string& settings, int call, int windows) {
        std::vector<std::unique_ptr<RunningProgram>> programs;
        fs::remove(closing);
        for (int i = 0; i < windows; ++i) {
            Prepare(i, table, settings);
            programs.push_back(std::make_unique<RunningProgram>(At(i, call + i)));
        }
        if (!WaitForWindows(static_cast<std::size_t>(windows))) return {};
        folder.Write("sluit", "");
        screen.CloseAll();
        std::vector<Place> places;
        for (int i = 0; i < windows; ++i) {
            const int status = programs[static_cast<std::size_t>(i)]->Wait().status;
            places.push_back({FileBytes(folder / (Name(i) + "/projecten/p.nst")),
                              FileBytes(folder / (Name(i) + "/instellingen.reg")), status});
        }
        return places;
    }

    // Where each place's folder is written in its settings.
    static std::string Settings(int place, const std::string& path, const std::string& project) {
        std::string folderName = path + "/" + Name(place) + "/projecten";
        return "Windows Registry Editor Version "
               "5.00\r\n\r\n[HKEY_CURRENT_USER\\SOFTWARE\\LISTECH\\LISCAD\\5.1\\SEE]\r\n"
               "\"UserPath\"=\"" +
               folderName + "\"\r\n\r\n[HKEY_CURRENT_USER\\Software\\TERAMUND\\KORVANDE]\r\n\"CurrProject\"=\"" +
               project + "\"\r\n";
    }

    static std::string Name(int place) { return "venster" + std::to_string(place); }

    TestFolder folder;
    const std::string closing = folder.Path() + "/sluit";
    Screen screen;

 private:
    void Prepare(int place, const std::string& table, const std::string& settings) const {
        fs::create_directories(folder.Path() + "/" + Name(place) + "/projecten");
        folder.Write(Name(place) + "/projecten/p.nst", table);
        std::string own = settings;
        if (const auto found = own.find(Name(0)); found != std::string::npos)
            own.replace(found, Name(0).size(), Name(place));
        folder.Write(Name(place) + "/instellingen.reg", own);
    }

    Start At(int place, int call) const {
        const std::string home = folder.Path() + "/" + Name(place);
        Start start;
        start.program = KORVANDE_WINDOW;
        start.folder = home;
        start.environment = {{"LD_PRELOAD", KORVANDE_KILLED_CALLS},
                             {"KORVANDE_TEST_KILL_AT", std::to_string(call)},
                             {"KORVANDE_TEST_KILL_SINCE", closing},
                             {"KORVANDE_REGISTRY", home + "/instellingen.reg"},
                             {"HOME", home},
                             {"GSETTINGS_BACKEND", "memory"},
                             {"NO_AT_BRIDGE", "1"},
                             // The sanitizer would rather come first.
                             {"ASAN_OPTIONS", "verify_asan_link_order=0:detect_leaks=0"}};
        return start;
    }

    bool WaitForWindows(std::size_t count) const {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        while (screen.Count() < count) {
            if (std::chrono::steady_clock::now() > end) {
                ADD_FAILURE() << "only " << screen.Count() << " windows opened";
                return false;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return true;
    }
};

TEST_F(WindowKill, AClosingWindowLeavesTheSettingsOldOrNewAndTheProjectAsItWas) {
    constexpr int atOnce = 6;
    constexpr int mostCalls = 200;
    const std::string oldTable = "[NEN1878]\r\nTown = MOLVEREN\r\n[Points]\r\nBOOM = Q21, PUNT, BOOM\r\n[End]\r\n";
    // What a window that is left alone makes of them; the settings then name another project.
    const std::vector<Place> whole = Close(oldTable, Settings(0, folder.Path(), "weg.nst"), 0, 1);
    ASSERT_EQ(whole.size(), 1U);
    ASSERT_EQ(whole[0].status, 0);
    ASSERT_EQ(whole[0].table, oldTable) << "nobody has changed it";
    const std::string& newSettings = whole[0].settings;
    std::string oldSettings = newSettings;
    const std::string project = "\"CurrProject\"=\"p.nst\"";
    ASSERT_NE(oldSettings.find(project), std::string::npos);
    oldSettings.replace(oldSettings.find(project), project.size(), "\"CurrProject\"=\"weg.nst\"");

    std::set<bool> seen;  // whether the settings were new
    int killedWindows = 0;
    bool isFinished = false;
    for (int call = 1; call <= mostCalls && !isFinished; call += atOnce) {
        const std::vector<Place> places = Close(oldTable, oldSettings, call, atOnce);
        ASSERT_EQ(places.size(), static_cast<std::size_t>(atOnce));
        for (int i = 0; i < atOnce; ++i) {
            const Place& place = places[static_cast<std::size_t>(i)];
            std::string settings = place.settings;
            if (const auto found = settings.find(Name(i)); found != std::string::npos) {
                settings.replace(found, Name(i).size(), Name(0));
            }
            const bool hasNewSettings = settings == newSettings;
            EXPECT_EQ(place.table, oldTable) << "the table at call " << call + i;
            EXPECT_TRUE(hasNewSettings || settings == oldSettings) << "the settings at call " << call + i;
            EXPECT_TRUE(place.status == killed || (place.status == 0 && hasNewSettings))
                << "the end at call " << call + i << ": " << place.status;
            seen.insert(hasNewSettings);
            isFinished = isFinished || place.status != killed;
            killedWindows += place.status == killed ? 1 : 0;
        }
    }
    EXPECT_TRUE(isFinished) << "it never comes to its end";
    EXPECT_GE(killedWindows, 5);
    EXPECT_EQ(seen.size(), 2U);
}

}  // namespace

}  // namespace korvande::testing
