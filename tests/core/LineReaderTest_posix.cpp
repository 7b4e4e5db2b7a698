#include <gtest/gtest.h>
#include <sys/time.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <vector>

#include "core/RuntimeError.h"
#include "tests/core/ErrorOf.h"
#include "tests/core/LineReaderTest.h"
#include "tests/support/RecordingScreen.h"

// Pipes, and signals that interrupt the wait for them.
namespace korvande::testing {

namespace {

TEST(LineReaderOfAPipe, APipeIsReadToItsEnd) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    const std::string_view bytes = "a\r\nb\rc";
    ASSERT_EQ(::write(ends[1], bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    ::close(ends[1]);
    LineReader reader(Concat(u"/dev/fd/", ends[0]));
    ::close(ends[0]);
    EXPECT_EQ(reader.Length(), 0);
    EXPECT_EQ(AllLines(reader), (Lines{"a", "b", "c"}));
    EXPECT_EQ(reader.Position(), 6);
}

// A pipe that nothing is written to, and a signal that comes every 10 ms: the handler counts them and ends the pipe at
// the fifth one.
class InterruptedPipe {
 public:
    InterruptedPipe() {
        if (::pipe(ends.data()) != 0) throw RuntimeError(errors::pathAccess);
        writingEnd = ends[1];
        interrupts = 0;
        struct sigaction action {};
        action.sa_handler = [](int) {
            interrupts = interrupts + 1;
            if (interrupts == 5) ::close(writingEnd);
        };
        ::sigaction(SIGALRM, &action, &previous);
        const itimerval every10ms{{0, 10'000}, {0, 10'000}};
        ::setitimer(ITIMER_REAL, &every10ms, nullptr);
    }
    InterruptedPipe(const InterruptedPipe&) = delete;
    InterruptedPipe& operator=(const InterruptedPipe&) = delete;
    ~InterruptedPipe() {
        const itimerval never{};
        ::setitimer(ITIMER_REAL, &never, nullptr);
        ::sigaction(SIGALRM, &previous, nullptr);
        ::close(ends[0]);
        if (interrupts < 5) ::close(ends[1]);
    }

    Text Name() const { return Concat(u"/dev/fd/", ends[0]); }
    int WritingEnd() const { return ends[1]; }

 private:
    inline static volatile std::sig_atomic_t interrupts = 0;
    inline static volatile std::sig_atomic_t writingEnd = 0;

    std::array<int, 2> ends{};
    struct sigaction previous {};
};

TEST(LineReaderOfAPipe, AnInterruptLetsEventsRunAndTheWaitGoesOn) {
    RecordingScreen screen;
    const InterruptedPipe pipe;
    ASSERT_EQ(::write(pipe.WritingEnd(), "a\nb", 3), 3);
    LineReader reader(pipe.Name(), &screen);
    EXPECT_EQ(AllLines(reader), (Lines{"a", "b"}));
    EXPECT_GT(screen.pumps, 0);
    EXPECT_FALSE(reader.HasFailed());
}

TEST(LineReaderOfAPipe, AnInterruptCanEndTheRun) {
    RecordingScreen screen;
    screen.onPump = [] { throw TranslationAborted(); };
    const InterruptedPipe pipe;
    LineReader reader;
    EXPECT_THROW(reader.Open(pipe.Name(), &screen), TranslationAborted);
    EXPECT_FALSE(reader.IsOpen());
}

TEST(LineReaderOfAPipe, WithoutAScreenTheWaitGoesOnTheSame) {
    const InterruptedPipe pipe;
    ASSERT_EQ(::write(pipe.WritingEnd(), "a\nb", 3), 3);
    LineReader reader(pipe.Name());
    EXPECT_EQ(AllLines(reader), (Lines{"a", "b"}));
    EXPECT_FALSE(reader.HasFailed());
}

TEST(LineReaderOfAPipe, AFileThatCannotBeReadIsNotOpened) {
    LineReader reader;
    EXPECT_FALSE(reader.HasFailed());
    // The memory of a process can be opened, but nothing can be read at its beginning.
    EXPECT_EQ(ErrorOf([&] { reader.Open(u"/proc/self/mem"); }), 75);
    EXPECT_FALSE(reader.IsOpen());
}

}  // namespace

}  // namespace korvande::testing
