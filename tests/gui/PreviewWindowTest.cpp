#include "ui/PreviewWindow.h"

#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/statusbr.h>

#include <algorithm>

#include "app/TabPlacement.h"
#include "tests/gui/PreviewFixture.h"
#include "tests/gui/ScreenPixels.h"

// What the button "Voorbeeld" shows.
namespace korvande::testing {

namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class PreviewWindowTest : public PreviewFixture {
 protected:
    static CodeList& Codes() { return ControlNamed<CodeList>(*Preview(), "lstCodes"); }
    static std::string Cell(long row, int column) { return ToUtf8(FromWx(Codes().GetItemText(row, column))); }

    // Where a place in millimetres is in the drawing, and on the screen.
    static Position InDrawing(double east, double north) {
        return PositionOf(*Preview()->Shown()->drawing.list.origin.From(east / 1000, north / 1000));
    }
    static wxPoint OnScreen(double east, double north) {
        const double factor = View().GetContentScaleFactor();
        const PictureView& view = View().View();
        const Position place = InDrawing(east, north);
        return View().ClientToScreen(
            wxPoint(static_cast<int>(view.X(place.east) / factor), static_cast<int>(view.Y(place.north) / factor)));
    }
    void PointAt(const wxPoint& place) {
        simulator.MouseMove(place);
        LetEventsRun();
    }
    void ClickAt(const wxPoint& place) {
        PointAt(place);
        simulator.MouseClick();
        LetEventsRun();
    }
    static bool HasColour(const wxWindow& shown, bool (*isIt)(int red, int green, int blue)) {
        // The toolkit may count several pixels of the screen as one.
        const double scale = shown.GetContentScaleFactor();
        const wxRect place = shown.GetScreenRect();
        const auto onScreen = [scale](int length) { return static_cast<int>(length * scale); };
        const auto pixels =
            PixelsOnScreen({onScreen(place.x), onScreen(place.y), onScreen(place.width), onScreen(place.height)});
        return std::any_of(pixels.begin(), pixels.end(), [isIt](std::uint32_t pixel) {
            const auto part = [pixel](int shift) { return static_cast<int>(pixel >> shift & 0xFF); };
            return isIt(part(16), part(8), part(0));
        });
    }
    static bool IsRed(int red, int green, int blue) { return red > green + 100 && red > blue + 100; }
};

TEST_F(PreviewWindowTest, TheCodesStandInTheListUnknownOnesFirstAndRed) {
    Open();
    ShowPreview(Street());
    ASSERT_EQ(Codes().GetItemCount(), 3);
    EXPECT_EQ(Cell(0, 0), "RAAR");
    EXPECT_EQ(Cell(0, 1), "Punt");
    EXPECT_EQ(Cell(0, 2), "1");
    EXPECT_EQ(Cell(0, 3), "onbekend");
    EXPECT_EQ(Cell(1, 0), "MV");
    EXPECT_EQ(Cell(2, 0), "MUUR");
    EXPECT_EQ(StatusText(0), "3 codes, 1 onbekend; buiten RD");
    WaitUntil("the red row", [] { return HasColour(Codes(), IsRed); });
    WaitUntil("the red point", [] { return HasColour(View(), IsRed); });
}

TEST_F(PreviewWindowTest, StaysBeforeTheMainWindowThatHasAProjectSinceAMoment) {
    Open();
    Type("txtFileIDEX", ToUtf8(Street()));
    form.Timer1Enabled = true;
    window->ShowForm();
    Press("cmdPreview");
    EXPECT_FALSE(form.Timer1Enabled);
    WaitForDrawing();
}

TEST_F(PreviewWindowTest, AClickShowsWhatAnObjectIs) {
    Open();
    ShowPreview(Street());
    WaitUntil("the point by a click", [this] {
        ClickAt(OnScreen(20000, 10000));
        return ObjectText().starts_with("Punt P4");
    });
    EXPECT_THAT(ObjectText(), HasSubstr("Code: RAAR (onbekend)\n"));
    EXPECT_THAT(ObjectText(), HasSubstr("Regel 11 van de invoer"));
    ClickAt(OnScreen(10000, 0));
    WaitUntil("the wall", [] { return ObjectText().starts_with("Lijnstring 1\nCode: MUUR"); });
    ClickAt(OnScreen(3000, 8000));
    WaitUntil("nothing", [] { return ObjectText().empty(); });
}

TEST_F(PreviewWindowTest, ThePointerTellsItsCoordinates) {
    Open();
    ShowPreview(Street());
    WaitUntil("the coordinates", [this] {
        PointAt(OnScreen(20000, 10000));
        return StatusText(1).starts_with("X 20.0") || StatusText(1).starts_with("X 19.9");
    });
    EXPECT_THAT(StatusText(1), HasSubstr("   Y "));
}

TEST_F(PreviewWindowTest, TheWheelZoomsAtThePointerAndDraggingMovesTheDrawing) {
    Open();
    ShowPreview(Street());
    const wxPoint place = OnScreen(10000, 5000);
    PointAt(place);
    const double scale = View().View().scale;
    wxMouseEvent wheel(wxEVT_MOUSEWHEEL);
    wheel.SetPosition(View().ScreenToClient(place));
    wheel.m_wheelRotation = 240;
    wheel.m_wheelDelta = 120;
    View().ProcessWindowEvent(wheel);
    EXPECT_GT(View().View().scale, scale * 1.5);
    const wxPoint now = OnScreen(10000, 5000);
    EXPECT_NEAR(now.x, place.x, 2);
    EXPECT_NEAR(now.y, place.y, 2);
    WaitUntil("the drawing by dragging", [&, this] {
        const wxPoint before = OnScreen(10000, 5000);
        PointAt(place);
        simulator.MouseDown();
        LetEventsRun();
        PointAt(place + wxPoint(40, 15));
        PointAt(place + wxPoint(80, 30));
        simulator.MouseUp();
        LetEventsRun();
        return OnScreen(10000, 5000).x > before.x + 40;
    });
    WaitForDrawing();
}

TEST_F(PreviewWindowTest, TheKeysMoveZoomFitPickAndGoThere) {
    Open();
    ShowPreview(Street());
    FocusOn(View());
    const PictureView all = View().View();
    Key(WXK_RIGHT);
    WaitUntil("the move", [&] { return View().View().centre.east > all.centre.east; });
    // The coordinates are those of the cross, where the pointer is not.
    WaitUntil("the coordinates of the cross", [&] {
        return StatusText(1) == ToUtf8(TextOfPlace(Preview()->Shown()->drawing.list, View().View().centre));
    });
    Key('+');
    WaitUntil("the zoom", [&] { return View().View().scale > all.scale * 1.2; });
    Key(WXK_HOME);
    WaitUntil("everything", [&] { return View().View() == all; });
    // The point in the middle of everything lies 5 m from the wall and from the other point.
    Key(WXK_SPACE);
    EXPECT_EQ(ObjectText(), "");
    Key(WXK_UP);
    PictureView view = View().View();
    view.centre = InDrawing(20000, 10000);
    View().SetView(view);
    Key(WXK_SPACE);
    WaitUntil("the point", [] { return ObjectText().starts_with("Punt P4"); });
    Key(WXK_RETURN);
    WaitUntil("the way there", [&] { return View().View().scale > all.scale * 1.2; });
}

TEST_F(PreviewWindowTest, ACodeIsHiddenAndShownByTheSpaceBarAndItsNextObjectIsShownByEnter) {
    Open();
    ShowPreview(Street());
    Codes().Select(0);
    FocusOn(Codes());
    Key(WXK_SPACE);
    WaitUntil("the hidden code", [] { return !Preview()->Codes().IsShown(0); });
    WaitUntil("the point to go", [] { return !HasColour(View(), IsRed); });
    Key(WXK_SPACE);
    WaitUntil("the code", [] { return Preview()->Codes().IsShown(0); });
    const double scale = View().View().scale;
    Key(WXK_RETURN);
    WaitUntil("its object", [] { return ObjectText().starts_with("Punt P4"); });
    EXPECT_GT(View().View().scale, scale);
}

TEST_F(PreviewWindowTest, AClickOnABoxHidesACodeAndTheButtonsHideAndShowAll) {
    Open();
    ShowPreview(Street());
    wxRect row;
    ASSERT_TRUE(Codes().GetItemRect(0, row));
    WaitUntil("the hidden code", [&, this] {
        ClickAt(Codes().ClientToScreen(wxPoint(row.x + Codes().FromDIP(10), row.y + row.height / 2)));
        return !Preview()->Codes().IsShown(0);
    });
    for (const bool isShown : {true, false}) {
        auto& button = ControlNamed<wxButton>(*Preview(), isShown ? "cmdShowCodes" : "cmdHideCodes");
        wxCommandEvent event(wxEVT_BUTTON, button.GetId());
        button.ProcessWindowEvent(event);
        for (std::size_t code = 0; code < 3; ++code) EXPECT_EQ(Preview()->Codes().IsShown(code), isShown) << code;
    }
}

TEST_F(PreviewWindowTest, F8ShowsItFromEveryTabAndEscapeClosesIt) {
    Open();
    SelectTab(tabTexts);
    WaitForKeyboard();
    Key(WXK_F8);
    WaitUntil("the window", [] { return Preview() != nullptr && Preview()->IsShownOnScreen(); });
    WaitForDrawing();
    FocusOn(View());
    Key(WXK_ESCAPE);
    WaitUntil("no window", [] { return Preview() == nullptr; });
}

TEST_F(PreviewWindowTest, WhatIsBeingReadCanBeStopped) {
    Open();
    Type("txtFileIDEX", ToUtf8(LargeDrawing(400000)));
    Press("cmdPreview");
    ASSERT_NE(Preview(), nullptr);
    EXPECT_TRUE(Preview()->IsReading());
    WaitUntil("the window", [] { return Preview()->IsShownOnScreen(); });
    auto& stop = ControlNamed<wxButton>(*Preview(), "cmdStopReading");
    wxCommandEvent event(wxEVT_BUTTON, stop.GetId());
    stop.ProcessWindowEvent(event);
    WaitUntil("no window", [] { return Preview() == nullptr; });
    EXPECT_TRUE(Find<wxWindow>("cmdPreview").IsEnabled());
}

TEST_F(PreviewWindowTest, AFileThatIsNoDrawingSaysSo) {
    Open();
    Type("txtFileIDEX", ToUtf8(folder.Write("leeg.idx", "niets\r\n")));
    Press("cmdPreview");
    ASSERT_NE(Preview(), nullptr);
    WaitUntil("the reason", [] { return !Preview()->IsReading(); });
    EXPECT_THAT(ToUtf8(FromWx(ControlNamed<wxStaticText>(*Preview(), "lblReading").GetLabelText())),
                StartsWith("Het bestand kan niet worden gelezen:"));
    EXPECT_FALSE(View().HasDrawing());
}

TEST_F(PreviewWindowTest, NothingIsWrittenAndAMissingInputIsTold) {
    Open();
    const std::string before = folder.Listing();
    Press("cmdPreview");
    WaitForDrawing();
    EXPECT_EQ(folder.Listing(), before);
    Type("txtFileIDEX", ToUtf8(folder / "weg.idx"));
    Press("cmdPreview");
    EXPECT_EQ(dialogs.LastMessage(), "Invoerbestand niet gevonden:\n'" + ToUtf8(folder / "weg.idx") + "'");
}

TEST_F(PreviewWindowTest, TheNextOneTakesItsPlace) {
    Open();
    ShowPreview(Street());
    ShowPreview(folder / "straat.idx");
    const auto isPreview = [](const wxWindow* top) { return top->GetName() == "frmPreview"; };
    WaitUntil("one window",
              [&] { return std::count_if(wxTopLevelWindows.begin(), wxTopLevelWindows.end(), isPreview) == 1; });
    EXPECT_THAT(ToUtf8(FromWx(Preview()->GetTitle())), StartsWith("Voorbeeld van straat.idx"));
}

}  // namespace

}  // namespace korvande::testing
