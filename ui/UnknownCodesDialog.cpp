#include "ui/UnknownCodesDialog.h"

#include <wx/button.h>
#include <wx/dataview.h>
#include <wx/dialog.h>
#include <wx/sizer.h>

#include <algorithm>

#include "ui/Controls.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

enum Column { columnWanted, columnCode, columnObjects, columnCount, columnSuggestion, columnTake };

// "Z12 (als BOOM)".
Text SuggestionText(const UnknownCode& code) {
    return code.suggestion.empty() ? Text() : Concat(code.suggestion, u" (als ", code.suggestedBy, u")");
}

class UnknownCodesDialog : public wxDialog {
 public:
    UnknownCodesDialog(wxWindow* parent, const UnknownCodes& codes,
                       const std::function<void(const UnknownCode&)>& itsLook)
        : wxDialog(parent, wxID_ANY, ToWx(u"Onbekende codes"), wxDefaultPosition, wxDefaultSize,
                   wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
          unknown(codes),
          look(itsLook),
          hasSuggestions(std::any_of(codes.codes.begin(), codes.codes.end(),
                                     [](const UnknownCode& code) { return !code.suggestion.empty(); })) {
        SetName("frmUnknownCodes");
        MakeList();
        const int wide = FromDIP(wideSpace);
        auto* const column = new wxBoxSizer(wxVERTICAL);
        const bool isLki = unknown.column == Grid::Lki;
        wxStaticText* const label = MakeLabel(
            this, isLki ? u"Deze LKI-codes staan niet in de codetabellen. De aangevinkte krijgen onderaan hun "
                          u"tabel een regel, die dan nog moet worden ingevuld."
                        : u"Deze Liscad-codes staan niet in de codetabellen. De aangevinkte krijgen onderaan "
                          u"hun tabel een regel, die dan nog moet worden ingevuld.");
        label->Wrap(FromDIP(listWidth));
        column->Add(label, wxSizerFlags().Border(wxLEFT | wxTOP | wxRIGHT, wide));
        column->Add(list, wxSizerFlags(1).Expand().Border(wxALL, wide));
        column->Add(MakeButtons(), wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, wide));
        SetSizerAndFit(column);
        CentreOnParent();
        list->SetFocus();
    }

    UnknownCodes Wanted() const {
        UnknownCodes wanted{unknown.column, {}};
        for (std::size_t row = 0; row < unknown.codes.size(); ++row) {
            if (list->GetToggleValue(static_cast<unsigned>(row), columnWanted)) {
                wanted.codes.push_back(unknown.codes[row]);
                if (IsTaken(static_cast<unsigned>(row))) wanted.codes.back().lkiCode = unknown.codes[row].suggestion;
            }
        }
        return wanted;
    }

 private:
    static constexpr int listWidth = 420;
    static constexpr int suggestionWidth = 250;
    static constexpr int listHeight = 260;

    void MakeList() {
        const int width = listWidth + (hasSuggestions ? suggestionWidth : 0);
        list = new wxDataViewListCtrl(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(width, listHeight)));
        list->SetName("lstUnknownCodes");
        const TextView code = unknown.column == Grid::Lki ? TextView(u"LKI-code") : TextView(u"Liscad-code");
        list->AppendToggleColumn(ToWx(u"Toevoegen"), wxDATAVIEW_CELL_ACTIVATABLE, FromDIP(90));
        list->AppendTextColumn(ToWx(code), wxDATAVIEW_CELL_INERT, FromDIP(120));
        list->AppendTextColumn(ToWx(u"Soort"), wxDATAVIEW_CELL_INERT, FromDIP(110));
        list->AppendTextColumn(ToWx(u"Aantal"), wxDATAVIEW_CELL_INERT, FromDIP(70), wxALIGN_RIGHT);
        if (hasSuggestions) {
            list->AppendTextColumn(ToWx(u"Voorstel LKI-code"), wxDATAVIEW_CELL_INERT, FromDIP(150));
            list->AppendToggleColumn(ToWx(u"Overnemen"), wxDATAVIEW_CELL_ACTIVATABLE, FromDIP(90));
        }
        for (const UnknownCode& entry : unknown.codes) {
            wxVector<wxVariant> cells;
            cells.push_back(true);
            cells.push_back(entry.code.empty() ? ToWx(u"(zonder code)") : ToWx(entry.code));
            cells.push_back(ToWx(ObjectsOf(entry.table)));
            cells.push_back(wxString::Format("%d", static_cast<int>(entry.count)));
            if (hasSuggestions) {
                cells.push_back(ToWx(SuggestionText(entry)));
                cells.push_back(false);
            }
            list->AppendItem(cells);
        }
        list->Bind(wxEVT_DATAVIEW_ITEM_VALUE_CHANGED, [this](wxDataViewEvent&) { ShowState(); });
        list->Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, [this](wxDataViewEvent&) { Look(); });
    }

    wxSizer* MakeButtons() {
        wxButton* const all = MakeButton(this, "cmdTickAll", u"A&lles");
        wxButton* const none = MakeButton(this, "cmdTickNone", u"&Geen");
        all->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { Tick(true); });
        none->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { Tick(false); });
        auto* const ends = new wxStdDialogButtonSizer();
        add = new wxButton(this, wxID_OK, ToWx(u"&Toevoegen"));
        add->SetName("cmdAddCodes");
        add->SetDefault();
        ends->AddButton(add);
        // A caption like the toolkit's own would be shown in the language of the system.
        ends->AddButton(new wxButton(this, wxID_CANCEL, ToWx(u"A&nnuleren")));
        ends->Realize();
        auto* const row = new wxBoxSizer(wxHORIZONTAL);
        row->Add(all, InRow());
        row->Add(none, InRow().Border(wxLEFT, FromDIP(narrowSpace)));
        row->AddStretchSpacer();
        row->Add(ends, InRow());
        return row;
    }

    void Tick(bool isWanted) {
        for (unsigned row = 0; row < unknown.codes.size(); ++row) list->SetToggleValue(isWanted, row, columnWanted);
        ShowState();
    }

    // A box without a suggestion takes nothing.
    bool IsTaken(unsigned row) const { return hasSuggestions && list->GetToggleValue(row, columnTake); }

    void Look() {
        const int row = list->GetSelectedRow();
        if (look && row != wxNOT_FOUND) look(unknown.codes[static_cast<std::size_t>(row)]);
    }

    void ShowState() { add->Enable(!Wanted().codes.empty()); }

    const UnknownCodes& unknown;
    const std::function<void(const UnknownCode&)>& look;
    bool hasSuggestions;
    wxDataViewListCtrl* list = nullptr;
    wxButton* add = nullptr;
};

}  // namespace

UnknownCodes AskUnknownCodes(wxWindow* parent, const UnknownCodes& unknown,
                             const std::function<void(const UnknownCode&)>& look) {
    UnknownCodesDialog dialog(parent, unknown, look);
    if (dialog.ShowModal() != wxID_OK) return {unknown.column, {}};
    return dialog.Wanted();
}

}  // namespace korvande
