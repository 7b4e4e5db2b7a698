#include <wx/gauge.h>
#include <wx/stopwatch.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "app/Projects.h"
#include "tests/gui/WindowTest.h"
#include "ui/PreviewWindow.h"

// Shows what the window costs, on a drawing and a control table that KORVANDE_SPEED_DRAWING and KORVANDE_SPEED_TABLE
// name. Figures are printed, not judged.
namespace korvande::testing {

namespace {

std::string Named(const char* variable) {
    const char* const value = std::getenv(variable);
    EXPECT_NE(value, nullptr) << variable;
    return value == nullptr ? "" : value;
}

class WindowSpeed : public WindowTest {
 protected:
    // Outlives the window, which still repaints while it closes.
    int paints = 0;
};

TEST_F(WindowSpeed, ATranslation) {
    const std::string drawing = Named("KORVANDE_SPEED_DRAWING");
    std::filesystem::copy(Named("KORVANDE_SPEED_TABLE"), projects + "/proef.nst");
    Start();
    Type("txtFileIDEX", drawing);
    Type("txtFileSUFNEN", ToUtf8(folder / "uit.sfn"));
    SelectReport(form.project.options, &Options::optReportNone);
    window->ShowForm();
    Find<wxWindow>("StatusBar1").Bind(wxEVT_PAINT, [this](wxPaintEvent& event) {
        ++paints;
        event.Skip();
    });
    LetEventsRun();  // what opening the window asks for is not the translation's
    const std::clock_t processor = std::clock();
    const wxStopWatch watch;
    Press("cmdStart");
    const double seconds = static_cast<double>(watch.TimeInMicro().ToDouble()) / 1e6;
    const double processorSeconds = static_cast<double>(std::clock() - processor) / CLOCKS_PER_SEC;
    EXPECT_NE(dialogs.LastMessage().find(drawing + " is vertaald"), std::string::npos) << dialogs.LastMessage();
    std::printf("window: translation %.3f s, of the processor %.3f s, %.1f repaints a second\n", seconds,
                processorSeconds, paints / seconds);
}

TEST_F(WindowSpeed, OpeningAControlTable) {
    Start();
    std::filesystem::copy(Named("KORVANDE_SPEED_TABLE"), projects + "/proef.nst");
    RefreshProjects(form);
    window->ShowForm();
    const wxStopWatch watch;
    PickProject(form, FindProject(form, u"proef.nst"));
    window->ShowForm();
    LetEventsRun();
    const int rows = form.gridPoints.RowCount() + form.gridLines.RowCount() + form.gridTexts.RowCount();
    std::printf("window: a control table of %d rows opened in %.3f s\n", rows, watch.TimeInMicro().ToDouble() / 1e6);
}

// A walk over the drawing: closer and to and fro, as fast as the window shows it.
TEST_F(WindowSpeed, AWalkOverAPreview) {
    constexpr int steps = 300;
    constexpr double zoom = 1.01;
    std::filesystem::copy(Named("KORVANDE_SPEED_TABLE"), projects + "/proef.nst");
    Start();
    Type("txtFileIDEX", Named("KORVANDE_SPEED_DRAWING"));
    Press("cmdPreview");
    auto* const preview = dynamic_cast<PreviewWindow*>(wxWindow::FindWindowByName("frmPreview"));
    ASSERT_NE(preview, nullptr);
    while (preview->IsReading()) LetEventsRun();
    wxStopWatch watch;
    DrawingView& drawing = preview->View();
    const wxSize more = wxSize(1200, 800) - drawing.GetClientSize();
    preview->SetClientSize(preview->GetClientSize() + more);
    while (!drawing.IsExact()) LetEventsRun();
    std::printf("window: first picture %.0f ms after reading\n", watch.TimeInMicro().ToDouble() / 1e3);
    const long paintsBefore = drawing.PaintCount();
    watch.Start();
    double slowest = 0;
    for (int step = 0; step < steps; ++step) {
        const double before = watch.TimeInMicro().ToDouble();
        const PictureView view = Zoomed(drawing.View(), step < steps / 2 ? zoom : 1 / zoom, 300, 500);
        drawing.SetView(Moved(view, 12 * std::sin(step / 20.0), 9 * std::cos(step / 15.0)));
        drawing.Update();
        LetEventsRun();
        slowest = std::max(slowest, watch.TimeInMicro().ToDouble() - before);
    }
    const double seconds = watch.TimeInMicro().ToDouble() / 1e6;
    std::printf("window: %.0f frames a second of %d x %d, slowest %.0f ms\n",
                static_cast<double>(drawing.PaintCount() - paintsBefore) / seconds, drawing.View().width,
                drawing.View().height, slowest / 1e3);
    watch.Start();
    while (!drawing.IsExact()) LetEventsRun();
    std::printf("window: the exact frame %.0f ms later\n", watch.TimeInMicro().ToDouble() / 1e3);
}

}  // namespace

}  // namespace korvande::testing
