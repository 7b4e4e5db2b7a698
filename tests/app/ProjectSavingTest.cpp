#include "app/ProjectSaving.h"

#include <utility>

#include "tests/app/AppTest.h"

// What becomes of a project that two programs work on.
namespace korvande::testing {

namespace {

using Messages = std::vector<std::string>;

constexpr char question[] =
    "Het project B is door een ander programma gewijzigd sinds het hier is geladen.\n\n"
    "Ja: overschrijven met wat hier staat\n"
    "Nee: opnieuw laden; de wijzigingen hier gaan verloren\n"
    "Annuleren: niets bewaren en hier verdergaan";

class ProjectSaving : public AppRunTest {
 protected:
    ProjectSaving() {
        WriteProject("A.nst", "STAD A");
        WriteProject("B.nst", "STAD B", "[Export]\nIncludeUnknown = 1\n");
        RefreshProjects(form);
        LoadProject(form, u"B.nst");
        form.askProjectName = [this](TextView, TextView, TextView, TextView) { return typed; };
        Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
        SaveCurrentProject(form);
        form.unload = [this] { isUnloaded = UnloadForm(form); };
    }

    // In this window, and in another program.
    void ChangeHere() { options.txtCity = u"HIER"; }
    void ChangeElsewhere() { WriteProject("B.nst", "ELDERS", "[Export]\nIncludeUnknown = 1\n"); }

    bool WasAsked() const { return !screen.messages.empty() && screen.messages[0] == question; }
    bool Holds(const std::string& project, const std::string& town) const {
        return ProjectBytes(project).find("Town = " + town + "\r\n") != std::string::npos;
    }

