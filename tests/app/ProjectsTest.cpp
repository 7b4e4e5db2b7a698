#include "app/Projects.h"

#include <chrono>
#include <thread>

#include "tests/app/AppTest.h"

namespace korvande::testing {

namespace {

class Projects : public AppTest {
 protected:
    Projects() {
        frmKORVANDE().askProjectName = [this](TextView caption, TextView explanation, TextView prompt, TextView name) {
            dialogs.push_back({ToUtf8(caption), ToUtf8(explanation), ToUtf8(prompt), ToUtf8(name)});
            timerDuringDialog = frmKORVANDE().Timer1Enabled;
            return typed;
        };
        frmKORVANDE().Timer1Enabled = true;
    }

    // Three projects, the second one loaded.
    void LoadThree() {
        for (const char* name : {"A.nst", "B.nst", "C.nst"}) WriteProject(name, std::string("STAD ") + name[0]);
        RefreshProjects();
        LoadProject(u"B.nst");
    }

    static std::string Current() { return ToUtf8(CurrentProject()); }
    static std::string Selected() { return ToUtf8(frmKORVANDE().File1.SelectedText()); }

    // What the operations must not do: leave the timer standing.
    void ExpectTimer() const {
        EXPECT_FALSE(timerDuringDialog);
        EXPECT_TRUE(frmKORVANDE().Timer1Enabled);
    }

