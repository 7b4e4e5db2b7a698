#include "ui/DifferenceList.h"

#include <wx/settings.h>

#include "picture/DifferenceSentence.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

enum Column { kindColumn, objectColumn, codeColumn, whatColumn };

constexpr Colour byte = 0xFF;

}  // namespace

wxColour DifferenceColour(DifferenceKind kind) {
    const Colour shown = ShownColour(ColourOf(kind), {wxSystemSettings::GetAppearance().IsDark()});
    return {static_cast<unsigned char>(shown >> 16 & byte), static_cast<unsigned char>(shown >> 8 & byte),
            static_cast<unsigned char>(shown & byte)};
}

DifferenceList::DifferenceList(wxWindow* parent)
    : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxLC_REPORT | wxLC_VIRTUAL | wxLC_SINGLE_SEL) {
    SetName("lstDifferences");
    for (const TextView title : {u"Verschil", u"Object", u"Code", u"Wat"}) AppendColumn(ToWx(title));
    columns.Fit();
    for (std::size_t kind = 0; kind < looks.size(); ++kind) {
        looks[kind].SetTextColour(DifferenceColour(static_cast<DifferenceKind>(kind)));
    }
    Bind(wxEVT_LIST_ITEM_SELECTED,
         [this](wxListEvent& event) { onSelect(static_cast<std::size_t>(event.GetIndex())); });
    Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent& event) { onGoTo(static_cast<std::size_t>(event.GetIndex())); });
}

void DifferenceList::ShowDifferences(const PreviewDifferences* itsDifferences) {
    constexpr long allItems = -1;
    if (GetItemCount() > 0) SetItemState(allItems, 0, wxLIST_STATE_SELECTED);
    differences = itsDifferences;
    SetItemCount(static_cast<long>(differences->Count()));
    columns.Fit();
    Refresh();
}

void DifferenceList::Select(std::size_t row) {
    const auto item = static_cast<long>(row);
    constexpr long states = wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED;
    SetItemState(item, states, states);
    EnsureVisible(item);
}

wxString DifferenceList::OnGetItemText(long item, long column) const {
    const Difference& difference = differences->At(static_cast<std::size_t>(item));
    switch (column) {
        case kindColumn:
            return ToWx(NameOf(difference.kind));
        case objectColumn:
            return ToWx(NameOf(difference.object));
        case codeColumn:
            return ToWx(difference.code);
        default:
            return ToWx(difference.reason.empty() ? difference.what : difference.reason);
    }
}

wxListItemAttr* DifferenceList::OnGetItemAttr(long item) const {
    const Difference& difference = differences->At(static_cast<std::size_t>(item));
    return &looks[static_cast<std::size_t>(difference.kind)];
}

}  // namespace korvande
