#include <unistd.h>

#include <algorithm>
#include <csignal>

#include "tests/cli/BatchTest.h"
#include "tests/support/NamedPipe_posix.h"
#include "tests/support/RunningProgram_posix.h"

namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

class BatchInterrupt : public BatchTest {
 protected:
    std::vector<std::string> All(std::vector<std::string> more) {
        more.insert(more.begin(), {"vertaal", "--modus", "idex-nen1878", "--uitvoermap", "uit/"});
        return more;
    }

    // Waits until these files are there, such as the log books of translations that have begun.
    void WaitFor(const std::vector<std::string>& names) const {
        const auto areThere = [&] {
            return std::all_of(names.begin(), names.end(), [this](const std::string& name) { return IsThere(name); });
        };
        for (int i = 0; i < 10000 && !areThere(); ++i) ::usleep(2000);
        EXPECT_TRUE(areThere());
    }
};

TEST_F(BatchInterrupt, WhileTwoAreTranslatedLeavesWholeFilesAndAReportToGoOnFrom) {
    for (const char* const name : {"a", "b"}) Write("in/" + std::string(name) + ".idx", smallIdex);
    for (const char* const name : {"c", "d"}) Write("in/" + std::string(name) + ".idx", IdexPoints(80000));
    Write("in/e.idx", smallIdex);
    const std::vector<std::string> arguments = All({"--taken", "2", "--verslag", "v.csv", "in/"});
    RunningProgram program(StartOf(arguments, {.terminal = Terminal::Error}));
    program.WaitForError("Vertalen: 2 van 5");
    WaitFor({"uit/c.LOG", "uit/d.LOG"});
    program.Signal(SIGINT);
    const ProgramResult result = program.Wait();
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(NamesIn("uit"), "a.LOG a.sfn b.LOG b.sfn c.LOG d.LOG");
    EXPECT_EQ(Bytes("uit/b.sfn"), Bytes("uit/a.sfn"));
    EXPECT_TRUE(Has(result.error, "De bestanden die volgen, zijn niet vertaald.\n")) << result.error;
    EXPECT_TRUE(Has(result.error, "Alles samen: 5 bestanden, waarvan 2 vertaald, 3 niet vertaald\n")) << result.error;
    EXPECT_TRUE(Has(Bytes("v.csv"), "in/c.idx;uit/c.sfn;uit/c.LOG;3;nee;")) << Bytes("v.csv");
    EXPECT_FALSE(Has(Bytes("v.csv"), "in/e.idx"));

    std::vector<std::string> goOn = arguments;
    goOn.emplace_back("--hervat");
    const ProgramResult rest = Run(goOn);
    EXPECT_EQ(rest.status, 0) << rest.error;
    EXPECT_TRUE(Has(rest.error, "Alles samen: 5 bestanden, waarvan 3 vertaald, 2 eerder vertaald\n")) << rest.error;
    EXPECT_EQ(Bytes("uit/c.sfn").size(), Bytes("uit/d.sfn").size());
    EXPECT_EQ(Bytes("uit/e.sfn"), Bytes("uit/a.sfn"));
}

TEST_F(BatchInterrupt, KeepsInTheReportWhatAnEarlierBatchHasDone) {
    fs::create_directory(Path("uit"));
    Write("a.idx", IdexPoints(80000));
    Write("b.idx", smallIdex);
    const std::vector<std::string> arguments =
        All({"--taken", "1", "--verslag", "v.csv", "--hervat", "a.idx", "b.idx"});
    ASSERT_EQ(Run(arguments).status, 0);
    fs::last_write_time(Path("a.idx"), fs::file_time_type::clock::now());
    fs::remove(Path("uit/a.LOG"));
    RunningProgram program(StartOf(arguments, {.terminal = Terminal::Error}));
    WaitFor({"uit/a.LOG"});
    program.Signal(SIGINT);
    EXPECT_EQ(program.Wait().status, 1);
    EXPECT_TRUE(Has(Bytes("v.csv"), "a.idx;uit/a.sfn;uit/a.LOG;3;nee;")) << Bytes("v.csv");
    EXPECT_TRUE(Has(Bytes("v.csv"), "b.idx;uit/b.sfn;uit/b.LOG;0;ja;")) << Bytes("v.csv");
}

TEST_F(BatchInterrupt, EndsTheWaitForAPipeAmongTheInputs) {
    fs::create_directory(Path("uit"));
    Write("a.idx", smallIdex);
    Write("b.idx", smallIdex);
    const NamedPipe pipe(folder.Path() + "/pijp");
    RunningProgram program(StartOf(All({"--taken", "4", "a.idx", "pijp", "b.idx"})));
    pipe.Feed(smallIdex.substr(0, 600));
    program.WaitUntilItWaits();
    program.Signal(SIGINT);
    const ProgramResult result = program.Wait();
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(Has(result.error, "pijp is niet vertaald: afgebroken.")) << result.error;
    EXPECT_EQ(NamesIn("uit"), "a.LOG a.sfn pijp.LOG");
}

TEST_F(BatchInterrupt, AtAQuestionCancelsOnWhateverThreadItIsAsked) {
    fs::create_directory(Path("uit"));
    for (const char* const name : {"a", "b", "c"}) Write(std::string(name) + ".suf", smallSuf2);
    RunningProgram program(StartOf(
        {"vertaal", "--modus", "nen1878-idex", "--uitvoermap", "uit/", "--taken", "3", "a.suf", "b.suf", "c.suf"},
        {.terminal = Terminal::InputAndError}));
    program.WaitForError("[a]nnuleren");
    program.WaitUntilItWaits();
    program.Signal(SIGINT);
    EXPECT_EQ(program.Wait().status, 1);
    EXPECT_FALSE(Has(NamesIn("uit"), ".idx")) << NamesIn("uit");
}

TEST_F(BatchInterrupt, OfAGeoPackageLeavesNone) {
    for (const char* const name : {"a", "b", "c"}) Write("in/" + std::string(name) + ".idx", IdexPoints(80000));
    RunningProgram program(
        StartOf({"geopackage", "--lokaal", "--taken", "3", "in/", "uit.gpkg"}, {.terminal = Terminal::Error}));
    program.WaitForError("Overnemen: 1 van 3");
    program.Signal(SIGINT);
    const ProgramResult result = program.Wait();
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.error.ends_with("Afgebroken.\n")) << result.error;
    EXPECT_EQ(folder.Listing(), "in");
}

TEST_F(BatchInterrupt, OfACheckEndsIt) {
    for (const char* const name : {"a", "b", "c"}) Write("in/" + std::string(name) + ".idx", IdexPoints(80000));
    RunningProgram program(
        StartOf({"controleer", "--taken", "2", "--verslag", "v.csv", "in/"}, {.terminal = Terminal::Error}));
    program.WaitForError("Controleren: 1 van 3");
    program.Signal(SIGINT);
    const ProgramResult result = program.Wait();
    EXPECT_EQ(result.status, 3);
    EXPECT_FALSE(Has(result.error, "Alles samen")) << result.error;
    EXPECT_TRUE(Has(Bytes("v.csv"), ".idx;IDEX;1;80000;")) << Bytes("v.csv");
}

}  // namespace

}  // namespace korvande::testing
