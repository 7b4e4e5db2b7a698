#include "app/Projects.h"

#include "tests/app/AppTest.h"

// Names that differ only in case are two files here.
namespace korvande::testing {

namespace {

class PosixProjects : public AppTest {};

TEST_F(PosixProjects, AProjectSpelledExactlyGoesBeforeOneThatDiffersInCase) {
    WriteProject("a.nst");
    WriteProject("A.NST");
    RefreshProjects(form);
    EXPECT_EQ(form.File1.items[static_cast<std::size_t>(FindProject(form, u"a.nst"))], u"a.nst");
    EXPECT_EQ(form.File1.items[static_cast<std::size_t>(FindProject(form, u"A.NST"))], u"A.NST");
}

TEST_F(PosixProjects, ADuplicateWhoseNameDiffersOnlyInCaseIsMadeWhereItIsAnotherFile) {
    WriteProject("B.nst", "STAD B");
    WriteProject("B.NST", "ANDERE STAD");
    RefreshProjects(form);
    LoadProject(form, u"B.nst");
    form.askProjectName = [](auto...) { return Text(u"b"); };
    screen.answers = {Answer::Yes};
    CopyProject(form);
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_TRUE(screen.messages[0].starts_with("Het bestand bestaat al:"));
    EXPECT_EQ(form.CurrentProject, u"B.NST");
    EXPECT_EQ(LoadedTown(), "STAD B");
    EXPECT_EQ(ProjectBytes("B.NST"), WithCrLf("[NEN1878]\nTown = STAD B\n[End]\n"));
}

}  // namespace

}  // namespace korvande::testing
