#include <wx/gauge.h>
#include <wx/stopwatch.h>

#include <cstdio>
#include <cstdlib>

#include "app/Projects.h"
#include "tests/gui/WindowTest.h"

// Shows what the window costs, on a drawing and a control table that KORVANDE_SPEED_DRAWING and KORVANDE_SPEED_TABLE
// name. Figures are printed, not judged.
namespace korvande::testing {

namespace {

std::string Named(const char* variable) {
    const char* const value = std::getenv(variable);
    EXPECT_NE(value, nullptr) << variable;
    return value == nullptr ? "" : value;
}

class WindowSpeed : public WindowTest {};

TEST_F(WindowSpeed, ATranslation) {
    const std::string drawing = Named("KORVANDE_SPEED_DRAWING");
    std::filesystem::copy(Named("KORVANDE_SPEED_TABLE"), projects + "/proef.nst");
    Start();
    Type("txtFileIDEX", drawing);
    Type("txtFileSUFNEN", ToUtf8(folder / "uit.sfn"));
    SelectReport(form.project.options, &Options::optReportNone);
    window->ShowForm();
    int paints = 0;
    Find<wxWindow>("StatusBar1").Bind(wxEVT_PAINT, [&paints](wxPaintEvent& event) {
        ++paints;
        event.Skip();
    });
    const wxStopWatch watch;
    Press("cmdStart");
    const double seconds = static_cast<double>(watch.TimeInMicro().ToDouble()) / 1e6;
    EXPECT_EQ(dialogs.LastMessage(), "Verwerking gereed");
    std::printf("window: translation %.3f s, %.1f repaints a second\n", seconds, paints / seconds);
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

}  // namespace

}  // namespace korvande::testing
