#include "core/FolderNames.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdio>
#include <thread>

#include "tests/support/TestFiles.h"

namespace korvande::testing {

namespace {

class FolderNamesTest : public ::testing::Test {
 protected:
    FolderNamesTest() { SetFolderTime(longAgo); }

    std::string Find(std::string_view wanted) const { return FindWithoutCase(folder.Path() + "/", wanted); }

    // Sets when the folder was last changed. Two changes within a few milliseconds may have the same time.
    void SetFolderTime(timespec time) const {
        const timespec times[] = {time, time};
        ASSERT_EQ(::utimensat(AT_FDCWD, folder.Path().c_str(), times, 0), 0);
    }

    static constexpr timespec longAgo = {1'000'000'000, 0};
    TestFolder folder;
};

TEST_F(FolderNamesTest, WhatAnotherProgramDoesIsSeen) {
    EXPECT_EQ(Find("kaart.idx"), "");
    folder.Write("KAART.idx", "");
    EXPECT_EQ(Find("kaart.IDX"), "KAART.idx");
    ASSERT_EQ(std::remove((folder.Path() + "/KAART.idx").c_str()), 0);
    EXPECT_EQ(Find("kaart.idx"), "");
}

TEST_F(FolderNamesTest, AFolderThatHasNotChangedIsNotReadAgainWithinTwoSeconds) {
    EXPECT_EQ(Find("kaart.idx"), "");
    folder.Write("KAART.idx", "");
    SetFolderTime(longAgo);
    EXPECT_EQ(Find("kaart.idx"), "") << "it was read again";
    std::this_thread::sleep_for(std::chrono::milliseconds(2100));
    EXPECT_EQ(Find("kaart.idx"), "KAART.idx");
}

TEST_F(FolderNamesTest, AFolderThatWasChangedJustNowMayChangeAgainUnseenAndIsSoonReadAgain) {
    // Later than any clock, so that it is just now however long this takes.
    constexpr timespec justNow = {10'000'000'000, 0};
    SetFolderTime(justNow);
    EXPECT_EQ(Find("kaart.idx"), "");
    folder.Write("KAART.idx", "");
    SetFolderTime(justNow);
    std::this_thread::sleep_for(std::chrono::milliseconds(150));
    EXPECT_EQ(Find("kaart.idx"), "KAART.idx");
}

TEST_F(FolderNamesTest, AShortRunReadsAFolderOnceThatWasChangedJustNow) {
    constexpr timespec justNow = {10'000'000'000, 0};
    SetFolderTime(justNow);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(Find("kaart.idx"), "");
    folder.Write("KAART.idx", "");
    SetFolderTime(justNow);
    const std::string found = Find("kaart.idx");
    if (std::chrono::steady_clock::now() - begin > std::chrono::milliseconds(90)) GTEST_SKIP() << "a busy machine";
    EXPECT_EQ(found, "") << "it was read again";
}

TEST_F(FolderNamesTest, OfNamesThatDifferInCaseOnlyTheFirstInOrderIsFound) {
    for (const char* const name : {"kaart.IDX", "KAART.idx", "Kaart.idx", "kaart.idx2", "CAF\u00C9.idx"})
        folder.Write(name, "");
    SetFolderTime(longAgo);
    EXPECT_EQ(Find("kaarT.idx"), "KAART.idx");
    EXPECT_EQ(Find("caf\u00E9.IDX"), "CAF\u00C9.idx");
    EXPECT_EQ(Find("caf\u00E8.IDX"), "");
}

TEST_F(FolderNamesTest, OwnChangesAreKnownWithoutReadingAgain) {
    EXPECT_EQ(Find("kaart.idx"), "");
    {
        const OwnChange change(folder.Path() + "/KAART.idx");
        folder.Write("KAART.idx", "");
        folder.Write("ander.idx", "");  // shows that nothing is read again
    }
    EXPECT_EQ(Find("kaart.IDX"), "KAART.idx");
    EXPECT_EQ(Find("ANDER.idx"), "");
    {
        const OwnChange change(folder.Path() + "/KAART.idx");
        ASSERT_EQ(std::remove((folder.Path() + "/KAART.idx").c_str()), 0);
    }
    EXPECT_EQ(Find("kaart.idx"), "");
    EXPECT_EQ(Find("ANDER.idx"), "");
}

TEST_F(FolderNamesTest, AFolderThatIsChangedAllTheTimeByThisProgramIsNotReadAgainForIt) {
    constexpr timespec justNow = {10'000'000'000, 0};
    SetFolderTime(justNow);
    EXPECT_EQ(Find("kaart.idx"), "");
    {
        const OwnChange change(folder.Path() + "/KAART.idx");
        folder.Write("KAART.idx", "");
        SetFolderTime(justNow);
    }
    EXPECT_EQ(Find("kaart.idx"), "KAART.idx");
    folder.Write("ANDER.idx", "");
    SetFolderTime(justNow);
    EXPECT_EQ(Find("ander.idx"), "") << "it was read again";
}

TEST_F(FolderNamesTest, AnOwnChangeAfterOneOfAnotherProgramLeavesNothingUnseen) {
    EXPECT_EQ(Find("kaart.idx"), "");
    folder.Write("ANDER.idx", "");
    {
        const OwnChange change(folder.Path() + "/kaart.idx");
        folder.Write("kaart.idx", "");
    }
    EXPECT_EQ(Find("ander.idx"), "ANDER.idx");
}

TEST_F(FolderNamesTest, AFolderThatIsNotThereHoldsNothingUntilItIs) {
    const std::string later = folder.Path() + "/later/";
    EXPECT_EQ(FindWithoutCase(later, "kaart.idx"), "");
    ASSERT_EQ(::mkdir(later.c_str(), 0700), 0);
    folder.Write("later/KAART.idx", "");
    EXPECT_EQ(FindWithoutCase(later, "kaart.idx"), "KAART.idx");
}

}  // namespace

}  // namespace korvande::testing
