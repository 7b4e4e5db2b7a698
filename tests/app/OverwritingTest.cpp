#include "app/BrowseFiles.h"
#include "host/modFileHandling.h"
#include "tests/app/AppTest.h"

// What is there already is replaced only when a person agrees, or has said so before.
namespace korvande::testing {

namespace {

using Messages = std::vector<std::string>;

class Overwriting : public AppRunTest {
 protected:
    Overwriting() {
        form.CurrentProject = u"TEST.NST";
        form.askProjectName = [this](TextView, TextView, TextView, TextView) { return typed; };
        Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    }

    std::string Question(const Text& name) const { return "Het bestand bestaat al:\n" + ToUtf8(name) + "\nVervangen?"; }
    bool WasAsked() const { return !screen.messages.empty() && screen.messages[0].starts_with("Het bestand bestaat"); }

    std::optional<Text> typed;  // in the project dialog
};

TEST_F(Overwriting, AnOutputThatIsThereIsAskedAboutWithYesAndNo) {
    folder.Write("uit.sfn", "vorige week");
    screen.answers = {Answer::No};
    RunTranslation(form);
    EXPECT_EQ(screen.messages, (Messages{Question(folder / "uit.sfn")}));
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::YesNo);
    EXPECT_EQ(screen.boxes[0].icon, Icon::Question);
}

TEST_F(Overwriting, NoEndsTheRunBeforeAnythingIsSavedOrWrittenAndEmptiesTheRunMark) {
    folder.Write("uit.sfn", "vorige week");
    screen.answers = {Answer::No};
    RunTranslation(form);
    EXPECT_EQ(FileBytes(folder / "uit.sfn"), "vorige week");
    EXPECT_FALSE(FileIsThere(folder / "uit.LOG"));
    EXPECT_EQ(ProjectNames(), "");
    EXPECT_EQ(form.runMark, u"");
    EXPECT_TRUE(screen.viewed.empty());
}

TEST_F(Overwriting, YesReplacesTheOutput) {
    folder.Write("uit.sfn", "vorige week");
    screen.answers = {Answer::Yes};
    RunTranslation(form);
    EXPECT_EQ(screen.messages, (Messages{Question(folder / "uit.sfn"), "Verwerking gereed"}));
    EXPECT_TRUE(FileBytes(folder / "uit.sfn").starts_with("01"));
}

TEST_F(Overwriting, WhatThisWindowWroteItselfIsReplacedWithoutAQuestion) {
    RunTranslation(form);
    RunTranslation(form);
    EXPECT_EQ(screen.messages, (Messages{"Verwerking gereed", "Verwerking gereed"}));
}

TEST_F(Overwriting, AnotherNameOfTheSameFileNeedsNoQuestionEither) {
    RunTranslation(form);
    options.txtFileSUFNEN = folder / "./uit.sfn";
    RunTranslation(form);
    EXPECT_FALSE(WasAsked());
}

TEST_F(Overwriting, AnOutputThatARunFailedToWriteIsStillAskedAbout) {
    folder.Write("uit.sfn", "vorige week");
    folder.Write("in.idx", "geen tekening");
    screen.answers = {Answer::Yes};
    RunTranslation(form);
    ASSERT_TRUE(WasAsked());
    screen.messages.clear();
    RunTranslation(form);
    EXPECT_TRUE(WasAsked());
    EXPECT_EQ(FileBytes(folder / "uit.sfn"), "vorige week");
}

TEST_F(Overwriting, TheSaveDialogHasAskedAlready) {
    const Text name = folder.Write("uit.sfn", "vorige week");
    BrowseSufNenFile(form, [&](const FileDialog& dialog) {
        EXPECT_FALSE(dialog.opens);
        return name;
    });
    RunTranslation(form);
    EXPECT_EQ(screen.messages, (Messages{"Verwerking gereed"}));
}

TEST_F(Overwriting, AnInputThatWasOpenedInADialogIsNotConfirmedAsAnOutput) {
    const Text name = folder.Write("uit.sfn", Nen1878());
    form.cboXlateMode.index = 2;
    BrowseSufNenFile(form, [&](const FileDialog&) { return name; });
    form.cboXlateMode.index = 0;
    screen.answers = {Answer::No};
    RunTranslation(form);
    EXPECT_TRUE(WasAsked());
    EXPECT_EQ(FileBytes(name), Nen1878());
}

TEST_F(Overwriting, AnOutputThatACommandLineNamedIsReplacedWithoutAQuestion) {
    options.StartedInteractively = false;
    form.conversion.direction = Direction::FromIdex;
    form.conversion.IdexFileName = folder / "in.idx";
    form.conversion.SufNenFileName = folder.Write("uit.sf2", "vorige week");
    form.conversion.LogFileName = folder / "uit.LOG";
    form.cboXlateMode = {{u"Export SUF2"}, 0};
    RunTranslation(form);
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_NE(FileBytes(folder / "uit.sf2"), "vorige week");
}

TEST_F(Overwriting, ANewProjectWithTheNameOfAnotherReplacesItOnlyAfterYes) {
    WriteProject("PROEF.NST", "MOLVEREN");
    const std::string before = ProjectBytes("PROEF.NST");
    typed = u"proef";
    screen.answers = {Answer::No};
    NewProject(form);
    EXPECT_EQ(screen.messages, (Messages{Question(Concat(form.ProjectFolder, u"PROEF.NST"))}));
    EXPECT_EQ(ProjectBytes("PROEF.NST"), before);
    EXPECT_EQ(form.CurrentProject, u"TEST.NST");
    screen.answers = {Answer::Yes};
    NewProject(form);
    EXPECT_NE(ProjectBytes("PROEF.NST"), before);
    EXPECT_EQ(form.CurrentProject, u"PROEF.NST");
}

TEST_F(Overwriting, ADuplicateWithTheNameOfAnotherReplacesItOnlyAfterYes) {
    WriteProject("TEST.NST", "HIER");
    WriteProject("PROEF.NST", "DAAR");
    LoadProject(form, u"TEST.NST");
    const std::string before = ProjectBytes("PROEF.NST");
    typed = u"proef";
    screen.answers = {Answer::No};
    CopyProject(form);
    EXPECT_EQ(screen.messages, (Messages{Question(Concat(form.ProjectFolder, u"PROEF.NST"))}));
    EXPECT_EQ(ProjectBytes("PROEF.NST"), before);
    EXPECT_EQ(form.CurrentProject, u"TEST.NST");
    screen.answers = {Answer::Yes};
    CopyProject(form);
    EXPECT_EQ(LoadedTown(), "HIER");
    EXPECT_EQ(form.CurrentProject, u"PROEF.NST");
}

}  // namespace

}  // namespace korvande::testing
