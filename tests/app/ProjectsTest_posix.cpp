#include "app/Projects.h"

#include "tests/app/AppTest.h"

// Names that differ only in case are two files here.
namespace korvande::testing {

namespace {

class PosixProjects : public AppTest {};

TEST_F(PosixProjects, AProjectSpelledExactlyGoesBeforeOneThatDiffersInCase) {
    WriteProject("a.nst");
    WriteProject("A.NST");
    RefreshProjects();
    EXPECT_EQ(frmKORVANDE().File1.items[static_cast<std::size_t>(FindProject(u"a.nst"))], u"a.nst");
    EXPECT_EQ(frmKORVANDE().File1.items[static_cast<std::size_t>(FindProject(u"A.NST"))], u"A.NST");
}

TEST_F(PosixProjects, ADuplicateWhoseNameDiffersOnlyInCaseIsMadeWhereItIsAnotherFile) {
    WriteProject("B.nst", "STAD B");
    WriteProject("B.NST", "ANDERE STAD");
    RefreshProjects();
    LoadProject(u"B.nst");
    frmKORVANDE().askProjectName = [](auto...) { return Text(u"b"); };
    CopyProject();
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_EQ(CurrentProject(), u"B.NST");
    EXPECT_EQ(LoadedTown(), "STAD B");
    EXPECT_EQ(ProjectBytes("B.NST"), WithCrLf("[NEN1878]\nTown = STAD B\n[End]\n"));
}

}  // namespace

}  // namespace korvande::testing
