#pragma once

#include <cstdint>
#include <optional>

#include "core/Clock.h"
#include "core/LineWriter.h"
#include "core/Text.h"

// The values of a translation run that its readers and writers share.
namespace korvande {

inline constexpr std::int16_t toIdex = 1;    // from NEN1878/SUF2 to IDEX
inline constexpr std::int16_t fromIdex = 2;  // from IDEX to NEN1878/SUF2

// What a run came to, beside what its log book says.
struct RunOutcome {
    bool inputUnreadable = false;  // missing, or it could not be opened or read to its end
    bool wrongFormat = false;      // no header of the format
    bool outputFailed = false;     // it could not be opened, or not written to its end
    bool logBookFailed = false;    // it could not be opened
    bool cancelled = false;        // a person ended the run

    bool Failed() const noexcept {
        return inputUnreadable || wrongFormat || outputFailed || logBookFailed || cancelled;
    }
};

struct RunValues {
    Text IdexFileName;
    Text SufNenFileName;
    Text LogFileName;
    std::int16_t XlateDirection = 0;
    bool NenMode = true;    // the NEN1878/SUF2 file is NEN1878: the reader's variant
    bool ExportNen = true;  // the writer produces NEN1878

    // Where the output's bytes go when that is not its own name (a front end that renames the finished file).
    Text temporaryOutput;

    // Whether the diagnostic files of an IDEX read are written.
    bool withDiagnosticFiles = true;

    // From the header of a NEN1878/SUF2 file.
    Text ProjectName;
    std::optional<DateTime> ProjectDate;

    // The output file; the import opens it and the IDEX writer goes on with it.
    LineWriter output;

    RunOutcome outcome;
};

RunValues& TheRun() noexcept;

// Opens the output under its name, or under the temporary one when there is one. A run-time error when that fails.
void OpenOutput(TextView name);

// The line of the input that is being read, for error messages; 0 when none is.
std::int64_t& CurrentInputLine() noexcept;

// A name less its last three characters, with these behind it. It does not look for a dot.
Text WithLastThreeReplaced(TextView name, TextView extension);

}  // namespace korvande
