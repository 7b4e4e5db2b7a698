#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cstdlib>

#include "core/FixedText.h"
#include "core/PagedArray.h"
#include "tests/core/ErrorOf.h"

namespace korvande::testing {

namespace {

struct Record {
    std::int32_t number;
    FixedText<7> code;
};

// The address sanitizer ends the process itself when memory runs out.
#ifndef __SANITIZE_ADDRESS__

// Runs in a child process, whose memory ends 200 MB above what it uses now.
void GrowUntilMemoryEnds() {
    PagedArray<Record> records;
    records.Append().number = 7;
    const rlimit limit{200'000'000, 200'000'000};
    if (::setrlimit(RLIMIT_DATA, &limit) != 0) std::_Exit(2);
    const int error = ErrorOf([&] { records.GrowTo(2'000'000'000); });
    std::_Exit(error == errors::outOfMemory && records.UpperBound() == 1 && records[1].number == 7 ? 0 : 1);
}

TEST(PagedArray, RunningOutOfMemoryIsError7AndLeavesTheArrayAsItWas) {
    EXPECT_EXIT(GrowUntilMemoryEnds(), ::testing::ExitedWithCode(0), "");
}

#endif

}  // namespace

}  // namespace korvande::testing
