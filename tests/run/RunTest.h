#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "project/ControlTable.h"
#include "run/TranslateFiles.h"
#include "tests/support/RecordingScreen.h"
#include "tests/support/TestFiles.h"
#include "translation/Translation.h"

namespace korvande::testing {

inline constexpr Mode idexToNen{Direction::FromIdex, Variant::Nen1878};
inline constexpr Mode idexToSuf{Direction::FromIdex, Variant::Suf2};
inline constexpr Mode nenToIdex{Direction::ToIdex, Variant::Nen1878};
inline constexpr Mode sufToIdex{Direction::ToIdex, Variant::Suf2};

// What every test of a run needs: a project, a folder, a screen and a fixed moment.
class RunTest : public ::testing::Test {
 protected:
    RunTest() { ResetProject(project); }

    // A translation between these files, which are there only when it reads and writes files. Its log book stands in
    // the folder.
    Translation& Begin(Mode mode, const Text& from = {}, const Text& to = {}) {
        const bool isFromIdex = mode.direction == Direction::FromIdex;
        Translation& translation = last.emplace(screen, project);
        translation.mode = mode;
        translation.modeText = NamesOf(mode).text;
        translation.IdexFileName = isFromIdex ? from : to;
        translation.SufNenFileName = isFromIdex ? to : from;
        translation.LogFileName = logName;
        translation.withDiagnosticFiles = false;
        return translation;
    }

    // The same from bytes to bytes.
    Translation& BeginInMemory(Mode mode, std::string_view bytes) {
        input = std::string(bytes);  // which may be those of the translation before
        Translation& translation = Begin(mode);
        translation.inputBytes = input;
        translation.outputTo = OutputTo::Memory;
        return translation;
    }

    // The lines of the log book, in UTF-8 and separated by line feeds.
    std::string LogText() const {
        std::string text = Windows1252ToUtf8(FileBytes(logName));
        std::erase(text, '\r');
        return text;
    }

    // A drawing of one point with the code BOOM.
    static std::string OnePoint() {
        return WithCrLf(
            "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"A\";\nEND LAYERS\nDATABASE\n"
            "POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n"
            "1,\"P1\",121000.5,487000.25,1.5,\"BOOM\",\"\",0;\nEND POINTS\nEND DATABASE\n");
    }

    EnvironmentValue moment{"SOURCE_DATE_EPOCH", "1795230000"};  // 21-11-2026 03:00:00 UTC
    TestFolder folder;
    RecordingScreen screen;
    Project project;
    Options& options = project.options;
    Text logName = folder / "test.log";
    std::string input;
    std::optional<Translation> last;  // that was begun
};

}  // namespace korvande::testing
