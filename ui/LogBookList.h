#pragma once

#include <wx/listctrl.h>

#include <cstddef>
#include <optional>

#include "app/LogBookView.h"

namespace korvande {

// The lines of a log book, of which only those in sight are made, so that its length does not matter.
class LogBookList : public wxListCtrl {
 public:
    LogBookList(wxWindow* parent, const LogBookView& view);

    // Shows the lines as they are now, from the first one on.
    void ShowLines();

    // The line that the keys start from; none before a person chose one.
    std::optional<std::size_t> Current() const;
    void Select(std::size_t line);
    void SelectAll();

    // All selected lines, each with a line feed behind it.
    wxString Selected() const;

 protected:
    wxString OnGetItemText(long item, long column) const override;
    wxItemAttr* OnGetItemAttr(long item) const override;

 private:
    void TakeColours();
    void FitColumn();

    const LogBookView& view;
    int textWidth = 0;         // that the longest line needs
    mutable wxItemAttr error;  // the library wants to change what it is given
    mutable wxItemAttr block;
};

}  // namespace korvande
