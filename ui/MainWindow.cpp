#include "ui/MainWindow.h"

#include <wx/button.h>
#include <wx/sizer.h>

#include <algorithm>
#include <array>
#include <utility>

#include "app/BrowseFiles.h"
#include "app/GridEditing.h"
#include "app/Manual.h"
#include "app/OutputName.h"
#include "app/Projects.h"
#include "app/RunTranslation.h"
#include "app/StartUp.h"
#include "app/TabPlacement.h"
#include "app/UnknownCodes.h"
#include "app/frmKORVANDE.h"
#include "ui/BehindDialog.h"
#include "ui/Controls.h"
#include "ui/Fading.h"
#include "ui/FileDialogs.h"
#include "ui/GeneralTab.h"
#include "ui/GridTab.h"
#include "ui/Icons.h"
#include "ui/InformationTab.h"
#include "ui/KeptPlace.h"
#include "ui/Keys.h"
#include "ui/Manual.h"
#include "ui/OutcomeLine.h"
#include "ui/Page.h"
#include "ui/ProjectDialog.h"
#include "ui/RecentMenu.h"
#include "ui/RunWindows.h"
#include "ui/SettingsTab.h"
#include "ui/StopButton.h"
#include "ui/UnknownCodesDialog.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

constexpr int timerDelay = 500;  // milliseconds
constexpr int gaugePanel = 1;
constexpr int leastGridHeight = 300;  // in device-independent pixels

wxSizer* MakeHeader(wxWindow* parent, const FormKORVANDE& form) {
    const int wide = parent->FromDIP(wideSpace);
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    wxStaticText* const name = MakeLabel(parent, u"KORVANDE", "lblHeader");
    name->SetFont(name->GetFont().Bold());
    row->Add(name, InRow().Border(wxLEFT | wxTOP | wxBOTTOM, wide));
    row->Add(MakeLabel(parent, u"LISCAD  –  NEN1878/SUF2 Vertaler", "lblHeaderTitle"), InRow().Border(wxLEFT, wide));
    row->AddStretchSpacer();
    row->Add(MakeLabel(parent, form.lblVersion, "lblHeaderVersion"), InRow().Border(wxRIGHT, wide));
    return row;
}

}  // namespace

MainWindow::MainWindow(WindowScreen& itsScreen, FormKORVANDE& itsForm)
    : wxFrame(nullptr, wxID_ANY, "KORVANDE"), screen(itsScreen), form(itsForm), timer(this) {
    SetName("frmKORVANDE");
    SetIcons(ProgramIcons());
    MakeTabs();
    MakeStatusBar();
    binding = std::make_unique<Binding>(*this, form);
    // MakeTabs has just made it. NOLINTNEXTLINE(cppcoreguidelines-prefer-member-initializer)
    projects = &ControlNamed<wxListBox>(*this, "File1");
    runWindows = std::make_unique<RunWindows>(*this, form, [this](const auto& action) { Work(action); });
    runWindows->onUnknownCodes = [this](const auto& unknown, wxWindow* parent, const auto& look) {
        return AddUnknownCodes(unknown, parent, look);
    };
    BindControls();
    BindForm();
    form.Timer1Enabled = true;
    ShowForm();
    FitContent();
    const wxRect fitted = GetRect();
    keptPlace = std::make_unique<KeptPlace>(*this, u"WindowPlace");
    if (GetRect() == fitted) KeepContentUntilShown();
    screen.Attach(this, gauge, &form);
    tabs->SetFocus();
}

MainWindow::~MainWindow() {
    screen.Detach();
    form.changed = {};
    form.unload = {};
    form.askProjectName = {};
}

