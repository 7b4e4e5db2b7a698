#include "ui/LogBookList.h"

#include <wx/settings.h>

#include <algorithm>

#include "ui/Controls.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

std::size_t LineOf(long item) { return static_cast<std::size_t>(item); }
long ItemOf(std::size_t line) { return static_cast<long>(line); }

}  // namespace

LogBookList::LogBookList(wxWindow* parent, const LogBookView& itsView)
    : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxLC_REPORT | wxLC_NO_HEADER | wxLC_VIRTUAL),
      view(itsView) {
    SetName("lstLogBook");
    SetFont(wxFont(wxFontInfo(GetFont().GetPointSize()).Family(wxFONTFAMILY_TELETYPE)));
    AppendColumn(wxEmptyString);
    TakeColours();
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        FitColumn();
    });
    Bind(wxEVT_SYS_COLOUR_CHANGED, [this](wxSysColourChangedEvent& event) {
        event.Skip();
        TakeColours();
        Refresh();
    });
}

// Legible on a light window and on a dark one.
void LogBookList::TakeColours() {
    const bool isDark = wxSystemSettings::GetAppearance().IsDark();
    error.SetTextColour(isDark ? wxColour(255, 150, 150) : wxColour(160, 0, 0));
    error.SetBackgroundColour(isDark ? wxColour(72, 24, 24) : wxColour(255, 228, 228));
    block.SetTextColour(isDark ? wxColour(255, 224, 150) : wxColour(96, 60, 0));
    block.SetBackgroundColour(isDark ? wxColour(64, 52, 16) : wxColour(255, 246, 214));
}

void LogBookList::ShowLines() {
    SetItemState(-1, 0, wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED);
    SetItemCount(ItemOf(view.lines.size()));
    textWidth = GetTextExtent(wxString('0', view.longestLine)).x + FromDIP(4 * wideSpace);
    FitColumn();
    if (!view.lines.empty()) EnsureVisible(0);
    Refresh();
}

// The colours go on to the edge.
void LogBookList::FitColumn() { SetColumnWidth(0, std::max(textWidth, GetClientSize().x)); }

std::optional<std::size_t> LogBookList::Current() const {
    const long item = GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    return item < 0 ? std::optional<std::size_t>() : LineOf(item);
}

void LogBookList::Select(std::size_t line) {
    const long item = ItemOf(line);
    SetItemState(-1, 0, wxLIST_STATE_SELECTED);
    SetItemState(item, wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED, wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED);
    // With some of what follows.
    constexpr long linesBehind = 8;
    EnsureVisible(std::min(item + linesBehind, static_cast<long>(GetItemCount()) - 1));
    EnsureVisible(item);
}

void LogBookList::SelectAll() { SetItemState(-1, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED); }

wxString LogBookList::Selected() const {
    wxString text;
    for (long item = -1; (item = GetNextItem(item, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED)) >= 0;) {
        text += OnGetItemText(item, 0) + "\n";
    }
    return text;
}

wxString LogBookList::OnGetItemText(long item, long /*column*/) const {
    return ToWx(FromWindows1252(view.lines[LineOf(item)]));
}

wxItemAttr* LogBookList::OnGetItemAttr(long item) const {
    switch (LookOf(view, LineOf(item))) {
        case LineLook::Error:
            return &error;
        case LineLook::Block:
            return &block;
        default:
            return nullptr;
    }
}

}  // namespace korvande
