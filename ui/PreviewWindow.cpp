#include "ui/PreviewWindow.h"

#include <wx/button.h>
#include <wx/sizer.h>

#include <algorithm>
#include <array>
#include <utility>

#include "app/GridEditing.h"
#include "app/Manual.h"
#include "app/Projects.h"
#include "app/frmKORVANDE.h"
#include "host/modFileHandling.h"
#include "picture/HitTest.h"
#include "ui/Controls.h"
#include "ui/Icons.h"
#include "ui/Manual.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

constexpr int looksEvery = 50;  // milliseconds, at the reading
constexpr int placeField = 1;
constexpr double buttonZoom = 1.5;
constexpr double beside = 20;  // millimetres, of the straight lines that stand for a curve

Text TitleOf(const PreviewOrder& order) {
    if (order.output.empty()) return Concat(u"Voorbeeld van ", FileNameOf(order.input));
    return Concat(FileNameOf(order.output), u" over ", FileNameOf(order.input));
}

FrameSource SourceOf(const ShownDrawing& drawing) {
    return {&drawing.translation.drawing, &drawing.list, &drawing.index};
}

// What is to be known of the reading of one drawing or both, in lines.
Text NoticeOf(const Preview& preview) {
    Text notice = preview.drawing.notice;
    if (!preview.output || preview.output->notice.empty()) return notice;
    if (!notice.empty()) AppendTo(notice, u"\n");
    AppendTo(notice, preview.output->notice);
    return notice;
}

}  // namespace

PreviewWindow::PreviewWindow(wxWindow* parent, FormKORVANDE& itsForm, PreviewOrder itsOrder)
    : wxFrame(parent, wxID_ANY, ToWx(TitleOf(itsOrder))),
      form(itsForm),
      order(std::move(itsOrder)),
      content(MakeContent(this)),
      progress(new ReadingBar(content)),
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
    column->Add(progress, wxSizerFlags().Expand());
    side->MoveAfterInTabOrder(view);
    splitter->SetMinimumPaneSize(FromDIP(150));
    splitter->SetSashGravity(1);
    view->SetMinSize(FromDIP(wxSize(240, 160)));
    // Differences are told in more words than codes.
    const int usual = order.output.empty() ? 400 : 480;
    splitter->SplitVertically(view, side, -std::max(FromDIP(usual), WidthOfSide()));
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
    BindSide();
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

void PreviewWindow::Add(wxSizer* row, const char* name, TextView caption, TextView tip, std::function<void()> action) {
    wxButton* const button = MakeButton(content, name, caption, tip);
    button->Bind(wxEVT_BUTTON, [action = std::move(action)](wxCommandEvent&) { action(); });
    row->Add(button, InRow().Border(wxRIGHT, FromDIP(narrowSpace)));
}

wxSizer* PreviewWindow::MakeButtons() {
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    Add(row, "cmdFit", u"A&lles", u"Toont de hele tekening (Home)", [this] { view->ShowAll(); });
    Add(row, "cmdCloser", u"&Dichterbij", u"Vergroot (+, of het muiswiel)", [this] { view->Zoom(buttonZoom); });
    Add(row, "cmdFarther", u"V&erder weg", u"Verkleint (-, of het muiswiel)", [this] { view->Zoom(1 / buttonZoom); });
    row->AddStretchSpacer();
    if (order.output.empty()) {
        Add(row, "cmdPreviewUnknown", u"&Onbekende codes...",
            u"Toont de codes die niet in de codetabellen staan, om ze toe te voegen", [this] { AddUnknownCodes(); });
    }
    Add(row, "cmdSavePreview", u"O&pslaan als...", u"Bewaart wat u ziet als SVG of PNG (Ctrl+S)", [this] { SaveAs(); });
    Add(row, "cmdPrintPreview", u"A&fdrukken...", u"Drukt de tekening op schaal af (Ctrl+P)", [this] { Print(); });
    Add(row, "cmdClosePreview", u"&Sluiten", u"Sluit dit venster (Esc)", [this] { Close(); });
    return row;
}

void PreviewWindow::BindEvents() {
    view->onPick = [this](PicturePlace at, double reach) { Pick(at, reach); };
    view->onGoTo = [this] { GoToSelection(); };
    view->onPointer = [this](const std::optional<Position>& at) {
        SetStatusText(at && preview ? ToWx(TextOfPlace(preview->drawing.list, *at)) : wxString(), placeField);
    };
    progress->onStop = [this] { StopReading(); };
    Bind(wxEVT_TIMER, [this](wxTimerEvent&) { LookAtReading(); });
    Bind(wxEVT_CHAR_HOOK, &PreviewWindow::OnKey, this);
    Bind(wxEVT_CLOSE_WINDOW, &PreviewWindow::OnClose, this);
    BindManual(*this, form.screen, [] { return previewChapter; });
}

void PreviewWindow::BindSide() {
    side->Codes().onShown = [this] { view->Hide(codes.Hidden()); };
    side->Codes().onGoTo = [this](std::size_t row) {
        Select(codes.NextOf(row, selected));
        GoToSelection();
    };
    side->Differences().onSelect = [this](std::size_t row) { SelectDifference(row); };
    side->Differences().onGoTo = [this](std::size_t row) {
        SelectDifference(row);
        GoToSelection();
    };
    side->onNext = [this](bool isForward) { GoToNext(isForward); };
    side->onShow = [this](DifferenceKind kind, bool isShown) {
        differences.Show(kind, isShown);
        side->Differences().ShowDifferences(&differences);
        Select({});
        view->ShowMarks(differences.Shown(marks));
    };
}

