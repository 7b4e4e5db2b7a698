#include <wx/display.h>
#include <wx/settings.h>

#include <cctype>
#include <cstdlib>

#include "tests/gui/PreviewFixture.h"
#include "tests/gui/ScreenPixels.h"
#include "tests/gui/WindowManager.h"

// The surroundings that the looks and keys are tested in are what they are said to be.
namespace korvande::testing {

namespace {

std::string Said(const char* variable) {
    const char* const value = std::getenv(variable);
    return value == nullptr ? "" : value;
}

class SurroundingsTest : public PreviewFixture {};

TEST_F(SurroundingsTest, TheTextIsAsLargeAsAskedFor) {
    Start();
    constexpr int points = 72;
    wxFont font = window->GetFont();
    font.SetPointSize(points);
    window->SetFont(font);
    // At 96 dots to an inch, for letters with what is above and below them.
    const double usual = points * 96.0 / 72.0 * 1.164;
    EXPECT_NEAR(window->GetCharHeight() / usual, std::atof(Said("GDK_DPI_SCALE").c_str()), 0.1);
}

TEST_F(SurroundingsTest, TheColoursAreLightOrDarkAsAskedFor) {
    EXPECT_EQ(wxSystemSettings::GetAppearance().IsUsingDarkBackground(), Said("GTK_THEME") == "Adwaita:dark");
}

TEST_F(SurroundingsTest, ADrawingLiesOnLightOrDarkPaperAsTheColoursAre) {
    Open();
    ShowPreview(Street());
    const wxRect place = View().GetScreenRect();
    const std::uint32_t paper = PaperOf({.isDark = Said("GTK_THEME") == "Adwaita:dark"});
    WaitUntil("the paper", [&] {
        // Beside the drawing, within the frame of the focus.
        const auto pixels = PixelsOnScreen({place.x + place.width / 2, place.y + 6, 1, 1});
        return (pixels.front() & 0xFFFFFF) == paper;
    });
}

TEST_F(SurroundingsTest, TheDisplayIsAsLargeAsAskedFor) {
    const wxSize size = wxDisplay().GetGeometry().GetSize();
    EXPECT_EQ(std::to_string(size.x) + "x" + std::to_string(size.y), Said("KORVANDE_DISPLAY_SIZE"));
}

TEST_F(SurroundingsTest, TheWindowManagerIsTheOneAskedFor) {
    std::string name = WindowManagerName();
    for (char& letter : name) letter = static_cast<char>(std::tolower(letter));
    EXPECT_EQ(name, Said("KORVANDE_WINDOW_MANAGER"));
}

}  // namespace

}  // namespace korvande::testing
