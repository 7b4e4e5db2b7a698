#include "tests/app/AppTest.h"

namespace korvande::testing {

namespace {

class PosixStartUp : public AppTest {};

TEST_F(PosixStartUp, AProjectFolderThatMayNotBeWrittenIsTold) {
    InstallLiscad();
    {
        const ReadOnlyFolder readOnly(projects);
        EXPECT_EQ(StartUp(form, {}), AfterStartUp::OpenWindow);
    }
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_EQ(screen.messages[0],
              "Kon bestand: '" + projects + "\\Leeg Project.nst' niet opslaan;\nFoutcode: 70\nToegang geweigerd");
    EXPECT_EQ(ProjectNames(), "");
    EXPECT_EQ(form.CurrentProject, u"");
}

}  // namespace

}  // namespace korvande::testing
