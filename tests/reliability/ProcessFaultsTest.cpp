#include <chrono>
#include <csignal>
#include <string>
#include <utility>
#include <vector>

#include "tests/reliability/FaultTest.h"

// Too little memory, a sudden end, two programs at once, and many translations in one.
namespace korvande::testing {

namespace {

class ProcessFaults : public FaultTest {
 protected:
    // The command, within limits that the shell sets (in the units of its "ulimit").
    Start Limited(const std::string& limits, const std::vector<std::string>& arguments) const {
        Start start{.program = "sh", .arguments = {"-c", limits + "; exec \"$@\"", "sh", KORVANDE_CLI}};
        return StartOf(arguments, start);
    }

    // Whether there was too little memory for the system to load the program at all, or for the run-time library to set
    // aside, before the program begins, what it throws exceptions in.
    static bool WasNeverBegun(const ProgramResult& result) {
        return result.status == 127 ||
               (result.status == 128 + SIGABRT && Has(result.error, "terminate called without an active exception"));
    }

    // The files but for the unfinished outputs, which come last.
    std::string FinishedFiles() const {
        const std::string names = folder.Listing();
        return names.substr(0, names.find(" ~korvande-"));
    }
};

// The sanitizers themselves need more memory than these limits leave.
#ifndef __SANITIZE_ADDRESS__

TEST_F(ProcessFaults, ADrawingThatDoesNotFitInMemoryIsAnErrorLikeAnyOther) {
    std::string longRow = smallIdex.substr(0, 500);
    longRow.resize(60'000'000, 'a');
    folder.Write("rij.idx", longRow);
    std::string many = Points(1);
    folder.Write("lijnen.idx", many.substr(0, many.rfind("END DATABASE")) +
                                   "LINES (LineNo,Code)\r\n1000000,\"MUUR\";\r\nEND LINES\r\nEND DATABASE\r\n");
    // The row alone takes 60 MB, the million lines 16.
    const std::vector<std::pair<std::string, std::string>> limits = {{"rij.idx", "60000"}, {"lijnen.idx", "21000"}};
    for (const auto& [input, kilobytes] : limits) {
        const ProgramResult result =
            RunProgram(Limited("ulimit -v " + kilobytes, {"vertaal", "--modus", "idex-nen1878", "--project", "t.nst",
                                                          "--logboek", "l.log", input, "uit.sfn"}));
        EXPECT_EQ(result.status, 1) << result.error;
        EXPECT_TRUE(Has(result.error, input + " is vertaald, met 1 fout ")) << result.error;
        EXPECT_TRUE(Has(result.error, " Zie het logboek: l.log\n")) << result.error;
        EXPECT_TRUE(Has(Log("l.log"), "FOUT:  Onvoldoende geheugen (regel ")) << Log("l.log");
        EXPECT_TRUE(Has(Log("l.log"), "     Gereed:     "));
        EXPECT_TRUE(Bytes("uit.sfn").ends_with("99" + std::string(62, ' ') + "\r\n"));
    }
    ExpectInputsIntact();
}

TEST_F(ProcessFaults, HoweverLittleMemoryThereIsTheProgramEndsInOrder) {
    folder.Write("groot.idx", Points(20'000));
    int refused = 0;
    for (int kilobytes = 6000; kilobytes <= 16'000; kilobytes += 250) {
        const ProgramResult result = RunProgram(Limited(
            "ulimit -v " + std::to_string(kilobytes), {"vertaal", "--modus", "idex-nen1878", "groot.idx", "uit.sfn"}));
        if (WasNeverBegun(result)) continue;
        EXPECT_LE(result.status, 3) << kilobytes << " KB: " << result.error;
        if (result.status > 0) {
            ++refused;
            EXPECT_NE(result.error, "") << kilobytes << " KB";
        }
    }
    EXPECT_GT(refused, 0);
    const ProgramResult enough =
        RunProgram(Limited("ulimit -v 200000", {"vertaal", "--modus", "idex-nen1878", "groot.idx", "uit.sfn"}));
    EXPECT_EQ(enough.status, 0) << enough.error;
}

TEST_F(ProcessFaults, ManyTranslationsFitInTheRoomOfOne) {
    constexpr int inputs = 500;
    fs::create_directory(Path("uit"));
    std::vector<std::string> arguments = {"vertaal", "--modus", "idex-nen1878", "--project", "t.nst", "--stil",
                                          "--taken", "1",       "--uitvoermap", "uit"};
    for (int i = 0; i < inputs; ++i) {
        const std::string name = std::to_string(i) + ".idx";
        fs::create_hard_link(Path("a.idx"), Path(name));
        fs::permissions(Path(name), fs::perms::owner_read | fs::perms::owner_write);
        arguments.push_back(name);
    }
    // Eight open files for one at a time, and for each input some 50 KB of memory at most beyond what the first one
    // takes.
    const ProgramResult result = RunProgram(Limited("ulimit -n 8 -v 40000", arguments));
    EXPECT_EQ(result.status, 0) << result.error.substr(0, 1000);
    EXPECT_EQ(std::distance(fs::directory_iterator(Path("uit")), fs::directory_iterator()), 2 * inputs);
    EXPECT_EQ(Bytes("uit/0.sfn"), Bytes("uit/499.sfn"));
}

#endif

TEST_F(ProcessFaults, AKilledRunReplacesNoEarlierOutputByHalfAFile) {
    using std::chrono::microseconds;
    using std::chrono::steady_clock;
    folder.Write("groot.idx", Points(60'000));
    const std::string grootBefore = Bytes("groot.idx");
    const std::vector<std::string> arguments = {"vertaal", "--modus",   "idex-nen1878", "--project", "t.nst",
                                                "--stil",  "--logboek", "l.log",        "groot.idx", "uit.sfn"};
    const auto begin = steady_clock::now();
    ASSERT_EQ(Run(arguments).status, 0);
    const auto whole = std::chrono::duration_cast<microseconds>(steady_clock::now() - begin);
    const std::string complete = Bytes("uit.sfn");

    constexpr int moments = 12;
    int killed = 0;
    for (int moment = 0; moment < moments; ++moment) {
        folder.Write("uit.sfn", "van gisteren");
        RunningProgram program(StartOf(arguments));
        ::usleep(static_cast<useconds_t>(whole.count() * moment / (moments - 1)));
        program.Signal(SIGKILL);
        const ProgramResult result = program.Wait();
        const std::string output = Bytes("uit.sfn");
        killed += result.status == 128 + SIGKILL ? 1 : 0;
        EXPECT_TRUE(result.status == 128 + SIGKILL || result.status == 0) << result.status;
        EXPECT_TRUE(output == "van gisteren" || output == complete) << moment << ": " << output.size() << " bytes";
        EXPECT_EQ(FinishedFiles(), "a.idx a.nen groot.idx l.log t.nst uit.sfn");
    }
    EXPECT_GT(killed, 0);
    EXPECT_EQ(Bytes("groot.idx"), grootBefore);
    ExpectInputsIntact();
    EXPECT_EQ(Run(arguments).status, 0);
    EXPECT_EQ(Bytes("uit.sfn"), complete);
}

TEST_F(ProcessFaults, TwoRunsAtOnceOnOneProjectDoNotDisturbEachOther) {
    folder.Write("groot.idx", Points(20'000));
    const auto arguments = [](const std::string& output) -> std::vector<std::string> {
        return {"vertaal", "--modus", "idex-nen1878", "--project", "t.nst", "--stil", "groot.idx", output};
    };
    ASSERT_EQ(Run(arguments("alleen.sfn")).status, 0);
    const std::string complete = Bytes("alleen.sfn");
    // Each its own output; then both the same one.
    for (const auto& [first, second] : {std::pair("een.sfn", "twee.sfn"), std::pair("uit.sfn", "uit.sfn")}) {
        RunningProgram one(StartOf(arguments(first)));
        RunningProgram other(StartOf(arguments(second)));
        EXPECT_EQ(one.Wait().status, 0);
        EXPECT_EQ(other.Wait().status, 0);
        EXPECT_TRUE(Bytes(first) == complete) << first;
        EXPECT_TRUE(Bytes(second) == complete) << second;
    }
    EXPECT_EQ(folder.Listing(),
              "a.idx a.nen alleen.LOG alleen.sfn een.LOG een.sfn groot.idx t.nst twee.LOG twee.sfn uit.LOG uit.sfn");
    ExpectInputsIntact();
}

}  // namespace

}  // namespace korvande::testing
