#pragma once

#include <wx/gdicmn.h>
#include <wx/geometry.h>
#include <wx/graphics.h>

namespace korvande {

// Where the upper left corner of the paper lies for who draws a page, in dots. The paper is given as the printing
// system tells of it.
wxPoint2DDouble PaperCorner(wxGraphicsContext& page, const wxRect& paper);

}  // namespace korvande
