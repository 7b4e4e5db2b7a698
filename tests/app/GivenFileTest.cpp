#include "app/GivenFile.h"

#include "tests/app/AppTest.h"

// A start with one file: dropped on the icon, or opened with the program.
namespace korvande::testing {

namespace {

class GivenFileTest : public AppTest {
 protected:
    GivenFileTest() { InstallLiscad(); }

    void Start(const Text& commandLine) {
        EXPECT_EQ(StartUp(form, {commandLine, false}), AfterStartUp::OpenWindow);
        EXPECT_TRUE(options.StartedInteractively);
        EXPECT_TRUE(screen.messages.empty());
    }

    int ModeIndex() const { return form.cboXlateMode.index; }
};

TEST_F(GivenFileTest, AnIdexFileGoesIntoItsBoxAndTheOutputStandsBesideIt) {
    const Text name = folder.Write("12 straat.idx", Drawing());
    Start(Concat(u"\"", name, u"\""));
    EXPECT_EQ(options.txtFileIDEX, name);
    EXPECT_EQ(options.txtFileSUFNEN, folder / "12 straat.SFN");
    EXPECT_EQ(ModeIndex(), 0);
    EXPECT_EQ(form.cboXlateMode.items.size(), 4U);
    EXPECT_FALSE(form.StartedByCommandLine);
}

TEST_F(GivenFileTest, TheContentTellsTheModeWhateverTheExtension) {
    const Text name = folder.Write("kaart.idx", Nen1878());
    Start(name);
    EXPECT_EQ(options.txtFileSUFNEN, name);
    EXPECT_EQ(ModeIndex(), 2);
    std::string suf2 = Nen1878();
    suf2[66 + 6] = '0';
    const Text other = folder.Write("kaart.txt", suf2);
    TakeGivenFile(form, other);
    EXPECT_EQ(options.txtFileSUFNEN, other);
    EXPECT_EQ(options.txtFileIDEX, folder / "kaart.IDX");
    EXPECT_EQ(ModeIndex(), 3);
}

TEST_F(GivenFileTest, ItIsTranslatedByOneMoreClick) {
    WriteProject("A.nst", "STAD A", "[Export]\nIncludeUnknown = 1\n");
    Start(folder.Write("kaart.idx", Drawing()));
    RunTranslation(form);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Verwerking gereed"});
    EXPECT_NE(FileBytes(folder / "kaart.SFN").find("\r\n03M"), std::string::npos);
}

TEST_F(GivenFileTest, AnOutputNamedAfterTheFileOfTheLastSessionGoesAlong) {
    WriteProject("A.nst", "STAD A", "SUFNENFile = /werk/oud.sfn\nIDEXFile = /werk/oud.idx\n");
    Start(folder.Write("nieuw.idx", Drawing()));
    EXPECT_EQ(options.txtFileSUFNEN, folder / "nieuw.SFN");
}

TEST_F(GivenFileTest, AControlTableForLiscadOnlyDoesNotHideTheFile) {
    WriteProject("A.nst", "STAD A", "STANDALONEALLOWED = NO\n");
    Start(folder.Write("kaart.idx", Drawing()));
    EXPECT_EQ(LoadedTown(), "STAD A");
}

TEST_F(GivenFileTest, AFileWithoutADrawingGoesByItsExtensionAndTheModeStays) {
    const Text sufNen = folder.Write("leeg.sf2", "");
    Start(sufNen);
    EXPECT_EQ(options.txtFileSUFNEN, sufNen);
    EXPECT_EQ(ModeIndex(), 0);
    form.cboXlateMode.index = 3;
    const Text idex = folder.Write("leeg.IDX", "\xFF\xFEH\0E\0");
    TakeGivenFile(form, idex);
    EXPECT_EQ(options.txtFileIDEX, idex);
    const Text unknown = folder.Write("leeg.txt", "geen tekening");
    TakeGivenFile(form, unknown);
    EXPECT_EQ(options.txtFileSUFNEN, unknown);
    EXPECT_EQ(ModeIndex(), 3);
}

TEST_F(GivenFileTest, AFileThatBeginsWithADigitIsNoConversionButOneThatIsMissingIs) {
    const Text here = FullName(u"1kaart.sfn");
    EXPECT_EQ(GivenFile(u"1kaart.sfn"), u"");
    EXPECT_EQ(StartUp(form, {u"1kaart.sfn", false}), AfterStartUp::OpenWindow);
    EXPECT_FALSE(options.StartedInteractively);
    EXPECT_EQ(form.conversion.direction, Direction::ToIdex);
    EXPECT_EQ(form.conversion.SufNenFileName, u"KAART.SFN");
    EXPECT_TRUE(here.ends_with(u"1kaart.sfn"));
}

TEST_F(GivenFileTest, TwoArgumentsAreNoFileEvenWhenOneIsThere) {
    const Text name = folder.Write("kaart.sfn", Nen1878());
    folder.Write("1 x", "");
    EXPECT_EQ(GivenFile(name), name);
    EXPECT_EQ(GivenFile(Concat(u"1 ", name)), u"");
    EXPECT_EQ(GivenFile(Concat(u"\"", name, u"\" \"", name, u"\"")), u"");
    EXPECT_EQ(GivenFile(folder / "1 x"), u"");
    EXPECT_EQ(GivenFile(FromUtf8(projects)), u"") << "a folder";
}

TEST_F(GivenFileTest, ANameWithoutAFolderGetsTheOneThatTheProgramWasStartedIn) {
    const auto before = std::filesystem::current_path();
    folder.Write("9.idx", Drawing());
    std::filesystem::current_path(folder.Path());
    const Text given = GivenFile(u"9.idx");
    std::filesystem::current_path(before);
    EXPECT_TRUE(FileIsThere(given));
    EXPECT_NE(given, u"9.idx");
}

}  // namespace

}  // namespace korvande::testing
