#pragma once

#include <wx/print.h>

#include <memory>
#include <vector>

#include "picture/FramePixels.h"
#include "ui/DrawingPrinting.h"

namespace korvande {

class Screen;
struct FormKORVANDE;
struct ShownDrawing;

// What a preview shows at a moment.
struct SeenPreview {
    FrameSource source;
    PictureView view;
    std::vector<bool> isHidden;               // for each code
    std::shared_ptr<const FrameMarks> marks;  // what differs; null when nothing is compared
    Text input;
    Text title;
    const ShownDrawing* drawing = nullptr;  // that is shown alone, and can be saved as one
};

// Where and how it was printed last.
struct PrintSettings {
    wxPrintData data;
    AsksPrinter asksPrinter = AsksPrinter::Yes;
    PrintChoice choice;
};

// Asks for a name and saves what is seen there, as SVG or PNG; or the drawing as a GeoPackage.
void SaveSeen(wxWindow* parent, const FormKORVANDE& form, const SeenPreview& seen);

// Asks how it is to be printed, and prints it. What fails is told.
void PrintSeen(wxWindow* parent, Screen& screen, const SeenPreview& seen, PrintSettings& settings);

}  // namespace korvande
