#include "ui/ListColumns.h"

#include <algorithm>

namespace korvande {

int WidthInList(const wxWindow& list, const wxString& text) {
    constexpr int margin = 24;  // around a text, in device-independent pixels
    return list.GetTextExtent(text).x + list.FromDIP(margin);
}

ListColumns::ListColumns(wxListCtrl& itsList, FirstHasBox itsFirst) : list(itsList), first(itsFirst) {
    list.Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        Stretch();
    });
}

void ListColumns::Fit() {
    const int last = list.GetColumnCount() - 1;
    for (int column = 0; column < last; ++column) list.SetColumnWidth(column, WidthOf(column));
    leastOfLast = WidthInList(list, TitleOf(last));
    Stretch();
}

wxString ListColumns::TitleOf(int column) const {
    wxListItem title;
    title.SetMask(wxLIST_MASK_TEXT);
    list.GetColumn(column, title);
    return title.GetText();
}

// Of the title and the texts of the first rows: a long list would take too long, and who looks farther down can widen a
// column.
int ListColumns::WidthOf(int column) const {
    constexpr int mostRows = 1000;
    constexpr int box = 22;  // in device-independent pixels
    wxString longest;
    int width = WidthInList(list, TitleOf(column));
    const int rows = std::min(list.GetItemCount(), mostRows);
    for (int row = 0; row < rows; ++row) {
        const wxString text = list.GetItemText(row, column);
        if (text.length() < longest.length()) continue;
        width = std::max(width, WidthInList(list, text));
        longest = text;
    }
    return column == 0 && first == FirstHasBox::Yes ? width + list.FromDIP(box) : width;
}

void ListColumns::Stretch() {
    const int last = list.GetColumnCount() - 1;
    if (last < 0) return;
    int rest = list.GetClientSize().x;
    for (int column = 0; column < last; ++column) rest -= list.GetColumnWidth(column);
    const int width = std::max(rest, leastOfLast);
    if (width != list.GetColumnWidth(last)) list.SetColumnWidth(last, width);
}

}  // namespace korvande
