#include "tests/gui/WindowManager.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <cstring>
#include <memory>

namespace korvande::testing {

namespace {

// A property of a window of the system, as the bytes it has; none when it is not there.
std::string Property(Display* display, Window window, const char* name) {
    constexpr long longest = 64;
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* bytes = nullptr;
    XGetWindowProperty(display, window, XInternAtom(display, name, False), 0, longest, False, AnyPropertyType, &type,
                       &format, &count, &rest, &bytes);
    if (bytes == nullptr) return {};
    // Numbers of 32 bits come as long ones.
    const std::size_t size = format == 32 ? count * sizeof(long) : count;
    const std::string value(reinterpret_cast<const char*>(bytes), size);
    XFree(bytes);
    return value;
}

}  // namespace

std::string WindowManagerName() {
    const std::unique_ptr<Display, int (*)(Display*)> display(XOpenDisplay(nullptr), XCloseDisplay);
    if (!display) return {};
    const std::string check = Property(display.get(), XDefaultRootWindow(display.get()), "_NET_SUPPORTING_WM_CHECK");
    Window own = 0;
    if (check.size() != sizeof(own)) return {};
    std::memcpy(&own, check.data(), sizeof(own));
    return Property(display.get(), own, "_NET_WM_NAME");
}

}  // namespace korvande::testing
