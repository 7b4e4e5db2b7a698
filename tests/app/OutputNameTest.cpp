#include "app/OutputName.h"

#include <filesystem>

#include "app/BrowseFiles.h"
#include "tests/app/AppTest.h"

// The name of the output that the window fills in by itself, and where a name without a folder stands.
namespace korvande::testing {

namespace {

class OutputName : public AppRunTest {
 protected:
    // Chooses an input in the dialog of the selected mode.
    void ChooseInput(const Text& name) {
        const AskFileName ask = [&](const FileDialog& dialog) {
            EXPECT_TRUE(dialog.opens);
            return name;
        };
        if (SelectedMode(form).direction == Direction::FromIdex) {
            BrowseIdexFile(form, ask);
        } else {
            BrowseSufNenFile(form, ask);
        }
    }
    void ChooseMode(int mode) {
        form.cboXlateMode.index = mode;
        DeriveOutputName(form);
    }
    std::string SufNen() const { return ToUtf8(options.txtFileSUFNEN); }
    std::string Idex() const { return ToUtf8(options.txtFileIDEX); }
};

TEST_F(OutputName, AnEmptyBoxGetsTheNameOfTheInputThatIsChosen) {
    Choose(0, u"", u"  ");
    ChooseInput(u"/data/straat.idx");
    EXPECT_EQ(SufNen(), "/data/straat.SFN");
}

TEST_F(OutputName, TheExtensionIsThatOfTheMode) {
    Choose(0, u"", u"");
    ChooseInput(u"/data/straat.idx");
    ChooseMode(1);
    EXPECT_EQ(SufNen(), "/data/straat.SF2");
    ChooseMode(0);
    EXPECT_EQ(SufNen(), "/data/straat.SFN");
    Choose(3, u"", u"");
    ChooseInput(u"C:\\DATA\\kaart.1.sf2");
    EXPECT_EQ(Idex(), "C:\\DATA\\kaart.1.IDX");
}

TEST_F(OutputName, ABareNameSuchAsTheSampleProjectsIsReplaced) {
    Choose(0, u"", u"STRAAT.SFN");
    ChooseInput(u"/data/kaart.idx");
    EXPECT_EQ(SufNen(), "/data/kaart.SFN");
}

TEST_F(OutputName, TheNameDerivedFromTheInputBeforeFollowsTheNewInput) {
    Choose(0, u"", u"");
    ChooseInput(u"/data/straat.idx");
    ChooseInput(u"/data/kaart.idx");
    EXPECT_EQ(SufNen(), "/data/kaart.SFN");
}

TEST_F(OutputName, ANameThatAPersonChoseStays) {
    Choose(0, u"", u"/gemeente/levering.sfn");
    ChooseInput(u"/data/straat.idx");
    ChooseMode(1);
    EXPECT_EQ(SufNen(), "/gemeente/levering.sfn");
}

TEST_F(OutputName, WithoutAnInputNothingIsFilledIn) {
    Choose(0, u" ", u"");
    ChooseMode(1);
    EXPECT_EQ(SufNen(), "");
}

TEST_F(OutputName, TheWindowShowsWhatWasFilledIn) {
    int changes = 0;
    form.changed = [&] { ++changes; };
    Choose(0, u"/data/straat.idx", u"");
    ChooseMode(0);
    EXPECT_EQ(changes, 1);
    ChooseMode(0);
    EXPECT_EQ(SufNen(), "/data/straat.SFN");
}

TEST_F(OutputName, AnOutputThatIsChosenIsNotDerivedFrom) {
    Choose(0, u"/data/straat.idx", u"");
    BrowseSufNenFile(form, [](const FileDialog&) { return Text(u"/uit/a.sfn"); });
    EXPECT_EQ(SufNen(), "/uit/a.sfn");
    EXPECT_EQ(Idex(), "/data/straat.idx");
}

TEST_F(OutputName, ARelativeNameStandsBesideTheInput) {
    EXPECT_EQ(BesideInput(u"STRAAT.SFN", u"C:\\DATA\\KAART.IDX"), u"C:\\DATA\\STRAAT.SFN");
    EXPECT_EQ(BesideInput(u"uit/STRAAT.SFN", u"/data/kaart.idx"), u"/data/uit/STRAAT.SFN");
    EXPECT_EQ(BesideInput(u"STRAAT.SFN", u"kaart.idx"), u"STRAAT.SFN");
    for (const TextView whole : {u"/uit/a.sfn", u"\\\\server\\map\\a.sfn", u"D:\\a.sfn", u"d:a.sfn"}) {
        EXPECT_EQ(BesideInput(whole, u"/data/kaart.idx"), whole);
    }
}

TEST_F(OutputName, NamesThatWerePastedWithQuotesLoseThem) {
    int changes = 0;
    form.changed = [&] { ++changes; };
    Choose(0, u" \"/data/mijn straat.idx\" ", u"");
    ChooseMode(1);
    EXPECT_EQ(Idex(), "/data/mijn straat.idx");
    EXPECT_EQ(SufNen(), "/data/mijn straat.SF2");
    EXPECT_GE(changes, 1);
    const Text stays = u"/data/\"a\".idx";
    for (const TextView name : {TextView(stays), TextView(u"\""), TextView(u"\"half.idx")}) {
        options.txtFileIDEX = name;
        TakeQuotesAway(form);
        EXPECT_EQ(options.txtFileIDEX, name);
    }
}

TEST_F(OutputName, ARunTakesTheQuotesAwayAroundItsNames) {
    const Text input = folder.Write("mijn in.idx", Drawing());
    Choose(0, Concat(u"\"", input, u"\""), Concat(u"\"", folder / "mijn uit.sfn", u"\""));
    RunTranslation(form);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Verwerking gereed"});
    EXPECT_TRUE(FileIsThere(folder / "mijn uit.sfn"));
    EXPECT_EQ(options.txtFileIDEX, input);
}

TEST_F(OutputName, TheFileDialogOpensInTheFolderOfANameBetweenQuotes) {
    Choose(0, u"\"/data/mijn straat.idx\"", u"");
    BrowseIdexFile(form, [](const FileDialog& dialog) {
        EXPECT_EQ(dialog.folder, u"/data/");
        EXPECT_EQ(dialog.fileName, u"mijn straat.idx");
        return std::nullopt;
    });
}

TEST_F(OutputName, ARunWritesARelativeOutputBesideItsInputAndShowsWhere) {
    std::filesystem::create_directory(folder.Path() + "/werk");
    Choose(0, folder.Write("werk/in.idx", Drawing()), u"STRAAT.SFN");
    RunTranslation(form);
    EXPECT_TRUE(FileIsThere(folder / "werk/STRAAT.SFN"));
    EXPECT_TRUE(FileIsThere(folder / "werk/STRAAT.LOG"));
    EXPECT_EQ(options.txtFileSUFNEN, folder / "werk/STRAAT.SFN");
    EXPECT_FALSE(std::filesystem::exists("STRAAT.SFN"));
}

}  // namespace

}  // namespace korvande::testing
