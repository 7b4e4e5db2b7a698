#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>
#include <string_view>
#include <vector>

#include "tests/faults/Judgement.h"
#include "tests/faults/Scenarios.h"

// Each request that a run makes of the system goes wrong once, in every manner; the run ends in order, keeps what it
// may not touch, and tells why.
namespace korvande::testing {

namespace {

struct Way {
    Operation operation;
    Manner manner;
    int error;
    const char* name;
};

constexpr std::array ways = {
    Way{Operation::Memory, Manner::Fails, ENOMEM, "no memory once"},
    Way{Operation::Memory, Manner::FailsFromHereOn, ENOMEM, "no more memory"},
    Way{Operation::Open, Manner::Fails, EACCES, "no access"},
    Way{Operation::Open, Manner::Fails, EIO, "open fails"},
    Way{Operation::Open, Manner::IsInterrupted, EINTR, "open interrupted"},
    Way{Operation::Create, Manner::Fails, EACCES, "may not be made"},
    Way{Operation::Create, Manner::Fails, ENOSPC, "no room for a new file"},
    Way{Operation::Create, Manner::Fails, EIO, "making fails"},
    Way{Operation::Create, Manner::IsInterrupted, EINTR, "making interrupted"},
    Way{Operation::Read, Manner::Fails, EIO, "read fails"},
    Way{Operation::Read, Manner::FailsFromHereOn, EIO, "reads fail from here"},
    Way{Operation::Read, Manner::IsInterrupted, EINTR, "read interrupted"},
    Way{Operation::Read, Manner::IsShort, 0, "short read"},
    Way{Operation::Write, Manner::Fails, ENOSPC, "disk full once"},
    Way{Operation::Write, Manner::FailsFromHereOn, ENOSPC, "disk full"},
    Way{Operation::Write, Manner::Fails, EIO, "write fails"},
    Way{Operation::Write, Manner::IsInterrupted, EINTR, "write interrupted"},
    Way{Operation::Write, Manner::IsShort, 0, "short write"},
    Way{Operation::Resize, Manner::Fails, ENOSPC, "no room to grow"},
    Way{Operation::Resize, Manner::Fails, EIO, "resize fails"},
    Way{Operation::Flush, Manner::Fails, EIO, "flush fails"},
    Way{Operation::Flush, Manner::Fails, ENOSPC, "disk full at a flush"},
    Way{Operation::Flush, Manner::IsInterrupted, EINTR, "flush interrupted"},
    Way{Operation::Close, Manner::Fails, EIO, "close fails"},
    Way{Operation::Close, Manner::Fails, ENOSPC, "disk full at a close"},
    Way{Operation::Close, Manner::IsInterrupted, EINTR, "close interrupted"},
    Way{Operation::Rename, Manner::Fails, EACCES, "may not be renamed"},
    Way{Operation::Rename, Manner::Fails, EIO, "rename fails"},
    Way{Operation::Rename, Manner::Fails, ENOSPC, "no room for a name"},
    Way{Operation::Remove, Manner::Fails, EACCES, "may not be removed"},
    Way{Operation::Remove, Manner::Fails, EIO, "remove fails"},
    Way{Operation::Look, Manner::Fails, EACCES, "may not be looked at"},
    Way{Operation::Look, Manner::Fails, EIO, "look fails"},
    Way{Operation::List, Manner::Fails, EIO, "folder cannot be listed"},
    Way{Operation::Rights, Manner::Fails, EPERM, "rights are refused"},
    Way{Operation::Rights, Manner::Fails, EIO, "setting rights fails"},
};

struct Planned {
    const Way* way;
    std::int64_t number;
};

std::vector<Planned> AllOf(const Requests& requests, bool triesMemory) {
    std::vector<Planned> all;
    for (const Way& way : ways) {
        if (way.operation == Operation::Memory && !triesMemory) continue;
        const std::int64_t count = requests.counts[static_cast<std::size_t>(way.operation)];
        for (std::int64_t number = 1; number <= count; ++number) all.push_back({&way, number});
    }
    return all;
}

// In the ordinary tests some of them: with a step that depends on how many there are, from a place that differs from
// one scenario to another.
std::vector<Planned> Some(const std::vector<Planned>& all, const std::string& name, std::size_t most) {
    const std::size_t step = std::max<std::size_t>(1, (all.size() + most - 1) / most);
    std::vector<Planned> some;
    for (std::size_t i = std::hash<std::string>()(name) % step; i < all.size(); i += step) some.push_back(all[i]);
    return some;
}

std::size_t MostRuns(const std::string& scenario) {
    const std::size_t usual = scenario.starts_with("golden_") ? 10 : 40;
    const char* const number = std::getenv("KORVANDE_FAULTS");
    if (number == nullptr) return usual;
    return std::string_view(number) == "all" ? static_cast<std::size_t>(-1) / 2 : std::strtoul(number, nullptr, 10);
}

// A row of the table that scripts/faults shows.
void WriteRow(const std::string& name, std::size_t requests, std::size_t runs, std::size_t failures) {
    const char* const table = std::getenv("KORVANDE_FAULTS_TABLE");
    if (table == nullptr) return;
    std::ofstream(table, std::ios::app) << name << '\t' << requests << '\t' << runs << '\t' << failures << '\n';
}

class EveryFault : public ::testing::TestWithParam<std::string> {};

TEST_P(EveryFault, IsSurvivedAndTold) {
    const Scenario scenario = ScenarioNamed(GetParam());
    Bench bench(scenario);
    const Trial good = bench.Try();
    ASSERT_LE(good.status, 3) << good.error;
    std::size_t requests = 0;
    for (const std::int64_t count : good.requests.counts) requests += static_cast<std::size_t>(count);
    ASSERT_GT(requests, 0U) << "nothing was counted";
    const std::vector<Planned> planned =
        Some(AllOf(good.requests, scenario.triesMemory), scenario.name, MostRuns(scenario.name));
    std::map<std::string, std::vector<std::string>> complaints;  // by what they have in common
    std::size_t failures = 0;
    for (const auto& [way, number] : planned) {
        const Fault fault{way->operation, number, way->manner, way->error};
        const Trial trial = bench.Try(fault);
        const std::string complaint = FaultOf(scenario, good, fault, trial);
        if (complaint.empty()) continue;
        ++failures;
        complaints[std::string(way->name) + ": " + complaint].push_back(
            std::to_string(number) + " " + trial.requests.place + " status " + std::to_string(trial.status) + "\n" +
            trial.error);
    }
    for (const auto& [complaint, places] : complaints) {
        ADD_FAILURE() << complaint << ", " << places.size() << " times, first at " << places.front();
    }
    WriteRow(scenario.name, requests, planned.size(), failures);
}

INSTANTIATE_TEST_SUITE_P(Of, EveryFault, ::testing::ValuesIn(ScenarioNames()),
                         [](const auto& scenario) { return scenario.param; });

}  // namespace

}  // namespace korvande::testing
