#include "cli/Arguments.h"
#include "cli/Translate.h"
#include "tests/cli/BatchTest.h"

// A whole batch in this process, for the sanitizer that watches what threads share.
namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

class BatchThreads : public BatchTest {
 protected:
    BatchThreads() {
        Write("t.nst", smallTable);
        for (int i = 0; i < 38; ++i) Write("in/a" + std::to_string(i) + ".idx", IdexWithCode("C" + std::to_string(i)));
        Write("in/b.idx", BrokenIdex());
        Write("in/c.idx", IdexPoints(3000));
    }

    // What a batch leaves behind, with what it prints under names that no file has.
    std::map<std::string, std::string> Left(const std::string& workers) {
        fs::remove_all(Path("uit"));
        TranslateOptions options;
        options.mode = "idex-nen1878";
        options.project = folder.Path() + "/t.nst";
        options.outputFolder = folder.Path() + "/uit";
        options.batch.atATime = workers;
        options.files = {folder.Path() + "/in"};
        ::testing::internal::CaptureStdout();
        ::testing::internal::CaptureStderr();
        EXPECT_EQ(korvande::Translate(options), status::withErrors);
        auto left = Tree("uit");
        left["/output"] = ::testing::internal::GetCapturedStdout();
        left["/error"] = ::testing::internal::GetCapturedStderr();
        return left;
    }

    EnvironmentValue moment{"SOURCE_DATE_EPOCH", "0"};
};

TEST_F(BatchThreads, FourWorkersLeaveOfFortyJobsWhatOneDoes) {
    const auto one = Left("1");
    EXPECT_EQ(one.size(), 82U);
    EXPECT_TRUE(Has(one.at("/error"), "Alles samen: 40 bestanden, waarvan 40 vertaald\n")) << one.at("/error");
    const auto four = Left("4");
    EXPECT_EQ(four.at("/output"), one.at("/output"));
    EXPECT_EQ(four.at("/error"), one.at("/error"));
    EXPECT_TRUE(four == one);
}

}  // namespace

}  // namespace korvande::testing
