#include "ui/PaperCorner.h"

#include <cairo.h>

#include <algorithm>

namespace korvande {

// Places should begin in the corner, but on paper that lies the library takes off the margins of paper that stands: by
// the printer's upper margin where the system added the lower one, say. So it is asked where the paper comes to lie,
// whose own corner is the first place on the device, however the page is turned.
wxPoint2DDouble PaperCorner(wxGraphicsContext& page, const wxRect& paper) {
    auto* const cairo = static_cast<cairo_t*>(page.GetNativeContext());
    double left = paper.x;
    double top = paper.y;
    double right = paper.x + paper.width;
    double bottom = paper.y + paper.height;
    cairo_user_to_device(cairo, &left, &top);
    cairo_user_to_device(cairo, &right, &bottom);
    double across = std::min(left, right);
    double down = std::min(top, bottom);
    cairo_device_to_user_distance(cairo, &across, &down);
    return {paper.x - across, paper.y - down};
}

}  // namespace korvande
