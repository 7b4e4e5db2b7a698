#pragma once

#include <gtest/gtest.h>

#include "core/modKORVANDE.h"
#include "project/CodeTables.h"
#include "project/OwnerRecord.h"
#include "project/frmKORVANDE.h"
#include "run/LogBook.h"
#include "run/ObjectAccount.h"
#include "run/RunValues.h"
#include "tests/support/RecordingScreen.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

// A test that begins with the program as it starts: an empty drawing, the reset project in tables and grids, no run.
class ProgramTest : public ::testing::Test {
 protected:
    ProgramTest() {
        ResetDrawing();
        TheDrawing().LayerNames.clear();
        TheDrawing().DrawingName.clear();
        InitialiseForm();
        LoadGridData();
        TheRun() = {};
        CurrentInputLine() = 0;
        LogFile() = LogBook();
        TheAccount() = {};
    }

    // The lines that the log book holds so far, in UTF-8 and separated by line feeds.
    void OpenLog() { LogFile().Open(logName); }
    std::string LogText() {
        if (LogFile().IsOpen()) LogFile().Close();
        std::string text = Windows1252ToUtf8(FileBytes(logName));
        std::erase(text, '\r');
        return text;
    }

    TestFolder folder;
    RecordingScreen screen;
    Text logName = folder / "test.log";
};

}  // namespace korvande::testing
