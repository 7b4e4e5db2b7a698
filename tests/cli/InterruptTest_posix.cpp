#include <csignal>
#include <filesystem>

#include "tests/cli/CliTest.h"
#include "tests/support/NamedPipe_posix.h"
#include "tests/support/RunningProgram_posix.h"

namespace korvande::testing {

namespace {

class AnInterrupt : public CliTest {
 protected:
    // Runs the program, which reads the pipe "pijp", until it waits for more than these bytes; then interrupts it.
    ProgramResult WhileReading(const std::string& bytes, const std::vector<std::string>& arguments,
                               int signalNumber = SIGINT) {
        const NamedPipe pipe(folder.Path() + "/pijp");
        RunningProgram program(StartOf(arguments));
        pipe.Feed(bytes);
        program.WaitUntilItWaits();
        namesMeanwhile = folder.Listing();
        program.Signal(signalNumber);
        ProgramResult result = program.Wait();
        std::filesystem::remove(folder.Path() + "/pijp");
        return result;
    }

    void WriteBigDrawing() {
        std::string many = smallIdex.substr(0, smallIdex.find("    2,\"A2\""));
        for (int i = 2; i < 300000; ++i) many += std::to_string(i) + ",\"\",1,2,3,\"MV\",\"\",0;\r\n";
        folder.Write("groot.idx", many + "END POINTS\r\nEND DATABASE\r\n");
    }

    std::string namesMeanwhile;
};

std::string HalfIdex() { return smallIdex.substr(0, 600); }

// More than is read at a time.
std::string HalfNen1878() { return Nen1878Points(2000); }

TEST_F(AnInterrupt, WhileADrawingIsReadKeepsAnEarlierOutput) {
    folder.Write("uit.sfn", "van gisteren");
    const ProgramResult result = WhileReading(HalfIdex(), {"vertaal", "--modus", "idex-nen1878", "pijp", "uit.sfn"});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.error, "pijp is niet vertaald: afgebroken. Zie het logboek: uit.LOG\n");
    EXPECT_TRUE(Has(Log("uit.LOG"), "==>  Vertaling afgebroken.\n"));
    EXPECT_FALSE(Has(Log("uit.LOG"), "FOUT:")) << Log("uit.LOG");
    EXPECT_EQ(Bytes("uit.sfn"), "van gisteren");
    EXPECT_EQ(folder.Listing(), "uit.LOG uit.sfn");
}

TEST_F(AnInterrupt, WhileAnImportIsReadLeavesNoHalfOutput) {
    const ProgramResult result = WhileReading(HalfNen1878(), {"vertaal", "--modus", "nen1878-idex", "pijp", "uit.idx"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(namesMeanwhile, "~korvande-")) << namesMeanwhile;  // what the import writes to meanwhile
    EXPECT_EQ(folder.Listing(), "uit.LOG");
    EXPECT_TRUE(Has(Log("uit.LOG"), "==>  Vertaling afgebroken.\n"));
}

TEST_F(AnInterrupt, MayAlsoBeARequestToEndOrALostTerminal) {
    for (const int signalNumber : {SIGTERM, SIGHUP}) {
        const ProgramResult result =
            WhileReading(HalfNen1878(), {"vertaal", "--modus", "nen1878-idex", "pijp", "uit.idx"}, signalNumber);
        EXPECT_EQ(result.status, 3) << signalNumber;
        EXPECT_EQ(folder.Listing(), "uit.LOG");
    }
}

TEST_F(AnInterrupt, OfALostTerminalThatIsToBeIgnoredIsIgnored) {
    NamedPipe pipe(folder.Path() + "/pijp");
    const Start underNohup{.program = "sh", .arguments = {"-c", "trap '' HUP; exec \"$@\"", "sh", KORVANDE_CLI}};
    RunningProgram program(StartOf({"vertaal", "--modus", "idex-nen1878", "pijp", "uit.sfn"}, underNohup));
    pipe.Feed(HalfIdex());
    program.WaitUntilItWaits();
    program.Signal(SIGHUP);
    pipe.Feed(smallIdex.substr(HalfIdex().size()));
    pipe.End();
    const ProgramResult result = program.Wait();
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_TRUE(IsThere("uit.sfn"));
}

TEST_F(AnInterrupt, WhileAControlTableIsReadEndsTheProgram) {
    folder.Write("a.idx", smallIdex);
    const ProgramResult result = WhileReading("[NEN1878]\r\nSource = ZAND\r\n",
                                              {"vertaal", "--modus", "idex-nen1878", "--project", "pijp", "a.idx"});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.error, "Afgebroken.\n");
    EXPECT_EQ(folder.Listing(), "a.idx");
}

TEST_F(AnInterrupt, WhileAFileIsCheckedEndsTheProgram) {
    const ProgramResult result = WhileReading(HalfIdex(), {"controleer", "pijp"});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(folder.Listing(), "");
}

TEST_F(AnInterrupt, OfACheckEndsTheCheckOfAllFiles) {
    folder.Write("a.idx", smallIdex);
    const ProgramResult result = WhileReading(HalfIdex(), {"controleer", "pijp", "a.idx"});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.error, "");
}

