#include "ui/Areas.h"

#include <wx/grid.h>
#include <wx/radiobut.h>
#include <wx/statbox.h>

#include <algorithm>
#include <vector>

namespace korvande {

namespace {

using Area = std::vector<wxWindow*>;

// The option of its group that is chosen, which is where the keyboard belongs.
wxWindow* ChosenOf(wxWindow* control) {
    auto* option = dynamic_cast<wxRadioButton*>(control);
    if (option == nullptr) return control;
    while (option != nullptr && !option->GetValue()) option = option->GetNextInGroup();
    return option == nullptr ? control : option;
}

// The first control in a window, or itself, that the keyboard can go to; none when nothing there can have it.
wxWindow* FirstIn(wxWindow* window) {
    std::vector<wxWindow*> waiting = {window};
    while (!waiting.empty()) {
        wxWindow* const next = waiting.back();
        waiting.pop_back();
        if (!next->IsShown() || !next->IsEnabled()) continue;
        const wxWindowList& children = next->GetChildren();
        const bool isGrid = dynamic_cast<wxGrid*>(next) != nullptr;
        if (next->IsFocusable() && (isGrid || children.empty())) return ChosenOf(next);
        if (isGrid) continue;
        waiting.insert(waiting.end(), children.rbegin(), children.rend());
    }
    return nullptr;
}

std::vector<Area> AreasOf(wxNotebook& tabs) {
    std::vector<Area> areas = {{&tabs}};
    bool isOpen = false;
    const auto add = [&](wxWindow* window, bool isOfItsOwn) {
        if (FirstIn(window) == nullptr) return;
        if (isOpen && !isOfItsOwn) {
            areas.back().push_back(window);
        } else {
            areas.push_back({window});
        }
        isOpen = !isOfItsOwn;
    };
    const wxWindow* const page = tabs.GetCurrentPage();
    if (page != nullptr && page->IsEnabled()) {
        for (wxWindow* const child : page->GetChildren()) {
            add(child, dynamic_cast<wxStaticBox*>(child) != nullptr || dynamic_cast<wxGrid*>(child) != nullptr);
        }
    }
    for (wxWindow* const sibling : tabs.GetParent()->GetChildren()) {
        if (sibling != &tabs) add(sibling, true);
    }
    return areas;
}

bool IsIn(const Area& area, wxWindow* control) {
    return std::any_of(area.begin(), area.end(), [control](wxWindow* part) { return part->IsDescendant(control); });
}

}  // namespace

void GoToNextArea(wxNotebook& tabs, wxWindow* focused, bool forward) {
    const std::vector<Area> areas = AreasOf(tabs);
    // All pages are in the tabs; so those count only for themselves.
    const auto found =
        std::find_if(areas.begin() + 1, areas.end(), [focused](const Area& area) { return IsIn(area, focused); });
    const std::size_t count = areas.size();
    const std::size_t now = found == areas.end() ? 0 : static_cast<std::size_t>(found - areas.begin());
    const std::size_t next = (now + (forward ? 1 : count - 1)) % count;
    wxWindow* const target = next == 0 ? &tabs : FirstIn(areas[next].front());
    if (target != nullptr) target->SetFocus();
}

}  // namespace korvande
