#include "ui/Printing.h"

#include <wx/log.h>

#include <algorithm>
#include <exception>
#include <utility>
#include <vector>

#include "ui/DefaultPrinter.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

constexpr int fontSize = 10;

// Courier's characters are six tenths of its size wide; a point is 1/72 inch.
constexpr double characterWidth = fontSize * 0.6 / 72;

class Listing : public wxPrintout {
 public:
    explicit Listing(Screen::MakePages itsPages) : wxPrintout("KORVANDE"), makePages(std::move(itsPages)) {}

    void OnPreparePrinting() override;
    bool HasPage(int page) override { return page >= 1 && page <= PageCount(); }
    bool OnPrintPage(int page) override;
    void OnEndDocument() override { isTaken = EndDocument(*GetDC()); }

    // Asked before the pages are made too; then there may be any number of them.
    void GetPageInfo(int* first, int* last, int* from, int* to) override {
        constexpr int anyNumber = 32000;
        *first = *from = 1;
        *last = *to = pages.empty() ? anyNumber : PageCount();
    }

    // An error in the making of the pages may not pass through the printing system; it is kept for the caller.
    std::exception_ptr error;

    // Whether the printing system took all pages, as far as it tells while it gets them.
    bool isTaken = true;

 private:
    int PageCount() const { return static_cast<int>(pages.size()); }
    void SetUpPage();

    Screen::MakePages makePages;
    std::vector<std::vector<Text>> pages;
    int lineHeight = 1;
};

// The font in its true size on the paper, whatever the device takes a point for.
void Listing::SetUpPage() {
    constexpr int sampleLength = 100;
    wxDC& dc = *GetDC();
    dc.SetFont(wxFont(wxFontInfo(fontSize).Family(wxFONTFAMILY_TELETYPE).FaceName("Courier New")));
    dc.SetUserScale(1, 1);
    int resolution = 0;
    int vertical = 0;
    GetPPIPrinter(&resolution, &vertical);
    const double wanted = sampleLength * characterWidth * resolution;
    const double scale = wanted / dc.GetTextExtent(wxString('0', sampleLength)).x;
    dc.SetUserScale(scale, scale);
    lineHeight = std::max(dc.GetCharHeight(), 1);
}

void Listing::OnPreparePrinting() {
    SetUpPage();
    const int height = GetLogicalPageRect().height;
    // A page is full when the next line would pass its height less one line.
    const int linesPerPage = std::max(height / lineHeight - 1, 1);
    try {
        pages = makePages(linesPerPage);
    } catch (...) {
        error = std::current_exception();
    }
}

bool Listing::OnPrintPage(int page) {
    SetUpPage();
    const wxPoint corner = GetLogicalPageRect().GetPosition();
    int y = corner.y;
    for (const Text& line : pages[static_cast<std::size_t>(page - 1)]) {
        GetDC()->DrawText(ToWx(line), corner.x, y);
        y += lineHeight;
    }
    return true;
}

}  // namespace

bool PrintPages(wxWindow* parent, const wxPrintData& data, const Screen::MakePages& makePages) {
    const bool goesToPrinter = data.GetPrintMode() == wxPRINT_MODE_PRINTER;
    if (goesToPrinter && !DefaultPrinterTakesJobs()) return false;
    const wxArrayString jobsBefore = goesToPrinter ? JobsOfDefaultPrinter() : wxArrayString();
    const wxLogNull noMessages;
    wxPrintDialogData settings(data);
    wxPrinter printer(&settings);
    Listing listing(makePages);
    const bool isPrinted = printer.Print(parent, &listing, false);
    if (listing.error) std::rethrow_exception(listing.error);
    return isPrinted && listing.isTaken && (!goesToPrinter || DefaultPrinterGotJob(jobsBefore));
}

}  // namespace korvande
