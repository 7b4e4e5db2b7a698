#pragma once

#include <wx/listctrl.h>

#include <array>
#include <functional>

#include "picture/Comparison.h"

namespace korvande {

// The differences between an input and its output, each kind in its colour.
class DifferenceList : public wxListCtrl {
 public:
    explicit DifferenceList(wxWindow* parent);

    // A row became the current one.
    std::function<void(std::size_t row)> onSelect = [](std::size_t) {};

    // The comparison must outlive it, or the next one that is shown.
    void ShowDifferences(const Comparison* itsComparison);
    void Select(std::size_t row);

 protected:
    wxString OnGetItemText(long item, long column) const override;
    wxListItemAttr* OnGetItemAttr(long item) const override;

 private:
    const Comparison* comparison = nullptr;
    mutable std::array<wxListItemAttr, 3> looks;  // as the library wants it
};

}  // namespace korvande
