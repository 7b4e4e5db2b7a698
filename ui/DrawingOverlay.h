#pragma once

#include <wx/dc.h>
#include <wx/font.h>
#include <wx/graphics.h>

#include "picture/Outline.h"
#include "picture/PictureView.h"
#include "picture/PixelCanvas.h"

// What lies over a drawing in its window, in the pixels of the screen.
namespace korvande {

struct OverlayLook {
    PixelLook drawing;
    double unit = 1;  // pixels, of a device-independent one
    wxFont font;
};

wxColour ToColour(Colour colour);

// Of what is selected.
void PaintOutline(wxGraphicsContext& context, const Outline& outline, const PictureView& view, const OverlayLook& look);

// In a corner, on paper of its own.
void PaintScaleBar(wxDC& dc, const PictureView& view, const OverlayLook& look);

// A frame, and a cross where the space bar picks.
void PaintFocus(wxGraphicsContext& context, const PictureView& view, const OverlayLook& look);

}  // namespace korvande
