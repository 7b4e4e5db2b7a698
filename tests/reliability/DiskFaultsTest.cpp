#include <sys/mount.h>

#include <cerrno>
#include <cstring>

#include "tests/reliability/FaultTest.h"

// Disks that fill up, folders that go, reads that fail half way.
namespace korvande::testing {

namespace {

// More than is read at a time.
std::string ManyPoints() { return Nen1878Points(4000); }

class DiskFaults : public FaultTest {
 protected:
    // A run whose output folder goes while the program waits for the rest of its input.
    ProgramResult WhileTheFolderGoes(const std::string& mode, const std::string& input) {
        fs::create_directory(Path("uit"));
        NamedPipe pipe(folder.Path() + "/pijp");
        RunningProgram program(
            StartOf({"vertaal", "--modus", mode, "--logboek", "l.log", "--project", "t.nst", "pijp", "uit/a"}));
        pipe.Feed(input);
        program.WaitUntilItWaits();
        fs::remove_all(Path("uit"));
        pipe.End();
        return program.Wait();
    }

    // Has the program's reads fail behind so many bytes.
    static Start ReadingFailsBehind(std::size_t bytes) {
        Start start;
        start.environment["LD_PRELOAD"] = KORVANDE_FAILING_READS;
        start.environment["KORVANDE_TEST_READABLE"] = std::to_string(bytes);
        // The sanitizer would rather come first.
        start.environment["ASAN_OPTIONS"] = "verify_asan_link_order=0:detect_leaks=0";
        return start;
    }
};

TEST_F(DiskFaults, AnOutputFolderThatGoesDuringARunIsAFailedOutput) {
    // An import has its output open already when it has read a block.
    struct Case {
        const char* mode;
        std::string input;
        const char* logged;
    };
    for (const auto& [mode, input, logged] :
         {Case{"idex-nen1878", smallIdex, "FOUT:  Kon bestand: 'uit/a' niet opslaan; Foutcode: 76\n"},
          Case{"idex-suf2", smallIdex, "FOUT:  Kon bestand: 'uit/a' niet opslaan; Foutcode: 76\n"},
          Case{"nen1878-idex", smallNen1878, "FOUT:  Error:76 - Pad niet gevonden uit/a\n"},
          Case{"nen1878-idex", ManyPoints(), "FOUT:  Kon bestand: 'uit/a' niet opslaan; Foutcode: 76\n"}}) {
        const ProgramResult result = WhileTheFolderGoes(mode, input);
        EXPECT_EQ(result.status, 3) << mode;
        EXPECT_EQ(result.output, "");
        EXPECT_TRUE(
            Has(result.error, "pijp is niet vertaald: de uitvoer kan niet worden geschreven. Zie het logboek: l.log\n"))
            << result.error;
        EXPECT_TRUE(Has(Log("l.log"), logged)) << mode << Log("l.log");
        EXPECT_TRUE(Has(Log("l.log"), "     Gereed:     "));
        fs::remove(Path("pijp"));
        EXPECT_EQ(folder.Listing(), "a.idx a.nen l.log t.nst");
        ExpectInputsIntact();
    }
}

TEST_F(DiskFaults, ADiskThatFillsUpKeepsAnEarlierOutput) {
    fs::create_directory(Path("schijf"));
    if (::mount("tmpfs", Path("schijf").c_str(), "tmpfs", 0, "size=64k") != 0) {
        GTEST_SKIP() << "no disk can be mounted here: " << std::strerror(errno);
    }
    folder.Write("schijf/uit.sfn", "van gisteren");
    folder.Write("groot.idx", Points(2000));
    const ProgramResult result =
        Translate("idex-nen1878", {"--project", "t.nst", "--logboek", "l.log", "groot.idx", "schijf/uit.sfn"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(result.error, "groot.idx is niet vertaald: de uitvoer kan niet worden geschreven."))
        << result.error;
    EXPECT_TRUE(Has(Log("l.log"), "FOUT:  Schijf vol\n")) << Log("l.log");
    EXPECT_EQ(Bytes("schijf/uit.sfn"), "van gisteren");
    EXPECT_EQ(std::distance(fs::directory_iterator(Path("schijf")), fs::directory_iterator()), 1);

    // Without the log book elsewhere nothing at all fits any more, which is told on the screen.
    folder.Write("schijf/vol", std::string(std::size_t{52} * 1024, 'x'));
    const ProgramResult full = Translate("idex-nen1878", {"--project", "t.nst", "groot.idx", "schijf/uit.sfn"});
    EXPECT_EQ(full.status, 3);
    EXPECT_EQ(Bytes("schijf/uit.sfn"), "van gisteren");
    EXPECT_EQ(::umount2(Path("schijf").c_str(), MNT_DETACH), 0);
    ExpectInputsIntact();
}

TEST_F(DiskFaults, AReadThatFailsHalfWayKeepsAnEarlierOutputAndNamesTheLine) {
    folder.Write("groot.idx", Points(20'000));
    folder.Write("groot.nen", ManyPoints());
    folder.Write("uit", "van gisteren");
    for (const auto& [mode, input] : {std::pair("idex-nen1878", "groot.idx"), std::pair("nen1878-idex", "groot.nen")}) {
        const ProgramResult result = Translate(mode, {"--logboek", "l.log", input, "uit"}, ReadingFailsBehind(200'000));
        EXPECT_EQ(result.status, 3) << result.error;
        EXPECT_TRUE(Has(result.error, std::string(input) + " is niet vertaald: het bestand kan niet worden gelezen."))
            << result.error;
        EXPECT_TRUE(Has(Log("l.log"), "FOUT:  Fout bij toegang tot pad of bestand (regel ")) << Log("l.log");
        EXPECT_EQ(Bytes("uit"), "van gisteren");
        EXPECT_EQ(folder.Listing(), "a.idx a.nen groot.idx groot.nen l.log t.nst uit");
    }
    ExpectInputsIntact();
}

TEST_F(DiskFaults, AControlTableThatCannotBeReadToItsEndIsNotUsed) {
    std::string table = smallTable.substr(0, smallTable.find("[End]"));
    while (table.size() < 300'000) table += "MV = Q22, PUNT, MAAIVELD, 0, 0, 0\r\n";
    folder.Write("groot.nst", table);
    const ProgramResult result =
        Translate("idex-nen1878", {"--project", "groot.nst", "a.idx", "uit.sfn"}, ReadingFailsBehind(200'000));
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(result.error, "Kon bestand: 'groot.nst' niet openen;\nFoutcode: 75\n")) << result.error;
    EXPECT_FALSE(IsThere("uit.sfn"));
    EXPECT_EQ(Bytes("groot.nst"), table);
}

TEST_F(DiskFaults, AnInputThatEndsTooSoonIsTranslatedAsFarAsItGoes) {
    NamedPipe pipe(folder.Path() + "/pijp");
    RunningProgram program(StartOf({"vertaal", "--modus", "idex-nen1878", "--project", "t.nst", "pijp", "uit.sfn"}));
    pipe.Feed(smallIdex.substr(0, smallIdex.find("    3,\"A3\"")));
    pipe.End();
    const ProgramResult result = program.Wait();
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(Has(result.error, "Punten: 2 gelezen, 2 geschreven, 0 weggelaten\n")) << result.error;
    EXPECT_TRUE(Has(Log("uit.LOG"), "FOUT:  Invoer voorbij het einde van het bestand (regel 17)\n")) << Log("uit.LOG");
    EXPECT_TRUE(Bytes("uit.sfn").ends_with("99" + std::string(62, ' ') + "\r\n"));
}

}  // namespace

}  // namespace korvande::testing