void MainWindow::MakeTabs() {
    auto* const content = new wxPanel(this);
    tabs = new wxNotebook(content, wxID_ANY);
    tabs->SetName("tabs");
    wxScrolledWindow* const general = MakeGeneralTab(tabs);
    wxScrolledWindow* const settings = MakeSettingsTab(tabs);
    startRow = std::make_unique<StartRow>(general, settings);
    tabs->AddPage(general, ToWx(u"Algemeen"));
    tabs->AddPage(settings, ToWx(u"Instellingen"));
    const auto addGrid = [this](TextView caption, EditedGrid& edited, const GridNames& names) {
        gridTabs.push_back(new GridTab(tabs, form, edited, names));
        tabs->AddPage(gridTabs.back(), ToWx(caption));
    };
    addGrid(u"Puntobjecten", form.editedPoints, {"gridPoints", "txtEditPointCell", "cboEditPointCell"});
    addGrid(u"Lijnobjecten", form.editedLines, {"gridLines", "txtEditLineCell", "cboEditLineCell"});
    addGrid(u"Tekstobjecten", form.editedTexts, {"gridTexts", "txtEditTextCell", ""});
    tabs->AddPage(MakeInformationTab(tabs, form), ToWx(u"Informatie"));

    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(MakeHeader(content, form), wxSizerFlags().Expand());
    column->Add(tabs, wxSizerFlags(1).Expand());
    outcome = new OutcomeLine(content, form);
    outcome->onUnknownCodes = [this] { AddUnknownCodes(form.lastRun.unknownCodes, this, {}); };
    outcome->onCompare = [this] { Work([this] { runWindows->ShowComparison(); }); };
    column->Add(outcome, wxSizerFlags().Expand());
    content->SetSizer(column);
    auto* const whole = new wxBoxSizer(wxVERTICAL);
    whole->Add(content, wxSizerFlags(1).Expand());
    SetSizer(whole);
}

void MainWindow::MakeStatusBar() {
    constexpr int gaugeRange = 1000;
    wxStatusBar* const bar = CreateStatusBar(2);
    bar->SetName("StatusBar1");
    const std::array<int, 2> widths = {-3, -1};
    bar->SetStatusWidths(static_cast<int>(widths.size()), widths.data());
    gauge = new wxGauge(bar, wxID_ANY, gaugeRange, wxDefaultPosition, wxDefaultSize, wxGA_HORIZONTAL | wxGA_SMOOTH);
    gauge->SetName("ProgressBar1");
    stop = new StopButton(bar, form);
    bar->SetMinHeight(std::max(bar->GetSize().y, stop->GetBestSize().y));
    bar->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        PlaceGauge();
    });
}

void MainWindow::PlaceGauge() {
    wxRect place;
    if (!GetStatusBar()->GetFieldRect(gaugePanel, place)) return;
    place.width -= FromDIP(wideSpace);
    if (stop->IsShown()) {
        const wxSize best = stop->GetBestSize() + wxSize(2 * FromDIP(narrowSpace), 0);
        const wxSize size(best.x, std::min(best.y, place.height));
        stop->SetSize(wxRect(size).CentreIn(wxRect(place.GetRight() - size.x, place.y, size.x, place.height)));
        place.width -= size.x + FromDIP(wideSpace);
    }
    const wxSize size(std::max(place.width, 0), gauge->GetBestSize().y);
    gauge->SetSize(wxRect(size).CentreIn(place));
}

// The size at which every page shows all it has, if the display is large enough. The tabs may turn out higher than they
// say before they are shown.
void MainWindow::FitContent() {
    const wxSize reserve = FromDIP(wxSize(0, wideSpace));
    for (size_t i = 0; i < tabs->GetPageCount(); ++i) {
        wxWindow& page = *tabs->GetPage(i);
        auto* const scrolled = dynamic_cast<Page*>(&page);
        wxSize size = (scrolled != nullptr ? scrolled->WholeSize() : page.GetSizer()->CalcMin()) + reserve;
        // A table is as high as the window happens to be.
        if (dynamic_cast<GridTab*>(&page) != nullptr) size.y = FromDIP(leastGridHeight);
        page.SetMinClientSize(size);
    }
    wxSize content = GetSizer()->CalcMin();
    for (size_t i = 0; i < tabs->GetPageCount(); ++i) tabs->GetPage(i)->SetMinClientSize(wxDefaultSize);
    // There is room below the pages for what becomes of a run.
    content.y += outcome->GetBestSize().y;
    SetClientSize(content);
    FitDisplay(*this);
    Centre();
}