    std::optional<Text> typed;  // in the project dialog
    bool isUnloaded = false;
};

TEST_F(ProjectSaving, AProjectThatWasNotChangedHereIsNotWritten) {
    LoadProject(form, u"A.nst");
    const std::string asItWas = ProjectBytes("A.nst");
    form.editedPoints.row = 1;
    EXPECT_TRUE(UnloadForm(form));
    PickProject(form, 1);
    EXPECT_EQ(ProjectBytes("A.nst"), asItWas) << "a save would have added every key";
}

TEST_F(ProjectSaving, WhatAnotherProgramWroteStaysWhenNothingWasChangedHere) {
    ChangeElsewhere();
    RunTranslation(form);
    EXPECT_TRUE(UnloadForm(form));
    EXPECT_TRUE(Holds("B.nst", "ELDERS"));
    EXPECT_EQ(screen.messages, (Messages{"Verwerking gereed"}));
}

TEST_F(ProjectSaving, AChangeInACellIsAChangeOfTheProject) {
    form.gridLines[1][Grid::Lki] = u"Q99";
    EXPECT_EQ(AskAboutEdits(form), Edits::Save);
    EXPECT_TRUE(SaveCurrentProject(form));
    EXPECT_EQ(AskAboutEdits(form), Edits::None);
    EXPECT_NE(ProjectBytes("B.nst").find("Unknown = STANDRD, Q99,"), std::string::npos);
}

TEST_F(ProjectSaving, AProjectWhoseFileIsGoneIsWrittenAnew) {
    std::filesystem::remove(projects + "/B.nst");
    EXPECT_TRUE(SaveCurrentProject(form));
    EXPECT_TRUE(Holds("B.nst", "STAD B"));
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(ProjectSaving, AChangeOnBothSidesIsAskedAboutWithYesNoAndCancel) {
    ChangeHere();
    ChangeElsewhere();
    PickProject(form, 0);
    EXPECT_EQ(screen.messages, (Messages{question}));
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::YesNoCancel);
    EXPECT_EQ(screen.boxes[0].icon, Icon::Question);
}

TEST_F(ProjectSaving, TheSameChangeOnBothSidesNeedsNoQuestion) {
    LoadProject(form, u"B.nst");
    ChangeHere();
    FormKORVANDE other(screen);
    other.ProjectFolder = form.ProjectFolder;
    LoadProject(other, u"B.nst");
    other.project.options.txtCity = u"HIER";
    SaveCurrentProject(other);
    EXPECT_TRUE(SaveCurrentProject(form));
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(ProjectSaving, AFileThatWasOnlyTouchedIsNoChange) {
    ChangeHere();
    folder.Write("projecten/B.nst", ProjectBytes("B.nst"));
    EXPECT_TRUE(SaveCurrentProject(form));
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_TRUE(Holds("B.nst", "HIER"));
}

TEST_F(ProjectSaving, YesWritesOverWhatTheOtherProgramWroteAndIsNotAskedAgain) {
    ChangeHere();
    ChangeElsewhere();
    screen.answers = {Answer::Yes};
    RunTranslation(form);
    options.txtCity = u"HIER OOK";
    EXPECT_TRUE(UnloadForm(form));
    EXPECT_TRUE(Holds("B.nst", "HIER OOK"));
    EXPECT_EQ(screen.messages, (Messages{question, "Verwerking gereed"}));
}

TEST_F(ProjectSaving, NoLeavesTheProjectAsTheOtherProgramWroteIt) {
    ChangeHere();
    ChangeElsewhere();
    screen.answers = {Answer::No};
    PickProject(form, 0);
    EXPECT_TRUE(Holds("B.nst", "ELDERS"));
    EXPECT_EQ(LoadedTown(), "STAD A");
}

TEST_F(ProjectSaving, NoBeforeARunLoadsTheProjectAnewAndTranslatesTheFilesOnTheScreen) {
    const Text output = folder / "nieuw.sfn";
    options.txtFileSUFNEN = output;
    options.chkExportUnknowns = false;
    ChangeHere();
    ChangeElsewhere();
    screen.answers = {Answer::No};
    RunTranslation(form);
    EXPECT_EQ(screen.messages, (Messages{question, "Verwerking gereed"}));
    EXPECT_EQ(LoadedTown(), "ELDERS");
    EXPECT_TRUE(options.chkExportUnknowns);
    EXPECT_EQ(options.txtFileSUFNEN, output);
    EXPECT_NE(FileBytes(output).find("\r\n03M"), std::string::npos)
        << "the unknown object, as the reloaded table wants";
    EXPECT_TRUE(Holds("B.nst", "ELDERS"));
}

TEST_F(ProjectSaving, ACloseWhileARunLoadsTheProjectAnewEndsTheRunAndThenTheWindow) {
    ChangeHere();
    std::string rows;
    for (int i = 0; i < 200; ++i) rows += "C" + std::to_string(i) + " = S01, PUNT, RIJ\n";
    WriteProject("B.nst", "ELDERS", "[Points]\n" + rows);
    screen.answers = {Answer::No};
    bool wasLoading = false;
    screen.onMessage = [this] { screen.pace.lastShown = {}; };
    screen.onPump = [&] {
        if (form.activity.isLoading && !std::exchange(wasLoading, true)) {
            EXPECT_FALSE(QueryClose(form));
        }
        EXPECT_FALSE(isUnloaded);
        EndRunIfAsked(form);
    };
    RunTranslation(form);
    EXPECT_TRUE(wasLoading);
    EXPECT_FALSE(FileIsThere(folder / "uit.sfn"));
    EXPECT_NE(FileBytes(folder / "uit.LOG").find("==>  Vertaling afgebroken.\r\n"), std::string::npos);
    EXPECT_TRUE(isUnloaded);
}

TEST_F(ProjectSaving, AProjectThatCannotBeLoadedAnewEndsTheStartOfTheRun) {
    ChangeHere();
    folder.Write("projecten/B.nst", "geen controletabel");
    screen.answers = {Answer::No};
    RunTranslation(form);
    EXPECT_EQ(screen.messages.size(), 2U);
    EXPECT_FALSE(FileIsThere(folder / "uit.sfn"));
    EXPECT_EQ(form.runMark, u"");
    EXPECT_EQ(ProjectBytes("B.nst"), "geen controletabel");
}

TEST_F(ProjectSaving, CancelBeforeARunSavesNothingAndKeepsTheEditsAndTheWindow) {
    for (const bool isInteractive : {true, false}) {
        options.StartedInteractively = isInteractive;
        form.conversion = {Direction::FromIdex, folder / "in.idx", folder / "uit.sfn", folder / "uit.LOG"};
        ChangeHere();
        options.txtMinX = u"42";
        ChangeElsewhere();
        RunTranslation(form);
        EXPECT_TRUE(WasAsked());
        EXPECT_FALSE(isUnloaded);
        EXPECT_FALSE(FileIsThere(folder / "uit.sfn"));
        EXPECT_EQ(form.runMark, u"");
        EXPECT_EQ(LoadedTown(), "HIER");
        EXPECT_TRUE(Holds("B.nst", "ELDERS"));
        EXPECT_NE(TestRegistry::Value(u"Software\\TERAMUND\\KORVANDE", u"MinX"), "42");
    }
}

TEST_F(ProjectSaving, CancelKeepsTheProjectWhicheverOperationWouldLeaveIt) {
    ChangeHere();
    ChangeElsewhere();
    typed = u"a";  // there already, and to be replaced or deleted
    const std::string before = ProjectBytes("A.nst");
    PickProject(form, 0);
    DeleteProject(form);
    screen.answers = {Answer::Yes, Answer::Cancel, Answer::Yes, Answer::Cancel};
    NewProject(form);
    CopyProject(form);
    EXPECT_EQ(screen.messages.size(), 6U);
    EXPECT_EQ(ProjectBytes("A.nst"), before);
    EXPECT_EQ(ProjectNames(), "A.nst B.nst");
    EXPECT_TRUE(Holds("B.nst", "ELDERS"));
    EXPECT_EQ(LoadedTown(), "HIER");
    EXPECT_EQ(form.CurrentProject, u"B.nst");
    EXPECT_EQ(form.File1.SelectedText(), u"B.nst");
}

TEST_F(ProjectSaving, ANewProjectAfterNoHasTheOwnerThatTheOtherProgramWrote) {
    ChangeHere();
    ChangeElsewhere();
    typed = u"nieuw";
    screen.answers = {Answer::No};
    NewProject(form);
    EXPECT_TRUE(Holds("NIEUW.NST", "ELDERS"));
    EXPECT_TRUE(Holds("B.nst", "ELDERS"));
}

TEST_F(ProjectSaving, CancelKeepsTheWindowOpenAndItsSettingsUnsaved) {
    ChangeHere();
    options.txtMinX = u"42";
    ChangeElsewhere();
    EXPECT_FALSE(UnloadForm(form));
    EXPECT_TRUE(WasAsked());
    EXPECT_EQ(LoadedTown(), "HIER");
    EXPECT_TRUE(Holds("B.nst", "ELDERS"));
    EXPECT_NE(TestRegistry::Value(u"Software\\TERAMUND\\KORVANDE", u"MinX"), "42");
    screen.answers = {Answer::No};
    EXPECT_TRUE(UnloadForm(form));
    EXPECT_TRUE(Holds("B.nst", "ELDERS"));
}

TEST_F(ProjectSaving, TheEndOfTheSessionAsksNothingAndSavesTheProject) {
    ChangeHere();
    EXPECT_TRUE(UnloadForm(form, MayStay::No));
    EXPECT_TRUE(Holds("B.nst", "HIER"));
    EXPECT_EQ(ProjectNames(), "A.nst B.nst");
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(ProjectSaving, TheEndOfTheSessionPutsEditsBesideWhatAnotherProgramWrote) {
    WriteProject("B (2).NST", "AL DAAR");
    ChangeHere();
    ChangeElsewhere();
    EXPECT_TRUE(UnloadForm(form, MayStay::No));
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_TRUE(Holds("B.nst", "ELDERS"));
    EXPECT_TRUE(Holds("B (2).NST", "AL DAAR"));
    EXPECT_TRUE(Holds("B (3).NST", "HIER"));
}

TEST_F(ProjectSaving, TheEndOfTheSessionWithoutEditsWritesNothing) {
    ChangeElsewhere();
    EXPECT_TRUE(UnloadForm(form, MayStay::No));
    EXPECT_TRUE(Holds("B.nst", "ELDERS"));
    EXPECT_EQ(ProjectNames(), "A.nst B.nst");
}

TEST_F(ProjectSaving, TheEndOfTheSessionDuringALoadSavesNothingHalfRead) {
    bool wasLoading = false;
    std::filesystem::remove(projects + "/A.nst");
    screen.onMessage = [&] {
        wasLoading = IsBusy(form);
        UnloadForm(form, MayStay::No);
    };
    PickProject(form, 0);
    EXPECT_TRUE(wasLoading);
    EXPECT_EQ(ProjectNames(), "B.nst");
}

TEST_F(ProjectSaving, TheEndOfTheSessionWhileANewProjectIsMadeLeavesTheOldOneAlone) {
    const std::string before = ProjectBytes("B.nst");
    typed = u"geen map\\nieuw";
    screen.onMessage = [&] { UnloadForm(form, MayStay::No); };
    NewProject(form);
    EXPECT_EQ(screen.messages.size(), 1U);
    EXPECT_EQ(ProjectBytes("B.nst"), before);
    EXPECT_EQ(ProjectNames(), "A.nst B.nst");
}

}  // namespace

}  // namespace korvande::testing