TEST_F(AnInterrupt, WhileOneOfManyDrawingsIsReadLeavesNoGeoPackage) {
    folder.Write("a.idx", smallIdex);
    const ProgramResult result = WhileReading(HalfIdex(), {"geopackage", "--lokaal", "a.idx", "pijp", "uit.gpkg"});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.error, "Afgebroken.\n");
    EXPECT_TRUE(Has(namesMeanwhile, "~korvande-")) << namesMeanwhile;  // what is written to meanwhile
    EXPECT_EQ(folder.Listing(), "a.idx");
}

TEST_F(AnInterrupt, LeavesTheInputsThatFollowAlone) {
    folder.Write("a.idx", smallIdex);
    std::filesystem::create_directory(folder.Path() + "/uit");
    const ProgramResult result =
        WhileReading(HalfIdex(), {"vertaal", "--modus", "idex-suf2", "--uitvoermap", "uit", "pijp", "a.idx"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(Has(result.error, "De bestanden die volgen, zijn niet vertaald.\n")) << result.error;
    EXPECT_TRUE(IsThere("uit/pijp.LOG"));
    EXPECT_FALSE(IsThere("uit/a.sf2"));
}

TEST_F(AnInterrupt, AtAQuestionCancels) {
    folder.Write("a.suf", smallSuf2);
    RunningProgram program(
        StartOf({"vertaal", "--modus", "nen1878-idex", "a.suf", "uit.idx"}, {.terminal = Terminal::InputAndError}));
    program.WaitForError("[a]nnuleren");
    program.WaitUntilItWaits();
    program.Signal(SIGINT);
    const ProgramResult result = program.Wait();
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(folder.Listing(), "a.suf uit.LOG");
}

TEST_F(AnInterrupt, OfABigDrawingIsNoticedInEveryStep) {
    WriteBigDrawing();
    for (const char* const step : {"Inlezen Punten", "Schrijven Exportbestand: Symbolen"}) {
        RunningProgram program(
            StartOf({"vertaal", "--modus", "idex-nen1878", "groot.idx", "uit.sfn"}, {.terminal = Terminal::Error}));
        program.WaitForError(step);
        program.Signal(SIGINT);
        program.Signal(SIGINT);  // somebody in a hurry
        const ProgramResult result = program.Wait();
        EXPECT_EQ(result.status, 3) << step;
        EXPECT_TRUE(Has(result.error, "groot.idx is niet vertaald: afgebroken.")) << step;
        EXPECT_EQ(folder.Listing(), "groot.idx uit.LOG") << step;
    }
}

}  // namespace

}  // namespace korvande::testing
