#include "ui/LogBookWindow.h"

#include <wx/clipbrd.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <exception>
#include <vector>

#include "app/BrowseFiles.h"
#include "app/Listing.h"
#include "app/Manual.h"
#include "app/frmKORVANDE.h"
#include "core/modScreen.h"
#include "host/FileReplacement.h"
#include "host/modFileHandling.h"
#include "ui/Controls.h"
#include "ui/FileDialogs.h"
#include "ui/Icons.h"
#include "ui/KeptPlace.h"
#include "ui/LogBookList.h"
#include "ui/Manual.h"
#include "ui/WxText.h"

namespace korvande {

LogBookWindow::LogBookWindow(wxWindow* parent, const FormKORVANDE& itsForm)
    : wxFrame(parent, wxID_ANY, ToWx(u"Logboek")), form(itsForm), followedRun(itsForm.lastRun.number) {
    constexpr int width = 840;
    constexpr int height = 520;
    SetName("frmLogBook");
    SetIcons(ProgramIcons());
    // Its keys are not the main window's.
    SetExtraStyle(GetExtraStyle() | wxWS_EX_BLOCK_EVENTS);
    wxScrolledWindow* const content = MakeContent(this);
    auto* const column = new wxBoxSizer(wxVERTICAL);
    content->SetSizer(column);
    searched = new wxTextCtrl(content, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, wxTE_PROCESS_ENTER);
    FitTextBox(*searched, 12);
    list = new LogBookList(content, view);
    LetShrink(*list);
    column->Add(MakeSearch(), wxSizerFlags().Expand().Border(wxALL, FromDIP(narrowSpace)));
    column->Add(list, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, FromDIP(narrowSpace)));
    column->Add(MakeButtons(), wxSizerFlags().Expand().Border(wxALL, FromDIP(narrowSpace)));
    CreateStatusBar();
    list->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent&) { ShowPlace(); });
    searched->Bind(wxEVT_TEXT_ENTER, [this](wxCommandEvent&) { Search(Towards::Next); });
    Bind(wxEVT_CHAR_HOOK, &LogBookWindow::OnKey, this);
    BindManual(*this, form.screen, [] { return logBookChapter; });
    FitContent(*this, *content, wxSize(width, height));
    CentreOnParent();
    place = std::make_unique<KeptPlace>(*this, u"LogBookPlace");
    list->SetFocus();
}

LogBookWindow::~LogBookWindow() { place->Keep(); }

wxSizer* LogBookWindow::MakeSearch() {
    wxWindow* const content = searched->GetParent();
    const int narrow = FromDIP(narrowSpace);
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    wxStaticText* const label = MakeLabel(content, u"&Zoeken:");
    // Its letter leads to the control behind it.
    label->MoveBeforeInTabOrder(searched);
    searched->SetName("txtSearch");
    row->Add(label, InRow().Border(wxRIGHT, narrow));
    row->Add(searched, InRow(1).Border(wxRIGHT, narrow));
    const auto add = [&](const char* buttonName, TextView caption, TextView tip, auto action) {
        wxButton* const button = MakeButton(content, buttonName, caption, tip);
        button->MoveBeforeInTabOrder(list);
        button->Bind(wxEVT_BUTTON, [action](wxCommandEvent&) { action(); });
        row->Add(button, InRow().Border(wxRIGHT, narrow));
    };
    add("cmdFindPrevious", u"&Vorige", u"Zoekt terug (Shift+F3)", [this] { Search(Towards::Previous); });
    add("cmdFindNext", u"V&olgende", u"Zoekt verder (F3)", [this] { Search(Towards::Next); });
    row->AddSpacer(FromDIP(2 * wideSpace));
    add("cmdPreviousMark", u"Vorige &melding", u"De vorige fout of het overzicht aan het eind (Shift+F8)",
        [this] { GoToMark(Towards::Previous); });
    add("cmdNextMark", u"Volgende m&elding", u"De volgende fout of het overzicht aan het eind (F8)",
        [this] { GoToMark(Towards::Next); });
    return row;
}

