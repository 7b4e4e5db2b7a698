#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/choice.h>

#include <filesystem>

#include "app/GridHistory.h"
#include "tests/gui/PreviewFixture.h"

// The preview of files that are damaged, empty, changed or gone, and what happens beside it meanwhile.
namespace korvande::testing {

namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class PreviewReadingTest : public PreviewFixture {
 protected:
    static constexpr int manyPoints = 400000;  // which take a while

    static bool HasBar() { return ControlNamed<wxWindow>(*Preview(), "framReading").IsShown(); }
    static std::string BarText() {
        return ToUtf8(FromWx(ControlNamed<wxStaticText>(*Preview(), "lblReading").GetLabelText()));
    }
    void ReadAgain() {
        FocusOn(View());
        Key(WXK_F5);
        WaitForDrawing();
    }
    static Position InDrawing(double east, double north) {
        return PositionOf(*Preview()->Shown()->drawing.list.origin.From(east, north));
    }
    static void LookAtTheUnknownPoint() {
        PictureView view = View().View();
        view.centre = InDrawing(20, 10);
        view.scale *= 8;
        View().SetView(view);
    }
    Text StreetWith(const std::string& row) const {
        std::string text = FileBytes(Street());
        const std::size_t place = text.find("END POINTS");
        return folder.Write("klein.idx", text.insert(place, row + "\r\n"));
    }
};

TEST_F(PreviewReadingTest, AFileThatBreaksOffIsShownAsFarAsItGoesAndTheLineIsTold) {
    Open();
    const std::string whole = FileBytes(Street());
    ShowPreview(folder.Write("deel.idx", whole.substr(0, whole.find("END POINTS"))));
    EXPECT_TRUE(HasBar());
    EXPECT_THAT(BarText(), AllOf(StartsWith("Niet alles van deel.idx is gelezen: "), HasSubstr("(regel 11)")));
    EXPECT_EQ(Preview()->Shown()->drawing.list.points.size(), 4U);
    EXPECT_FALSE(ControlNamed<wxWindow>(*Preview(), "cmdStopReading").IsShown());
}

TEST_F(PreviewReadingTest, AnEmptyDrawingSaysThatThereIsNothingInIt) {
    Open();
    ShowPreview(folder.Write("leeg.idx", WithCrLf("HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"A\";\nEND LAYERS\n"
                                                  "DATABASE\nEND DATABASE\n")));
    EXPECT_EQ(BarText(), "leeg.idx bevat geen objecten");
    // It can be moved and zoomed all the same.
    View().Zoom(2);
    Key(WXK_HOME);
    WaitForDrawing();
    Type("txtFileIDEX", ToUtf8(folder.Write("niets.idx", "")));
    Press("cmdPreview");
    WaitUntil("the reason", [] { return BarText().starts_with("Het bestand kan niet worden gelezen:"); });
}

TEST_F(PreviewReadingTest, OfASoundDrawingNothingIsTold) {
    Open();
    ShowPreview(Street());
    EXPECT_FALSE(HasBar());
}

TEST_F(PreviewReadingTest, AFileThatIsGoneWhenItIsReadAgainIsToldAndThePictureStays) {
    Open();
    const Text street = Street();
    ShowPreview(street);
    std::filesystem::remove(folder.Path() + "/klein.idx");
    ReadAgain();
    EXPECT_THAT(BarText(), HasSubstr("niet gevonden"));
    EXPECT_EQ(Preview()->Shown()->drawing.list.points.size(), 2U);
    // When it is back, that is forgotten.
    Street();
    ReadAgain();
    EXPECT_FALSE(HasBar());
}

TEST_F(PreviewReadingTest, AFileThatWasChangedIsShownAnewAtTheSamePlaceWithTheSameCodesHidden) {
    Open();
    ShowPreview(Street());
    auto& codes = ControlNamed<CodeList>(*Preview(), "lstCodes");
    codes.Select(1);
    FocusOn(codes);
    Key(WXK_SPACE);
    WaitUntil("MV to go", [] { return !Preview()->Codes().IsShown(1); });
    LookAtTheUnknownPoint();
    const PictureView before = View().View();
    // Another origin, and a code that comes before the hidden one.
    StreetWith("5,\"P5\",-90000,-70000,1.5,\"ANDER\",\"\",0;");
    ReadAgain();
    ASSERT_EQ(codes.GetItemCount(), 4);
    EXPECT_EQ(View().View().scale, before.scale);
    EXPECT_NEAR(View().View().centre.east, InDrawing(20, 10).east, 1);
    EXPECT_NEAR(View().View().centre.north, InDrawing(20, 10).north, 1);
    for (std::size_t row = 0; row < 4; ++row) {
        EXPECT_EQ(Preview()->Codes().IsShown(row), ToUtf8(Preview()->Codes().CodeAt(row).code) != "MV") << row;
    }
}

TEST_F(PreviewReadingTest, WhatIsShownWhileTheFileChangesStaysAsItWas) {
    Open();
    ShowPreview(Street());
    folder.Write("klein.idx", "weg\r\n");
    LookAtTheUnknownPoint();
    WaitForDrawing();
    Key(WXK_SPACE);
    WaitUntil("the point", [] { return ObjectText().starts_with("Punt P4"); });
}

TEST_F(PreviewReadingTest, StoppingTheSecondReadingKeepsThePicture) {
    Open();
    const Text street = Street();
    ShowPreview(street);
    std::filesystem::copy_file(NativePath(LargeDrawing(manyPoints)), folder.Path() + "/klein.idx",
                               std::filesystem::copy_options::overwrite_existing);
    FocusOn(View());
    Key(WXK_F5);
    WaitUntil("the reading", [] { return Preview()->IsReading() && HasBar(); });
    Key(WXK_ESCAPE);
    WaitUntil("the end of the reading", [] { return !Preview()->IsReading(); });
    EXPECT_FALSE(HasBar());
    EXPECT_EQ(Preview()->Shown()->drawing.list.points.size(), 2U);
    EXPECT_TRUE(Preview()->IsShown());
}

TEST_F(PreviewReadingTest, AWindowThatIsClosedWhileItReadsGoesAtOnce) {
    Open();
    Type("txtFileIDEX", ToUtf8(LargeDrawing(manyPoints)));
    Press("cmdPreview");
    WaitUntil("the window", [] { return Preview()->IsShownOnScreen(); });
    ASSERT_TRUE(Preview()->IsReading());
    Preview()->Close();
    EXPECT_FALSE(Preview()->IsShown());
    WaitUntil("no window", [] { return Preview() == nullptr; });
}

TEST_F(PreviewReadingTest, TheProgramCanBeClosedWhileAPreviewReads) {
    Open();
    Type("txtFileIDEX", ToUtf8(LargeDrawing(manyPoints)));
    Press("cmdPreview");
    ASSERT_TRUE(Preview()->IsReading());
    Close();
    WaitUntil("no window", [this] { return !IsOpen() && Preview() == nullptr; });
}

TEST_F(PreviewReadingTest, AnotherPreviewTakesThePlaceOfOneThatReads) {
    Open();
    Type("txtFileIDEX", ToUtf8(LargeDrawing(manyPoints)));
    Press("cmdPreview");
    ASSERT_TRUE(Preview()->IsReading());
    Type("txtFileIDEX", ToUtf8(Street()));
    Press("cmdPreview");
    WaitUntil("the other one", [] {
        return Preview() != nullptr && ToUtf8(FromWx(Preview()->GetTitle())).starts_with("Voorbeeld van klein.idx");
    });
    WaitForDrawing();
    EXPECT_EQ(Preview()->Shown()->drawing.list.points.size(), 2U);
}

TEST_F(PreviewReadingTest, ATranslationGoesOnBesideAReading) {
    Open();
    Type("txtFileIDEX", ToUtf8(LargeDrawing(manyPoints)));
    Press("cmdPreview");
    ASSERT_TRUE(Preview()->IsReading());
    Type("txtFileIDEX", ToUtf8(folder / "straat.idx"));
    Press("cmdStart");
    EXPECT_TRUE(form.lastRun.wroteOutput) << dialogs.LastMessage();
    WaitForDrawing();
    EXPECT_EQ(Preview()->Shown()->drawing.list.points.size(), static_cast<std::size_t>(manyPoints));
}

TEST_F(PreviewReadingTest, DuringATranslationNothingIsReadAgain) {
    Open();
    ShowPreview(Street());
    Type("txtFileIDEX", ToUtf8(LargeDrawing(manyPoints)));
    std::string told;
    DuringTheRun([&] {
        PressHere("cmdPreviewUnknown");
        told = StatusText(0);
    });
    Press("cmdStart");
    EXPECT_EQ(told, "Dat kan zodra de vertaling klaar is");
    EXPECT_FALSE(Preview()->IsReading());
}

TEST_F(PreviewReadingTest, AnotherModeLeavesWhatIsShownAndHowItIsRead) {
    Open();
    ShowPreview(Street());
    auto& modes = Find<wxChoice>("cboXlateMode");
    Choose("cboXlateMode", static_cast<int>(modes.GetCount()) - 1);
    LetEventsRun();
    ReadAgain();
    EXPECT_FALSE(HasBar()) << BarText();
    EXPECT_EQ(Preview()->Shown()->drawing.list.points.size(), 2U);
}

TEST_F(PreviewReadingTest, CodesThatStandInATableWithoutBeingSavedAreKnown) {
    Open();
    ReplaceRows(form.editedPoints, form.gridPoints.RowCount(), 0, {{{u"RAAR", u"Q22", u"PUNT", u"RAAR PUNT"}}});
    ShowPreview(Street());
    EXPECT_EQ(StatusText(0), "3 codes; buiten RD");
    Undo(form.editedPoints);
    ReadAgain();
    EXPECT_EQ(StatusText(0), "3 codes, 1 onbekend; buiten RD");
}

TEST_F(PreviewReadingTest, WhatIsAddedFromTheViewIsKnownToTheNextTranslation) {
    Open();
    ShowPreview(Street());
    dialogs.onDialog = [](wxDialog& dialog) { dialog.EndModal(wxID_OK); };
    PressHere("cmdPreviewUnknown");
    dialogs.onDialog = {};
    WaitForDrawing();
    Grid::Row& added = form.gridPoints[form.gridPoints.RowCount() - 1];
    added[Grid::Lki] = u"Q77";
    added[Grid::Type] = u"PUNT";
    Type("txtFileSUFNEN", ToUtf8(folder / "klein.sfn"));
    Press("cmdStart");
    ASSERT_TRUE(form.lastRun.wroteOutput) << dialogs.LastMessage();
    EXPECT_THAT(FileBytes(folder / "klein.sfn"), HasSubstr("Q77"));
    EXPECT_TRUE(form.lastRun.unknownCodes.codes.empty());
}

}  // namespace

}  // namespace korvande::testing
