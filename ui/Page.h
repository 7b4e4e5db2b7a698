#pragma once

#include <wx/scrolwin.h>
#include <wx/sizer.h>

#include <vector>

namespace korvande {

// A page of the tabs, which scrolls when it has not enough room. A control that gets the keyboard comes into sight with
// its caption, and with the frame that it stands in where the page has room for the whole of it.
class Page : public wxScrolledWindow {
 public:
    explicit Page(wxWindow* parent);

    // Two columns that share the width, in these proportions, or stand below each other where they are wider together
    // than the page.
    wxSizer* Columns(wxSizer* left, int leftShare, wxSizer* right, int rightShare);

    // What it takes to show all of it with its columns beside each other.
    wxSize WholeSize();

 protected:
    // The toolkit would bring nothing but the control into sight.
    bool ShouldScrollToChildOnFocus(wxWindow* /*child*/) override { return false; }

 private:
    void OnSize(wxSizeEvent& event);
    void OnIdle(wxIdleEvent& event);
    void OnChildFocus(wxChildFocusEvent& event);
    void PlaceColumns();
    void ScrollTo(const wxRect& wanted);
    wxRect PlaceOf(const wxWindow& control) const;
    wxRect View() const;

    std::vector<wxBoxSizer*> columnPairs;
    wxSize fitted;  // what the page needed when it was last laid out
};

}  // namespace korvande
