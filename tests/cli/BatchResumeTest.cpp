#include "tests/cli/BatchTest.h"

namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

// Goes on with a batch of "a.idx", "b.idx" and "c.idx", of which the last is no drawing.
class BatchResume : public BatchTest, public ::testing::WithParamInterface<const char*> {
 protected:
    BatchResume() {
        Write("t.nst", smallTable);
        Write("in/a.idx", smallIdex);
        Write("in/b.idx", IdexWithCode("ANDERS"));
        Write("c.idx", "geen tekening");
        for (const char* const name : {"t.nst", "in/a.idx", "in/b.idx", "c.idx"}) Age(name);
        EXPECT_EQ(Go({}).status, 1);
        full = Tree("uit");
    }

    void Age(const std::string& name) const {
        fs::last_write_time(Path(name), fs::last_write_time(Path(name)) - std::chrono::hours(1));
    }

    ProgramResult Go(std::vector<std::string> arguments) {
        arguments.insert(arguments.end(), {"--project", "t.nst", "--verslag", GetParam(), "in/", "c.idx"});
        return TranslateAll(arguments);
    }

    // Which of the inputs are translated anew.
    std::string Redone(std::vector<std::string> options = {}) {
        options.emplace_back("--hervat");
        const ProgramResult result = Go(options);
        EXPECT_EQ(result.status, 1) << result.error;
        std::string names;
        for (const char* const name : {"a", "b", "c"}) {
            const bool isTold = Has(result.output + result.error, std::string(name) + ".idx is niet vertaald") ||
                                Has(result.output, "uit/" + std::string(name) + ".sfn: ");
            if (isTold) names += name;
        }
        const std::size_t skipped = 3 - names.size();
        const std::string words = ", " + std::to_string(skipped) + " eerder vertaald, 1 niet vertaald\n";
        EXPECT_TRUE(Has(result.error, skipped > 0 ? words : "waarvan 2 vertaald, 1 niet vertaald\n")) << result.error;
        return names;
    }

    std::map<std::string, std::string> full;
};

TEST_P(BatchResume, PassesOverWhatIsDoneAndTranslatesWhatFailed) {
    const auto before = fs::last_write_time(Path("uit/a.sfn"));
    EXPECT_EQ(Redone(), "c");
    EXPECT_EQ(fs::last_write_time(Path("uit/a.sfn")), before);
    EXPECT_EQ(Redone(), "c");  // by the report of a batch that passed over it
    EXPECT_TRUE(Tree("uit") == full);
}

TEST_P(BatchResume, TranslatesWhatChangedSince) {
    // An hour ago, when the output was an hour old; some systems tell times in whole seconds.
    Write("in/b.idx", smallIdex);
    Age("in/b.idx");
    for (int hours = 0; hours < 2; ++hours) Age("uit/b.sfn");
    EXPECT_EQ(Redone(), "bc");
    EXPECT_EQ(Bytes("uit/b.sfn"), Bytes("uit/a.sfn"));
    EXPECT_EQ(Redone(), "c");
}

TEST_P(BatchResume, TranslatesAllWithAControlTableThatChangedSince) {
    Write("t.nst", smallTable);
    EXPECT_EQ(Redone(), "abc");
}

TEST_P(BatchResume, TranslatesAllWithOtherOptions) {
    EXPECT_EQ(Redone({"--onbekend", "ja"}), "abc");
    EXPECT_EQ(Redone({"--onbekend", "ja"}), "c");
    EXPECT_EQ(Redone({"--onbekend", "ja", "--zonder-nullen"}), "abc");
    EXPECT_EQ(Redone({"--onbekend", "ja", "--zonder-nullen", "--geen-logboek"}), "abc");
    EXPECT_EQ(Redone(), "abc");
}

TEST_P(BatchResume, TranslatesWhatAnotherVersionDid) {
    // The mark of options and version stands last in a row.
    std::string report = Bytes(GetParam());
    const std::size_t row = report.find("in/b.idx");
    const bool isTable = std::string(GetParam()) == "v.csv";
    const std::size_t end = isTable ? report.find("\r\n", row) : report.find("\"\n", row);
    report[end - 1] = report[end - 1] == '0' ? '1' : '0';
    Write(GetParam(), report);
    EXPECT_EQ(Redone(), "bc");
}

TEST_P(BatchResume, TranslatesWhatIsGone) {
    fs::remove(Path("uit/a.sfn"));
    EXPECT_EQ(Redone(), "ac");
    fs::remove(Path("uit/b.LOG"));
    EXPECT_EQ(Redone(), "bc");
    EXPECT_TRUE(Tree("uit") == full);
    fs::remove(Path(GetParam()));
    EXPECT_EQ(Redone(), "abc");
}

TEST_P(BatchResume, RefusesAReportThatIsNone) {
    Write(GetParam(), "Geachte heer,\r\n");
    ExpectRefused(
        {"vertaal", "--modus", "idex-nen1878", "--uitvoermap", "uit/", "--verslag", GetParam(), "--hervat", "in/"},
        "Dit bestand is geen verslag van vertaal: " + std::string(GetParam()));
    EXPECT_EQ(Bytes(GetParam()), "Geachte heer,\r\n");
}

INSTANTIATE_TEST_SUITE_P(Reports, BatchResume, ::testing::Values("v.csv", "v.json"));

}  // namespace

}  // namespace korvande::testing
