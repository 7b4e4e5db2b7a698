#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "tests/support/RunProgram.h"
#include "tests/support/TestFiles.h"
#include "translation/ProblemSentences.h"

// Each kind of problem that is told at the end of a run has a minimal input in tests/problems, translated with the
// control table there: what the console program says and what its log book says stand in the file `verwacht` of the
// same name, to the byte. A file `opties` holds further options.
namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

const fs::path& Folder() {
    static const fs::path folder = fs::path(KORVANDE_SOURCE_DIR) / "tests" / "problems";
    return folder;
}

std::string BytesOf(const fs::path& path) {
    return fs::exists(path) ? FileBytes(FromUtf8(path.generic_string())) : std::string();
}

bool IsInput(const fs::path& file) { return file.extension() == ".idx" || file.extension() == ".sfn"; }

std::vector<fs::path> Inputs() {
    std::vector<fs::path> inputs;
    for (const auto& entry : fs::directory_iterator(Folder())) {
        if (IsInput(entry.path())) inputs.push_back(entry.path());
    }
    std::sort(inputs.begin(), inputs.end());
    return inputs;
}

// What a translation of an input says: its status, its standard error and its log book.
std::string Told(const fs::path& input) {
    const TestFolder folder;
    const fs::path place(folder.Path());
    for (const fs::path& file : {input, Folder() / "tabel.nst"}) fs::copy_file(file, place / file.filename());
    const bool isIdex = input.extension() == ".idx";
    Start start;
    start.program = KORVANDE_CLI;
    start.folder = folder.Path();
    start.environment = {{"SOURCE_DATE_EPOCH", "1717198200"}, {"TZ", "UTC"}};
    start.arguments = {"vertaal", "--project", "tabel.nst", "--modus", isIdex ? "idex-nen1878" : "nen1878-idex"};
    std::istringstream options(BytesOf(fs::path(input).replace_extension(".opties")));
    for (std::string word; options >> word;) start.arguments.push_back(word);
    start.arguments.push_back(input.filename().string());
    start.arguments.push_back(isIdex ? "uit.sfn" : "uit.idx");
    start.arguments.insert(start.arguments.end() - 2, {"--logboek", "uit.LOG"});
    const ProgramResult result = RunProgram(start);
    std::string log = Windows1252ToUtf8(BytesOf(place / "uit.LOG"));
    std::erase(log, '\r');
    std::string error = result.error;
    std::erase(error, '\r');
    return "Afsluitstatus: " + std::to_string(result.status) + "\n\nStandaardfout:\n" + error + "\nLogboek:\n" + log;
}

class ProblemKinds : public ::testing::TestWithParam<fs::path> {};

TEST_P(ProblemKinds, IsToldAsExpected) {
    const fs::path expected = fs::path(GetParam()).replace_extension(".verwacht");
    const std::string told = Told(GetParam());
    if (const char* const renew = std::getenv("KORVANDE_RENEW_GOLDEN"); renew != nullptr && *renew == '1') {
        std::ofstream(expected, std::ios::binary) << told;
        FAIL() << expected << " was written anew";
    }
    EXPECT_EQ(told, BytesOf(expected));
}

// The sentence of the kind that the file is called after, up to the first thing that varies, with its count of one.
std::string BeginningOf(TextView sentence) {
    std::string text = ToUtf8(sentence);
    if (text.starts_with("{n} ")) text.erase(0, 4);
    if (text.starts_with("{wat} ")) text.erase(0, 6);
    return text.substr(0, text.find('{'));
}

TEST_P(ProblemKinds, IsToldByTheSentenceOfItsKind) {
    const std::string name = GetParam().stem().string();
    const std::string expected = BytesOf(fs::path(GetParam()).replace_extension(".verwacht"));
    bool isKind = false;
    for (int i = 0; i < problemKinds; ++i) {
        const auto kind = static_cast<ProblemKind>(i);
        if (SentenceOf(kind).name != name) continue;
        isKind = true;
        const KindSentence& sentence = SentenceOf(kind);
        const bool isThere = expected.find(BeginningOf(sentence.one)) != std::string::npos ||
                             expected.find(BeginningOf(sentence.many)) != std::string::npos;
        EXPECT_TRUE(isThere) << BeginningOf(sentence.one);
        const bool hasBlock = expected.find("\nObjectbalans:\n") != std::string::npos;
        EXPECT_TRUE(sentence.list != ProblemList::Loss || hasBlock);
        EXPECT_TRUE(!sentence.isDamage || expected.starts_with("Afsluitstatus: 1\n")) << expected;
    }
    EXPECT_TRUE(isKind) << "no kind of problem";
}

INSTANTIATE_TEST_SUITE_P(Inputs, ProblemKinds, ::testing::ValuesIn(Inputs()),
                         [](const auto& input) { return input.param.stem().string(); });

TEST(ProblemKinds, EachHasAMinimalInput) {
    for (int i = 0; i < problemKinds; ++i) {
        const auto kind = static_cast<ProblemKind>(i);
        // Errors are lines of the golden files' log books; only the end of a run leaves objects unfinished, and no file
        // brings a character into a control table that Windows-1252 lacks.
        if (ListOf(kind) == ProblemList::Errors) continue;
        if (kind == ProblemKind::Unfinished || kind == ProblemKind::CharacterNotWritten) continue;
        const std::string name(SentenceOf(kind).name);
        EXPECT_TRUE(fs::exists(Folder() / (name + ".idx")) || fs::exists(Folder() / (name + ".sfn"))) << name;
    }
}

}  // namespace

}  // namespace korvande::testing
