#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <thread>

#include "tests/cli/OutputFilesTest.h"

// Links, rights, disks, pipes and names as this system has them.
namespace korvande::testing {

namespace {

class PosixOutputFiles : public OutputFiles {
 protected:
    // Runs a copy of the program as a user who owns nothing. The copy, because the build folder may be closed to
    // others.
    ProgramResult RunAsNobody(const std::vector<std::string>& arguments) {
        Start start;
        if (::geteuid() == 0) {
            start.program = "setpriv";
            start.arguments = {"--reuid=65534", "--regid=65534", "--clear-groups", folder.Path() + "/program"};
        } else {
            start.program = folder.Path() + "/program";
        }
        fs::copy_file(KORVANDE_CLI, Path("program"), fs::copy_options::overwrite_existing);
        const ProgramResult version = Run({"--version"}, start);
        EXPECT_EQ(version.status, 0) << "the program cannot be run as nobody: " << version.error;
        return Run(arguments, start);
    }
};

TEST_F(PosixOutputFiles, AnOutputThatALinkTakesToTheInputIsRefused) {
    fs::create_directory(Path("map"));
    fs::create_symlink("a.idx", Path("koppeling"));
    fs::create_symlink("..", Path("map/terug"));
    for (const std::string name : {"koppeling", "map/terug/a.idx"}) {
        ExpectSameFileRefused({"a.idx", name}, "Invoer en uitvoer", name);
    }
    ExpectSameFileRefused({"koppeling", "a.idx"}, "Invoer en uitvoer", "a.idx");
}

TEST_F(PosixOutputFiles, AnInputThatMayNotBeReadIsAFailure) {
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0777), 0);
    ASSERT_EQ(::chmod(Path("a.idx").c_str(), 0), 0);
    const ProgramResult result = RunAsNobody({"vertaal", "--modus", "idex-nen1878", "a.idx", "uit.sfn"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(result.error, "Error:70 - Toegang geweigerd\na.idx\n")) << result.error;
    EXPECT_TRUE(Has(Log("uit.LOG"), "FOUT:  Error:70 - Toegang geweigerd a.idx\n"));
    EXPECT_FALSE(IsThere("uit.sfn"));
}

TEST_F(PosixOutputFiles, AFolderThatMayNotBeWrittenToIsAFailure) {
    fs::create_directory(Path("dicht"));
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0777), 0);
    ASSERT_EQ(::chmod(Path("dicht").c_str(), 0555), 0);
    const ProgramResult logBook = RunAsNobody({"vertaal", "--modus", "idex-nen1878", "a.idx", "dicht/uit.sfn"});
    EXPECT_EQ(logBook.status, 3);
    EXPECT_TRUE(Has(logBook.error, "Kon bestand: 'dicht/uit.LOG' niet opslaan;\nFoutcode: 70\nToegang geweigerd\n"));
    const ProgramResult output =
        RunAsNobody({"vertaal", "--modus", "idex-nen1878", "--logboek", "l.txt", "a.idx", "dicht/uit.sfn"});
    EXPECT_EQ(output.status, 3);
    EXPECT_TRUE(Has(output.error, "Kon bestand: 'dicht/uit.sfn' niet opslaan;\nFoutcode: 70\n")) << output.error;
    EXPECT_TRUE(Has(output.error,
                    "a.idx is niet vertaald: de uitvoer kan niet worden geschreven. Zie het logboek: "
                    "l.txt\n"));
    EXPECT_TRUE(Has(Log("l.txt"), "FOUT:  Kon bestand: 'dicht/uit.sfn' niet opslaan; Foutcode: 70\n"));
    EXPECT_TRUE(fs::is_empty(Path("dicht")));
}

TEST_F(PosixOutputFiles, AWriteProtectedOutputIsNotReplaced) {
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0777), 0);
    folder.Write("uit.sfn", "bewaren");
    ASSERT_EQ(::chmod(Path("uit.sfn").c_str(), 0444), 0);
    const ProgramResult result = RunAsNobody({"vertaal", "--modus", "idex-nen1878", "a.idx", "uit.sfn"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(result.error, "Kon bestand: 'uit.sfn' niet opslaan;\nFoutcode: 70\n")) << result.error;
    EXPECT_EQ(Bytes("uit.sfn"), "bewaren");
    EXPECT_EQ(folder.Listing(), "a.idx program uit.LOG uit.sfn");
}