// How thick the frame is, is told when the window comes up; the toolkit would take that from the pages.
void MainWindow::KeepContentUntilShown() {
    SetMinClientSize(GetClientSize());
    wxWindow* const content = tabs->GetParent();
    content->Bind(wxEVT_PAINT, [this](wxPaintEvent& event) {
        event.Skip();
        if (!isFitted) SetMinClientSize(wxDefaultSize);
        isFitted = true;
    });
}

void MainWindow::BindForm() {
    form.changed = [this] { ShowForm(); };
    form.unload = [this] { Unload(MayStay::Yes); };
    form.askProjectName = [this](TextView caption, TextView explanation, TextView prompt, TextView name) {
        return AskProjectName(this, caption, explanation, prompt, name);
    };
}

void MainWindow::BindControls() {
    const AskFileName ask = [this](const FileDialog& dialog) { return ShowFileDialog(this, dialog); };
    WorkOn("cmdStart", [this] { RunTranslation(form); });
    WorkOn("cmdCheck", [this] { runWindows->Check(); });
    WorkOn("cmdPreview", [this] { runWindows->ShowPreview(); });
    WorkOn("cmdNewJob", [this] { NewProject(form); });
    WorkOn("cmdCopyJob", [this] { CopyProject(form); });
    WorkOn("cmdDelJob", [this] { DeleteProject(form); });
    WorkOn("cmdBrowseIDEX", [this, ask] { BrowseIdexFile(form, ask); });
    WorkOn("cmdBrowseSUFNEN", [this, ask] { BrowseSufNenFile(form, ask); });
    OfferRecent("cmdRecentIDEX", Direction::FromIdex);
    OfferRecent("cmdRecentSUFNEN", Direction::ToIdex);
    projects->Bind(wxEVT_LISTBOX, [this](wxCommandEvent& event) {
        const int picked = event.GetSelection();
        Work([this, picked] { PickProject(form, picked); });
    });
    tabs->Bind(wxEVT_NOTEBOOK_PAGE_CHANGED, [this](wxBookCtrlEvent& event) {
        event.Skip();
        EnableShownPage();
        startRow->PlaceOn(event.GetSelection(), form.project.options.StartedInteractively);
    });
    // The binding has taken the mode by then.
    ControlNamed<wxChoice>(*this, "cboXlateMode").Bind(wxEVT_CHOICE, [this](wxCommandEvent& event) {
        event.Skip();
        CallAfter([this] { DeriveOutputName(form); });
    });
    BindKeys(*this, *tabs);
    BindManual(*this, screen, [this] { return ManualChapter(tabs->GetSelection()); });
    Bind(wxEVT_TIMER, &MainWindow::OnTimer, this);
    Bind(wxEVT_CLOSE_WINDOW, &MainWindow::OnClose, this);
}

void MainWindow::WorkOn(const char* button, std::function<void()> action) {
    ControlNamed<wxButton>(*this, button).Bind(wxEVT_BUTTON, [this, action = std::move(action)](wxCommandEvent&) {
        Work(action);
    });
}

void MainWindow::OfferRecent(const char* button, Direction direction) {
    auto& control = ControlNamed<wxButton>(*this, button);
    control.Bind(wxEVT_BUTTON, [this, &control, direction](wxCommandEvent&) {
        const std::optional<RecentFile> file = AskRecentFile(control, direction);
        if (file) Work([&] { TakeRecentFile(form, *file); });
    });
}

void MainWindow::Work(const std::function<void()>& action) {
    wxWindow* const focused = FindFocus();
    EndEdits(form);
    EnableOptions(false);
    // Also after an error, which is told elsewhere.
    const auto finish = [&] {
        if (isClosing) return;
        EnableOptions(true);
        if (focused != nullptr) focused->SetFocus();
        ShowForm();
    };
    try {
        action();
    } catch (...) {
        finish();
        throw;
    }
    finish();
}

