#include <fcntl.h>
#include <unistd.h>

#include "tests/support/TranslationState.h"
#include "translation/Files.h"

namespace korvande::testing {
namespace {

class PosixFiles : public TranslationTest {};

// The system gives the lowest number that is free.
int NextDescriptor() {
    const int next = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    ::close(next);
    return next;
}

TEST_F(PosixFiles, AReadThatFailsHalfWayMarksTheOutcomeAndTellsFromWhere) {
    const Text name = folder.Write("in.idx", "een\n" + std::string(4'000'000, 'x'));
    const int itsDescriptor = NextDescriptor();
    LineReader file;
    ASSERT_TRUE(OpenInput(translation, file, name));
    std::string_view line;
    ASSERT_TRUE(NextLine(translation, file, line));
    // What it reads from can be read no longer.
    const int writeOnly = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    ASSERT_EQ(::dup2(writeOnly, itsDescriptor), itsDescriptor);
    ::close(writeOnly);
    EXPECT_THROW(ReadInput(translation, file, [&] { NextLine(translation, file, line); }), RuntimeError);
    EXPECT_TRUE(translation.outcome.inputUnreadable);
    ASSERT_EQ(translation.problems.Counts(ProblemList::Loss).size(), 1U);
    EXPECT_EQ(translation.problems.Counts(ProblemList::Loss)[0].kind, ProblemKind::RestNotRead);
    EXPECT_EQ(translation.problems.Counts(ProblemList::Loss)[0].firstLine, 1);
}

}  // namespace
}  // namespace korvande::testing
