#include "cli/Workers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>
#include <vector>

#include "cli/OrderedJobs.h"
#include "cli/OrderedLines.h"
#include "cli/OrderedProblems.h"
#include "cli/Print.h"
#include "cli/Turns.h"

namespace korvande::testing {

namespace {

TEST(Workers, DoEveryJobOnce) {
    for (const std::size_t workers : {1U, 3U, 50U}) {
        std::vector<std::atomic<int>> done(20);
        std::atomic<std::size_t> highest = 0;
        DoJobs(done.size(), workers, [&](std::size_t job, std::size_t worker) {
            ++done[job];
            if (worker > highest) highest = worker;
        });
        for (const std::atomic<int>& times : done) EXPECT_EQ(times, 1);
        EXPECT_LT(highest, workers);
    }
    DoJobs(0, 4, [](std::size_t, std::size_t) { FAIL() << "there is no job"; });
}

TEST(Workers, OneWorkerDoesThemInOrderOnTheThreadThatAsks) {
    std::vector<std::size_t> order;
    DoJobs(5, 1, [&order, here = std::this_thread::get_id()](std::size_t job, std::size_t) {
        EXPECT_EQ(std::this_thread::get_id(), here);
        order.push_back(job);
    });
    EXPECT_EQ(order, (std::vector<std::size_t>{0, 1, 2, 3, 4}));
}

TEST(Workers, WorkAtTheSameTime) {
    // Neither ends before both have begun.
    std::atomic<int> begun = 0;
    DoJobs(2, 2, [&begun](std::size_t, std::size_t) {
        ++begun;
        while (begun < 2) std::this_thread::yield();
    });
    EXPECT_EQ(begun, 2);
}

TEST(Workers, AnErrorThatEscapesAJobEndsTheWorkAndIsThrownWhenAllAreReady) {
    for (const std::size_t workers : {1U, 4U}) {
        std::atomic<int> begun = 0;
        std::atomic<int> ended = 0;
        const auto work = [&](std::size_t job, std::size_t) {
            ++begun;
            if (job == 3) throw std::runtime_error("three");
            // However long the thread that throws is held up, the others are not through them all by then.
            if (job > 3) std::this_thread::sleep_for(std::chrono::milliseconds(1));
            ++ended;
        };
        EXPECT_THROW(DoJobs(100000, workers, work), std::runtime_error);
        EXPECT_EQ(ended, begun - 1);
        EXPECT_LT(begun, 100000);
    }
}

TEST(Workers, WhatTheySayComesInTheOrderOfTheJobs) {
    std::string expected;
    for (int job = 0; job < 30; ++job) expected += std::to_string(job) + " een\n" + std::to_string(job) + " twee\n";
    for (const std::size_t workers : {1U, 4U}) {
        ::testing::internal::CaptureStdout();
        DoInOrder({.jobs = 30, .workers = workers, .progress = u""}, [](std::size_t job, std::size_t, OrderedLines&) {
            // Later jobs are ready first.
            if (job % 4 == 0) std::this_thread::sleep_for(std::chrono::milliseconds(2));
            PrintLine(Concat(job, u" een"));
            PrintLine(Concat(job, u" twee"));
        });
        EXPECT_EQ(::testing::internal::GetCapturedStdout(), expected) << workers;
    }
}

TEST(Workers, ProblemsAddUpInTheOrderOfTheJobs) {
    OrderedProblems problems(3);
    const auto take = [&problems](std::size_t job, ProblemKind kind) {
        Problems some;
        some.errors = 1;
        some.Add({.kind = kind, .object = ObjectKind::Point, .line = 7});
        problems.Take(job, some);
    };
    take(2, ProblemKind::NoReference);
    EXPECT_TRUE(problems.All().Lines(ProblemList::Loss).empty());
    take(0, ProblemKind::NoCoordinates);
    take(1, ProblemKind::NoReference);
    EXPECT_EQ(problems.All().errors, 3);
    const std::vector<Text> lines = problems.All().Lines(ProblemList::Loss);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(ToUtf8(lines[0]), "1 punt zonder coördinaten");
    EXPECT_TRUE(ToUtf8(lines[1]).starts_with("2 ")) << ToUtf8(lines[1]);
}

TEST(Workers, TakeTheirTurnsInTheOrderOfTheJobs) {
    Turns turns(30);
    std::vector<std::size_t> order;
    DoJobs(30, 4, [&turns, &order](std::size_t job, std::size_t) {
        if (job % 5 == 0) std::this_thread::sleep_for(std::chrono::milliseconds(2));
        // Some need none.
        if (job % 3 != 0 && turns.Await(job)) order.push_back(job);
        turns.Pass(job);
    });
    EXPECT_EQ(order.size(), 20U);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST(Workers, GetNoTurnWhenTheWorkIsOver) {
    Turns turns(3);
    std::atomic<int> waited = 0;
    DoJobs(3, 3, [&turns, &waited](std::size_t job, std::size_t) {
        if (job > 0) {
            EXPECT_FALSE(turns.Await(job));
            ++waited;
        } else {
            turns.End();
        }
    });
    EXPECT_EQ(waited, 2);
}

}  // namespace

}  // namespace korvande::testing
