#include "ui/UnknownCodesDialog.h"

#include <wx/button.h>
#include <wx/dataview.h>
#include <wx/dialog.h>
#include <wx/display.h>
#include <wx/sizer.h>

#include <algorithm>

#include "ui/Controls.h"
#include "ui/ListColumns.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

enum Column { columnWanted, columnCode, columnObjects, columnCount, columnSuggestion, columnTake };

// "Z12 (als BOOM)".
Text SuggestionText(const UnknownCode& code) {
    return code.suggestion.empty() ? Text() : Concat(code.suggestion, u" (als ", code.suggestedBy, u")");
}

Text CodeText(const UnknownCode& code) { return code.code.empty() ? Text(u"(zonder code)") : code.code; }
Text CountText(const UnknownCode& code) { return Concat(std::int64_t{code.count}); }

// A row without a suggestion has no box for taking it over.
class UnknownCodesStore : public wxDataViewListStore {
 public:
    explicit UnknownCodesStore(const UnknownCodes& itsCodes) : unknown(itsCodes) {}

    bool HasValue(const wxDataViewItem& item, unsigned column) const override {
        return column != columnTake || !unknown.codes[GetRow(item)].suggestion.empty();
    }

 private:
    const UnknownCodes& unknown;
};

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
        // The list is as wide as its columns and a scroll bar, if the display is.
        constexpr int least = 420;
        constexpr int listHeight = 260;
        wxSize listSize(std::max(listWidth + 3 * wide, FromDIP(least)), FromDIP(listHeight));
        listSize.x = std::min(listSize.x, wxDisplay(this).GetClientArea().width - 4 * wide);
        list->SetMinSize(listSize);
        label->Wrap(listSize.x);
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
    void MakeList() {
        list = new wxDataViewListCtrl(this, wxID_ANY);
        list->SetName("lstUnknownCodes");
        const wxObjectDataPtr<UnknownCodesStore> store(new UnknownCodesStore(unknown));
        list->AssociateModel(store.get());
        AddToggle(u"Toevoegen");
        AddText(unknown.column == Grid::Lki ? u"LKI-code" : u"Liscad-code", CodeText);
        AddText(u"Soort", [](const UnknownCode& entry) { return Text(ObjectsOf(entry.table)); });
        AddText(u"Aantal", CountText, wxALIGN_RIGHT);
        if (hasSuggestions) {
            AddText(u"Voorstel LKI-code", SuggestionText);
            AddToggle(u"Overnemen");
        }
        for (const UnknownCode& entry : unknown.codes) {
            wxVector<wxVariant> cells;
            cells.push_back(true);
            cells.push_back(ToWx(CodeText(entry)));
            cells.push_back(ToWx(ObjectsOf(entry.table)));
            cells.push_back(ToWx(CountText(entry)));
            if (hasSuggestions) {
                cells.push_back(ToWx(SuggestionText(entry)));
                cells.push_back(false);
            }
            list->AppendItem(cells);
        }
        list->Bind(wxEVT_DATAVIEW_ITEM_VALUE_CHANGED, [this](wxDataViewEvent&) { ShowState(); });
        list->Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, [this](wxDataViewEvent&) { Look(); });
    }

    void AddToggle(TextView title) {
        const int width = WidthInList(*list, ToWx(title));
        list->AppendToggleColumn(ToWx(title), wxDATAVIEW_CELL_ACTIVATABLE, width);
        listWidth += width;
    }

    // As wide as its texts.
    template <class TextOf>
    void AddText(TextView title, TextOf textOf, wxAlignment align = wxALIGN_LEFT) {
        int width = WidthInList(*list, ToWx(title));
        for (const UnknownCode& entry : unknown.codes) {
            width = std::max(width, WidthInList(*list, ToWx(textOf(entry))));
        }
        list->AppendTextColumn(ToWx(title), wxDATAVIEW_CELL_INERT, width, align);
        listWidth += width;
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
    int listWidth = 0;
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
