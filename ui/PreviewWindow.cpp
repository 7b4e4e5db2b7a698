#include "ui/PreviewWindow.h"

#include <wx/button.h>
#include <wx/sizer.h>

#include <algorithm>
#include <array>
#include <utility>

#include "app/BrowseFiles.h"
#include "app/Manual.h"
#include "app/frmKORVANDE.h"
#include "core/modScreen.h"
#include "host/modFileHandling.h"
#include "picture/HitTest.h"
#include "picture/PictureFile.h"
#include "ui/Controls.h"
#include "ui/FileDialogs.h"
#include "ui/Icons.h"
#include "ui/Manual.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

constexpr int looksEvery = 50;  // milliseconds, at the reading
constexpr int gaugeRange = 1000;
constexpr int placeField = 1;

Text TitleOf(const PreviewOrder& order) {
    if (order.output.empty()) return Concat(u"Voorbeeld van ", FileNameOf(order.input));
    return Concat(FileNameOf(order.output), u" over ", FileNameOf(order.input));
}

}  // namespace

PreviewWindow::PreviewWindow(wxWindow* parent, FormKORVANDE& itsForm, PreviewOrder itsOrder)
    : wxFrame(parent, wxID_ANY, ToWx(TitleOf(itsOrder))),
      form(itsForm),
      order(std::move(itsOrder)),
      content(MakeContent(this)),
      splitter(new wxSplitterWindow(content, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_LIVE_UPDATE)),
      side(new PreviewSide(splitter, !order.output.empty())),
      view(new DrawingView(splitter)),
      timer(this) {
    SetName("frmPreview");
    SetIcons(ProgramIcons());
    // Its keys are not the main window's.
    SetExtraStyle(GetExtraStyle() | wxWS_EX_BLOCK_EVENTS);
    const int narrow = FromDIP(narrowSpace);
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(MakeReading(), wxSizerFlags().Expand());
    progress->MoveBeforeInTabOrder(splitter);
    side->MoveAfterInTabOrder(view);
    splitter->SetMinimumPaneSize(FromDIP(150));
    splitter->SetSashGravity(1);
    view->SetMinSize(FromDIP(wxSize(240, 160)));
    splitter->SplitVertically(view, side, -std::max(FromDIP(400), WidthOfSide()));
    column->Add(splitter, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxTOP, narrow));
    column->Add(MakeButtons(), wxSizerFlags().Expand().Border(wxALL, narrow));
    content->SetSizer(column);
    wxStatusBar* const bar = CreateStatusBar(2);
    const std::array<int, 2> widths = {-3, -2};
    bar->SetStatusWidths(static_cast<int>(widths.size()), widths.data());
    FitContent(*this, *content, wxSize(1100, 700));
    CentreOnParent();
    place = std::make_unique<KeptPlace>(*this, u"PreviewPlace");
    BindEvents();
    EnableButtons();
    BeginReading();
}

// The view is made of what was read: it goes before that.
PreviewWindow::~PreviewWindow() {
    place->Keep();
    timer.Stop();
    DestroyChildren();
}

// What the side takes to be seen whole, with the sash.
int PreviewWindow::WidthOfSide() const { return side->GetBestSize().x + splitter->GetSashSize(); }

wxSizer* PreviewWindow::MakeReading() {
    progress = new wxPanel(content);
    progress->SetName("framReading");
    status = MakeLabel(progress, u"Bezig met lezen...", "lblReading");
    gauge = new wxGauge(progress, wxID_ANY, gaugeRange);
    gauge->SetName("gaugeReading");
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    const auto around = InRow().Border(wxALL, FromDIP(narrowSpace));
    row->Add(status, InRow(1).Border(wxALL, FromDIP(narrowSpace)));
    row->Add(gauge, InRow(1).Border(wxALL, FromDIP(narrowSpace)));
    wxButton* const stop = MakeButton(progress, "cmdStopReading", u"Stop", u"Breekt het lezen af (Esc)");
    stop->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { Close(); });
    row->Add(stop, around);
    progress->SetSizer(row);
    auto* const whole = new wxBoxSizer(wxVERTICAL);
    whole->Add(progress, wxSizerFlags().Expand());
    return whole;
}

