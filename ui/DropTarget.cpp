#include "ui/DropTarget.h"

#include "ui/WxText.h"

namespace korvande {

wxDragResult DropTarget::OnEnter(wxCoord x, wxCoord y, wxDragResult proposed) { return OnDragOver(x, y, proposed); }

wxDragResult DropTarget::OnDragOver(wxCoord /*x*/, wxCoord /*y*/, wxDragResult /*proposed*/) {
    return takeFiles.mayTake() ? wxDragCopy : wxDragNone;
}

bool DropTarget::OnDropFiles(wxCoord /*x*/, wxCoord /*y*/, const wxArrayString& names) {
    if (names.empty() || !takeFiles.mayTake()) return false;
    std::vector<Text> taken;
    for (const wxString& name : names) taken.push_back(FromWx(name));
    takeFiles.take(taken);
    return true;
}

void TakeDroppedFiles(wxWindow& window, const TakeFiles& takeFiles) {
    std::vector<wxWindow*> windows = {&window};
    for (std::size_t i = 0; i < windows.size(); ++i) {
        windows[i]->SetDropTarget(new DropTarget(takeFiles));
        for (wxWindow* const child : windows[i]->GetChildren()) {
            if (!child->IsTopLevel()) windows.push_back(child);
        }
    }
}

}  // namespace korvande
