#include "ui/DrawingPrinting.h"

#include <wx/dialog.h>
#include <wx/log.h>

#include <array>
#include <memory>

#include "picture/ScaleBar.h"
#include "ui/Controls.h"
#include "ui/PaperCorner.h"
#include "ui/PrintCanvas.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

constexpr double millimetresPerInch = 25.4;

class PrintedDrawing : public wxPrintout {
 public:
    explicit PrintedDrawing(const DrawingPage& itsPage) : wxPrintout(ToWx(itsPage.title)), page(itsPage) {}

    bool HasPage(int number) override { return number == 1; }
    void GetPageInfo(int* first, int* last, int* from, int* to) override { *first = *last = *from = *to = 1; }
    bool OnPrintPage(int number) override;

 private:
    void PrintLegend(wxGraphicsContext& context, const PictureView& view, double height);

    const DrawingPage& page;
    double dotsPerInch = 1;
};

bool PrintedDrawing::OnPrintPage(int /*number*/) {
    constexpr double margin = 15;  // millimetres: printers shift pages
    constexpr double legend = 12;  // the same, below the drawing
    constexpr double thinnest = 0.13;
    const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::CreateFromUnknownDC(*GetDC()));
    if (context == nullptr) return false;
    const wxRect paper = GetPaperRectPixels();
    int paperWidth = 0;
    int paperHeight = 0;
    GetPageSizeMM(&paperWidth, &paperHeight);
    dotsPerInch = paper.width * millimetresPerInch / std::max(paperWidth, 1);
    const double unit = dotsPerInch / millimetresPerInch;
    const wxPoint2DDouble corner = PaperCorner(*context, paper);
    const double left = corner.m_x + margin * unit;
    const double top = corner.m_y + margin * unit;
    const PictureView view =
        ViewOnPage(page.view, static_cast<int>(paper.width - 2 * margin * unit),
                   static_cast<int>(paper.height - (2 * margin + legend) * unit), dotsPerInch, page.scale);
    context->PushState();
    context->Translate(left, top);
    context->Clip(0, 0, view.width, view.height);
    PrintCanvas canvas(*context, PixelsOf(view), thinnest * unit);
    page.draw(FrameOf(view), canvas);
    context->PopState();
    context->Translate(left, top + view.height);
    PrintLegend(*context, view, legend * unit);
    return true;
}

// Below the drawing: what it is and how long a length is.
void PrintedDrawing::PrintLegend(wxGraphicsContext& context, const PictureView& view, double height) {
    constexpr double longest = 50;  // millimetres, of the bar
    constexpr double letters = 3.5;
    const double unit = dotsPerInch / millimetresPerInch;
    context.SetPen(context.CreatePen(wxGraphicsPenInfo(*wxBLACK, unit / 4)));
    context.SetBrush(*wxTRANSPARENT_BRUSH);
    context.DrawRectangle(0, -view.height, view.width, view.height);
    const ScaleBar bar = ScaleBarOf(view.scale, longest * unit);
    wxGraphicsPath path = context.CreatePath();
    path.MoveToPoint(0, height * 3 / 4 - 2 * unit);
    path.AddLineToPoint(0, height * 3 / 4);
    path.AddLineToPoint(bar.pixels, height * 3 / 4);
    path.AddLineToPoint(bar.pixels, height * 3 / 4 - 2 * unit);
    context.StrokePath(path);
    const Text text = Concat(bar.text, u"      ", ScaleText(view, dotsPerInch), u"      ", page.title);
    context.SetFont(context.CreateFont(*wxNORMAL_FONT, *wxBLACK));
    double textWidth = 0;
    double textHeightInDots = 0;
    context.GetTextExtent(ToWx(text), &textWidth, &textHeightInDots);
    const double scale = letters * unit / std::max(textHeightInDots, 1.0);
    context.Translate(bar.pixels + 3 * unit, height * 3 / 4 - letters * unit);
    context.Scale(scale, scale);
    context.DrawText(ToWx(text), 0, 0);
}

}  // namespace

std::optional<PrintChoice> AskPrintChoice(wxWindow* parent, const PrintChoice& last) {
    wxDialog dialog(parent, wxID_ANY, ToWx(u"Tekening afdrukken"));
    dialog.SetName("frmPrintChoice");
    const int wide = dialog.FromDIP(wideSpace);
    auto* const column = new wxBoxSizer(wxVERTICAL);
    constexpr std::array<TextView, printScales> captions = {u"Schaal 1:&500", u"Schaal 1:&1000",
                                                            u"&Passend: wat het venster toont"};
    constexpr std::array<const char*, printScales> names = {"optScale500", "optScale1000", "optScaleFit"};
    std::array<wxRadioButton*, printScales> options{};
    for (std::size_t i = 0; i < printScales; ++i) {
        options[i] = MakeOption(&dialog, names[i], captions[i], i == 0 ? InGroup::First : InGroup::Next);
        column->Add(options[i], wxSizerFlags().Border(wxLEFT | wxRIGHT | wxTOP, wide));
    }
    options[static_cast<std::size_t>(last.scale)]->SetValue(true);
    wxCheckBox* const landscape = MakeCheckBox(&dialog, "chkLandscape", u"Papier &liggend");
    landscape->SetValue(last.isLandscape);
    column->Add(landscape, wxSizerFlags().Border(wxALL, wide));
    auto* const ends = new wxStdDialogButtonSizer();
    auto* const print = new wxButton(&dialog, wxID_OK, ToWx(u"&Afdrukken"));
    print->SetDefault();
    ends->AddButton(print);
    ends->AddButton(new wxButton(&dialog, wxID_CANCEL, ToWx(u"A&nnuleren")));
    ends->Realize();
    column->Add(ends, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, wide));
    dialog.SetSizerAndFit(column);
    dialog.CentreOnParent();
    if (dialog.ShowModal() != wxID_OK) return {};
    PrintChoice choice{last.scale, landscape->GetValue()};
    for (std::size_t i = 0; i < printScales; ++i) {
        if (options[i]->GetValue()) choice.scale = static_cast<PrintScale>(i);
    }
    return choice;
}

bool PrintDrawing(wxWindow* parent, const wxPrintData& data, const DrawingPage& page, AsksPrinter asks) {
    const wxLogNull noMessages;
    wxPrintDialogData settings(data);
    wxPrinter printer(&settings);
    PrintedDrawing drawing(page);
    const bool isPrinted = printer.Print(parent, &drawing, asks == AsksPrinter::Yes);
    return isPrinted || wxPrinter::GetLastError() == wxPRINTER_CANCELLED;
}

}  // namespace korvande