void PreviewWindow::Add(wxSizer* row, wxWindow* parent, const char* name, TextView caption, TextView tip,
                        std::function<void()> action) {
    wxButton* const button = MakeButton(parent, name, caption, tip);
    button->Bind(wxEVT_BUTTON, [action = std::move(action)](wxCommandEvent&) { action(); });
    row->Add(button, InRow().Border(wxRIGHT, FromDIP(narrowSpace)));
}

wxSizer* PreviewWindow::MakeButtons() {
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    Add(row, content, "cmdFit", u"A&lles", u"Toont de hele tekening (Home)", [this] { view->ShowAll(); });
    Add(row, content, "cmdCloser", u"&Dichterbij", u"Vergroot (+, of het muiswiel)", [this] { view->Zoom(1.5); });
    Add(row, content, "cmdFarther", u"V&erder weg", u"Verkleint (-, of het muiswiel)", [this] { view->Zoom(1 / 1.5); });
    row->AddStretchSpacer();
    if (order.output.empty()) {
        Add(row, content, "cmdPreviewUnknown", u"&Onbekende codes...",
            u"Toont de codes die niet in de codetabellen staan, om ze toe te voegen", [this] { AddUnknownCodes(); });
        Add(row, content, "cmdSavePreview", u"O&pslaan als...", u"Bewaart wat u ziet als SVG of PNG (Ctrl+S)",
            [this] { SaveAs(); });
        Add(row, content, "cmdPrintPreview", u"A&fdrukken...", u"Drukt de tekening op schaal af (Ctrl+P)",
            [this] { Print(); });
    }
    Add(row, content, "cmdClosePreview", u"&Sluiten", u"Sluit dit venster (Esc)", [this] { Close(); });
    return row;
}

void PreviewWindow::BindEvents() {
    view->onPick = [this](PicturePlace at, double reach) { Pick(at, reach); };
    view->onGoTo = [this] { GoToSelection(); };
    view->onPointer = [this](const std::optional<Position>& at) {
        SetStatusText(at && preview ? ToWx(TextOfPlace(preview->drawing.list, *at)) : wxString(), placeField);
    };
    side->Codes().onShown = [this] { view->Hide(codes.Hidden()); };
    side->Codes().onGoTo = [this](std::size_t row) {
        Select(codes.NextOf(row, selected));
        GoToSelection();
    };
    side->Differences().onSelect = [this](std::size_t row) { SelectDifference(row); };
    side->onNext = [this](bool isForward) { GoToNext(isForward); };
    side->onShow = [this](DifferenceKind kind, bool isShown) {
        differences.Show(kind, isShown);
        side->Differences().ShowDifferences(&differences);
        selectedDifference.reset();
        view->ShowMarks(differences.Shown(marks));
    };
    Bind(wxEVT_TIMER, [this](wxTimerEvent&) { LookAtReading(); });
    Bind(wxEVT_CHAR_HOOK, &PreviewWindow::OnKey, this);
    BindManual(*this, form.screen, [] { return previewChapter; });
}

void PreviewWindow::BeginReading() {
    reading = std::make_unique<PreviewReading>(order);
    timer.Start(looksEvery);
}

void PreviewWindow::LookAtReading() {
    if (reading == nullptr) return;
    if (!reading->IsOver()) {
        status->SetLabelText(ToWx(reading->Status()));
        gauge->SetValue(static_cast<int>(reading->Part() * gaugeRange));
        return;
    }
    timer.Stop();
    const PreviewEnd end = reading->End();
    const Text failure = reading->Failure();
    std::unique_ptr<Preview> read = reading->Take();
    reading.reset();
    if (end == PreviewEnd::Failed) return ShowFailure(failure);
    if (end == PreviewEnd::Stopped) return;
    // What was shown stays until the new one is.
    const std::unique_ptr<Preview> before = std::exchange(preview, std::move(read));
    ShowRead();
}

