#pragma once

#include <wx/listctrl.h>

#include <functional>

#include "app/PreviewCodes.h"
#include "ui/ListColumns.h"

namespace korvande {

// The codes of a drawing with a box each, ticked when their objects are shown. It takes the texts as they are asked
// for: there may be thousands.
class CodeList : public wxListCtrl {
 public:
    explicit CodeList(wxWindow* parent);

    // When what is shown has changed; a row was chosen, for going to its next object.
    std::function<void()> onShown = [] {};
    std::function<void(std::size_t row)> onGoTo = [](std::size_t) {};

    // The codes must outlive it, or the next ones that are shown.
    void ShowCodes(PreviewCodes* itsCodes);
    void ShowAllCodes(bool isShown);

    // Makes a row the current one.
    void Select(std::size_t row);

 protected:
    wxString OnGetItemText(long item, long column) const override;
    bool OnGetItemIsChecked(long item) const override;
    wxListItemAttr* OnGetItemAttr(long item) const override;

 private:
    void Toggle(long item);
    void OnKey(wxKeyEvent& event);

    PreviewCodes* codes = nullptr;
    ListColumns columns{*this, ListColumns::FirstHasBox::Yes};
    mutable wxListItemAttr warning;  // as the library wants it
};

}  // namespace korvande