// A person goes on in the grid that got the first of them.
bool MainWindow::AddUnknownCodes(const UnknownCodes& found, wxWindow* parent,
                                 const std::function<void(const UnknownCode&)>& look) {
    if (IsBusy(form)) return false;
    EndEdits(form);
    UnknownCodes unknown = StillUnknown(form, found);
    if (unknown.codes.empty()) return true;
    Suggest(form, unknown);
    const EditedGrid* const grid = AddCodes(form, AskUnknownCodes(parent, unknown, look));
    for (size_t i = 0; i < gridTabs.size(); ++i) {
        if (&gridTabs[i]->Edited() != grid) continue;
        tabs->SetSelection(tabPoints + i);
        gridTabs[i]->GoToCurrentCell();
    }
    return grid != nullptr || unknown.codes.size() < found.codes.size();
}

// To grey a page takes longer than to translate a small drawing, so it waits until a person would see it.
void MainWindow::EnableOptions(bool enable) {
    optionsEnabled = enable;
    if (!enable) return EnableShownPage();
    for (size_t i = 0; i < tabs->GetPageCount(); ++i) tabs->GetPage(i)->Enable();
}

void MainWindow::EnableShownPage() {
    if (wxWindow* const page = tabs->GetCurrentPage()) page->Enable(optionsEnabled);
}

void MainWindow::ShowForm() {
    if (isClosing) return;
    binding->Show();
    outcome->ShowForm();
    screen.FollowRuns();
    ShowList(*projects, form.File1);
    ShowStandalone();
    ShowStop();
    for (GridTab* const tab : gridTabs) tab->ShowForm();
    startRow->PlaceOn(tabs->GetSelection(), form.project.options.StartedInteractively);
    ShowTimer();
}

// As long as a run goes on, the keys come to the tabs, which alone are not disabled: Escape among them.
void MainWindow::ShowStop() {
    const bool wasShown = stop->IsShown();
    const bool isNew = stop->ShowForm();
    if (stop->IsShown() != wasShown) PlaceGauge();
    if (isNew) tabs->SetFocus();
}

void MainWindow::ShowStandalone() {
    auto& frame = ControlNamed<wxWindow>(*this, "framStandalone");
    const bool show = form.project.options.StartedInteractively;
    if (frame.IsShown() == show) return;
    frame.Show(show);
    for (wxWindow* const child : frame.GetChildren()) child->Show(show);
    tabs->GetPage(tabGeneral)->Layout();
}

// The timer runs once each time the form starts it.
void MainWindow::ShowTimer() {
    const bool runs = form.Timer1Enabled;
    if (runs && !timer.IsRunning()) timer.StartOnce(timerDelay);
    if (!runs) timer.Stop();
}

// Brings the window to the front.
void MainWindow::OnTimer(wxTimerEvent& /*event*/) {
    form.Timer1Enabled = false;
    const long style = GetWindowStyleFlag();
    SetWindowStyleFlag(style | wxSTAY_ON_TOP);
    SetWindowStyleFlag(style);
}

void MainWindow::OnClose(wxCloseEvent& event) {
    if (isClosing) return;
    if (IsBehindDialog(*this)) {
        // From another program, for a person cannot. Whoever shows the dialog goes on in this window after it, unless
        // the session ends.
        if (event.CanVeto()) {
            event.Veto();
        } else {
            UnloadForm(form, MayStay::No);
        }
        return;
    }
    if (QueryClose(form)) Unload(event.CanVeto() ? MayStay::Yes : MayStay::No);
    if (!isClosing && event.CanVeto()) event.Veto();
}

void MainWindow::Unload(MayStay mayStay) {
    if (isClosing || !UnloadForm(form, mayStay)) return;
    isClosing = true;
    keptPlace->Keep();
    timer.Stop();
    Destroy();
}

MainWindow* OpenMainWindow(WindowScreen& screen, FormKORVANDE& form, const StartUpArguments& arguments) {
    form.askFolder = [](TextView title) { return ShowFolderDialog(nullptr, title); };
    if (StartUp(form, arguments) == AfterStartUp::EndProgram) return nullptr;
    FadeNothing();
    auto* const window = new MainWindow(screen, form);
    window->Show();
    return window;
}

}  // namespace korvande