TEST_F(PosixOutputFiles, AFullDiskKeepsAnEarlierOutput) {
    folder.Write("n.nen", smallNen1878);
    folder.Write("uit", "van gisteren");
    for (const auto& [mode, input] : {std::pair("idex-nen1878", "a.idx"), std::pair("nen1878-idex", "n.nen")}) {
        // The log book is still within the limit, the output is not.
        const ProgramResult result = Translate(mode, {"--geen-logboek", input, "uit"}, {.largestFile = 300});
        EXPECT_EQ(result.status, 3) << result.error;
        EXPECT_TRUE(Has(result.error, "FOUT:  Schijf vol\n")) << result.error;
        EXPECT_TRUE(Has(result.error, " is niet vertaald: de uitvoer kan niet worden geschreven.\n")) << result.error;
        EXPECT_EQ(Bytes("uit"), "van gisteren");
        EXPECT_EQ(folder.Listing(), "a.idx n.nen uit");
    }
}

TEST_F(PosixOutputFiles, AFullDiskIsToldInALogBookElsewhere) {
    std::string manyPoints = smallIdex.substr(0, smallIdex.find("    2,\"A2\""));
    for (int i = 2; i < 100; ++i) manyPoints += std::to_string(i) + ",\"\",1,2,3,\"MV\",\"\",0;\r\n";
    manyPoints += "END POINTS\r\nEND DATABASE\r\n";
    folder.Write("b.idx", manyPoints);
    const ProgramResult result = Translate("idex-nen1878", {"b.idx", "uit.sfn"}, {.largestFile = 5000});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(Log("uit.LOG"), "FOUT:  Schijf vol\n"));
    EXPECT_TRUE(Has(Log("uit.LOG"), "     Gereed:     "));
    EXPECT_EQ(folder.Listing(), "a.idx b.idx uit.LOG");
}

