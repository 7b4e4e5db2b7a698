#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "tests/support/RecordingScreen.h"
#include "tests/support/TestFiles.h"
#include "translation/Translation.h"

namespace korvande::testing {

// A test with a translation of its own, which begins with the settings of a project after a reset.
class TranslationTest : public ::testing::Test {
 protected:
    // The lines that the log book holds so far, in UTF-8 and separated by line feeds.
    void OpenLog() { translation.log.Open(logName); }
    std::string LogText() {
        if (translation.log.IsOpen()) translation.log.Close();
        std::string text = Windows1252ToUtf8(FileBytes(logName));
        std::erase(text, '\r');
        return text;
    }

    TestFolder folder;
    RecordingScreen screen;
    Translation translation{screen};
    Text logName = folder / "test.log";
};

}  // namespace korvande::testing
