#include "app/BrowseFiles.h"

#include "tests/app/AppTest.h"

namespace korvande::testing {

namespace {

class BrowseFiles : public AppTest {
 protected:
    static void ChooseMode(int mode) { frmKORVANDE().cboXlateMode.index = mode; }
};

TEST_F(BrowseFiles, TheSufNenFileIsReadTowardsIdexAndWrittenFromIt) {
    for (const int mode : {0, 1}) {
        ChooseMode(mode);
        EXPECT_FALSE(SufNenFileDialog().opens) << mode;
        EXPECT_EQ(SufNenFileDialog().title, u"Opslaan SUF2/NEN1878 bestand");
    }
    for (const int mode : {2, 3}) {
        ChooseMode(mode);
        EXPECT_TRUE(SufNenFileDialog().opens) << mode;
        EXPECT_EQ(SufNenFileDialog().title, u"Inlezen SUF2/NEN1878 bestand");
    }
}

TEST_F(BrowseFiles, TheIdexFileIsReadFromIdexAndWrittenTowardsIt) {
    for (const int mode : {0, 1}) {
        ChooseMode(mode);
        EXPECT_TRUE(IdexFileDialog().opens) << mode;
        EXPECT_EQ(IdexFileDialog().title, u"Inlezen IDEX bestand");
    }
    for (const int mode : {2, 3}) {
        ChooseMode(mode);
        EXPECT_FALSE(IdexFileDialog().opens) << mode;
        EXPECT_EQ(IdexFileDialog().title, u"Opslaan IDEX bestand");
    }
}

TEST_F(BrowseFiles, TheFiltersNameTheFormats) {
    EXPECT_EQ(ToUtf8(SufNenFileDialog().filter),
              "NEN1878 bestanden (*.sfn)|*.sfn|NEN1878 bestanden (*.nen)|*.nen|SUF2 bestanden (*.sf2)|*.sf2|"
              "Alle bestanden (*.*)|*.*");
    EXPECT_EQ(ToUtf8(IdexFileDialog().filter), "IDEX bestanden (*.IDX)|*.idx|Alle bestanden (*.*)|*.*");
}

TEST_F(BrowseFiles, FolderAndNameComeFromTheFilesBox) {
    frmKORVANDE().txtFileSUFNEN = u"C:\\DATA\\KAART.SFN";
    frmKORVANDE().txtFileIDEX = u"voorbeeld.idx";
    EXPECT_EQ(SufNenFileDialog().folder, u"C:\\DATA\\");
    EXPECT_EQ(SufNenFileDialog().fileName, u"KAART.SFN");
    EXPECT_EQ(IdexFileDialog().folder, u"");
    EXPECT_EQ(IdexFileDialog().fileName, u"voorbeeld.idx");
}

TEST_F(BrowseFiles, AChosenNameGoesIntoItsBox) {
    int changes = 0;
    frmKORVANDE().changed = [&] { ++changes; };
    std::vector<Text> titles;
    BrowseSufNenFile([&](const FileDialog& dialog) {
        titles.push_back(dialog.title);
        return std::optional<Text>(u"C:\\NIEUW.SFN");
    });
    EXPECT_GT(changes, 0);
    BrowseIdexFile([&](const FileDialog& dialog) {
        titles.push_back(dialog.title);
        return std::optional<Text>(u"C:\\NIEUW.IDX");
    });
    EXPECT_EQ(frmKORVANDE().txtFileSUFNEN, u"C:\\NIEUW.SFN");
    EXPECT_EQ(frmKORVANDE().txtFileIDEX, u"C:\\NIEUW.IDX");
    EXPECT_EQ(titles, (std::vector<Text>{u"Opslaan SUF2/NEN1878 bestand", u"Inlezen IDEX bestand"}));
}

TEST_F(BrowseFiles, ACancelledDialogLeavesTheBox) {
    BrowseSufNenFile([](const FileDialog&) { return std::optional<Text>(); });
    BrowseIdexFile([](const FileDialog&) { return std::optional<Text>(); });
    EXPECT_EQ(frmKORVANDE().txtFileSUFNEN, u"voorbeeld.sfn");
    EXPECT_EQ(frmKORVANDE().txtFileIDEX, u"voorbeeld.idx");
}

TEST_F(BrowseFiles, TheTimerStandsStillWhileTheDialogIsShown) {
    frmKORVANDE().Timer1Enabled = true;
    for (const bool cancelled : {false, true}) {
        bool isEnabled = true;
        BrowseIdexFile([&](const FileDialog&) {
            isEnabled = frmKORVANDE().Timer1Enabled;
            return cancelled ? std::optional<Text>() : std::optional<Text>(u"x");
        });
        EXPECT_FALSE(isEnabled);
        EXPECT_TRUE(frmKORVANDE().Timer1Enabled);
    }
}

}  // namespace

}  // namespace korvande::testing