TEST_F(PosixOutputFiles, AFullDiskKeepsAnEarlierGeoPackage) {
    folder.Write("uit.gpkg", "van gisteren");
    const ProgramResult result =
        Run({"geopackage", "--lokaal", "--overschrijf", "a.idx", "uit.gpkg"}, {.largestFile = 20'000});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(result.error, "Kon bestand: 'uit.gpkg' niet opslaan;\nFoutcode: 61\nSchijf vol\n")) << result.error;
    EXPECT_EQ(Bytes("uit.gpkg"), "van gisteren");
    EXPECT_EQ(folder.Listing(), "a.idx uit.gpkg");
}

TEST_F(PosixOutputFiles, ALogBookOnAFullDiskIsAFailure) {
    const ProgramResult result = Translate("idex-nen1878", {"--logboek", "/dev/full", "a.idx", "uit.sfn"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(result.error, "Het logboek kon niet volledig worden geschreven:\n/dev/full\nSchijf vol\n"))
        << result.error;
    EXPECT_EQ(folder.Listing(), "a.idx");
}

TEST_F(PosixOutputFiles, ADeviceIsWrittenDirectly) {
    const ProgramResult full = Translate("idex-nen1878", {"--logboek", "l", "a.idx", "/dev/full"});
    EXPECT_EQ(full.status, 3);
    EXPECT_TRUE(Has(Log("l"), "FOUT:  Schijf vol\n"));
    const ProgramResult null = Translate("idex-nen1878", {"--logboek", "l", "a.idx", "/dev/null"});
    EXPECT_EQ(null.status, 0) << null.error;
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(PosixOutputFiles, APipeGetsTheWholeOutput) {
    ASSERT_EQ(Translate("idex-nen1878", {"a.idx", "uit.sfn"}).status, 0);
    ASSERT_EQ(::mkfifo(Path("pijp").c_str(), 0600), 0);
    std::string received;
    std::thread reader([&] { received = FileBytes(folder / "pijp"); });
    const ProgramResult result = Translate("idex-nen1878", {"--logboek", "l", "a.idx", "pijp"});
    reader.join();
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_EQ(received, Bytes("uit.sfn"));
    EXPECT_TRUE(fs::is_fifo(Path("pijp")));

    const ProgramResult toOutput = Translate("idex-nen1878", {"--logboek", "l", "--stil", "a.idx", "/dev/stdout"});
    EXPECT_EQ(toOutput.status, 0);
    EXPECT_TRUE(toOutput.output.starts_with(received));
}

TEST_F(PosixOutputFiles, APipeWithoutAReaderAnyMoreIsAFailedOutput) {
    std::string manyPoints = smallIdex.substr(0, smallIdex.find("    2,\"A2\""));
    for (int i = 2; i < 3000; ++i) manyPoints += std::to_string(i) + ",\"\",1,2,3,\"MV\",\"\",0;\r\n";
    folder.Write("b.idx", manyPoints + "END POINTS\r\nEND DATABASE\r\n");
    ASSERT_EQ(::mkfifo(Path("pijp").c_str(), 0600), 0);
    std::thread reader([&] { ::close(::open(Path("pijp").c_str(), O_RDONLY)); });
    const ProgramResult result = Translate("idex-nen1878", {"--logboek", "l", "b.idx", "pijp"});
    reader.join();
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(result.error, "b.idx is niet vertaald: de uitvoer kan niet worden geschreven.")) << result.error;
}

TEST_F(PosixOutputFiles, AnInputFromAPipeIsRead) {
    ASSERT_EQ(Translate("idex-nen1878", {"a.idx", "uit.sfn"}).status, 0);
    const ProgramResult result =
        Translate("idex-nen1878", {"--logboek", "l", "/dev/stdin", "pijp.sfn"}, {.input = smallIdex});
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_EQ(Bytes("pijp.sfn"), Bytes("uit.sfn"));
}

TEST_F(PosixOutputFiles, ALinkStaysALinkAndItsFileIsReplaced) {
    fs::create_directory(Path("archief"));
    folder.Write("archief/echt.sfn", "van gisteren");
    fs::create_symlink("archief/echt.sfn", Path("uit.sfn"));
    ASSERT_EQ(Translate("idex-nen1878", {"a.idx", "uit.sfn"}).status, 0);
    EXPECT_TRUE(fs::is_symlink(Path("uit.sfn")));
    EXPECT_TRUE(Bytes("archief/echt.sfn").starts_with("010NEN1878"));

    fs::create_symlink("archief/nieuw.sfn", Path("straks.sfn"));
    ASSERT_EQ(Translate("idex-nen1878", {"a.idx", "straks.sfn"}).status, 0);
    EXPECT_TRUE(fs::is_symlink(Path("straks.sfn")));
    EXPECT_TRUE(IsThere("archief/nieuw.sfn"));
}

TEST_F(PosixOutputFiles, NamesThatAreNoUtf8StillMeanTheirFiles) {
    const std::string input = "kaart\xE9.idx";
    fs::copy_file(Path("a.idx"), Path(input));
    const ProgramResult result = Translate("idex-nen1878", {input, "uit\xFF.sfn"});
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_TRUE(IsThere("uit?.sfn") || fs::exists(Path("uit\xFF.sfn")));
    EXPECT_TRUE(fs::exists(Path("uit\xFF.LOG")));
    EXPECT_TRUE(result.output.starts_with("uit?.sfn: ")) << result.output;
    const ProgramResult missing = Translate("idex-nen1878", {"weg\xE9.idx", "x.sfn"});
    EXPECT_EQ(missing.status, 3);
    EXPECT_TRUE(Has(missing.error, "Bestand: weg?.idx niet gevonden.\n")) << missing.error;
}

TEST_F(PosixOutputFiles, ADriveIsTheFolderOfItsVariable) {
    fs::create_directory(Path("schijf"));
    fs::copy_file(Path("a.idx"), Path("schijf/Kaart.IDX"));
    Start start;
    start.environment["KORVANDE_DRIVE_K"] = folder.Path() + "/schijf";
    const ProgramResult result = Translate("idex-nen1878", {"K:\\KAART.IDX", "k:uit.sfn"}, start);
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_TRUE(IsThere("schijf/uit.sfn"));
    EXPECT_TRUE(Has(Log("schijf/uit.LOG"), "\"K:\\KAART.IDX\"\n"));
    const ProgramResult without = Translate("idex-nen1878", {"--logboek", "l", "a.idx", "Q:\\uit.sfn"});
    EXPECT_EQ(without.status, 3);
    EXPECT_TRUE(Has(without.error, "Foutcode: 71")) << without.error;
}

TEST_F(PosixOutputFiles, TheDiagnosticFilesGoToTheirDrive) {
    fs::create_directory(Path("d"));
    Start start;
    start.environment["KORVANDE_DRIVE_D"] = folder.Path() + "/d";
    ASSERT_EQ(Translate("idex-nen1878", {"a.idx", "uit.sfn"}, start).status, 0);
    EXPECT_TRUE(Bytes("d/DEBUG_LINES.TXT").starts_with("Code,Descr,Flags 1,Flags 2\r\nMUUR   ,"));
    EXPECT_EQ(Bytes("d/DEBUG_EDGES.TXT"), "Start Pt,End Pt,Line No,Line Type\r\n1,2,1,STRAIGHT    \r\n");
}

}  // namespace

}  // namespace korvande::testing
