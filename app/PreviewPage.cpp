#include "app/PreviewPage.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace korvande {

namespace {

constexpr double millimetresPerInch = 25.4;

}  // namespace

TextView NameOf(PrintScale scale) noexcept {
    constexpr std::array<TextView, printScales> names = {u"1:500", u"1:1000", u"passend"};
    return names[static_cast<std::size_t>(scale)];
}

PictureView ViewOnPage(const PictureView& window, int width, int height, double dotsPerInch,
                       PrintScale scale) noexcept {
    constexpr double oneTo500 = 500;
    constexpr double oneTo1000 = 1000;
    PictureView page = window;
    page.width = std::max(width, 1);
    page.height = std::max(height, 1);
    const double dotsPerMillimetre = dotsPerInch / millimetresPerInch;
    switch (scale) {
        case PrintScale::OneTo500:
            page.scale = dotsPerMillimetre / oneTo500;
            break;
        case PrintScale::OneTo1000:
            page.scale = dotsPerMillimetre / oneTo1000;
            break;
        case PrintScale::Fit:
            page.scale = window.scale * std::min(static_cast<double>(page.width) / window.width,
                                                 static_cast<double>(page.height) / window.height);
            break;
    }
    return page;
}

Text ScaleText(const PictureView& page, double dotsPerInch) {
    return Concat(u"1:", static_cast<std::int64_t>(std::llround(dotsPerInch / millimetresPerInch / page.scale)));
}

}  // namespace korvande
