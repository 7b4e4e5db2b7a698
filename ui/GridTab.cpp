#include "ui/GridTab.h"

#include <wx/display.h>
#include <wx/menu.h>
#include <wx/wrapsizer.h>

#include <algorithm>

#include "app/GridEditing.h"
#include "app/frmKORVANDE.h"
#include "ui/Controls.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

constexpr TextView explanation =
    u"Wijzigen: begin te typen of dubbelklik op een cel. Enter sluit de wijziging af, een andere cel kiezen ook.\n\n"
    u"Insert: een regel toevoegen, onderaan de tabel.\n\n"
    u"Delete: de regel wissen.\n\n"
    u"De eerste regel geldt voor alle codes die niet in de tabel staan. Staat een code er vaker in, dan geldt de "
    u"onderste regel.";

}  // namespace

GridTab::GridTab(wxWindow* parent, FormKORVANDE& itsForm, EditedGrid& editedGrid, const GridNames& names)
    : wxScrolledWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxHSCROLL | wxVSCROLL),
      form(itsForm),
      edited(editedGrid) {
    SetScrollRate(FromDIP(wideSpace), FromDIP(wideSpace));
    wxSizer* const search = MakeSearch();
    // Behind the search in the order of the Tab key. NOLINTNEXTLINE(cppcoreguidelines-prefer-member-initializer)
    grid = new CodeGrid(this, form, edited, names);
    wxStaticText* const help = MakeLabel(this, explanation);
    // A column of text that is as narrow as it reads well, in letters of any size.
    help->Wrap(GetTextExtent(ToWx(u"De eerste regel geldt voor alles")).x);
    // Drawn letters may be a little wider than they measure.
    help->SetMinSize(help->GetBestSize() + FromDIP(wxSize(narrowSpace, 0)));
    remark = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                              wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
    Named(remark, "lblRemark");
    Named(searched, "txtSearch");
    Named(next, "cmdNext");
    Named(previous, "cmdPrevious");
    commands = CommandsOf(form, edited, *grid);
    const int wide = FromDIP(wideSpace);
    const int room = wxDisplay(this).GetClientArea().GetWidth() - help->GetBestSize().x - 6 * wide;
    grid->SetMinSize(wxSize(std::min(grid->GetMinSize().x, room), grid->GetMinSize().y));
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(search, wxSizerFlags().Expand().Border(wxBOTTOM, wide));
    column->Add(grid, wxSizerFlags(1).Expand());
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(column, wxSizerFlags(1).Expand());
    row->Add(help, wxSizerFlags().Border(wxLEFT, wide));
    auto* const rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(row, wxSizerFlags(1).Expand().Border(wxALL, wide));
    rows->Add(remark, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, wide));
    rows->Add(MakeButtons(), wxSizerFlags().Expand().Border(wxLEFT | wxBOTTOM, wide));
    SetSizer(rows);
    grid->onMenu = [this] { ShowMenu(); };
    grid->onLeave = [this](bool forward) { (forward ? buttons.front() : previous)->SetFocus(); };
    grid->onShown = [this] { ShowState(); };
    BindKeys();
    ShowState();
}

// A control that each code table has, named after its table.
wxWindow* GridTab::Named(wxWindow* window, const char* name) const {
    window->SetName(name + grid->GetName().AfterFirst('d'));
    return window;
}

wxSizer* GridTab::MakeSearch() {
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(MakeLabel(this, u"&Zoeken:"), InRow().Border(wxRIGHT, FromDIP(narrowSpace)));
    searched = new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, wxTE_PROCESS_ENTER);
    FitTextBox(*searched, 10);
    searched->SetToolTip(ToWx(u"Ctrl+F; Enter zoekt verder, Shift+Enter terug"));
    row->Add(searched, InRow(1));
    const auto addButton = [this, row](TextView caption, TextView tip, SearchDirection direction) {
        wxButton* const button = MakeButton(this, "", caption, tip);
        row->Add(button, InRow().Border(wxLEFT, FromDIP(narrowSpace)));
        button->Bind(wxEVT_BUTTON, [this, direction](wxCommandEvent&) { Search(direction); });
        return button;
    };
    next = addButton(u"Vol&gende", u"Zoekt de volgende cel met deze tekst (F3)", SearchDirection::Forward);
    previous = addButton(u"Vo&rige", u"Zoekt de vorige cel met deze tekst (Shift+F3)", SearchDirection::Backward);
    return row;
}

