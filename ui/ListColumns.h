#pragma once

#include <wx/listctrl.h>

namespace korvande {

// What a text takes in a list, with the room around it.
int WidthInList(const wxWindow& list, const wxString& text);

// Makes the columns of a list as wide as their titles and texts, and the last one as wide as the list has room for:
// what is longer ends in dots.
class ListColumns {
 public:
    enum class FirstHasBox { No, Yes };

    // Of a list that outlives it and has no columns yet.
    explicit ListColumns(wxListCtrl& itsList, FirstHasBox itsFirst = FirstHasBox::No);

    // After the list has got its columns or other texts.
    void Fit();

 private:
    wxString TitleOf(int column) const;
    int WidthOf(int column) const;
    void Stretch();

    wxListCtrl& list;
    FirstHasBox first;
    int leastOfLast = 0;
};

}  // namespace korvande
