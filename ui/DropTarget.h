#pragma once

#include <wx/dnd.h>
#include <wx/window.h>

#include <functional>
#include <vector>

#include "core/Text.h"

namespace korvande {

// What is done with files that are dropped on a window, and whether that may be done now. The program that the files
// come from waits until they are taken.
struct TakeFiles {
    std::function<bool()> mayTake;
    std::function<void(const std::vector<Text>& names)> take;
};

class DropTarget : public wxFileDropTarget {
 public:
    explicit DropTarget(TakeFiles itsTakeFiles) : takeFiles(std::move(itsTakeFiles)) {}

    wxDragResult OnEnter(wxCoord x, wxCoord y, wxDragResult proposed) override;
    wxDragResult OnDragOver(wxCoord x, wxCoord y, wxDragResult proposed) override;

    bool OnDropFiles(wxCoord x, wxCoord y, const wxArrayString& names) override;

 private:
    TakeFiles takeFiles;
};

// Has a window take files wherever they are dropped on it, also on controls that would take them themselves.
void TakeDroppedFiles(wxWindow& window, const TakeFiles& takeFiles);

}  // namespace korvande
