#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

#include "tests/faults/PowerCut.h"
#include "tests/faults/Scenarios.h"

// The power is cut between any two changes that a run makes to files, and what was not flushed is lost, or half there.
namespace korvande::testing {

namespace {

// What a run must leave old or new and whole.
struct CutRun {
    std::string scenario;
    std::vector<std::string> durable;
};
void PrintTo(const CutRun& run, std::ostream* out) { *out << run.scenario; }

class PowerCut : public ::testing::TestWithParam<CutRun> {
 protected:
    // Whether a name is as it was before or as it was to be, and what stays as it is as it was.
    void ExpectOldOrNew(const Files& files, const Disk& disk) const {
        for (const auto& [name, bytes] : scenario.before) {
            const bool isKept = good.after.contains(name) && good.after.at(name) == bytes;
            const auto found = files.find(name);
            EXPECT_TRUE(!isKept || (found != files.end() && found->second == bytes)) << name << " is an input";
        }
        for (const std::string& name : GetParam().durable) {
            const auto found = files.find(name);
            const auto old = scenario.before.find(name);
            if (found == files.end()) {
                EXPECT_TRUE(old == scenario.before.end()) << name << " is gone";
                continue;
            }
            const bool isOld = old != scenario.before.end() && found->second == old->second;
            const auto versions = disk.Versions().find(name);
            const bool isNew = versions != disk.Versions().end() &&
                               std::count(versions->second.begin(), versions->second.end(), found->second) > 0;
            EXPECT_TRUE(isOld || isNew) << name << " holds " << found->second.size() << " bytes";
        }
    }

    const Scenario scenario = ScenarioNamed(GetParam().scenario);
    Bench bench{scenario};
    Trial good = bench.Record();
};

TEST_P(PowerCut, LeavesEachFileOldOrNewAndWhole) {
    ASSERT_LE(good.status, 1) << good.error;
    Disk disk(bench.Folder(), scenario.before, good.numbers);
    std::size_t place = 0;
    std::size_t steps = 0;
    std::size_t states = 0;
    Step step;
    while (NextStep(place, step) && !HasFailure()) {
        disk.Do(step);
        ++steps;
        disk.ForEachState([&](const Files& files) {
            ++states;
            ExpectOldOrNew(files, disk);
        });
    }
    EXPECT_GE(steps, 5U);
    EXPECT_GE(states, 20U);
    for (const std::string& name : GetParam().durable) {
        ASSERT_TRUE(disk.Versions().contains(name)) << name << " is not written beside its place";
        EXPECT_EQ(disk.Versions().at(name).back(), good.after.at(name));
    }
    // A run that has ended has its files on the disk.
    disk.ForEachState([&](const Files& files) {
        for (const std::string& name : GetParam().durable) {
            EXPECT_TRUE(files.contains(name) && files.at(name) == good.after.at(name)) << name << " is lost";
        }
    });
    RecordProperty("steps", std::to_string(steps));
    RecordProperty("states", std::to_string(states));
}

INSTANTIATE_TEST_SUITE_P(Of, PowerCut,
                         ::testing::Values(CutRun{"idex_to_nen1878", {"uit.sfn"}}, CutRun{"idex_to_suf2", {"uit.sf2"}},
                                           CutRun{"nen1878_to_idex", {"uit.idx"}}, CutRun{"suf2_to_idex", {"uit.idx"}},
                                           CutRun{"batch", {"uit/a.sfn", "uit/b.sfn"}}, CutRun{"draw_svg", {"uit.svg"}},
                                           CutRun{"draw_png", {"uit.png"}}, CutRun{"geopackage", {"uit.gpkg"}},
                                           CutRun{"new_project", {"nieuw.nst"}},
                                           CutRun{"window_saves", {"projecten/P.NST", "register.reg"}},
                                           CutRun{"window_translates", {"uit.sfn", "projecten/P.NST", "register.reg"}}),
                         [](const auto& run) { return run.param.scenario; });

}  // namespace

}  // namespace korvande::testing
