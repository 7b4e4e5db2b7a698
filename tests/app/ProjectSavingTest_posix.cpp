#include "app/ProjectSaving.h"
#include "tests/app/AppTest.h"

// A control table that others share, in a folder where nobody writes.
namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

class SharedTable : public AppRunTest {
 protected:
    SharedTable() {
        WriteProject("A.nst", "STAD A");
        LoadProject(form, u"A.nst");
        options.chkExportUnknowns = true;
        Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
        // For whoever the read-only folder makes of the superuser.
        fs::permissions(folder.Path(), fs::perms::all);
        Protect(true);
    }
    ~SharedTable() override { Protect(false); }

    void Protect(bool isProtected) const {
        fs::permissions(projects + "/A.nst",
                        isProtected ? fs::perms::owner_read | fs::perms::others_read : fs::perms::all);
    }

    int Refusals() const {
        int count = 0;
        for (const MessageBox& box : screen.boxes) count += box.buttons == Buttons::RetryCancel ? 1 : 0;
        return count;
    }
};

TEST_F(SharedTable, ItsRefusalIsToldOnceAndTheOptionsCountForEveryRun) {
    const ReadOnlyFolder readOnly(projects);
    RunTranslation(form);
    ASSERT_EQ(Refusals(), 1);
    EXPECT_EQ(screen.messages[0],
              "Kon bestand: '" + projects + "/A.nst' niet opslaan;\nFoutcode: 70\nToegang geweigerd");
    options.txtCity = u"HIER";
    RunTranslation(form);
    EXPECT_TRUE(UnloadForm(form));
    EXPECT_EQ(Refusals(), 1);
    EXPECT_EQ(screen.messages.size(), 3U);
    EXPECT_EQ(screen.messages.back(), "Verwerking gereed");
    EXPECT_TRUE(FileIsThere(folder / "uit.sfn"));
}

TEST_F(SharedTable, AfterALoadItIsToldAgain) {
    const ReadOnlyFolder readOnly(projects);
    SaveCurrentProject(form);
    LoadProject(form, u"A.nst");
    options.txtCity = u"HIER";
    SaveCurrentProject(form);
    EXPECT_EQ(Refusals(), 2);
}

TEST_F(SharedTable, OnceItMayBeWrittenAgainTheEditsAreSavedAfterAll) {
    {
        const ReadOnlyFolder readOnly(projects);
        SaveCurrentProject(form);
    }
    ASSERT_EQ(Refusals(), 1);
    Protect(false);
    SaveCurrentProject(form);
    EXPECT_NE(ProjectBytes("A.nst").find("IncludeUnknown = 1\r\n"), std::string::npos);
    EXPECT_EQ(Refusals(), 1);
}

TEST_F(SharedTable, WhatItsOwnerChangedIsNotAskedAboutAndNotOverwritten) {
    {
        const ReadOnlyFolder readOnly(projects);
        SaveCurrentProject(form);
    }
    Protect(false);
    WriteProject("A.nst", "BEHEER");
    EXPECT_TRUE(SaveCurrentProject(form));
    EXPECT_EQ(screen.messages.size(), 1U);
    EXPECT_NE(ProjectBytes("A.nst").find("Town = BEHEER"), std::string::npos);
}

}  // namespace

}  // namespace korvande::testing
