#include "ui/PaperCorner.h"

namespace korvande {

// Places begin where the printer can print; the paper tells how far from its corner.
wxPoint2DDouble PaperCorner(wxGraphicsContext& /*page*/, const wxRect& paper) {
    return wxPoint2DDouble(paper.x, paper.y);
}

}  // namespace korvande