// A reading looks only now and then whether it is to stop: the window goes at once, and what it holds then.
void PreviewWindow::OnClose(wxCloseEvent& event) {
    if (!IsReading() || !event.CanVeto()) return event.Skip();
    isClosing = true;
    reading->Stop();
    Hide();
}

void PreviewWindow::BeginReading() {
    reading = std::make_unique<PreviewReading>(order);
    timer.Start(looksEvery);
}

// What was shown before stays.
void PreviewWindow::StopReading() {
    if (reading == nullptr) return;
    if (!preview) return static_cast<void>(Close());
    reading->Stop();
}

void PreviewWindow::LookAtReading() {
    if (reading == nullptr) return;
    if (!reading->IsOver()) return progress->ShowProgress(reading->Status(), reading->Part());
    timer.Stop();
    const PreviewEnd end = reading->End();
    const Text failure = reading->Failure();
    std::unique_ptr<Preview> read = reading->Take();
    reading.reset();
    if (isClosing) return static_cast<void>(Destroy());
    if (end == PreviewEnd::Failed) return progress->ShowNotice(failure);
    if (end == PreviewEnd::Read) return ShowRead(std::move(read));
    progress->ShowNotice(preview ? NoticeOf(*preview) : Text());
}

void PreviewWindow::ShowRead(std::unique_ptr<Preview> read) {
    // What was shown stays until the new one is.
    const std::unique_ptr<Preview> before = std::exchange(preview, std::move(read));
    selected.reset();
    selectedDifference.reset();
    side->ShowObject({});
    progress->ShowNotice(NoticeOf(*preview));
    std::vector<FrameSource> sources = {SourceOf(preview->drawing)};
    ShowCodes(before != nullptr);
    std::shared_ptr<const FrameMarks> shown;
    if (preview->output) {
        sources.push_back(SourceOf(*preview->output));
        shown = ShowDifferences();
    }
    const PictureView viewBefore = view->View();
    const bool showedAll = view->ShowsAll();
    view->ShowDrawing(std::move(sources), shown);
    view->Hide(codes.Hidden());
    if (before && !showedAll) {
        view->SetView(InPlacesFrom(preview->drawing.list.origin, before->drawing.list.origin, viewBefore));
    }
    EnableButtons();
    SetStatusText(ToWx(preview->output ? SummaryOf(preview->comparison) : SummaryOf(preview->drawing.list)));
}

void PreviewWindow::ShowCodes(bool isAgain) {
    PreviewCodes read(preview->drawing.list);
    if (isAgain) read.HideAlso(codes);
    codes = std::move(read);
    side->Codes().ShowCodes(&codes);
}

std::shared_ptr<const FrameMarks> PreviewWindow::ShowDifferences() {
    marks = MarksOf(*preview);
    differences = PreviewDifferences(preview->comparison);
    for (const DifferenceKind kind : {DifferenceKind::Missing, DifferenceKind::Changed, DifferenceKind::Added}) {
        differences.Show(kind, side->Shows(kind));
    }
    side->Differences().ShowDifferences(&differences);
    side->ShowCounts(differences);
    if (side->GetSize().x < side->GetBestSize().x) splitter->SetSashPosition(-WidthOfSide());
    return differences.Shown(marks);
}

void PreviewWindow::Pick(PicturePlace at, double reach) {
    if (!preview) return;
    const ShownDrawing& drawing = preview->drawing;
    Select(ObjectAt(drawing.list, drawing.index, at, reach, codes.Hidden()));
}

void PreviewWindow::Select(const std::optional<PictureRef>& ref) {
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
        IsReading() ? StopReading() : static_cast<void>(Close());
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
            view->Zoom(buttonZoom);
            return true;
        case '-':
        case WXK_NUMPAD_SUBTRACT:
            view->Zoom(1 / buttonZoom);
            return true;
        default:
            return false;
    }
}

void PreviewWindow::EnableButtons() {
    for (const char* const name : {"cmdSavePreview", "cmdPrintPreview"}) FindWindow(name)->Enable(preview != nullptr);
    if (!order.output.empty()) return;
    const bool hasUnknown = preview && codes.Count() > 0 && !codes.CodeAt(0).isKnown;
    FindWindow("cmdPreviewUnknown")->Enable(hasUnknown);
}

// What the window shows, as it is there: without what is hidden.
SeenPreview PreviewWindow::Seen() const {
    SeenPreview seen{SourceOf(preview->drawing), view->View(),     codes.Hidden(), {}, order.input,
                     FileNameOf(order.input),    &preview->drawing};
    if (!preview->output) return seen;
    seen.drawing = nullptr;
    seen.marks = differences.Shown(marks);
    seen.title =
        Concat(TitleOf(order), u" (rood: ontbreekt, oranje: gewijzigd, lichtoranje: opgedeeld, blauw: toegevoegd)");
    return seen;
}

void PreviewWindow::SaveAs() {
    if (preview) SaveSeen(this, form, Seen());
}

void PreviewWindow::Print() {
    if (preview) PrintSeen(this, form.screen, Seen(), printing);
}

// The settings and the tables are the run's as long as that goes on.
bool PreviewWindow::IsBusyElsewhere() {
    const bool isBusy = IsBusy(form);
    if (isBusy) SetStatusText(ToWx(u"Dat kan zodra de vertaling klaar is"));
    return isBusy;
}

void PreviewWindow::AddUnknownCodes() {
    if (!preview || IsReading() || IsBusyElsewhere()) return;
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
    if (IsReading() || IsBusyElsewhere()) return;
    EndEdits(form);
    if (!TakeSettings(form, order)) return;
    Select({});
    BeginReading();
}

}  // namespace korvande
