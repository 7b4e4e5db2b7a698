#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "project/ControlTableReader.h"
#include "run/TranslateFiles.h"
#include "tests/support/GuardedBytes.h"
#include "tests/support/TestFiles.h"
#include "translation/Translation.h"

// Readers look at many bytes at a time, and never at one behind the last of the file.
namespace korvande::testing {

namespace {

constexpr Mode modes[]{
    {Direction::FromIdex, Variant::Nen1878}, {Direction::ToIdex, Variant::Nen1878}, {Direction::ToIdex, Variant::Suf2}};

// Every file that the tests and the samples translate, and what the fuzzers kept, whose names say nothing.
std::vector<std::string> Inputs() {
    std::vector<std::string> inputs;
    for (const char* const folder :
         {"samples", "tests/golden", "tests/problems", "tests/fuzz/corpus/idex", "tests/fuzz/corpus/exchange"}) {
        for (const auto& entry :
             std::filesystem::directory_iterator(std::filesystem::path(KORVANDE_SOURCE_DIR) / folder)) {
            const std::string extension = entry.path().extension().string();
            const bool isDrawing =
                extension.empty() || extension == ".idx" || extension == ".sfn" || extension == ".sf2";
            if (isDrawing && entry.is_regular_file()) inputs.push_back(FileBytes(FromUtf8(entry.path().string())));
        }
    }
    return inputs;
}

// What a translation makes of these bytes: its output and its problems.
std::string Translated(const Project& project, Mode mode, std::string_view bytes) {
    SilentScreen screen;
    Translation translation(screen, project);
    translation.mode = mode;
    translation.modeText = NamesOf(mode).text;
    translation.inputBytes = bytes;
    translation.outputTo = OutputTo::Memory;
    translation.withDiagnosticFiles = false;
    std::string problems;
    translation.problems.onProblem = [&](const Problem& problem) { problems += ToUtf8(Sentence(problem)) + "\n"; };
    TranslateFiles(translation);
    return translation.outputBytes + problems;
}

TEST(PageEnd, NoInputIsReadBeyondItsLastByte) {
    Project project;
    LoadEmptyProject(project);
    project.options.chkExportUnknowns = project.options.chkImportUnknowns = true;
    const std::vector<std::string> inputs = Inputs();
    ASSERT_GT(inputs.size(), 300U);
    GuardedBytes room(std::size_t{1} << 20);
    std::mt19937 random(1878);
    for (const std::string& input : inputs) {
        for (int cut = 0; cut < 4; ++cut) {
            // Whole, and three times ended somewhere.
            const std::size_t size = cut == 0 ? input.size() : random() % (input.size() + 1);
            const std::string_view bytes = std::string_view(input).substr(0, size);
            // Followed by what would continue a number, a field and a line.
            const std::string continued = std::string(bytes) + "7777777777777777777777777777777777777777";
            for (const Mode mode : modes) {
                ASSERT_EQ(Translated(project, mode, room.AtEnd(bytes)),
                          Translated(project, mode, std::string_view(continued).substr(0, size)));
            }
        }
    }
}

}  // namespace

}  // namespace korvande::testing
