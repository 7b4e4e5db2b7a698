#include <filesystem>

#include "tests/cli/CliTest.h"
#include "tests/support/NamedPipe_posix.h"
#include "tests/support/RunningProgram_posix.h"

// Links and full disks as this system has them.
namespace korvande::testing {

namespace {

class PosixCommands : public CliTest {};

TEST_F(PosixCommands, AnOutputThatDoesNotArriveIsAFailure) {
    folder.Write("t.nst", smallTable);
    const std::vector<std::vector<std::string>> shownByCommands = {
        {"--version"}, {"--help"}, {"project", "toon", "t.nst"}, {"controleer", "t.nst"}};
    for (const auto& arguments : shownByCommands) {
        const ProgramResult result = Run(arguments, {.outputFile = "/dev/full"});
        EXPECT_EQ(result.status, 3) << arguments.front();
    }
    EXPECT_EQ(Run({"--version"}, {.outputFile = "/dev/full"}).error,
              "De standaarduitvoer kan niet worden geschreven.\n");
}

TEST_F(PosixCommands, ATranslationStandsWhenItsLineDoesNotArriveButThatIsAFailure) {
    folder.Write("a.idx", smallIdex);
    const ProgramResult result = Translate("idex-nen1878", {"a.idx", "uit.sfn"}, {.outputFile = "/dev/full"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(result.error, "De standaarduitvoer kan niet worden geschreven.\n")) << result.error;
    EXPECT_TRUE(Bytes("uit.sfn").starts_with("010NEN1878"));
}

TEST_F(PosixCommands, AnInputThatCanBeReadOnlyOnceIsCheckedLikeAFile) {
    folder.Write("a.idx", smallIdex);
    const ProgramResult file = Run({"controleer", "a.idx"});
    ASSERT_TRUE(file.output.starts_with("Bestand: a.idx (IDEX)\n")) << file.output;
    const std::string found = file.output.substr(file.output.find('\n'));

    const ProgramResult input = Run({"controleer", "/dev/stdin"}, {.input = smallIdex});
    EXPECT_EQ(input.status, file.status);
    EXPECT_EQ(input.output, "Bestand: /dev/stdin (IDEX)" + found);

    NamedPipe pipe(folder.Path() + "/pijp");
    RunningProgram program(StartOf({"controleer", "pijp"}, {.timeLimit = std::chrono::seconds(20)}));
    pipe.Feed(smallIdex);
    pipe.End();
    const ProgramResult piped = program.Wait();
    EXPECT_EQ(piped.status, file.status);
    EXPECT_EQ(piped.output, "Bestand: pijp (IDEX)" + found);
}

TEST_F(PosixCommands, ALinkToNothingIsNotOverwrittenByAControlTable) {
    std::filesystem::create_symlink("nergens", folder.Path() + "/los");
    ExpectRefused({"project", "maak", "los"}, "Er bestaat al een bestand met deze naam:\nlos");
}

TEST_F(PosixCommands, ANameThatTheSystemCannotFollowIsAFailureThatNamesIt) {
    std::filesystem::create_symlink("lus", folder.Path() + "/lus");
    folder.Write("a.idx", smallIdex);
    for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{
             {"project", "maak", "lus/t.nst"}, {"geopackage", "a.idx", "lus/t.gpkg"}}) {
        const ProgramResult result = Run(words);
        EXPECT_EQ(result.status, 3);
        EXPECT_TRUE(Has(result.error, "'" + words.back() + "' niet opslaan;\nFoutcode: 52\nOngeldige bestandsnaam"))
            << result.error;
    }
}

TEST_F(PosixCommands, AControlTableOnAFullDiskIsAFailure) {
    const ProgramResult fullDisk = Run({"project", "maak", "t.nst"}, {.largestFile = 20});
    EXPECT_EQ(fullDisk.status, 3);
    EXPECT_EQ(fullDisk.error, "Kon bestand: 't.nst' niet opslaan;\nFoutcode: 61\nSchijf vol\n");
}

}  // namespace

}  // namespace korvande::testing
