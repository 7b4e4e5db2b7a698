#pragma once

#include <string>

#include "host/modFileHandling.h"
#include "tests/run/RunTest.h"

namespace korvande::testing {

inline constexpr Mode allModes[] = {idexToNen, idexToSuf, nenToIdex, sufToIdex};

// Whole runs without a front end. After each of them the account must balance.
class FileRunTest : public RunTest {
 protected:
    // From file to file.
    Translation& Translate(Mode mode, const Text& from, const Text& to) {
        // A file that is not there yet costs the disk less than one that is emptied.
        if (IsRegularFileOrMissing(to)) DeleteFileAt(to);
        return Run(Begin(mode, from, to));
    }

    // From bytes to bytes.
    Translation& TranslateBytes(Mode mode, std::string_view bytes) { return Run(BeginInMemory(mode, bytes)); }

    // Loads the control table that the random drawings have their codes of.
    void LoadTable(std::string_view bytes) { LoadProjectBytes(screen, project, bytes); }

 private:
    Translation& Run(Translation& translation) const {
        DeleteFileAt(logName);
        EXPECT_TRUE(TranslateFiles(translation));
        EXPECT_TRUE(translation.account.Balances())
            << ToUtf8(translation.modeText) << " of " << ToUtf8(InputName(translation)) << "\n"
            << ToUtf8(translation.account.Summary());
        return translation;
    }
};

}  // namespace korvande::testing
