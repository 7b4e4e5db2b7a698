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
