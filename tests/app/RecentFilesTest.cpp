#include "app/RecentFiles.h"

#include "app/Remembered.h"
#include "app/RunTranslation.h"
#include "tests/app/AppTest.h"

// The files that a user translated last.
namespace korvande::testing {

namespace {

constexpr TextView settings = u"Software\\TERAMUND\\KORVANDE";

class RecentFilesTest : public AppRunTest {
 protected:
    // As a run would that translated it.
    void Remember(int mode, const Text& name) {
        form.cboXlateMode.index = mode;
        (mode < 2 ? options.txtFileIDEX : options.txtFileSUFNEN) = name;
        RememberInput(form);
    }

    // The last components of the names, and the modes' short names.
    static std::string Kept() {
        std::string kept;
        for (const RecentFile& file : RecentFiles()) {
            kept += ToUtf8(FileNameOf(file.name)) + ":" + std::string(NamesOf(file.mode).shortName) + " ";
        }
        return kept;
    }
};

TEST_F(RecentFilesTest, ThereAreNoneBeforeTheFirst) { EXPECT_EQ(Kept(), ""); }

TEST_F(RecentFilesTest, ARunRemembersItsInputAndItsMode) {
    Choose(1, folder.Write("in.idx", Drawing()), folder / "uit.sf2");
    RunTranslation(form);
    Choose(2, folder / "uit.idx", folder.Write("in.sfn", Nen1878()));
    RunTranslation(form);
    EXPECT_EQ(Kept(), "in.sfn:nen1878-idex in.idx:idex-suf2 ");
    EXPECT_EQ(RecentFiles()[1].name, folder / "in.idx");
}

TEST_F(RecentFilesTest, AnInputThatIsNotThereIsNotRemembered) {
    Choose(0, folder / "weg.idx", folder / "uit.sfn");
    RunTranslation(form);
    EXPECT_EQ(Kept(), "");
}

TEST_F(RecentFilesTest, ARunOfTheCommandLineRemembersNothing) {
    options.StartedInteractively = false;
    form.conversion = {Direction::FromIdex, folder.Write("in.idx", Drawing()), folder / "uit.sfn", folder / "uit.LOG"};
    RunTranslation(form);
    ASSERT_TRUE(FileIsThere(folder / "uit.sfn"));
    EXPECT_EQ(Kept(), "");
}

TEST_F(RecentFilesTest, TheNewestStandsFirstAndEachOnlyOnceWithItsLastMode) {
    Remember(0, folder / "a.idx");
    Remember(0, folder / "b.idx");
    Remember(1, folder / "A.IDX");
    EXPECT_EQ(Kept(), "A.IDX:idex-suf2 b.idx:idex-nen1878 ");
}

TEST_F(RecentFilesTest, TenAreKept) {
    for (int i = 1; i <= 12; ++i) Remember(0, folder / (std::to_string(i) + ".idx"));
    std::string names;
    for (const RecentFile& file : RecentFiles()) names += ToUtf8(FileNameOf(file.name)) + " ";
    EXPECT_EQ(names, "12.idx 11.idx 10.idx 9.idx 8.idx 7.idx 6.idx 5.idx 4.idx 3.idx ");
}

TEST_F(RecentFilesTest, ANameTooLongForTheRegistryIsNotRemembered) {
    Remember(0, folder / (std::string(1000, 'x') + ".idx"));
    EXPECT_EQ(Kept(), "");
}

TEST_F(RecentFilesTest, RubbishInTheRegistryIsPassedOver) {
    Remember(0, folder / "goed.idx");
    TestRegistry::Set(settings, u"Recent1", u"zonder soort");
    TestRegistry::Set(settings, u"Recent2", u"IDEX >> XYZ|/a.idx");
    TestRegistry::Set(settings, u"Recent3", u"IDEX >> SUF2|");
    TestRegistry::Set(settings, u"Recent4", u"IDEX >> SUF2|/a\tb.idx");
    TestRegistry::Set(settings, u"RecentOrder", u"x1234-00 7");
    EXPECT_EQ(Kept(), "goed.idx:idex-nen1878 ");
    Remember(0, folder / "nieuw.idx");
    EXPECT_EQ(Kept(), "nieuw.idx:idex-nen1878 goed.idx:idex-nen1878 ");
}

TEST_F(RecentFilesTest, AChosenFileSetsItsBoxTheModeAndTheOutput) {
    Remember(3, folder.Write("kaart.sf2", Nen1878()));
    form.cboXlateMode.index = 0;
    options.txtFileSUFNEN = u"iets anders.sfn";
    options.txtFileIDEX = {};
    int changes = 0;
    form.changed = [&changes] { ++changes; };
    TakeRecentFile(form, RecentFiles()[0]);
    EXPECT_EQ(form.cboXlateMode.index, 3);
    EXPECT_EQ(options.txtFileSUFNEN, folder / "kaart.sf2");
    EXPECT_EQ(options.txtFileIDEX, folder / "kaart.IDX");
    EXPECT_GT(changes, 0);
}

TEST_F(RecentFilesTest, AFileThatIsGoneIsToldAndLeavesTheBoxAsItIs) {
    Remember(0, folder / "weg.idx");
    options.txtFileIDEX = u"hier.idx";
    screen.answers = {Answer::No};
    TakeRecentFile(form, RecentFiles()[0]);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Het bestand is er niet meer:\n" + ToUtf8(folder / "weg.idx") +
                                                        "\n\nUit deze lijst halen?"});
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::YesNo);
    EXPECT_EQ(screen.boxes[0].icon, Icon::Question);
    EXPECT_EQ(options.txtFileIDEX, u"hier.idx");
    EXPECT_EQ(Kept(), "weg.idx:idex-nen1878 ");
}

TEST_F(RecentFilesTest, AFileThatIsGoneLeavesTheListWhenAPersonWantsThat) {
    Remember(0, folder / "blijft.idx");
    Remember(0, folder / "weg.idx");
    screen.answers = {Answer::Yes};
    TakeRecentFile(form, RecentFiles()[0]);
    EXPECT_EQ(Kept(), "blijft.idx:idex-nen1878 ");
}

TEST_F(RecentFilesTest, AnOfferTellsTheNameTheModeAndTheFolder) {
    const RecentFile file = {u"C:\\DATA\\KAART.IDX", {Direction::FromIdex, Variant::Suf2}};
    EXPECT_EQ(ToUtf8(OfferOf(file)), "KAART.IDX  –  IDEX >> SUF2  –  C:\\DATA\\");
}

}  // namespace

}  // namespace korvande::testing
