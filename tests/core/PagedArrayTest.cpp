#include "core/PagedArray.h"

#include <gtest/gtest.h>

#include <vector>

#include "core/FixedText.h"
#include "tests/core/ErrorOf.h"

namespace korvande::testing {

namespace {

struct Record {
    std::int32_t number;
    FixedText<7> code;
};

TEST(Memory, ABlockThatIsExpectedToBeFilledKeepsItsBytes) {
    // Of no whole page, of one, and across several, at any place.
    for (const std::size_t size : {std::size_t{1}, std::size_t{5000}, std::size_t{100000}}) {
        std::vector<char> block(size, 'x');
        ExpectToFill(block.data() + 1, size - 1);
        EXPECT_EQ(block, std::vector<char>(size, 'x'));
    }
}

TEST(PagedArray, AnEmptyOneHasElementZeroOnly) {
    PagedArray<Record> records;
    EXPECT_EQ(records.UpperBound(), 0);
    EXPECT_EQ(records[0].number, 0);
    EXPECT_TRUE(records[0].code.NeverFilled());
}

TEST(PagedArray, AnAppendedElementStandsBehindTheLast) {
    PagedArray<Record> records;
    records.Append().number = 11;
    records.Append().number = 12;
    EXPECT_EQ(records.UpperBound(), 2);
    EXPECT_EQ(records[1].number, 11);
    EXPECT_EQ(records[2].number, 12);
}

TEST(PagedArray, GrowingKeepsEveryAddressAndValue) {
    PagedArray<Record> records;
    constexpr int count = 100'000;  // many pages
    std::vector<const Record*> addresses;
    for (int i = 1; i <= count; ++i) {
        Record& record = records.Append();
        record.number = i;
        addresses.push_back(&record);
    }
    records.GrowTo(3 * count);
    for (int i = 1; i <= count; ++i) {
        ASSERT_EQ(&records[i], addresses[static_cast<std::size_t>(i - 1)]) << i;
        ASSERT_EQ(records[i].number, i);
    }
}

TEST(PagedArray, GrowingLeavesElementsInBetweenNeverFilled) {
    PagedArray<Record> records;
    for (const int number : {1, 2, 7}) {
        records.GrowTo(number);
        records[number].code = u"A";
    }
    EXPECT_EQ(records.UpperBound(), 7);
    for (int i = 3; i <= 6; ++i) {
        EXPECT_TRUE(records[i].code.NeverFilled()) << i;
        EXPECT_EQ(records[i].number, 0);
    }
}

TEST(PagedArray, GrowingToASmallerBoundChangesNothing) {
    PagedArray<Record> records;
    records.GrowTo(5);
    records[5].number = 55;
    records.GrowTo(2);
    EXPECT_EQ(records.UpperBound(), 5);
    EXPECT_EQ(records[5].number, 55);
}

TEST(PagedArray, WhatWasCutOffIsZeroedWhenItComesBack) {
    PagedArray<Record> records;
    for (int i = 1; i <= 50'000; ++i) records.Append().number = i;
    records.CutTo(3);
    EXPECT_EQ(records.UpperBound(), 3);
    records.GrowTo(50'000);
    EXPECT_EQ(records[3].number, 3);
    for (int i = 4; i <= 50'000; ++i) ASSERT_EQ(records[i].number, 0) << i;
}

TEST(PagedArray, CuttingAboveTheBoundChangesNothing) {
    PagedArray<Record> records;
    records.Append().number = 1;
    records.CutTo(10);
    EXPECT_EQ(records.UpperBound(), 1);
    EXPECT_EQ(records[1].number, 1);
}

TEST(PagedArray, ResettingEmptiesElementZeroToo) {
    PagedArray<Record> records;
    records[0].number = 99;
    for (int i = 1; i <= 50'000; ++i) records.Append().number = i;
    records.Reset();
    EXPECT_EQ(records.UpperBound(), 0);
    EXPECT_EQ(records[0].number, 0);
    records.GrowTo(50'000);
    for (int i = 1; i <= 50'000; ++i) ASSERT_EQ(records[i].number, 0) << i;
}

TEST(PagedArray, AnIndexOutsideTheArrayIsError9) {
    PagedArray<Record> records;
    records.Append().number = 5;
    EXPECT_EQ(records.At(1).number, 5);
    EXPECT_EQ(records.At(0).number, 0);
    EXPECT_EQ(ErrorOf([&] { records.At(2); }), 9);
    EXPECT_EQ(ErrorOf([&] { records.At(-1); }), 9);
}

TEST(PagedArray, ARecordLargerThanAPageGetsPagesOfItsOwn) {
    struct Large {
        std::array<char, 600'000> bytes;
    };
    PagedArray<Large> records;
    records.GrowTo(3);
    for (int i = 0; i <= 3; ++i) records[i].bytes.fill(static_cast<char>('a' + i));
    for (int i = 0; i <= 3; ++i) EXPECT_EQ(records[i].bytes.back(), 'a' + i);
}

}  // namespace

}  // namespace korvande::testing
