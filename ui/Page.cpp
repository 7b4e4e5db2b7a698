#include "ui/Page.h"

#include <wx/stattext.h>

#include <algorithm>

#include "ui/Controls.h"

namespace korvande {

namespace {

// Where a view of this length begins that shows a stretch, or at least its beginning, and moves no further than needed.
int ViewFor(int begin, int length, int viewBegin, int viewLength) {
    if (begin < viewBegin || length > viewLength) return begin;
    return std::max(viewBegin, begin + length - viewLength);
}

}  // namespace

Page::Page(wxWindow* parent)
    : wxScrolledWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxHSCROLL | wxVSCROLL) {
    SetScrollRate(FromDIP(wideSpace), FromDIP(wideSpace));
    Bind(wxEVT_SIZE, &Page::OnSize, this);
    Bind(wxEVT_IDLE, &Page::OnIdle, this);
    Bind(wxEVT_CHILD_FOCUS, &Page::OnChildFocus, this);
}

wxSizer* Page::Columns(wxSizer* left, int leftShare, wxSizer* right, int rightShare) {
    auto* const columns = new wxBoxSizer(wxHORIZONTAL);
    columns->Add(left, wxSizerFlags(leftShare).Expand());
    columns->AddSpacer(FromDIP(wideSpace));
    columns->Add(right, wxSizerFlags(rightShare).Expand());
    columnPairs.push_back(columns);
    return columns;
}

void Page::OnSize(wxSizeEvent& event) {
    if (GetSizer() != nullptr) PlaceColumns();
    event.Skip();
}

wxSize Page::WholeSize() {
    for (wxBoxSizer* const pair : columnPairs) pair->SetOrientation(wxHORIZONTAL);
    return GetSizer()->CalcMin();
}

void Page::PlaceColumns() {
    for (wxBoxSizer* const pair : columnPairs) {
        pair->SetOrientation(wxHORIZONTAL);
        const int orientation = GetSizer()->CalcMin().x <= GetClientSize().x ? wxHORIZONTAL : wxVERTICAL;
        pair->SetOrientation(orientation);
    }
}

// Frames take more once they are on the screen than they said before; a page that gets another size forgets it.
void Page::OnIdle(wxIdleEvent& event) {
    event.Skip();
    if (GetSizer() == nullptr || !IsShown()) return;
    PlaceColumns();
    wxSize needed = GetSizer()->CalcMin();
    for (const wxWindow* const child : GetChildren()) {
        if (child->IsShown()) needed.IncTo(wxSize(0, PlaceOf(*child).GetBottom() + FromDIP(wideSpace)));
    }
    wxSize given = GetVirtualSize();
    given.DecTo(needed);
    if (needed == fitted && given == needed) return;
    fitted = needed;
    SetVirtualSize(needed);
    Layout();
}

// A click is on what can be seen already; it would miss what moves meanwhile.
void Page::OnChildFocus(wxChildFocusEvent& event) {
    event.Skip();
    wxWindow* const control = event.GetWindow();
    if (!IsDescendant(control) || control == this || wxGetMouseState().LeftIsDown()) return;
    wxRect wanted = PlaceOf(*control);
    const auto* const caption = dynamic_cast<wxStaticText*>(control->GetPrevSibling());
    if (caption != nullptr) wanted.Union(PlaceOf(*caption));
    if (View().Contains(wanted)) return;
    const wxWindow* group = control;
    while (group->GetParent() != this) group = group->GetParent();
    const wxRect whole = PlaceOf(*group);
    const wxSize room = GetClientSize();
    if (whole.height <= room.y) wanted = wxRect(wanted.x, whole.y, wanted.width, whole.height);
    if (whole.width <= room.x) wanted = wxRect(whole.x, wanted.y, whole.width, wanted.height);
    ScrollTo(wanted);
}

// In pixels, on the page as if it were not scrolled.
wxRect Page::PlaceOf(const wxWindow& control) const {
    return {CalcUnscrolledPosition(ScreenToClient(control.GetScreenPosition())), control.GetSize()};
}

wxRect Page::View() const { return {CalcUnscrolledPosition(wxPoint(0, 0)), GetClientSize()}; }

void Page::ScrollTo(const wxRect& wanted) {
    const wxRect view = View();
    int unitX = 0;
    int unitY = 0;
    GetScrollPixelsPerUnit(&unitX, &unitY);
    const auto units = [](int target, int now, int unit) {
        return target < now ? target / unit : (target + unit - 1) / unit;
    };
    const int left = ViewFor(wanted.x, wanted.width, view.x, view.width);
    const int top = ViewFor(wanted.y, wanted.height, view.y, view.height);
    Scroll(units(left, view.x, unitX), units(top, view.y, unitY));
}

}  // namespace korvande
