#pragma once

#include <wx/print.h>

#include <functional>
#include <optional>

#include "app/PreviewPage.h"
#include "picture/DrawPicture.h"

namespace korvande {

// What of a drawing is printed on a page.
struct DrawingPage {
    std::function<void(const PictureFrame& frame, Canvas& canvas)> draw;
    PictureView view;  // of the window
    PrintScale scale = PrintScale::Fit;
    Text title;
};

struct PrintChoice {
    PrintScale scale = PrintScale::Fit;
    bool isLandscape = true;
};

// Asks at which scale and how the paper lies; nothing after Cancel.
std::optional<PrintChoice> AskPrintChoice(wxWindow* parent, const PrintChoice& last);

enum class AsksPrinter { Yes, No };

// Prints a page with a scale bar below the drawing, after the system's dialog or without. False when there is no
// printer or it fails; true after Cancel.
bool PrintDrawing(wxWindow* parent, const wxPrintData& data, const DrawingPage& page, AsksPrinter asks);

}  // namespace korvande
