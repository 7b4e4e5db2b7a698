#include <algorithm>
#include <csignal>
#include <string>
#include <utility>
#include <vector>

#include "tests/reliability/FaultTest.h"

// A program that is killed at any of its calls that change files, or in the middle of a write, leaves each file as it
// was before or as it is to be, and whole.
namespace korvande::testing {

namespace {

constexpr int killed = 128 + SIGKILL;
constexpr int mostCalls = 200;

class Kill : public FaultTest {
 protected:
    static Start At(int call) {
        Start start;
        start.environment["LD_PRELOAD"] = KORVANDE_KILLED_CALLS;
        start.environment["KORVANDE_TEST_KILL_AT"] = std::to_string(call);
        // The sanitizer would rather come first.
        start.environment["ASAN_OPTIONS"] = "verify_asan_link_order=0:detect_leaks=0";
        return start;
    }

    // Runs the action at every call until it comes to its end; how often it was killed before.
    template <class Action>
    static int AtEveryCall(Action action) {
        for (int call = 1; call <= mostCalls; ++call) {
            if (action(call) != killed) return call - 1;
        }
        ADD_FAILURE() << "it never comes to its end";
        return mostCalls;
    }

    // The saving of a project and of the settings, of a town.
    int Save(const std::string& town, int call) const {
        Start start = At(call);
        start.program = KORVANDE_SAVER;
        start.arguments = {folder.Path() + "/p.nst", town};
        start.environment["KORVANDE_REGISTRY"] = folder.Path() + "/instellingen.reg";
        return RunProgram(start).status;
    }
};

TEST_F(Kill, ATranslationLeavesTheEarlierOutputOrTheFinishedOne) {
    const std::vector<std::pair<std::string, std::string>> runs = {
        {"idex-nen1878", "a.idx"}, {"idex-suf2", "a.idx"}, {"nen1878-idex", "a.nen"}};
    for (const auto& run : runs) {
        const std::string& mode = run.first;
        const auto translate = [&](Start start) {
            return Translate(mode, {"--project", "t.nst", run.second, "uit"}, std::move(start)).status;
        };
        ASSERT_EQ(translate({}), 0);
        const std::string complete = Bytes("uit");
        const int calls = AtEveryCall([&](int call) {
            folder.Write("uit", "van gisteren");
            const int status = translate(At(call));
            const std::string output = Bytes("uit");
            EXPECT_TRUE(status == killed || status == 0) << mode << " at " << call << ": " << status;
            EXPECT_TRUE(output == complete || (status == killed && output == "van gisteren")) << mode << " at " << call;
            return status;
        });
        EXPECT_GE(calls, 8) << mode;
    }
    ExpectInputsIntact();
}

TEST_F(Kill, ANewControlTableIsThereWholeOrNotAtAll) {
    ASSERT_EQ(Run({"project", "maak", "geheel.nst"}).status, 0);
    const std::string complete = Bytes("geheel.nst");
    const int calls = AtEveryCall([&](int call) {
        fs::remove(Path("nieuw.nst"));
        const int status = Run({"project", "maak", "nieuw.nst"}, At(call)).status;
        if (IsThere("nieuw.nst")) {
            EXPECT_EQ(Bytes("nieuw.nst"), complete) << call;
        } else {
            EXPECT_EQ(status, killed) << call;
        }
        return status;
    });
    EXPECT_GE(calls, 5);
}

TEST_F(Kill, ASaveLeavesTheProjectAndTheSettingsOldOrNewAndWhole) {
    folder.Write("p.nst", smallTable);
    ASSERT_EQ(Save("OUDSTAD", 0), 0);
    const std::string oldTable = Bytes("p.nst");
    const std::string oldSettings = Bytes("instellingen.reg");
    ASSERT_EQ(Save("NIEUWSTAD", 0), 0);
    const std::string newTable = Bytes("p.nst");
    const std::string newSettings = Bytes("instellingen.reg");
    ASSERT_NE(oldTable, newTable);
    ASSERT_NE(oldSettings, newSettings);
    const auto lines = [](const std::string& text) { return std::count(text.begin(), text.end(), '\n'); };
    const int calls = AtEveryCall([&](int call) {
        folder.Write("p.nst", oldTable);
        folder.Write("instellingen.reg", oldSettings);
        const int status = Save("NIEUWSTAD", call);
        const std::string table = Bytes("p.nst");
        EXPECT_TRUE(table == newTable || (status == killed && table == oldTable)) << call;
        // Each value is a file of its own time: some may be new already, and none is lost.
        const std::string settings = Bytes("instellingen.reg");
        EXPECT_EQ(lines(settings), lines(newSettings)) << call;
        EXPECT_TRUE(settings.starts_with(newSettings.substr(0, newSettings.find('\n')))) << call;
        EXPECT_TRUE(settings.ends_with('\n')) << call;
        EXPECT_TRUE(settings == newSettings || status == killed) << call;
        return status;
    });
    EXPECT_GE(calls, 20);
}

}  // namespace

}  // namespace korvande::testing
