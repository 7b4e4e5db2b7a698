#include "app/Projects.h"

#include <chrono>
#include <thread>

#include "tests/app/AppTest.h"

namespace korvande::testing {

namespace {

class Projects : public AppTest {
 protected:
    Projects() {
        form.askProjectName = [this](TextView caption, TextView explanation, TextView prompt, TextView name) {
            dialogs.push_back({ToUtf8(caption), ToUtf8(explanation), ToUtf8(prompt), ToUtf8(name)});
            timerDuringDialog = form.Timer1Enabled;
            return typed;
        };
        form.Timer1Enabled = true;
    }

    // Three projects, the second one loaded.
    void LoadThree() {
        for (const char* name : {"A.nst", "B.nst", "C.nst"}) WriteProject(name, std::string("STAD ") + name[0]);
        RefreshProjects(form);
        LoadProject(form, u"B.nst");
    }

    std::string Current() const { return ToUtf8(form.CurrentProject); }
    std::string Selected() const { return ToUtf8(form.File1.SelectedText()); }

    // What the operations must not do: leave the timer standing.
    void ExpectTimer() const {
        EXPECT_FALSE(timerDuringDialog);
        EXPECT_TRUE(form.Timer1Enabled);
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
    form.CurrentProject = u"B.NST";
    RefreshProjects(form);
    EXPECT_EQ(form.File1.items, (std::vector<Text>{u"A.NST", u"b.nst"}));
    EXPECT_EQ(form.File1.index, 1);
    form.CurrentProject = u"weg.nst";
    RefreshProjects(form);
    EXPECT_EQ(form.File1.index, -1);
}

TEST_F(Projects, APickedProjectIsLoadedAndTheOneLeftIsSaved) {
    LoadThree();
    options.txtCity = u"NIEUWSTAD";
    form.gridPoints[1][Grid::Lki] = u"Q99";
    form.editedLines.row = 20000;
    PickProject(form, 2);
    EXPECT_EQ(form.editedLines.row, 1);
    EXPECT_EQ(Current(), "C.nst");
    EXPECT_EQ(Selected(), "C.nst");
    EXPECT_EQ(LoadedTown(), "STAD C");
    EXPECT_EQ(ToUtf8(form.txtProject), "C");
    EXPECT_NE(ProjectBytes("B.nst").find("Town = NIEUWSTAD\r\n"), std::string::npos);
    EXPECT_NE(ProjectBytes("B.nst").find("Unknown = STANDRD, Q99,"), std::string::npos);
    EXPECT_TRUE(form.Timer1Enabled);
}

TEST_F(Projects, AnEditUnderWayIsSavedWithTheProjectLeft) {
    LoadThree();
    StartEdit(form, form.editedPoints, u'X');
    PickProject(form, 0);
    EXPECT_NE(ProjectBytes("B.nst").find("Unknown = X,"), std::string::npos);
    EXPECT_FALSE(form.editedPoints.textEditor.isVisible);
    EXPECT_EQ(ToUtf8(form.gridPoints[1][Grid::Liscad]), "STANDRD");
}

TEST_F(Projects, WithoutACurrentProjectPickingSavesNone) {
    WriteProject("A.nst", "STAD A");
    RefreshProjects(form);
    PickProject(form, 0);
    EXPECT_EQ(LoadedTown(), "STAD A");
    EXPECT_EQ(ProjectNames(), "A.nst");
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(Projects, APlaceOutsideTheListPicksNothing) {
    LoadThree();
    PickProject(form, -1);
    PickProject(form, 3);
    EXPECT_EQ(Current(), "B.nst");
}

TEST_F(Projects, ABrokenControlTableIsToldAndTheProgramGoesOnWithoutAProject) {
    LoadThree();
    std::filesystem::remove(projects + "/C.nst");
    PickProject(form, 2);
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_EQ(screen.messages[0],
              "Kon bestand: '" + projects + "/C.nst' niet openen;\nFoutcode: 53\nBestand niet gevonden");
    EXPECT_EQ(Current(), "");
    EXPECT_EQ(ToUtf8(form.txtProject), "");
    EXPECT_EQ(form.File1.index, -1);
    PickProject(form, 0);  // nothing is saved over the table that could not be read
    EXPECT_EQ(ProjectNames(), "A.nst B.nst");
    EXPECT_EQ(LoadedTown(), "STAD A");
}

TEST_F(Projects, RetryReadsAControlTableThatIsBack) {
    LoadThree();
    std::filesystem::rename(projects + "/C.nst", folder.Path() + "/C.nst");
    screen.answers = {Answer::Retry};
    screen.onMessage = [&] { std::filesystem::rename(folder.Path() + "/C.nst", projects + "/C.nst"); };
    PickProject(form, 2);
    EXPECT_EQ(Current(), "C.nst");
    EXPECT_EQ(LoadedTown(), "STAD C");
}

TEST_F(Projects, ANewProjectHoldsTheDefaultsAndTheOwnerOfThePreviousOne) {
    LoadThree();
    form.gridPoints[1][Grid::Lki] = u"Q99";
    typed = u"proef";
    NewProject(form);
    EXPECT_EQ(dialogs, (std::vector<std::vector<std::string>>{{"Nieuw Project Aanmaken",
                                                               "Er wordt een nieuw project aangemaakt met deze naam.",
                                                               "De naam voor het nieuwe project:", ""}}));
    EXPECT_EQ(Current(), "PROEF.NST");
    EXPECT_EQ(Selected(), "PROEF.NST");
    EXPECT_EQ(ProjectNames(), "A.nst B.nst C.nst PROEF.NST");
    const std::string table = ProjectBytes("PROEF.NST");
    EXPECT_NE(table.find("Town = STAD B\r\n"), std::string::npos);
    EXPECT_NE(table.find("Unknown = STANDRD, Q20, PUNT, ONBEKEND PUNTOBJECT, 0, 0, 0\r\n"), std::string::npos);
    EXPECT_EQ(ToUtf8(form.gridPoints[1][Grid::Lki]), "Q20");
    EXPECT_EQ(LoadedTown(), "STAD B");
    ExpectTimer();
}

TEST_F(Projects, ANewProjectLeavesTheOldOneSaved) {
    LoadThree();
    form.gridPoints[1][Grid::Lki] = u"Q99";
    typed = u"proef";
    NewProject(form);
    EXPECT_NE(ProjectBytes("B.nst").find("Unknown = STANDRD, Q99,"), std::string::npos);
}

TEST_F(Projects, AnExtensionThatIsTypedIsNotDoubled) {
    typed = u"proef.nst";
    NewProject(form);
    EXPECT_EQ(ProjectNames(), "PROEF.NST");
}

TEST_F(Projects, ANewProjectThatCannotBeWrittenIsToldAndTheOldOneComesBack) {
    LoadThree();
    typed = u"geen map\\proef";
    NewProject(form);
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
    options.txtCity = u"NIEUWSTAD";
    std::string before;
    for (const char* name : {"A.nst", "B.nst", "C.nst"}) before += ProjectBytes(name);
    for (void (*const operation)(FormKORVANDE&) : {NewProject, CopyProject, DeleteProject}) {
        timerDuringDialog = true;
        operation(form);
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
    options.txtCity = u"NIEUWSTAD";
    typed = u"kopie";
    CopyProject(form);
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
    options.txtCity = u"NIEUWSTAD";
    typed = u"kopie";
    CopyProject(form);
    PickProject(form, FindProject(form, u"B.nst"));
    EXPECT_EQ(LoadedTown(), "NIEUWSTAD");
}

TEST_F(Projects, ADuplicateUnderTheOldNameIsRefused) {
    WriteProject("A.NST", "STAD A");
    RefreshProjects(form);
    LoadProject(form, u"A.NST");
    typed = u"a";
    CopyProject(form);
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
    CopyProject(form);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Nieuwe naam moet anders zijn dan de oude"});
    EXPECT_EQ(Current(), "B.nst");
    EXPECT_EQ(ProjectBytes("B.nst"), before);
    EXPECT_EQ(ProjectNames(), "A.nst B.nst C.nst");
}

TEST_F(Projects, ADuplicateThatCannotBeMadeIsToldAndTheOldProjectStays) {
    LoadThree();
    std::filesystem::remove(projects + "/B.nst");
    typed = u"kopie";
    CopyProject(form);
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_EQ(screen.messages[0].substr(0, 17), "FileCopy failed:\n");
    EXPECT_EQ(Current(), "B.nst");
    EXPECT_EQ(ProjectNames(), "A.nst C.nst");
    ExpectTimer();
}

TEST_F(Projects, WithoutACurrentProjectNothingIsDuplicated) {
    typed = u"kopie";
    CopyProject(form);
    EXPECT_TRUE(dialogs.empty());
    EXPECT_EQ(ProjectNames(), "");
}

TEST_F(Projects, ADeletedProjectIsGoneAndTheOneAtItsPlaceIsLoaded) {
    LoadThree();
    typed = u"B.nst";
    DeleteProject(form);
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
    PickProject(form, 2);
    typed = u"c";
    DeleteProject(form);
    EXPECT_EQ(Current(), "B.nst");
    EXPECT_EQ(LoadedTown(), "STAD B");
}

TEST_F(Projects, WhenTheLastProjectIsDeletedNoneIsCurrentAndTheDefaultsAreShown) {
    WriteProject("A.nst", "STAD A", "[Points]\nBOOM = S01, PUNT, BOOM\n");
    RefreshProjects(form);
    LoadProject(form, u"A.nst");
    ASSERT_EQ(form.gridPoints.RowCount(), 3);
    typed = u"a";
    DeleteProject(form);
    EXPECT_EQ(ProjectNames(), "");
    EXPECT_EQ(Current(), "");
    EXPECT_EQ(ToUtf8(form.txtProject), "");
    EXPECT_EQ(form.gridPoints.RowCount(), 2);
    EXPECT_TRUE(screen.messages.empty());
    typed = u"nieuw";
    NewProject(form);
    EXPECT_EQ(ProjectNames(), "NIEUW.NST");
}

TEST_F(Projects, AProjectThatStaysIsSavedBeforeAnotherIsDeleted) {
    LoadThree();
    options.txtCity = u"NIEUWSTAD";
    typed = u"c";
    DeleteProject(form);
    EXPECT_EQ(ProjectNames(), "A.nst B.nst");
    EXPECT_EQ(Current(), "B.nst");
    EXPECT_EQ(LoadedTown(), "NIEUWSTAD");
}

TEST_F(Projects, AProjectThatIsDeletedIsNotWrittenAgain) {
    LoadThree();
    options.txtCity = u"NIEUWSTAD";
    typed = u"b";
    DeleteProject(form);
    EXPECT_FALSE(FileIsThere(folder / "projecten/B.nst"));
    PickProject(form, 0);
    EXPECT_FALSE(FileIsThere(folder / "projecten/B.nst"));
}

TEST_F(Projects, DeletingWhatIsNotThereDeletesNothing) {
    LoadThree();
    typed = u"weg";
    DeleteProject(form);
    EXPECT_EQ(ProjectNames(), "A.nst B.nst C.nst");
    EXPECT_EQ(Current(), "B.nst");
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(Projects, AControlTableCannotTurnAFixedConversionIntoAnotherOne) {
    form.StartedByCommandLine = true;
    options.StartedInteractively = false;
    WriteProject("A.nst", "STAD A", "STANDALONEALLOWED = 1\n");
    RefreshProjects(form);
    PickProject(form, 0);
    EXPECT_FALSE(options.StartedInteractively);
}

TEST_F(Projects, WithoutACommandLineAControlTableDecidesAboutTheFileBoxes) {
    WriteProject("A.nst", "STAD A", "STANDALONEALLOWED = 0\n");
    RefreshProjects(form);
    PickProject(form, 0);
    EXPECT_FALSE(options.StartedInteractively);
}

TEST_F(Projects, WhileOneIsLoadedNoOtherOperationStarts) {
    std::string rows;
    for (int i = 0; i < 200; ++i) rows += "C" + std::to_string(i) + " = S01, PUNT, RIJ\n";
    WriteProject("A.nst", "STAD A");
    WriteProject("B.nst", "STAD B", "[Points]\n" + rows);
    RefreshProjects(form);
    typed = u"nieuw";
    int pumps = 0;
    screen.onPump = [&] {
        ++pumps;
        EXPECT_TRUE(IsBusy(form));
        PickProject(form, 0);
        NewProject(form);
        CopyProject(form);
        DeleteProject(form);
    };
    std::this_thread::sleep_for(std::chrono::milliseconds(60));
    PickProject(form, 1);
    EXPECT_GE(pumps, 1);
    EXPECT_FALSE(IsBusy(form));
    EXPECT_TRUE(dialogs.empty());
    EXPECT_EQ(Current(), "B.nst");
    EXPECT_EQ(LoadedTown(), "STAD B");
    EXPECT_EQ(ProjectNames(), "A.nst B.nst");
}

TEST_F(Projects, NothingIsSavedOverAFileThatIsNoControlTable) {
    const std::string foreign = "HEADER\r\nEND HEADER\r\n";
    const Text name = folder.Write("projecten/VREEMD.NST", foreign);
    EXPECT_FALSE(LoadProject(form, u"VREEMD.NST"));
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Dit bestand is geen controletabel:\n" + ToUtf8(name)});
    EXPECT_EQ(form.CurrentProject, u"");
    SaveCurrentProject(form);
    EXPECT_EQ(ProjectBytes("VREEMD.NST"), foreign);
}

}  // namespace

}  // namespace korvande::testing
