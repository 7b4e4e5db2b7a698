#pragma once

#include <wx/checkbox.h>
#include <wx/panel.h>
#include <wx/textctrl.h>

#include <array>
#include <functional>

#include "ui/CodeList.h"
#include "ui/DifferenceList.h"

namespace korvande {

// What stands beside a drawing: its codes or the differences, what of them is to be seen, and what is selected.
class PreviewSide : public wxPanel {
 public:
    PreviewSide(wxWindow* parent, bool compares);

    CodeList& Codes() noexcept { return *codes; }
    DifferenceList& Differences() noexcept { return *differences; }

    std::function<void(bool isForward)> onNext = [](bool) {};
    std::function<void(DifferenceKind kind, bool isShown)> onShow = [](DifferenceKind, bool) {};

    // Whether a kind of differences is to be seen.
    bool Shows(DifferenceKind kind) const { return kinds[static_cast<std::size_t>(kind)]->IsChecked(); }

    void ShowCounts(const PreviewDifferences& counted);
    void ShowObject(TextView text);

 private:
    wxSizer* MakeCodeChoice();
    wxSizer* MakeDifferenceChoice();
    wxSizer* MakeKinds();

    CodeList* codes;
    DifferenceList* differences;
    std::array<wxCheckBox*, differenceKinds> kinds{};  // none when nothing is compared
    wxTextCtrl* object;
};

}  // namespace korvande
