#include "app/BrowseFiles.h"

#include "tests/app/AppTest.h"

namespace korvande::testing {

namespace {

class BrowseFiles : public AppTest {
 protected:
    void ChooseMode(int mode) { form.cboXlateMode.index = mode; }
};

TEST_F(BrowseFiles, TheSufNenFileIsReadTowardsIdexAndWrittenFromIt) {
    for (const int mode : {0, 1}) {
        ChooseMode(mode);
        EXPECT_FALSE(SufNenFileDialog(form).opens) << mode;
        EXPECT_EQ(SufNenFileDialog(form).title, u"Opslaan SUF2/NEN1878 bestand");
    }
    for (const int mode : {2, 3}) {
        ChooseMode(mode);
        EXPECT_TRUE(SufNenFileDialog(form).opens) << mode;
        EXPECT_EQ(SufNenFileDialog(form).title, u"Inlezen SUF2/NEN1878 bestand");
    }
}

TEST_F(BrowseFiles, TheIdexFileIsReadFromIdexAndWrittenTowardsIt) {
    for (const int mode : {0, 1}) {
        ChooseMode(mode);
        EXPECT_TRUE(IdexFileDialog(form).opens) << mode;
        EXPECT_EQ(IdexFileDialog(form).title, u"Inlezen IDEX bestand");
    }
    for (const int mode : {2, 3}) {
        ChooseMode(mode);
        EXPECT_FALSE(IdexFileDialog(form).opens) << mode;
        EXPECT_EQ(IdexFileDialog(form).title, u"Opslaan IDEX bestand");
    }
}

TEST_F(BrowseFiles, TheFiltersNameTheFormats) {
    EXPECT_EQ(ToUtf8(SufNenFileDialog(form).filter),
              "NEN1878 bestanden (*.sfn)|*.sfn|NEN1878 bestanden (*.nen)|*.nen|SUF2 bestanden (*.sf2)|*.sf2|"
              "Alle bestanden (*.*)|*.*");
    EXPECT_EQ(ToUtf8(IdexFileDialog(form).filter), "IDEX bestanden (*.IDX)|*.idx|Alle bestanden (*.*)|*.*");
}

TEST_F(BrowseFiles, FolderAndNameComeFromTheFilesBox) {
    options.txtFileSUFNEN = u"C:\\DATA\\KAART.SFN";
    options.txtFileIDEX = u"voorbeeld.idx";
    EXPECT_EQ(SufNenFileDialog(form).folder, u"C:\\DATA\\");
    EXPECT_EQ(SufNenFileDialog(form).fileName, u"KAART.SFN");
    EXPECT_EQ(IdexFileDialog(form).folder, u"");
    EXPECT_EQ(IdexFileDialog(form).fileName, u"voorbeeld.idx");
}

TEST_F(BrowseFiles, AChosenNameGoesIntoItsBox) {
    int changes = 0;
    form.changed = [&] { ++changes; };
    std::vector<Text> titles;
    BrowseSufNenFile(form, [&](const FileDialog& dialog) {
        titles.push_back(dialog.title);
        return std::optional<Text>(u"C:\\NIEUW.SFN");
    });
    EXPECT_GT(changes, 0);
    BrowseIdexFile(form, [&](const FileDialog& dialog) {
        titles.push_back(dialog.title);
        return std::optional<Text>(u"C:\\NIEUW.IDX");
    });
    EXPECT_EQ(options.txtFileSUFNEN, u"C:\\NIEUW.SFN");
    EXPECT_EQ(options.txtFileIDEX, u"C:\\NIEUW.IDX");
    EXPECT_EQ(titles, (std::vector<Text>{u"Opslaan SUF2/NEN1878 bestand", u"Inlezen IDEX bestand"}));
}

TEST_F(BrowseFiles, ACancelledDialogLeavesTheBox) {
    BrowseSufNenFile(form, [](const FileDialog&) { return std::optional<Text>(); });
    BrowseIdexFile(form, [](const FileDialog&) { return std::optional<Text>(); });
    EXPECT_EQ(options.txtFileSUFNEN, u"voorbeeld.sfn");
    EXPECT_EQ(options.txtFileIDEX, u"voorbeeld.idx");
}

TEST_F(BrowseFiles, TheTimerStandsStillWhileTheDialogIsShown) {
    form.Timer1Enabled = true;
    for (const bool cancelled : {false, true}) {
        bool isEnabled = true;
        BrowseIdexFile(form, [&](const FileDialog&) {
            isEnabled = form.Timer1Enabled;
            return cancelled ? std::optional<Text>() : std::optional<Text>(u"x");
        });
        EXPECT_FALSE(isEnabled);
        EXPECT_TRUE(form.Timer1Enabled);
    }
}

// The folder that a dialog begins in.
struct Begin {
    Text operator()(FormKORVANDE& form, void (*browse)(FormKORVANDE&, const AskFileName&),
                    const std::optional<Text>& chosen = {}) const {
        Text begin;
        browse(form, [&](const FileDialog& dialog) {
            begin = dialog.folder;
            return chosen;
        });
        return begin;
    }
};

TEST_F(BrowseFiles, WithoutAFolderInTheBoxADialogBeginsWhereItsLastFileWasChosen) {
    const Begin begin;
    options.txtFileIDEX = {};
    EXPECT_EQ(begin(form, BrowseIdexFile, folder / "kaart.idx"), u"");
    begin(form, BrowseSufNenFile, FromUtf8(projects + "/kaart.sfn"));
    FormKORVANDE next(screen);
    next.project.options.txtFileIDEX = {};
    next.project.options.txtFileSUFNEN = u"bloot.sfn";
    EXPECT_EQ(begin(next, BrowseIdexFile), FromUtf8(folder.Path() + "/"));
    EXPECT_EQ(begin(next, BrowseSufNenFile), FromUtf8(projects + "/"));
    next.project.options.txtFileIDEX = u"C:\\DATA\\KAART.IDX";
    EXPECT_EQ(begin(next, BrowseIdexFile), u"C:\\DATA\\");
}

TEST_F(BrowseFiles, AFolderThatIsGoneIsNotBegunIn) {
    options.txtFileIDEX = {};
    std::filesystem::create_directory(folder.Path() + "/weg");
    const Begin begin;
    begin(form, BrowseIdexFile, folder / "weg/kaart.idx");
    options.txtFileIDEX = {};
    ASSERT_EQ(begin(form, BrowseIdexFile), folder / "weg/");
    std::filesystem::remove(folder.Path() + "/weg");
    EXPECT_EQ(begin(form, BrowseIdexFile), u"");
}

}  // namespace

}  // namespace korvande::testing
