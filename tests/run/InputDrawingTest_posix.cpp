#include <fcntl.h>
#include <pthread.h>
#include <signal.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include "run/InputDrawing.h"
#include "tests/run/RunTest.h"
#include "tests/run/SampleRun.h"
#include "tests/support/NamedPipe_posix.h"

namespace korvande::testing {

namespace {

TEST(PosixInputDrawing, ThatComesThroughAPipeIsReadOnceAndKept) {
    SilentScreen screen;
    const TestFolder folder;
    // More than a pipe holds at a time.
    const std::string bytes = SampleBytes("straat.idx") + std::string(200'000, ' ');
    NamedPipe pipe(folder.Path() + "/pijp");
    std::thread writer([&pipe, &bytes] {
        pipe.Feed(bytes);
        pipe.End();
    });
    const FoundInput found = LookAtInput(screen, folder / "pijp");
    writer.join();
    ASSERT_TRUE(found.input);
    EXPECT_EQ(found.input->format, Format::Idex);
    EXPECT_EQ(found.input->bytes, bytes);
}

// Counts how often events could run.
class WaitingScreen : public SilentScreen {
 public:
    void PumpEvents() override { ++pumps; }
    std::atomic<int> pumps{0};
};

TEST(PosixInputDrawing, ThatASignalInterruptsIsWaitedForOnce) {
    struct sigaction before = {};
    struct sigaction noticing = {};
    noticing.sa_handler = [](int) {};
    ASSERT_EQ(::sigaction(SIGUSR1, &noticing, &before), 0);
    WaitingScreen screen;
    const TestFolder folder;
    const std::string bytes = SampleBytes("straat.idx");
    const std::size_t half = bytes.size() / 2;
    NamedPipe pipe(folder.Path() + "/pijp");
    std::thread writer([&pipe, &bytes, &screen, half, reader = ::pthread_self()] {
        pipe.Feed(bytes.substr(0, half));
        for (int i = 0; i < 10000 && screen.pumps == 0; ++i) {
            ::pthread_kill(reader, SIGUSR1);
            ::usleep(1000);
        }
        pipe.Feed(bytes.substr(half));
        pipe.End();
    });
    const FoundInput found = LookAtInput(screen, folder / "pijp");
    writer.join();
    ::sigaction(SIGUSR1, &before, nullptr);
    EXPECT_GT(screen.pumps, 0);
    ASSERT_TRUE(found.input);
    EXPECT_EQ(found.input->bytes, bytes);
}

TEST(PosixInputDrawing, ThatCannotBeReadToItsEndIsTold) {
    // A terminal whose other side goes.
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_GE(terminal, 0);
    ASSERT_EQ(::grantpt(terminal), 0);
    ASSERT_EQ(::unlockpt(terminal), 0);
    const std::string name = ::ptsname(terminal);
    SilentScreen screen;
    std::thread otherSide([terminal, &name] {
        // Until it is open on this side too.
        const std::filesystem::path descriptors = "/proc/self/fd";
        const auto isOpen = [&descriptors, &name] {
            for (const auto& entry : std::filesystem::directory_iterator(descriptors)) {
                std::error_code gone;
                if (std::filesystem::read_symlink(entry, gone) == name) return true;
            }
            return false;
        };
        for (int i = 0; i < 10000 && !isOpen(); ++i) ::usleep(1000);
        ::close(terminal);
    });
    const FoundInput found = LookAtInput(screen, FromUtf8(name));
    otherSide.join();
    EXPECT_FALSE(found.input);
    EXPECT_EQ(ToUtf8(found.whyNot),
              "Kon bestand: '" + name + "' niet openen;\nFoutcode: 75\nFout bij toegang tot pad of bestand");
}

class PosixTranslateFiles : public RunTest {};

TEST_F(PosixTranslateFiles, ALogBookThatIsGoneBeforeItsLastErrorLeavesTheMessage) {
    // Takes the places of the output and of the log book while both are written.
    class TakingScreen : public RecordingScreen {
     public:
        explicit TakingScreen(std::string path) : place(std::move(path)) {}
        void ShowStatus(TextView) override {
            std::filesystem::create_directory(place + "/uit.idx");
            std::filesystem::remove(place + "/test.log");
            std::filesystem::create_directory(place + "/test.log");
        }
        std::string place;
    };
    TranslateFiles(BeginInMemory(idexToNen, OnePoint()));
    TakingScreen taking(folder.Path());
    Translation translation(taking, project);
    translation.mode = nenToIdex;
    translation.SufNenFileName = folder.Write("in", last->outputBytes);
    translation.IdexFileName = folder / "uit.idx";
    translation.LogFileName = logName;
    translation.withDiagnosticFiles = false;
    EXPECT_TRUE(TranslateFiles(translation));
    EXPECT_TRUE(translation.outcome.outputFailed);
    ASSERT_EQ(taking.messages.size(), 1U);
    EXPECT_TRUE(taking.messages[0].ends_with("/uit.idx' niet opslaan;\nFoutcode: 75")) << taking.messages[0];
}

}  // namespace

}  // namespace korvande::testing
