#include "app/Manual.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "app/TabPlacement.h"
#include "host/ProgramPlace.h"
#include "host/modFileHandling.h"
#include "tests/support/TestFiles.h"

// Where the manual stands, and how a browser gets to a chapter of it.
namespace korvande::testing {

namespace {

class ManualTest : public ::testing::Test {
 protected:
    // A page in a folder of the test's.
    void WritePage(const std::string& place) const {
        std::filesystem::create_directories(folder.Path() + "/" + place + "/handleiding");
        folder.Write(place + "/handleiding/handleiding.html", "pagina");
    }

    // Where the manual of a program in a folder stands, below the test's folder.
    std::string Found(const std::string& programFolder) const {
        std::filesystem::create_directories(folder.Path() + "/" + programFolder);
        const std::optional<Text> page = FindManual(folder / programFolder);
        if (!page) return "(none)";
        std::error_code ignored;
        const std::string path = std::filesystem::path(std::u16string(*page)).generic_string();
        return std::filesystem::relative(path, folder.Path(), ignored).generic_string();
    }

    TestFolder folder;
};

TEST_F(ManualTest, ItStandsBesideTheProgram) {
    WritePage("KORVANDE");
    EXPECT_EQ(Found("KORVANDE"), "KORVANDE/handleiding/handleiding.html");
}

TEST_F(ManualTest, OrAmongTheDataOfTheSystem) {
    WritePage("usr/share/korvande");
    EXPECT_EQ(Found("usr/bin"), "usr/share/korvande/handleiding/handleiding.html");
}

TEST_F(ManualTest, OrInTheTreeThatTheProgramWasBuiltIn) {
    WritePage("boom/docs");
    EXPECT_EQ(Found("boom/build/debug/ui"), "boom/docs/handleiding/handleiding.html");
}

TEST_F(ManualTest, OrNowhere) { EXPECT_EQ(Found("usr/bin"), "(none)"); }

TEST_F(ManualTest, EveryTabHasAChapterThatThePageKnows) {
    const std::optional<Text> page = FindManual(RunningProgram().folder);
    ASSERT_TRUE(page);
    const std::string bytes = FileBytes(*page);
    int chapters = 0;
    for (const TextView chapter : {ManualChapter(tabGeneral), ManualChapter(tabSettings), ManualChapter(tabPoints),
                                   ManualChapter(tabLines), ManualChapter(tabTexts), logBookChapter}) {
        ++chapters;
        EXPECT_NE(bytes.find("id=\"" + ToUtf8(chapter) + "\""), std::string::npos) << ToUtf8(chapter);
    }
    EXPECT_EQ(chapters, 6);
    EXPECT_EQ(ManualChapter(tabInformation), u"");
}

TEST_F(ManualTest, ABrowserGetsTheAddressOfAnyFile) {
    EXPECT_EQ(FileAddress(u"/usr/share/a b/é#50%.html"), "file:///usr/share/a%20b/%C3%A9%2350%25.html");
    EXPECT_EQ(FileAddress(u"C:\\Program Files\\KORVANDE\\a&\"b'.html"),
              "file:///C:/Program%20Files/KORVANDE/a%26%22b%27.html");
    EXPECT_EQ(FileAddress(u"\\\\server\\map\\a.html"), "file://server/map/a.html");
    EXPECT_EQ(FileAddress(u"/dag:uur/x"), "file:///dag%3Auur/x");
}

TEST_F(ManualTest, APageLeadsToTheChapter) {
    const std::string page = PageLeadingTo(u"/map/x.html", u"logboek");
    EXPECT_NE(page.find("http-equiv=\"refresh\" content=\"0; url=file:///map/x.html#logboek\""), std::string::npos);
    EXPECT_NE(page.find("<a href=\"file:///map/x.html#logboek\">"), std::string::npos);
}

}  // namespace

}  // namespace korvande::testing
