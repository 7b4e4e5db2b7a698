#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <functional>

#include "tests/cli/CliTest.h"
#include "tests/faults/Judgement.h"
#include "tests/faults/Scenarios.h"

// What single requests that fail did before they were heeded, each by its name.
namespace korvande::testing {

namespace {

class NamedFault : public ::testing::Test {
 protected:
    // Has requests of a kind go wrong in turn, each `step`-th from `first` on.
    void ForEach(const Fault& kind, std::int64_t first, std::int64_t step,
                 const std::function<void(const Trial&)>& look) {
        const std::int64_t count = good.requests.counts[static_cast<std::size_t>(kind.operation)];
        ASSERT_GE(count, first);
        for (std::int64_t number = first; number <= count; number += step) {
            Fault fault = kind;
            fault.number = number;
            look(bench.Try(fault));
        }
    }

    void Use(const std::string& name) { Use(ScenarioNamed(name)); }
    void Use(const Scenario& newScenario) {
        scenario = newScenario;
        bench.Take(scenario);
        good = bench.Try();
    }
    std::int64_t MemoryRequests() const { return good.requests.counts[static_cast<std::size_t>(Operation::Memory)]; }

    Scenario scenario = ScenarioNamed("idex_to_nen1878");
    Bench bench{scenario};
    Trial good = bench.Try();
};

TEST_F(NamedFault, AnInterruptedRequestIsMadeAgain) {
    for (const Operation operation : {Operation::Open, Operation::Create, Operation::Read, Operation::Close}) {
        ForEach({operation, 0, Manner::IsInterrupted, EINTR}, 1, 1, [this](const Trial& trial) {
            EXPECT_EQ(trial.status, 0) << trial.requests.place << trial.error;
            EXPECT_TRUE(trial.after == good.after) << trial.requests.place;
        });
    }
}

TEST_F(NamedFault, WhatIsNotKnownOfAnOutputIsNoReasonToWriteItInPlace) {
    const auto isReplaced = [this](const Trial& trial) {
        if (trial.after.at("uit.sfn") == "van gisteren") return;
        struct stat status {};
        ASSERT_EQ(::stat((bench.Folder() + "/uit.sfn").c_str(), &status), 0);
        EXPECT_FALSE(trial.numbers.contains(status.st_ino)) << "it was written where it stands";
    };
    ForEach({Operation::Look, 0, Manner::Fails, EIO}, 1, 1, isReplaced);
    ForEach({Operation::Memory, 0, Manner::Fails, ENOMEM}, 1300, 5, isReplaced);
}

TEST_F(NamedFault, AReadThatFailsBehindTheLastLineTellsItsOwnCause) {
    Use("nen1878_to_idex");
    ForEach({Operation::Read, 0, Manner::Fails, EIO}, 1, 1, [](const Trial& trial) {
        if (trial.status == 0) return;
        const std::string log = trial.after.contains("uit.LOG") ? trial.after.at("uit.LOG") : "";
        EXPECT_NE((trial.error + log).find("Fout bij toegang tot pad of bestand"), std::string::npos)
            << trial.error << log;
    });
}

TEST_F(NamedFault, AFolderOfProjectsThatCannotBeListedGetsNoEmptyProject) {
    Use("window_translates");
    ForEach({Operation::List, 0, Manner::Fails, EIO}, 1, 1, [](const Trial& trial) {
        EXPECT_FALSE(trial.after.contains("projecten/Leeg Project.nst")) << trial.requests.place;
    });
}

TEST_F(NamedFault, AGeoPackageThatCannotBeLookedAtTellsTheSystemsOwnError) {
    Use("geopackage");
    ForEach({Operation::Look, 0, Manner::Fails, EIO}, 1, 1, [](const Trial& trial) {
        EXPECT_EQ(trial.error.find("Toegang geweigerd"), std::string::npos) << trial.requests.place << trial.error;
    });
}

TEST_F(NamedFault, AnOutputThatCannotTakeItsPlaceSaysWhy) {
    ForEach({Operation::Rename, 0, Manner::Fails, ENOSPC}, 1, 1, [](const Trial& trial) {
        EXPECT_EQ(trial.status, 3);
        EXPECT_NE(trial.error.find("Kon bestand: 'uit.sfn' niet opslaan;\nFoutcode: 61\n"), std::string::npos);
        EXPECT_NE(trial.after.at("uit.LOG").find("FOUT:  Kon bestand: 'uit.sfn' niet opslaan; Foutcode: 61"),
                  std::string::npos);
    });
}

TEST_F(NamedFault, ARefusalThatThereIsNoMemoryForEndsInOrder) {
    Use({"refusal", {{"a.idx", smallIdex}, {"uit.gpkg", "bewaren"}}, ConsoleRun({"geopackage", "a.idx", "uit.gpkg"})});
    ASSERT_EQ(good.status, 2) << good.error;
    ForEach({Operation::Memory, 0, Manner::FailsFromHereOn, ENOMEM}, MemoryRequests() - 40, 1, [](const Trial& trial) {
        EXPECT_TRUE(trial.status == 2 || trial.status == 3) << trial.status;
        EXPECT_EQ(trial.after.at("uit.gpkg"), "bewaren");
    });
}

TEST_F(NamedFault, AnUnfinishedGeoPackageGoesWithoutMemoryToFindItAgain) {
    Use("geopackage");
    ForEach({Operation::Memory, 0, Manner::FailsFromHereOn, ENOMEM}, 1300, 13,
            [this](const Trial& trial) { EXPECT_EQ(trial.after.size(), good.after.size()) << trial.error; });
}

TEST_F(NamedFault, AKeyOfTheSettingsIsClosedWithoutMemory) {
    Use("window_saves");
    ForEach({Operation::Memory, 0, Manner::FailsFromHereOn, ENOMEM}, MemoryRequests() - 1000, 7,
            [](const Trial& trial) { EXPECT_LE(trial.status, 3) << trial.error; });
}

}  // namespace

}  // namespace korvande::testing
