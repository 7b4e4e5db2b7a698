#pragma once

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "tests/run/RunTest.h"

namespace korvande::testing {

// A translation of a sample that was checked by hand: its input in samples/, its output, and the folder in tests/golden
// that holds the output and the log book.
struct SampleCase {
    Mode mode;
    const char* input = nullptr;
    const char* output = nullptr;
    const char* golden = nullptr;
};
inline constexpr std::array<SampleCase, 4> sampleCases = {{
    {idexToNen, "straat.idx", "straat.sfn", "sample_idex_to_nen1878"},
    {idexToSuf, "straat.idx", "straat.sf2", "sample_idex_to_suf2"},
    {nenToIdex, "straat.sfn", "straat.idx", "sample_nen1878_to_idex"},
    {sufToIdex, "straat.sf2", "straat.idx", "sample_suf2_to_idex"},
}};

// What a run came to.
struct RunResult {
    std::string output;
    std::string log;

    friend bool operator==(const RunResult&, const RunResult&) = default;
};

inline std::string SampleBytes(const std::string& name) {
    return FileBytes(FromUtf8(KORVANDE_SOURCE_DIR "/samples/" + name));
}

inline RunResult GoldenResult(const SampleCase& sample) {
    const std::string folder = std::string(KORVANDE_SOURCE_DIR "/tests/golden/") + sample.golden + "/verwacht/";
    return {FileBytes(FromUtf8(folder + sample.output)), FileBytes(FromUtf8(folder + "straat.LOG"))};
}

// The names by which the log book calls the files.
inline void TakeSample(const SampleCase& sample, Translation& translation) {
    const Text input = FromUtf8(std::string("samples/") + sample.input);
    const Text output = FromUtf8(sample.output);
    const bool isFromIdex = sample.mode.direction == Direction::FromIdex;
    translation.mode = sample.mode;
    translation.modeText = NamesOf(sample.mode).text;
    translation.IdexFileName = isFromIdex ? input : output;
    translation.SufNenFileName = isFromIdex ? output : input;
    translation.withDiagnosticFiles = false;
}

// The moment of the golden files.
inline constexpr const char* goldenMoment = "1717198200";

}  // namespace korvande::testing