    std::optional<Text> typed;  // in the dialog; nothing: Cancel
    std::vector<std::vector<std::string>> dialogs;
    bool timerDuringDialog = false;
};

TEST_F(Projects, ATypedNameEndsUpInCapitalsWithItsExtension) {
    EXPECT_EQ(ProjectFileName(u"proef"), u"PROEF.NST");
    EXPECT_EQ(ProjectFileName(u"proef.nst"), u"PROEF.NST");
    EXPECT_EQ(ProjectFileName(u"  Proef.Nst "), u"PROEF.NST");
    EXPECT_EQ(ProjectFileName(u"caf\u00E9 1.2"), u"CAF\u00C9 1.2.NST");
    EXPECT_EQ(ProjectFileName(u"nst"), u"NST.NST");
    EXPECT_EQ(ProjectFileName(u""), u".NST");
}

TEST_F(Projects, TheListHoldsTheControlTablesInOrderAndKeepsTheCurrentOneSelected) {
    WriteProject("b.nst");
    WriteProject("A.NST");
    folder.Write("projecten/c.ini", "");
    CurrentProject() = u"B.NST";
    RefreshProjects();
    EXPECT_EQ(frmKORVANDE().File1.items, (std::vector<Text>{u"A.NST", u"b.nst"}));
    EXPECT_EQ(frmKORVANDE().File1.index, 1);
    CurrentProject() = u"weg.nst";
    RefreshProjects();
    EXPECT_EQ(frmKORVANDE().File1.index, -1);
}

TEST_F(Projects, APickedProjectIsLoadedAndTheOneLeftIsSaved) {
    LoadThree();
    frmKORVANDE().txtCity = u"NIEUWSTAD";
    frmKORVANDE().gridPoints[1][Grid::Lki] = u"Q99";
    EditedLines().row = 20000;
    PickProject(2);
    EXPECT_EQ(EditedLines().row, 1);
    EXPECT_EQ(Current(), "C.nst");
    EXPECT_EQ(Selected(), "C.nst");
    EXPECT_EQ(LoadedTown(), "STAD C");
    EXPECT_EQ(ToUtf8(frmKORVANDE().txtProject), "C");
    EXPECT_NE(ProjectBytes("B.nst").find("Town = NIEUWSTAD\r\n"), std::string::npos);
    EXPECT_NE(ProjectBytes("B.nst").find("Unknown = STANDRD, Q99,"), std::string::npos);
    EXPECT_TRUE(frmKORVANDE().Timer1Enabled);
}

TEST_F(Projects, AnEditUnderWayIsSavedWithTheProjectLeft) {
    LoadThree();
    StartEdit(EditedPoints(), u'X', {}, {});
    PickProject(0);
    EXPECT_NE(ProjectBytes("B.nst").find("Unknown = X,"), std::string::npos);
    EXPECT_FALSE(EditedPoints().textEditor.isVisible);
    EXPECT_EQ(ToUtf8(frmKORVANDE().gridPoints[1][Grid::Liscad]), "STANDRD");
}

TEST_F(Projects, WithoutACurrentProjectPickingSavesNone) {
    WriteProject("A.nst", "STAD A");
    RefreshProjects();
    PickProject(0);
    EXPECT_EQ(LoadedTown(), "STAD A");
    EXPECT_EQ(ProjectNames(), "A.nst");
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(Projects, APlaceOutsideTheListPicksNothing) {
    LoadThree();
    PickProject(-1);
    PickProject(3);
    EXPECT_EQ(Current(), "B.nst");
}

TEST_F(Projects, ABrokenControlTableIsToldAndTheProgramGoesOnWithoutAProject) {
    LoadThree();
    std::filesystem::remove(projects + "/C.nst");
    PickProject(2);
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_EQ(screen.messages[0],
              "Kon bestand: '" + projects + "/C.nst' niet openen;\nFoutcode: 53\nBestand niet gevonden");
    EXPECT_EQ(Current(), "");
    EXPECT_EQ(ToUtf8(frmKORVANDE().txtProject), "");
    EXPECT_EQ(frmKORVANDE().File1.index, -1);
    PickProject(0);  // nothing is saved over the table that could not be read
    EXPECT_EQ(ProjectNames(), "A.nst B.nst");
    EXPECT_EQ(LoadedTown(), "STAD A");
}

TEST_F(Projects, RetryReadsAControlTableThatIsBack) {
    LoadThree();
    std::filesystem::rename(projects + "/C.nst", folder.Path() + "/C.nst");
    screen.answers = {Answer::Retry};
    screen.onMessage = [&] { std::filesystem::rename(folder.Path() + "/C.nst", projects + "/C.nst"); };
    PickProject(2);
    EXPECT_EQ(Current(), "C.nst");
    EXPECT_EQ(LoadedTown(), "STAD C");
}

TEST_F(Projects, ANewProjectHoldsTheDefaultsAndTheOwnerOfThePreviousOne) {
    LoadThree();
    frmKORVANDE().gridPoints[1][Grid::Lki] = u"Q99";
    typed = u"proef";
    NewProject();
    EXPECT_EQ(dialogs, (std::vector<std::vector<std::string>>{{"Nieuw Project Aanmaken",
                                                               "Er wordt een nieuw project aangemaakt met deze naam.",
                                                               "De naam voor het nieuwe project:", ""}}));
    EXPECT_EQ(Current(), "PROEF.NST");
    EXPECT_EQ(Selected(), "PROEF.NST");
    EXPECT_EQ(ProjectNames(), "A.nst B.nst C.nst PROEF.NST");
    const std::string table = ProjectBytes("PROEF.NST");
    EXPECT_NE(table.find("Town = STAD B\r\n"), std::string::npos);
    EXPECT_NE(table.find("Unknown = STANDRD, Q20, PUNT, ONBEKEND PUNTOBJECT, 0, 0, 0\r\n"), std::string::npos);
    EXPECT_EQ(ToUtf8(frmKORVANDE().gridPoints[1][Grid::Lki]), "Q20");
    EXPECT_EQ(LoadedTown(), "STAD B");
    ExpectTimer();
}

TEST_F(Projects, ANewProjectLeavesTheOldOneSaved) {
    LoadThree();
    frmKORVANDE().gridPoints[1][Grid::Lki] = u"Q99";
    typed = u"proef";
    NewProject();
    EXPECT_NE(ProjectBytes("B.nst").find("Unknown = STANDRD, Q99,"), std::string::npos);
}

TEST_F(Projects, AnExtensionThatIsTypedIsNotDoubled) {
    typed = u"proef.nst";
    NewProject();
    EXPECT_EQ(ProjectNames(), "PROEF.NST");
}

TEST_F(Projects, ANewProjectThatCannotBeWrittenIsToldAndTheOldOneComesBack) {
    LoadThree();
    typed = u"geen map\\proef";
    NewProject();
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_EQ(screen.messages[0],
              "Kon bestand: '" + projects + "/GEEN MAP\\PROEF.NST' niet opslaan;\nFoutcode: 76\nPad niet gevonden");
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::RetryCancel);
    EXPECT_EQ(Current(), "B.nst");
    EXPECT_EQ(LoadedTown(), "STAD B");
    ExpectTimer();
}

TEST_F(Projects, CancelInAnyDialogLeavesTheFilesAndTheNameUntouched) {
    LoadThree();
    frmKORVANDE().txtCity = u"NIEUWSTAD";
    std::string before;
    for (const char* name : {"A.nst", "B.nst", "C.nst"}) before += ProjectBytes(name);
    for (void (*const operation)() : {NewProject, CopyProject, DeleteProject}) {
        timerDuringDialog = true;
        operation();
        ExpectTimer();
        EXPECT_EQ(Current(), "B.nst");
        EXPECT_EQ(Selected(), "B.nst");
        EXPECT_EQ(LoadedTown(), "NIEUWSTAD");
    }
    std::string after;
    for (const char* name : {"A.nst", "B.nst", "C.nst"}) after += ProjectBytes(name);
    EXPECT_EQ(after, before);
    EXPECT_EQ(ProjectNames(), "A.nst B.nst C.nst");
    EXPECT_EQ(dialogs.size(), 3U);
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(Projects, ADuplicateIsACopyOfTheFileOnDisk) {
    LoadThree();
    const std::string onDisk = ProjectBytes("B.nst");
    frmKORVANDE().txtCity = u"NIEUWSTAD";
    typed = u"kopie";
    CopyProject();
    EXPECT_EQ(dialogs, (std::vector<std::vector<std::string>>{
                           {"Project Dupliceren", "Het actuele project wordt gedupliceerd naar de nieuwe naam.",
                            "De naam voor het nieuwe project:", "B.nst"}}));
    EXPECT_EQ(ProjectBytes("KOPIE.NST"), onDisk);
    EXPECT_EQ(Current(), "KOPIE.NST");
    EXPECT_EQ(Selected(), "KOPIE.NST");
    EXPECT_EQ(LoadedTown(), "STAD B");
    EXPECT_TRUE(screen.messages.empty());
    ExpectTimer();
}

TEST_F(Projects, EditsThatWereNotSavedStayWithTheOldProject) {
    LoadThree();
    frmKORVANDE().txtCity = u"NIEUWSTAD";
    typed = u"kopie";
    CopyProject();
    PickProject(FindProject(u"B.nst"));
    EXPECT_EQ(LoadedTown(), "NIEUWSTAD");
}

TEST_F(Projects, ADuplicateUnderTheOldNameIsRefused) {
    WriteProject("A.NST", "STAD A");
    RefreshProjects();
    LoadProject(u"A.NST");
    typed = u"a";
    CopyProject();
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_EQ(screen.messages[0], "Nieuwe naam moet anders zijn dan de oude");
    EXPECT_EQ(screen.boxes[0].title, u"Dupliceren is mislukt");
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::Ok);
    EXPECT_EQ(Current(), "A.NST");
    ExpectTimer();
}

TEST_F(Projects, ADuplicateWhoseNameDiffersOnlyInCaseIsRefusedWhereItIsTheSameFile) {
    LoadThree();
    const std::string before = ProjectBytes("B.nst");
    typed = u"b";
    CopyProject();
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Nieuwe naam moet anders zijn dan de oude"});
    EXPECT_EQ(Current(), "B.nst");
    EXPECT_EQ(ProjectBytes("B.nst"), before);
    EXPECT_EQ(ProjectNames(), "A.nst B.nst C.nst");
}

TEST_F(Projects, ADuplicateThatCannotBeMadeIsToldAndTheOldProjectStays) {
    LoadThree();
    std::filesystem::remove(projects + "/B.nst");
    typed = u"kopie";
    CopyProject();
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_EQ(screen.messages[0].substr(0, 17), "FileCopy failed:\n");
    EXPECT_EQ(Current(), "B.nst");
    EXPECT_EQ(ProjectNames(), "A.nst C.nst");
    ExpectTimer();
}

TEST_F(Projects, WithoutACurrentProjectNothingIsDuplicated) {
    typed = u"kopie";
    CopyProject();
    EXPECT_TRUE(dialogs.empty());
    EXPECT_EQ(ProjectNames(), "");
}

TEST_F(Projects, ADeletedProjectIsGoneAndTheOneAtItsPlaceIsLoaded) {
    LoadThree();
    typed = u"B.nst";
    DeleteProject();
    EXPECT_EQ(dialogs,
              (std::vector<std::vector<std::string>>{{"Project Wissen", "Het project zal permanent worden verwijderd.",
                                                      "Dit project wordt gewist:", "B.nst"}}));
    EXPECT_EQ(ProjectNames(), "A.nst C.nst");
    EXPECT_EQ(Current(), "C.nst");
    EXPECT_EQ(Selected(), "C.nst");
    EXPECT_EQ(LoadedTown(), "STAD C");
    EXPECT_TRUE(screen.messages.empty());
    ExpectTimer();
}

TEST_F(Projects, BehindTheLastPlaceTheLastProjectIsLoaded) {
    LoadThree();
    PickProject(2);
    typed = u"c";
    DeleteProject();
    EXPECT_EQ(Current(), "B.nst");
    EXPECT_EQ(LoadedTown(), "STAD B");
}

TEST_F(Projects, WhenTheLastProjectIsDeletedNoneIsCurrentAndTheDefaultsAreShown) {
    WriteProject("A.nst", "STAD A", "[Points]\nBOOM = S01, PUNT, BOOM\n");
    RefreshProjects();
    LoadProject(u"A.nst");
    ASSERT_EQ(frmKORVANDE().gridPoints.RowCount(), 3);
    typed = u"a";
    DeleteProject();
    EXPECT_EQ(ProjectNames(), "");
    EXPECT_EQ(Current(), "");
    EXPECT_EQ(ToUtf8(frmKORVANDE().txtProject), "");
    EXPECT_EQ(frmKORVANDE().gridPoints.RowCount(), 2);
    EXPECT_TRUE(screen.messages.empty());
    typed = u"nieuw";
    NewProject();
    EXPECT_EQ(ProjectNames(), "NIEUW.NST");
}

TEST_F(Projects, AProjectThatStaysIsSavedBeforeAnotherIsDeleted) {
    LoadThree();
    frmKORVANDE().txtCity = u"NIEUWSTAD";
    typed = u"c";
    DeleteProject();
    EXPECT_EQ(ProjectNames(), "A.nst B.nst");
    EXPECT_EQ(Current(), "B.nst");
    EXPECT_EQ(LoadedTown(), "NIEUWSTAD");
}

TEST_F(Projects, AProjectThatIsDeletedIsNotWrittenAgain) {
    LoadThree();
    frmKORVANDE().txtCity = u"NIEUWSTAD";
    typed = u"b";
    DeleteProject();
    EXPECT_FALSE(FileIsThere(folder / "projecten/B.nst"));
    PickProject(0);
    EXPECT_FALSE(FileIsThere(folder / "projecten/B.nst"));
}

TEST_F(Projects, DeletingWhatIsNotThereDeletesNothing) {
    LoadThree();
    typed = u"weg";
    DeleteProject();
    EXPECT_EQ(ProjectNames(), "A.nst B.nst C.nst");
    EXPECT_EQ(Current(), "B.nst");
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(Projects, AControlTableCannotTurnAFixedConversionIntoAnotherOne) {
    StartedByCommandLine() = true;
    StartedInteractively() = frmKORVANDE().framStandaloneVisible = false;
    WriteProject("A.nst", "STAD A", "STANDALONEALLOWED = 1\n");
    RefreshProjects();
    PickProject(0);
    EXPECT_FALSE(StartedInteractively());
    EXPECT_FALSE(frmKORVANDE().framStandaloneVisible);
}

TEST_F(Projects, WithoutACommandLineAControlTableDecidesAboutTheFileBoxes) {
    WriteProject("A.nst", "STAD A", "STANDALONEALLOWED = 0\n");
    RefreshProjects();
    PickProject(0);
    EXPECT_FALSE(StartedInteractively());
    EXPECT_FALSE(frmKORVANDE().framStandaloneVisible);
}

TEST_F(Projects, WhileOneIsLoadedNoOtherOperationStarts) {
    std::string rows;
    for (int i = 0; i < 200; ++i) rows += "C" + std::to_string(i) + " = S01, PUNT, RIJ\n";
    WriteProject("A.nst", "STAD A");
    WriteProject("B.nst", "STAD B", "[Points]\n" + rows);
    RefreshProjects();
    typed = u"nieuw";
    int pumps = 0;
    screen.onPump = [&] {
        ++pumps;
        EXPECT_TRUE(IsBusy());
        PickProject(0);
        NewProject();
        CopyProject();
        DeleteProject();
    };
    std::this_thread::sleep_for(std::chrono::milliseconds(60));
    PickProject(1);
    EXPECT_GE(pumps, 1);
    EXPECT_FALSE(IsBusy());
    EXPECT_TRUE(dialogs.empty());
    EXPECT_EQ(Current(), "B.nst");
    EXPECT_EQ(LoadedTown(), "STAD B");
    EXPECT_EQ(ProjectNames(), "A.nst B.nst");
}

}  // namespace

}  // namespace korvande::testing