void PreviewWindow::ShowRead() {
    const bool wasShown = view->HasDrawing();
    progress->Hide();
    content->FitInside();
    const auto sourceOf = [](const ShownDrawing& drawing) {
        return FrameSource{&drawing.translation.drawing, &drawing.list, &drawing.index};
    };
    std::vector<FrameSource> sources = {sourceOf(preview->drawing)};
    codes = PreviewCodes(preview->drawing.list);
    side->Codes().ShowCodes(&codes);
    std::shared_ptr<const FrameMarks> shown;
    if (preview->output) {
        sources.push_back(sourceOf(*preview->output));
        marks = MarksOf(*preview);
        differences = PreviewDifferences(preview->comparison);
        side->Differences().ShowDifferences(&differences);
        side->ShowCounts(differences);
        if (side->GetSize().x < side->GetBestSize().x) splitter->SetSashPosition(-WidthOfSide());
        shown = differences.Shown(marks);
    }
    const PictureView before = view->View();
    view->ShowDrawing(std::move(sources), shown);
    if (wasShown) view->SetView(before);
    EnableButtons();
    SetStatusText(ToWx(preview->output ? SummaryOf(preview->comparison) : SummaryOf(preview->drawing.list)));
}

void PreviewWindow::ShowFailure(const Text& failure) {
    gauge->Hide();
    status->SetLabelText(ToWx(failure));
    status->SetForegroundColour(WarningColour());
    FindWindow("cmdStopReading")->Hide();
    content->FitInside();
}

void PreviewWindow::Pick(PicturePlace at, double reach) {
    if (!preview) return;
    const ShownDrawing& drawing = preview->drawing;
    Select(ObjectAt(drawing.list, drawing.index, at, reach, codes.Hidden()));
}

void PreviewWindow::Select(const std::optional<PictureRef>& ref) {
    constexpr double beside = 20;  // millimetres, of the straight lines that stand for a curve
    selected = ref;
    selectedDifference.reset();
    if (!ref) {
        view->Highlight({});
        return side->ShowObject({});
    }
    const ShownDrawing& drawing = preview->drawing;
    view->Highlight(OutlineOf(drawing.list, *ref, beside));
    const ObjectInfo object = Describe(drawing.translation.drawing, drawing.list, *ref);
    side->ShowObject(TextOf(object));
}

void PreviewWindow::SelectDifference(std::size_t row) {
    selected.reset();
    selectedDifference = row;
    const FrameMark& mark = marks[differences.PlaceOf(row)];
    view->Highlight(mark.outline);
    if (!mark.box.IsEmpty()) view->BringIntoView(mark.box);
    side->ShowObject(TextOf(differences.At(row)));
}

void PreviewWindow::GoToSelection() {
    constexpr double beside = 20;
    PictureBox box;
    if (selected) box = BoxOf(OutlineOf(preview->drawing.list, *selected, beside));
    if (selectedDifference) box = marks[differences.PlaceOf(*selectedDifference)].box;
    if (!box.IsEmpty()) view->GoTo(box);
}

void PreviewWindow::GoToNext(bool isForward) {
    if (!preview) return;
    const std::optional<std::size_t> next = differences.Next(selectedDifference, isForward);
    if (!next) return;
    side->Differences().Select(*next);
    SelectDifference(*next);
}

void PreviewWindow::OnKey(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    if (event.GetModifiers() == wxMOD_CONTROL && OnCommandKey(key)) return;
    const bool isShift = event.GetModifiers() == wxMOD_SHIFT;
    if (event.GetModifiers() == wxMOD_NONE && key == WXK_ESCAPE) {
        Close();
    } else if (key == WXK_F5 && !event.HasAnyModifiers()) {
        ReadAgain();
    } else if (key == WXK_F8 && (isShift || !event.HasAnyModifiers())) {
        GoToNext(!isShift);
    } else {
        event.Skip();
    }
}

