#include "ui/CodeList.h"

#include "ui/Controls.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

enum Column { codeColumn, kindColumn, countColumn, descriptionColumn };

}  // namespace

CodeList::CodeList(wxWindow* parent)
    : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxLC_REPORT | wxLC_VIRTUAL | wxLC_SINGLE_SEL) {
    SetName("lstCodes");
    EnableCheckBoxes();
    AppendColumn(ToWx(u"Code"));
    AppendColumn(ToWx(u"Soort"));
    AppendColumn(ToWx(u"Aantal"), wxLIST_FORMAT_RIGHT);
    AppendColumn(ToWx(u"Omschrijving"));
    columns.Fit();
    warning.SetTextColour(WarningColour());
    Bind(wxEVT_LIST_ITEM_CHECKED, [this](wxListEvent& event) { Toggle(event.GetIndex()); });
    Bind(wxEVT_LIST_ITEM_UNCHECKED, [this](wxListEvent& event) { Toggle(event.GetIndex()); });
    Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent& event) { onGoTo(static_cast<std::size_t>(event.GetIndex())); });
    Bind(wxEVT_KEY_DOWN, &CodeList::OnKey, this);
}

void CodeList::ShowCodes(PreviewCodes* itsCodes) {
    codes = itsCodes;
    SetItemCount(static_cast<long>(codes->Count()));
    columns.Fit();
    Refresh();
}

void CodeList::ShowAllCodes(bool isShown) {
    if (codes == nullptr) return;
    codes->ShowAll(isShown);
    Refresh();
    onShown();
}

void CodeList::Select(std::size_t row) {
    const auto item = static_cast<long>(row);
    constexpr long states = wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED;
    SetItemState(item, states, states);
    EnsureVisible(item);
}

void CodeList::Toggle(long item) {
    if (codes == nullptr || item < 0) return;
    const auto row = static_cast<std::size_t>(item);
    codes->Show(row, !codes->IsShown(row));
    RefreshItem(item);
    onShown();
}

// The toolkits do not agree on what the space bar does.
void CodeList::OnKey(wxKeyEvent& event) {
    const long item = GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_FOCUSED);
    if (event.GetKeyCode() == WXK_SPACE && !event.HasModifiers()) {
        Toggle(item);
    } else {
        event.Skip();
    }
}

wxString CodeList::OnGetItemText(long item, long column) const {
    const PictureCode& code = codes->CodeAt(static_cast<std::size_t>(item));
    switch (column) {
        case codeColumn:
            return ToWx(NameOf(code));
        case kindColumn:
            return ToWx(KindOf(code));
        case countColumn:
            return wxString::Format("%d", code.count);
        default:
            return ToWx(code.isKnown ? TextView(code.description) : TextView(u"onbekend"));
    }
}

bool CodeList::OnGetItemIsChecked(long item) const { return codes->IsShown(static_cast<std::size_t>(item)); }

wxListItemAttr* CodeList::OnGetItemAttr(long item) const {
    return codes->CodeAt(static_cast<std::size_t>(item)).isKnown ? nullptr : &warning;
}

}  // namespace korvande
