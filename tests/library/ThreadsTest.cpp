#include <thread>
#include <vector>

#include "tests/library/LibraryTest.h"

namespace korvande::testing {

namespace {

using LibraryThreadsTest = LibraryTest;

TEST_F(LibraryThreadsTest, FourHandlesAtWorkAtTheSameTimeGiveTheGoldenDrawings) {
    constexpr std::size_t threadCount = 4;
    constexpr std::size_t runs = 20;
    std::vector<std::vector<int>> statuses(threadCount);
    const auto nameOf = [](std::size_t thread, std::size_t run) {
        return std::to_string(thread) + "-" + std::to_string(run) + ".uit";
    };
    const auto caseOf = [](std::size_t thread, std::size_t run) -> const SampleCase& {
        return sampleCases[(thread + run) % sampleCases.size()];
    };
    std::vector<std::thread> threads;
    for (std::size_t thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([&, thread] {
            const OpenTable table;
            for (std::size_t run = 0; run < runs; ++run) {
                statuses[thread].push_back(Translate(table, caseOf(thread, run), nameOf(thread, run)));
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    for (std::size_t thread = 0; thread < threadCount; ++thread) {
        ASSERT_EQ(statuses[thread].size(), runs);
        for (std::size_t run = 0; run < runs; ++run) {
            const SampleCase& sample = caseOf(thread, run);
            EXPECT_LE(statuses[thread][run], KORVANDE_WITH_ERRORS) << sample.golden;
            EXPECT_TRUE(Bytes(nameOf(thread, run)) == GoldenResult(sample).output) << sample.golden;
        }
    }
}

TEST_F(LibraryThreadsTest, AHandleThatIsAtWorkRefusesAnotherThread) {
    const OpenTable table;
    korvande_callbacks callbacks = KORVANDE_CALLBACKS_NONE;
    struct Told {
        const OpenTable* table;
        int statuses[2];
    } told = {&table, {-1, -1}};
    callbacks.context = &told;
    callbacks.should_cancel = [](void* context) {
        Told& its = *static_cast<Told*>(context);
        std::thread other([&its] {
            its.statuses[0] = korvande_check(its.table->Handle(), "weg.idx", nullptr, nullptr);
            its.statuses[1] =
                korvande_translate(its.table->Handle(), "idex-suf2", "weg.idx", nullptr, nullptr, nullptr, nullptr);
            korvande_close(its.table->Handle());
        });
        other.join();
        return 0;
    };
    EXPECT_EQ(Translate(table, sampleCases[0], "uit.sfn", &callbacks), KORVANDE_DONE);
    EXPECT_EQ(told.statuses[0], KORVANDE_WRONG_USE);
    EXPECT_EQ(told.statuses[1], KORVANDE_WRONG_USE);
    EXPECT_TRUE(Bytes("uit.sfn") == GoldenResult(sampleCases[0]).output);
}

}  // namespace

}  // namespace korvande::testing