bool PreviewWindow::OnCommandKey(int key) {
    switch (key) {
        case 'S':
            SaveAs();
            return true;
        case 'P':
            Print();
            return true;
        case '0':
            view->ShowAll();
            return true;
        case '+':
        case '=':
        case WXK_NUMPAD_ADD:
            view->Zoom(1.5);
            return true;
        case '-':
        case WXK_NUMPAD_SUBTRACT:
            view->Zoom(1 / 1.5);
            return true;
        default:
            return false;
    }
}

void PreviewWindow::EnableButtons() {
    const bool isOfInput = order.output.empty();
    if (!isOfInput) return;
    for (const char* const name : {"cmdSavePreview", "cmdPrintPreview"}) FindWindow(name)->Enable(preview != nullptr);
    const bool hasUnknown = preview && codes.Count() > 0 && !codes.CodeAt(0).isKnown;
    FindWindow("cmdPreviewUnknown")->Enable(hasUnknown);
}

// What the window shows, as it is there: without the codes that are hidden.
void PreviewWindow::SaveAs() {
    constexpr int leastPixels = 1600;
    if (!preview || preview->output) return;
    const FileDialog dialog = {u"Tekening opslaan", u"SVG (*.svg)|*.svg|PNG (*.png)|*.png", FolderOf(order.input),
                               WithLastThreeReplaced(FileNameOf(order.input), u"svg"), false};
    std::optional<Text> target = ShowFileDialog(this, dialog);
    if (!target) return;
    if (!PictureFormatOf(*target)) AppendTo(*target, u".svg");
    PictureFrame frame = FrameOf(view->View());
    frame.pixels = std::max(frame.pixels, leastPixels);
    const ShownDrawing& drawing = preview->drawing;
    TryWithRetry(form.screen, *target, u"opslaan", [&] {
        WritePictureFile(drawing.translation.drawing, drawing.list, frame, {FileNameOf(order.input), *target},
                         {&drawing.index, &codes.Hidden()});
    });
}

void PreviewWindow::Print() {
    if (!preview || preview->output) return;
    const std::optional<PrintChoice> choice = AskPrintChoice(this, printChoice);
    if (!choice) return;
    printChoice = *choice;
    printData.SetOrientation(printChoice.isLandscape ? wxLANDSCAPE : wxPORTRAIT);
    const ShownDrawing& drawing = preview->drawing;
    const DrawingPage page = {{&drawing.translation.drawing, &drawing.list, &drawing.index},
                              codes.Hidden(),
                              view->View(),
                              printChoice.scale,
                              FileNameOf(order.input)};
    if (!PrintDrawing(this, printData, page, asksPrinter)) {
        ShowMessage(form.screen, u"De tekening kan niet worden afgedrukt.");
    }
}

void PreviewWindow::AddUnknownCodes() {
    if (!preview) return;
    const UnknownCodes unknown =
        UnknownCodesOf(preview->drawing.translation.drawing, preview->drawing.list, order.mode.direction);
    if (onUnknownCodes(unknown, [this](const UnknownCode& code) { LookAt(code); })) ReadAgain();
}

void PreviewWindow::LookAt(const UnknownCode& code) {
    for (std::size_t row = 0; row < codes.Count(); ++row) {
        const PictureCode& shown = codes.CodeAt(row);
        if (shown.isKnown || shown.table != code.table || shown.code != code.code) continue;
        codes.Show(row, true);
        view->Hide(codes.Hidden());
        side->Codes().Select(row);
        Select(codes.NextOf(row, {}));
        return GoToSelection();
    }
}

// With the settings and the code tables as they are now.
void PreviewWindow::ReadAgain() {
    if (IsReading() || !TakeSettings(form, order)) return;
    progress->Show();
    content->FitInside();
    Select({});
    BeginReading();
}

}  // namespace korvande
