#include <array>
#include <memory>
#include <utility>
#include <vector>

#include "idex/modExportIDEX.h"
#include "idex/modImportIDEX.h"
#include "nensuf/modExportSUFNEN.h"
#include "nensuf/modImportSUFNEN.h"
#include "tests/run/SampleRun.h"

// Translations with other options, tables and drawings, alive at the same time, each as if it were alone.
namespace korvande::testing {

namespace {

// A translation with what it needs, from bytes to bytes; its log book stands in the folder.
struct Work {
    Work(const TestFolder& folder, const std::string& name, Mode mode, std::string drawing, const char* table,
         bool isRich)
        : input(std::move(drawing)) {
        LoadProjectBytes(screen, project, FileBytes(FromUtf8(std::string(KORVANDE_SOURCE_DIR "/") + table)));
        Options& options = project.options;
        options.chkExportUnknowns = options.chkImportUnknowns = isRich;
        options.chkExport3D = options.chkExportPointnoAsField = options.chkExportHeightAsText = isRich;
        options.txtEleTxtLKI = u"Z31";
        options.chkExportSymRotation = options.chkImportSymRotation = isRich;
        options.chkSelectXY = !isRich;
        options.txtMaxX = isRich ? u"999999" : u"121050";
        if (isRich) SetDateOption(options, &Options::optDateNow, true);
        project.owner.NameLong = isRich ? u"IEMAND ANDERS" : u"BUREAU";
        translation = std::make_unique<Translation>(screen, project);
        translation->mode = mode;
        translation->modeText = NamesOf(mode).text;
        translation->inputBytes = input;
        translation->outputTo = OutputTo::Memory;
        translation->withDiagnosticFiles = false;
        translation->log.Open(logName = folder / (name + ".log"));
    }

    bool IsFromIdex() const { return translation->mode.direction == Direction::FromIdex; }
    void Read() const { (IsFromIdex() ? ReadIdexFile : ImportNenSuf)(*translation); }
    void Write() const { (IsFromIdex() ? ExportSufNen : WriteIdexFile)(*translation); }

    RunResult Result() const {
        if (translation->output.IsOpen()) translation->output.Close();
        translation->log.Close();
        return {translation->outputBytes, FileBytes(logName)};
    }

    RecordingScreen screen;
    std::string input;
    Project project;
    Text logName;
    std::unique_ptr<Translation> translation;
};

class Translations : public ::testing::Test {
 protected:
    // Translations that differ in everything.
    struct Kind {
        Mode mode;
        const char* sample = nullptr;
        const char* table = nullptr;
        bool isRich = false;
    };
    static constexpr std::array<Kind, 6> kinds = {{
        {idexToNen, "straat.idx", "samples/voorbeeld.nst", true},
        {idexToSuf, "straat.idx", "tests/golden/klein.nst", false},
        {nenToIdex, "straat.sfn", "tests/golden/klein.nst", true},
        {sufToIdex, "straat.sf2", "samples/voorbeeld.nst", false},
        {idexToNen, "straat.idx", "tests/golden/klein.nst", false},
        {nenToIdex, "straat.sfn", "samples/voorbeeld.nst", false},
    }};

    std::unique_ptr<Work> Begin(std::size_t i, const std::string& name) const {
        const Kind& kind = kinds[i];
        return std::make_unique<Work>(folder, name + std::to_string(i), kind.mode, SampleBytes(kind.sample), kind.table,
                                      kind.isRich);
    }

    // All of them, alive at once.
    std::vector<std::unique_ptr<Work>> BeginAll(const std::string& name) const {
        std::vector<std::unique_ptr<Work>> works;
        for (std::size_t i = 0; i < kinds.size(); ++i) works.push_back(Begin(i, name));
        return works;
    }

    std::vector<RunResult> Alone() const {
        std::vector<RunResult> results;
        for (std::size_t i = 0; i < kinds.size(); ++i) {
            const auto work = Begin(i, "alone");
            work->Read();
            work->Write();
            results.push_back(work->Result());
        }
        return results;
    }

    EnvironmentValue moment{"SOURCE_DATE_EPOCH", goldenMoment};
    TestFolder folder;
};

TEST_F(Translations, EachOfThemGivesSomethingElse) {
    const std::vector<RunResult> results = Alone();
    for (std::size_t i = 0; i < results.size(); ++i) {
        EXPECT_GT(results[i].output.size(), 200U) << i;
        for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(results[i].output == results[j].output) << i << " and " << j;
    }
}

TEST_F(Translations, RunInTurnsEachGivesWhatItGivesAlone) {
    const std::vector<RunResult> alone = Alone();
    const auto works = BeginAll("b");
    for (const auto& work : works) work->Read();
    for (auto work = works.rbegin(); work != works.rend(); ++work) (*work)->Write();
    for (std::size_t i = 0; i < works.size(); ++i) {
        const RunResult result = works[i]->Result();
        EXPECT_EQ(result.log, alone[i].log) << i;
        EXPECT_TRUE(result.output == alone[i].output) << i;
    }
}

TEST_F(Translations, OneMayRunWhileAnotherLetsEventsRun) {
    const std::vector<RunResult> alone = Alone();
    const auto outer = BeginAll("outer");
    const auto inner = BeginAll("inner");
    std::size_t innerRuns = 0;
    for (std::size_t i = 0; i < outer.size(); ++i) {
        // When its reading begins, another one runs from its beginning to its end.
        Work& other = *inner[(i + 1) % inner.size()];
        bool isDone = false;
        outer[i]->screen.onPump = [&] {
            if (std::exchange(isDone, true)) return;
            ++innerRuns;
            other.Read();
            other.Write();
        };
        outer[i]->Read();
        outer[i]->Write();
    }
    EXPECT_EQ(innerRuns, outer.size());
    for (std::size_t i = 0; i < outer.size(); ++i) {
        EXPECT_TRUE(outer[i]->Result() == alone[i]) << i;
        EXPECT_TRUE(inner[i]->Result() == alone[i]) << i;
    }
}

TEST_F(Translations, NothingOfOneIsSeenInAnother) {
    const auto works = BeginAll("c");
    Work& first = *works[0];
    const Work& second = *works[1];
    first.Read();
    first.Write();
    EXPECT_GT(first.translation->drawing.Points.UpperBound(), 0);
    EXPECT_FALSE(first.translation->unknowns.Entries().empty());
    EXPECT_EQ(second.translation->drawing.Points.UpperBound(), 0);
    EXPECT_TRUE(second.translation->unknowns.Entries().empty());
    EXPECT_EQ(second.translation->account[ObjectKind::Point].read, 0);
    for (const CodeRow& row : second.translation->codes.points.rows) EXPECT_EQ(row.Count, 0);
    for (const CodeRow& row : first.project.codes.points.rows) EXPECT_EQ(row.Count, 0) << "nor in its own project";
    EXPECT_TRUE(second.screen.maxima.empty());
}

}  // namespace

}  // namespace korvande::testing
