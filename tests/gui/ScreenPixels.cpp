#include "tests/gui/ScreenPixels.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <algorithm>
#include <memory>

namespace korvande::testing {

std::vector<std::uint32_t> PixelsOnScreen(const ScreenPlace& place) {
    const std::unique_ptr<Display, int (*)(Display*)> display(XOpenDisplay(nullptr), XCloseDisplay);
    if (!display) return {};
    const int screen = XDefaultScreen(display.get());
    const int left = std::max(place.left, 0);
    const int top = std::max(place.top, 0);
    const int width = std::min(place.left + place.width, XDisplayWidth(display.get(), screen)) - left;
    const int height = std::min(place.top + place.height, XDisplayHeight(display.get(), screen)) - top;
    if (width <= 0 || height <= 0) return {};
    const std::unique_ptr<XImage, int (*)(XImage*)> image(
        XGetImage(display.get(), XDefaultRootWindow(display.get()), left, top, static_cast<unsigned>(width),
                  static_cast<unsigned>(height), AllPlanes, ZPixmap),
        [](XImage* taken) { return XDestroyImage(taken); });
    if (!image) return {};
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            pixels.push_back(static_cast<std::uint32_t>(XGetPixel(image.get(), x, y)));
        }
    }
    return pixels;
}

}  // namespace korvande::testing
