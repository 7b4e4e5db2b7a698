#include <sys/stat.h>

#include "tests/cli/BatchTest.h"

// Links, pipes and rights as this system has them.
namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

class PosixFolders : public BatchTest {};

TEST_F(PosixFolders, LinksInACircleComeToAnEnd) {
    Write("in/a.idx", smallIdex);
    Write("in/diep/b.idx", smallIdex);
    fs::create_directory_symlink(Path("in"), Path("in/diep/terug"));
    fs::create_symlink(Path("in/zelf"), Path("in/zelf"));
    fs::create_symlink(Path("in/a.idx"), Path("in/ook.idx"));
    const ProgramResult result = TranslateAll({"--recursief", "--geen-logboek", "in/"});
    EXPECT_EQ(NamesIn("uit"), "a.sfn diep/b.sfn ook.sfn");
    EXPECT_NE(result.status, 3) << result.error;
}

TEST_F(PosixFolders, APipeInAFolderIsNotWaitedFor) {
    Write("in/a.idx", smallIdex);
    ASSERT_EQ(::mkfifo((folder.Path() + "/in/pijp").c_str(), 0600), 0);
    const ProgramResult result = TranslateAll({"--geen-logboek", "in/"});
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_EQ(NamesIn("uit"), "a.sfn");
}

TEST_F(PosixFolders, AFolderAndAFileThatCannotBeReadAreToldAndTheOthersTaken) {
    Write("in/a.idx", smallIdex);
    Write("in/dicht/b.idx", smallIdex);
    Write("in/geheim.idx", smallIdex);
    fs::create_directory(Path("uit"));
    fs::permissions(Path("uit"), fs::perms::all);
    fs::permissions(Path("in/geheim.idx"), fs::perms::none);
    fs::permissions(Path("in/dicht"), fs::perms::none);
    ProgramResult result;
    {
        const ReadOnlyFolder asNobody(folder.Path() + "/in");
        result = TranslateAll({"--recursief", "in/"});
    }
    fs::permissions(Path("in/dicht"), fs::perms::owner_all);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.error.starts_with("Kon map: 'in/dicht/' niet lezen: Toegang geweigerd\n")) << result.error;
    EXPECT_TRUE(Has(result.error, "in/geheim.idx is niet vertaald: ")) << result.error;
    EXPECT_TRUE(IsThere("uit/a.sfn"));
    EXPECT_FALSE(IsThere("uit/dicht/b.sfn"));
}

}  // namespace

}  // namespace korvande::testing