wxSizer* GridTab::MakeButtons() {
    auto* const row = new wxWrapSizer(wxHORIZONTAL, wxREMOVE_LEADING_SPACES);
    for (const GridCommand& command : commands) {
        buttons.push_back(nullptr);
        if (*command.name == 0) continue;
        wxButton* const button = MakeButton(this, "", command.caption, command.tip);
        Named(button, command.name);
        row->Add(button, wxSizerFlags().Border(wxRIGHT | wxBOTTOM, FromDIP(narrowSpace)));
        button->Bind(wxEVT_BUTTON, [this, &command](wxCommandEvent&) { Do(command); });
        buttons.back() = button;
    }
    return row;
}

void GridTab::BindKeys() {
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        const int key = event.GetKeyCode();
        const int modifiers = event.GetModifiers();
        const bool isInBox = FindFocus() == searched;
        const bool isEnter = key == WXK_RETURN || key == WXK_NUMPAD_ENTER;
        const bool searches = key == WXK_F3 || (isInBox && isEnter);
        if (key == 'F' && modifiers == wxMOD_CONTROL) {
            searched->SetFocus();
            searched->SelectAll();
        } else if (searches && (modifiers & ~wxMOD_SHIFT) == 0) {
            Search(modifiers == wxMOD_SHIFT ? SearchDirection::Backward : SearchDirection::Forward);
        } else if (isInBox && key == WXK_ESCAPE) {
            grid->SetFocus();
        } else {
            event.Skip();
        }
    });
}

void GridTab::Search(SearchDirection direction) {
    EndEdit(form, edited);
    const Text wanted = FromWx(searched->GetValue());
    const auto found = FindInGrid(edited, wanted, direction);
    if (found) {
        wxWindow* const focused = FindFocus();
        grid->GoTo(found->first, found->second);
        // Who types in the box goes on there.
        if (focused == searched) searched->SetFocusFromKbd();
    } else if (!wanted.empty()) {
        Say(Concat(u"'", wanted, u"' komt in deze tabel niet voor."));
    }
}

void GridTab::Do(const GridCommand& command) {
    EndEdit(form, edited);
    if (!command.isPossible()) return;
    const Text told = command.action();
    grid->ShowForm();
    const wxWindow* const focused = FindFocus();
    if (command.goesToGrid || focused == nullptr || !focused->IsEnabled()) grid->SetFocus();
    if (!told.empty()) Say(told);
}

void GridTab::ShowMenu() {
    wxMenu menu;
    int id = wxID_HIGHEST;
    for (const GridCommand& command : commands) {
        if (command.beginsGroup && menu.GetMenuItemCount() > 0) menu.AppendSeparator();
        const Text caption =
            command.keys.empty() ? Text(command.caption) : Concat(command.caption, u"\t", command.keys);
        wxMenuItem* const item = menu.Append(++id, ToWx(caption));
        item->Enable(command.isPossible());
        menu.Bind(
            wxEVT_MENU, [this, &command](wxCommandEvent&) { Do(command); }, id);
    }
    PopupMenu(&menu);
}

void GridTab::Say(const Text& text) {
    said = ToWx(text);
    saidRow = edited.row;
    saidColumn = edited.column;
    ShowState();
}

void GridTab::ShowState() {
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        if (buttons[i] != nullptr) buttons[i]->Enable(commands[i].isPossible());
    }
    if (!IsShownOnScreen()) return;
    if (saidRow != edited.row || saidColumn != edited.column) said.clear();
    const wxString text = said.empty() ? grid->CurrentReason() : said;
    if (remark->GetLabelText() == text) return;
    remark->SetLabelText(text);
    remark->SetToolTip(text);
}

}  // namespace korvande
