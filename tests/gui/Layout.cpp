#include "tests/gui/Layout.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/grid.h>
#include <wx/radiobut.h>
#include <wx/scrolwin.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace korvande::testing {

namespace {

std::string Told(const wxWindow& control, const std::string& what, wxSize is, wxSize should) {
    return (control.GetName() + " \"" + control.GetLabel() + "\" " + what +
            wxString::Format(" (%d x %d of %d x %d)", is.x, is.y, should.x, should.y))
        .utf8_string();
}

// Whether all of a control is seen only when it has its best size; the others, such as lists, scroll.
bool NeedsItsSize(const wxWindow& control) {
    if (const auto* const text = dynamic_cast<const wxStaticText*>(&control)) {
        constexpr long shortened = wxST_ELLIPSIZE_START | wxST_ELLIPSIZE_MIDDLE | wxST_ELLIPSIZE_END;
        return (text->GetWindowStyleFlag() & shortened) == 0;
    }
    return dynamic_cast<const wxButton*>(&control) != nullptr || dynamic_cast<const wxChoice*>(&control) != nullptr ||
           dynamic_cast<const wxCheckBox*>(&control) != nullptr ||
           dynamic_cast<const wxRadioButton*>(&control) != nullptr;
}

// A box for a code or a number must show all that may be in it; a longer text moves along in its box. Its best size is
// for any text.
wxSize Needed(const wxWindow& control) {
    if (NeedsItsSize(control)) return control.GetBestSize();
    if (const auto* const box = dynamic_cast<const wxTextCtrl*>(&control)) {
        // With its border and the least that looks well.
        const int around = box->HasFlag(wxBORDER_NONE) ? 0 : 6;
        const wxSize text = box->GetTextExtent(box->GetValue().Left(7));
        return box->IsMultiLine() ? wxSize() : text + box->FromDIP(wxSize(around, around));
    }
    return {};
}

void Look(const wxWindow& control, std::vector<std::string>& cut) {
    const wxSize needed = Needed(control);
    const wxSize size = control.GetSize();
    if (size.x < needed.x || size.y < needed.y) cut.push_back(Told(control, "is too small", size, needed));
    const wxWindow& parent = *control.GetParent();
    wxRect room(parent.ClientToScreen(wxPoint(0, 0)), parent.GetClientSize());
    if (const auto* const page = dynamic_cast<const wxScrolledWindow*>(&parent)) {
        room = wxRect(page->ClientToScreen(page->CalcScrolledPosition(wxPoint(0, 0))), page->GetVirtualSize());
    }
    const wxRect place = control.GetScreenRect();
    // What lies wholly outside was put out of sight.
    if (place.Intersects(room) && !room.Contains(place)) {
        cut.push_back(Told(control, "reaches out of " + parent.GetName().utf8_string(),
                           wxSize(place.GetRight() - room.x, place.GetBottom() - room.y), room.GetSize()));
    }
}

}  // namespace

std::vector<std::string> CutControls(const wxWindow& window) {
    std::vector<std::string> cut;
    std::vector<const wxWindow*> waiting(window.GetChildren().begin(), window.GetChildren().end());
    std::size_t seen = 0;
    while (!waiting.empty()) {
        const wxWindow* const control = waiting.back();
        waiting.pop_back();
        // A grid's parts are its own.
        if (control->IsTopLevel() || !control->IsShownOnScreen()) continue;
        Look(*control, cut);
        ++seen;
        if (dynamic_cast<const wxGrid*>(control) != nullptr) continue;
        waiting.insert(waiting.end(), control->GetChildren().begin(), control->GetChildren().end());
    }
    EXPECT_GT(seen, 1U) << "nothing was looked at";
    return cut;
}

}  // namespace korvande::testing
