#include <filesystem>

#include "tests/cli/CliTest.h"

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

TEST_F(PosixCommands, ATranslationStandsWhenItsLineDoesNotArrive) {
    folder.Write("a.idx", smallIdex);
    EXPECT_EQ(Translate("idex-nen1878", {"a.idx", "uit.sfn"}, {.outputFile = "/dev/full"}).status, 0);
    EXPECT_TRUE(Bytes("uit.sfn").starts_with("010NEN1878"));
}

TEST_F(PosixCommands, ALinkToNothingIsNotOverwrittenByAControlTable) {
    std::filesystem::create_symlink("nergens", folder.Path() + "/los");
    ExpectRefused({"project", "maak", "los"}, "Er bestaat al een bestand met deze naam:\nlos");
}

TEST_F(PosixCommands, AControlTableOnAFullDiskIsAFailure) {
    const ProgramResult fullDisk = Run({"project", "maak", "t.nst"}, {.largestFile = 20});
    EXPECT_EQ(fullDisk.status, 3);
    EXPECT_EQ(fullDisk.error, "Kon bestand: 't.nst' niet opslaan;\nFoutcode: 61\nSchijf vol\n");
}

}  // namespace

}  // namespace korvande::testing
