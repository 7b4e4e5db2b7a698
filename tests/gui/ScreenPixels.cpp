#include "tests/gui/ScreenPixels.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <memory>

namespace korvande::testing {

std::vector<std::uint32_t> PixelsOnScreen(const ScreenPlace& place) {
    const std::unique_ptr<Display, int (*)(Display*)> display(XOpenDisplay(nullptr), XCloseDisplay);
    if (!display) return {};
    const std::unique_ptr<XImage, int (*)(XImage*)> image(
        XGetImage(display.get(), XDefaultRootWindow(display.get()), place.left, place.top,
                  static_cast<unsigned>(place.width), static_cast<unsigned>(place.height), AllPlanes, ZPixmap),
        [](XImage* taken) { return XDestroyImage(taken); });
    if (!image) return {};
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < place.height; ++y) {
        for (int x = 0; x < place.width; ++x) {
            pixels.push_back(static_cast<std::uint32_t>(XGetPixel(image.get(), x, y)));
        }
    }
    return pixels;
}

}  // namespace korvande::testing
