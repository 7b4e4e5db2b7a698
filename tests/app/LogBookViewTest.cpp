#include "app/LogBookView.h"

#include "app/RunActivity.h"
#include "core/RuntimeError.h"
#include "tests/app/AppTest.h"

// A log book as a window shows it.
namespace korvande::testing {

namespace {

class LogBookViewTest : public AppTest {
 protected:
    // A log book of these lines.
    LogBookView Read(const std::string& lines) const { return ReadLogBook(folder.Write("kaart.LOG", WithCrLf(lines))); }

    static std::string Look(const LogBookView& view) {
        constexpr std::string_view signs = ".FB";
        std::string look;
        for (std::size_t i = 0; i < view.lines.size(); ++i) look += signs[static_cast<std::size_t>(LookOf(view, i))];
        return look;
    }
};

constexpr char withBoth[] =
    "\n--- LISCAD ---\nFOUT:  eerste\n==>  iets\n FOUT: zo niet\nFOUT:  tweede\n Gereed:\n\n"
    "Niet of anders overgekomen:\n  3 punten\n\nObjectbalans:\nPunten: 3 gelezen\n";

TEST_F(LogBookViewTest, ErrorsAndTheBlockAtTheEndAskForAttention) {
    const LogBookView view = Read(withBoth);
    EXPECT_EQ(Look(view), "..F..F..BBBBB");
    EXPECT_EQ(view.marks, (std::vector<std::size_t>{2, 5, 8}));
    EXPECT_EQ(view.longestLine, 27U);
}

TEST_F(LogBookViewTest, ARunThatWentWellHasNothingMarked) {
    const LogBookView view = Read("\n--- LISCAD ---\n Gereed:\n");
    EXPECT_EQ(Look(view), "...");
    EXPECT_EQ(FindMark(view, {}, Towards::Next), std::nullopt);
    EXPECT_EQ(FindMark(view, 1, Towards::Previous), std::nullopt);
}

TEST_F(LogBookViewTest, TheBlockBeginsAtTheLastOfItsTitles) {
    EXPECT_EQ(Look(Read("Niet of anders overgekomen:\na\nNiet of anders overgekomen:\nb\n")), "..BB");
}

TEST_F(LogBookViewTest, TheMarksAreGoneThroughInBothDirectionsAndRound) {
    const LogBookView view = Read(withBoth);
    EXPECT_EQ(FindMark(view, {}, Towards::Next), 2U);
    EXPECT_EQ(FindMark(view, 2, Towards::Next), 5U);
    EXPECT_EQ(FindMark(view, 3, Towards::Next), 5U);
    EXPECT_EQ(FindMark(view, 8, Towards::Next), 2U);
    EXPECT_EQ(FindMark(view, {}, Towards::Previous), 8U);
    EXPECT_EQ(FindMark(view, 8, Towards::Previous), 5U);
    EXPECT_EQ(FindMark(view, 7, Towards::Previous), 5U);
    EXPECT_EQ(FindMark(view, 2, Towards::Previous), 8U);
}

TEST_F(LogBookViewTest, ATextIsFoundWhateverItsCaseAlsoWithAccents) {
    const LogBookView view = Read("een\nge\xEBxporteerd\nEEN\n");
    EXPECT_EQ(FindLine(view, u"GEËX", {}, Towards::Next), 1U);
    EXPECT_EQ(FindLine(view, u"Een", {}, Towards::Next), 0U);
    EXPECT_EQ(FindLine(view, u"Een", 0, Towards::Next), 2U);
    EXPECT_EQ(FindLine(view, u"Een", 2, Towards::Next), 0U);
    EXPECT_EQ(FindLine(view, u"Een", {}, Towards::Previous), 2U);
    EXPECT_EQ(FindLine(view, u"Een", 2, Towards::Previous), 0U);
    EXPECT_EQ(FindLine(view, u"Een", 0, Towards::Previous), 2U);
    EXPECT_EQ(FindLine(view, u"x", 1, Towards::Next), 1U) << "the only one";
}

TEST_F(LogBookViewTest, WhatIsNotThereIsNotFound) {
    const LogBookView view = Read("vraagteken?\n");
    EXPECT_EQ(FindLine(view, u"twee", {}, Towards::Next), std::nullopt);
    EXPECT_EQ(FindLine(view, u"", {}, Towards::Next), std::nullopt);
    EXPECT_EQ(FindLine(view, u"vraagteken\u0142", {}, Towards::Next), std::nullopt) << "no such byte";
    EXPECT_EQ(FindLine(LogBookView(), u"x", {}, Towards::Next), std::nullopt);
}

TEST_F(LogBookViewTest, WhatIsSavedIsTheFileToTheByte) {
    const LogBookView view = Read("\nge\xEBxporteerd\n\n");
    EXPECT_EQ(LogBookBytes(view), "\r\nge\xEBxporteerd\r\n\r\n");
}

TEST_F(LogBookViewTest, ALogBookThatIsNotThereIsAnError) {
    EXPECT_THROW(ReadLogBook(folder / "weg.LOG"), RuntimeError);
}

TEST_F(LogBookViewTest, ThePlaceIsToldInWords) {
    const LogBookView view = Read(withBoth);
    EXPECT_EQ(ToUtf8(PlaceInLogBook(view, 4)), "Regel 5 van 13, 3 meldingen");
    EXPECT_EQ(ToUtf8(PlaceInLogBook(view, {})), "13 regels, 3 meldingen");
    EXPECT_EQ(ToUtf8(PlaceInLogBook(Read("FOUT:  x\n"), {})), "1 regel, 1 melding");
    EXPECT_EQ(ToUtf8(PlaceInLogBook(Read("goed\n"), 0)), "Regel 1 van 1, geen meldingen");
}

TEST_F(LogBookViewTest, APersonHasItInAWindowUnlessTheViewerWasChosen) {
    EXPECT_TRUE(ShowsLogBookItself(form));
    options.logBookInWindow = false;
    EXPECT_FALSE(ShowsLogBookItself(form));
}

TEST_F(LogBookViewTest, AStartByLiscadHasItInTheViewer) {
    options.StartedInteractively = false;
    EXPECT_FALSE(ShowsLogBookItself(form));
}

TEST_F(LogBookViewTest, AWindowThatIsAboutToCloseShowsNoLogBookOfItsOwn) {
    const Running running(form.activity);
    AskEndOfRun(form);
    EXPECT_FALSE(ShowsLogBookItself(form));
}

TEST_F(LogBookViewTest, AMessageNamesALogBookThatCannotBeShown) {
    ViewLogBook(screen, u"kaart.LOG");
    EXPECT_EQ(screen.viewed, std::vector<std::string>{"kaart.LOG"});
    EXPECT_TRUE(screen.messages.empty());
    screen.viewerStarts = false;
    ViewLogBook(screen, u"kaart.LOG");
    EXPECT_EQ(screen.messages,
              std::vector<std::string>{"Het logboek kan niet worden getoond. Het is opgeslagen in:\n\nkaart.LOG"});
}

}  // namespace

}  // namespace korvande::testing
