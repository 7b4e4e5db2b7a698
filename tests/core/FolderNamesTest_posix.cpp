#include "core/FolderNames.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include "core/CaseVariants.h"
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

// A folder whose list of names takes more than the spellings of a short name are worth.
class FolderOfThousands : public FolderNamesTest {
 protected:
    FolderOfThousands() {
        const std::string longName(200, 'x');
        for (int i = 0; i < 1000; ++i) folder.Write(longName + std::to_string(i), "");
        SetFolderTime(longAgo);
    }
};

TEST_F(FolderOfThousands, ANameIsFoundInAnySpelling) {
    for (const char* const name : {"b7.IDX", "B8.idx", "b8.idx", "b8.iDx"}) folder.Write(name, "");
    SetFolderTime(longAgo);
    EXPECT_EQ(Find("B7.idx"), "b7.IDX");
    EXPECT_EQ(Find("B8.IDX"), "B8.idx");
    EXPECT_EQ(Find("b9.idx"), "");
    EXPECT_EQ(Find(std::string(200, 'X') + "7"), std::string(200, 'x') + "7");
    EXPECT_EQ(Find("B8.IDX"), "B8.idx") << "after all of it was read";
}

TEST_F(FolderOfThousands, IsNotReadForAFewShortNames) {
    struct stat status {};
    ASSERT_EQ(::stat(folder.Path().c_str(), &status), 0);
    if (status.st_size < 65536) GTEST_SKIP() << "a file system whose folders do not tell how large they are";
    EXPECT_EQ(Find("a1.idx"), "");
    folder.Write("A1.idx", "");
    folder.Write("A2.idx", "");
    SetFolderTime(longAgo);
    EXPECT_EQ(Find("a2.idx"), "A2.idx") << "it was read";
    EXPECT_EQ(Find("a1.idx"), "") << "it was asked again";
}

TEST_F(FolderOfThousands, OwnChangesAreKnownOfWhatItWasAskedFor) {
    folder.Write("A1.IDX", "");
    folder.Write("A1.idx", "");
    SetFolderTime(longAgo);
    EXPECT_EQ(Find("a1.idx"), "A1.IDX");
    {
        const OwnChange change(folder.Path() + "/A1.IDX");
        ASSERT_EQ(std::remove((folder.Path() + "/A1.IDX").c_str()), 0);
    }
    EXPECT_EQ(Find("a1.idx"), "A1.idx");
    {
        const OwnChange change(folder.Path() + "/a2.idx");
        folder.Write("a2.idx", "");
        folder.Write("A2.idx", "");
    }
    EXPECT_EQ(Find("A2.IDX"), "A2.idx") << "more spellings than its own are there";
}

TEST_F(FolderOfThousands, AnswersForManyNamesAsIfItWereRead) {
    for (int i = 0; i < 300; i += 2) folder.Write("K" + std::to_string(i) + ".Sfn", "");
    SetFolderTime(longAgo);
    for (int i = 0; i < 300; ++i) {
        const std::string number = std::to_string(i);
        EXPECT_EQ(Find("k" + number + ".sfn"), i % 2 == 0 ? "K" + number + ".Sfn" : "");
    }
}

TEST(CaseVariants, AreCountedForShortAsciiNamesOnly) {
    EXPECT_EQ(CaseVariantCount("1234.5"), 1U);
    EXPECT_EQ(CaseVariantCount("f17.idx"), 16U);
    EXPECT_EQ(CaseVariantCount("abcdefghijkl"), 4096U);
    EXPECT_EQ(CaseVariantCount("abcdefghijklm"), 0U);
    EXPECT_EQ(CaseVariantCount("caf\u00E9.idx"), 0U);
    EXPECT_EQ(CaseVariantCount(std::string_view("a\0b", 3)), 0U);
}

TEST(CaseVariants, OfAFolderThatIsNotThereAreNotKnown) {
    std::vector<std::string> found;
    EXPECT_FALSE(TryCaseVariants("/no/such/folder/", "a.idx", found));
}

TEST(CaseVariants, OfANameTooLongAreNotKnown) {
    const TestFolder folder;
    std::vector<std::string> found;
    EXPECT_FALSE(TryCaseVariants(folder.Path() + "/", "a" + std::string(300, '1'), found));
}

}  // namespace

}  // namespace korvande::testing
