#include <filesystem>
#include <thread>
#include <vector>

#include "host/modFileHandling.h"
#include "project/ControlTable.h"
#include "tests/run/SampleRun.h"

// Translations on several threads at the same time know nothing of each other.
namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

// A folder that is the current one as long as this object lives, with the samples in it.
class SamplesFolder {
 public:
    SamplesFolder() {
        fs::create_directory(fs::path(folder.Path()) / "samples");
        for (const char* const name : {"straat.idx", "straat.sfn", "straat.sf2", "voorbeeld.nst"}) {
            folder.Write(std::string("samples/") + name, SampleBytes(name));
        }
        fs::current_path(folder.Path());
    }
    SamplesFolder(const SamplesFolder&) = delete;
    SamplesFolder& operator=(const SamplesFolder&) = delete;
    ~SamplesFolder() { fs::current_path(before); }

 private:
    fs::path before = fs::current_path();
    TestFolder folder;
};

class ThreadsTest : public ::testing::Test {
 protected:
    // A whole run as a front end makes it, from the control table on. The mark tells its files from those of others.
    static RunResult Run(const SampleCase& sample, const std::string& mark, bool toMemory) {
        SilentScreen screen;
        Project project;
        LoadProjectFile(screen, project, u"samples/voorbeeld.nst");
        Translation translation(screen, project);
        TakeSample(sample, translation);
        translation.LogFileName = FromUtf8(mark + ".log");
        if (toMemory) {
            translation.outputTo = OutputTo::Memory;
        } else {
            translation.temporaryOutput = FromUtf8(mark + ".tmp");
        }
        TranslateFiles(translation);
        return {toMemory ? translation.outputBytes : FileBytes(translation.temporaryOutput),
                FileBytes(translation.LogFileName)};
    }

    // On its way from file to file a name is looked up in another case, for which the folder is searched.
    static bool IsFoundInAnyCase(const std::string& mark) { return FileExistsAt(ToCapitals(FromUtf8(mark + ".log"))); }

    EnvironmentValue moment{"SOURCE_DATE_EPOCH", goldenMoment};
    EnvironmentValue locale{"LC_ALL", "C"};
    SamplesFolder samples;
};

TEST_F(ThreadsTest, EachOfFourModesGivesItsGoldenFilesAlone) {
    for (const SampleCase& sample : sampleCases) {
        const RunResult golden = GoldenResult(sample);
        EXPECT_GT(golden.output.size(), 1000U);
        EXPECT_GT(golden.log.size(), 500U);
        for (const bool toMemory : {false, true}) {
            const RunResult result = Run(sample, sample.golden, toMemory);
            EXPECT_EQ(result.log, golden.log) << sample.golden;
            EXPECT_TRUE(result.output == golden.output) << sample.golden;
        }
    }
}

TEST_F(ThreadsTest, EachOfFourModesGivesItsGoldenFilesWhileOthersRun) {
    constexpr std::size_t threadCount = 2;
    constexpr std::size_t rounds = 6;
    constexpr std::size_t runs = rounds * sampleCases.size();
    // One thread goes through the modes forwards, the other backwards, so that every mode meets others.
    const auto caseOf = [](std::size_t thread, std::size_t run) {
        const std::size_t place = run % sampleCases.size();
        return thread == 0 ? place : sampleCases.size() - 1 - place;
    };
    std::vector<std::vector<RunResult>> results(threadCount, std::vector<RunResult>(runs));
    std::vector<std::size_t> found(threadCount);
    const auto work = [&](std::size_t thread) {
        for (std::size_t run = 0; run < runs; ++run) {
            const std::string mark = std::to_string(thread) + "-" + std::to_string(run) + "x";
            results[thread][run] = Run(sampleCases[caseOf(thread, run)], mark, run / sampleCases.size() % 2 == 0);
            found[thread] += IsFoundInAnyCase(mark) ? 1 : 0;
        }
    };
    std::vector<std::thread> threads;
    for (std::size_t thread = 0; thread < threadCount; ++thread) threads.emplace_back(work, thread);
    for (std::thread& thread : threads) thread.join();
    for (std::size_t thread = 0; thread < threadCount; ++thread) {
        EXPECT_EQ(found[thread], runs);
        for (std::size_t run = 0; run < runs; ++run) {
            const SampleCase& sample = sampleCases[caseOf(thread, run)];
            const RunResult golden = GoldenResult(sample);
            EXPECT_EQ(results[thread][run].log, golden.log) << sample.golden << " on thread " << thread;
            EXPECT_TRUE(results[thread][run].output == golden.output) << sample.golden << " on thread " << thread;
        }
    }
}

}  // namespace

}  // namespace korvande::testing
