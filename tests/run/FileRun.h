#pragma once

#include <string>

#include "host/modFileHandling.h"
#include "run/TranslateFiles.h"
#include "tests/support/ProgramState.h"

namespace korvande::testing {

// Modes by their place in the mode list.
inline constexpr int idexToNen = 0;
inline constexpr int idexToSuf = 1;
inline constexpr int nenToIdex = 2;
inline constexpr int sufToIdex = 3;

// Whole runs over files, without a front end. After each of them the account must balance.
class FileRunTest : public ProgramTest {
 protected:
    void Translate(int mode, const Text& input, const Text& output) {
        const bool isFromIdex = mode == idexToNen || mode == idexToSuf;
        RunValues& run = TheRun();
        frmKORVANDE().cboXlateMode.index = mode;
        run.XlateDirection = isFromIdex ? fromIdex : toIdex;
        run.IdexFileName = isFromIdex ? input : output;
        run.SufNenFileName = isFromIdex ? output : input;
        run.LogFileName = logName;
        run.withDiagnosticFiles = false;
        // A file that is not there yet costs the disk less than one that is emptied.
        if (IsRegularFileOrMissing(output)) DeleteFileAt(output);
        DeleteFileAt(logName);
        SaveGridData();
        EXPECT_TRUE(TranslateFiles());
        EXPECT_TRUE(TheAccount().Balances()) << ToUtf8(input) << " in mode " << mode << "\n"
                                             << ToUtf8(TheAccount().Summary());
    }
};

}  // namespace korvande::testing