wxSizer* LogBookWindow::MakeButtons() {
    wxWindow* const content = searched->GetParent();
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->AddStretchSpacer();
    const auto add = [&](const char* buttonName, TextView caption, TextView tip, auto action) {
        wxButton* const button = MakeButton(content, buttonName, caption, tip);
        button->Bind(wxEVT_BUTTON, [action](wxCommandEvent&) { action(); });
        row->Add(button, InRow().Border(wxLEFT, FromDIP(narrowSpace)));
    };
    add("cmdSaveLogBook", u"O&pslaan als...", u"Bewaart het logboek in een bestand (Ctrl+S)", [this] { SaveAs(); });
    add("cmdPrintLogBook", u"&Afdrukken", u"Drukt het logboek af op de standaardprinter (Ctrl+P)", [this] { Print(); });
    add("cmdCloseLogBook", u"&Sluiten", u"Sluit dit venster (Esc)", [this] { Close(); });
    return row;
}

bool LogBookWindow::Open(const Text& newName) {
    try {
        view = ReadLogBook(newName);
    } catch (const std::exception&) {
        return false;
    }
    name = newName;
    followedRun = form.lastRun.number;
    SetTitle(ToWx(Concat(u"Logboek – ", FileNameOf(name))));
    list->ShowLines();
    ShowPlace();
    return true;
}

void LogBookWindow::BringToFront() {
    Show();
    CallAfter([this] {
        if (IsIconized()) Restore();
        Raise();
        list->SetFocus();
    });
}

void LogBookWindow::FollowRuns() {
    const RunReport& run = form.lastRun;
    if (run.number == followedRun) return;
    followedRun = run.number;
    if (FileExistsAt(run.logBook) && Open(run.logBook)) return;
    SetTitle(ToWx(Concat(u"Logboek – ", FileNameOf(name), u" (van een eerdere vertaling)")));
}

void LogBookWindow::OnKey(wxKeyEvent& event) {
    const bool isShift = event.GetModifiers() == wxMOD_SHIFT;
    const int key = event.GetKeyCode();
    if (event.GetModifiers() == wxMOD_CONTROL && OnCommandKey(key)) return;
    if (event.HasModifiers()) return event.Skip();
    if (key == WXK_ESCAPE) {
        Close();
    } else if (key == WXK_F3) {
        Search(isShift ? Towards::Previous : Towards::Next);
    } else if (key == WXK_F8) {
        GoToMark(isShift ? Towards::Previous : Towards::Next);
    } else {
        event.Skip();
    }
}

bool LogBookWindow::OnCommandKey(int key) {
    switch (key) {
        case 'F':
            searched->SetFocus();
            searched->SelectAll();
            return true;
        case 'S':
            SaveAs();
            return true;
        case 'P':
            Print();
            return true;
        case 'A':
        case 'C':
            if (searched->HasFocus()) return false;
            if (key == 'A') list->SelectAll();
            if (key == 'C') Copy();
            return true;
        default:
            return false;
    }
}

void LogBookWindow::GoTo(std::optional<std::size_t> line, TextView missing) {
    if (!line) return SetStatusText(ToWx(missing));
    list->Select(*line);
    ShowPlace();
}

void LogBookWindow::GoToMark(Towards towards) {
    GoTo(FindMark(view, list->Current(), towards), u"Dit logboek heeft geen meldingen.");
}

void LogBookWindow::Search(Towards towards) {
    const Text text = FromWx(searched->GetValue());
    if (text.empty()) return searched->SetFocus();
    GoTo(FindLine(view, text, list->Current(), towards), Concat(u"Niet gevonden: ", text));
}

void LogBookWindow::ShowPlace() { SetStatusText(ToWx(PlaceInLogBook(view, list->Current()))); }

void LogBookWindow::SaveAs() {
    const FileDialog dialog = {u"Logboek opslaan", u"Logboeken (*.LOG)|*.log|Alle bestanden (*.*)|*.*", FolderOf(name),
                               FileNameOf(name), false};
    const std::optional<Text> target = ShowFileDialog(this, dialog);
    if (!target) return;
    TryWithRetry(form.screen, *target, u"opslaan", [&] { ReplaceFile(*target, LogBookBytes(view)); });
}

void LogBookWindow::Print() {
    std::vector<Text> lines;
    for (const std::string& line : view.lines) lines.push_back(FromWindows1252(line));
    if (!form.screen.Print([&lines](int linesPerPage) { return ListingPages(lines, linesPerPage); })) {
        ShowMessage(form.screen, u"Het logboek kan niet worden afgedrukt.");
    }
}

void LogBookWindow::Copy() const {
    const wxClipboardLocker clipboard;
    if (!!clipboard) wxTheClipboard->SetData(new wxTextDataObject(list->Selected()));
}

}  // namespace korvande
