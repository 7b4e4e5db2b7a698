#pragma once

#include <wx/listctrl.h>

#include <array>
#include <functional>

#include "app/PreviewDifferences.h"
#include "ui/ListColumns.h"

namespace korvande {

// Of each kind of difference, as it is shown on this screen.
wxColour DifferenceColour(DifferenceKind kind);

// The differences between an input and its output, each kind in its colour.
class DifferenceList : public wxListCtrl {
 public:
    explicit DifferenceList(wxWindow* parent);

    // A row became the current one; it was chosen, for going there.
    std::function<void(std::size_t row)> onSelect = [](std::size_t) {};
    std::function<void(std::size_t row)> onGoTo = [](std::size_t) {};

    // Also when other kinds of them are to be seen. They must outlive it, or the next ones that are shown.
    void ShowDifferences(const PreviewDifferences* itsDifferences);
    void Select(std::size_t row);

 protected:
    wxString OnGetItemText(long item, long column) const override;
    wxListItemAttr* OnGetItemAttr(long item) const override;

 private:
    const PreviewDifferences* differences = nullptr;
    ListColumns columns{*this};
    mutable std::array<wxListItemAttr, 3> looks;  // as the library wants it
};

}  // namespace korvande
