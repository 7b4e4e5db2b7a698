#pragma once

#include "core/LineReader.h"
#include "core/RuntimeError.h"
#include "translation/Translation.h"

// The input and the output of a translation: files, or memory in their place.
namespace korvande {

// Shows that a file of the run could not be opened ("Error:", number, description, name) and logs it.
void ReportOpenFailure(Translation& translation, TextView name, const RuntimeError& error);

// Opens the input, which has this name when it is a file, and begins its progress, counted in the units of ReadUnits.
// When that fails a message and the log book tell so, the outcome is marked, and the result is false.
bool OpenInput(Translation& translation, LineReader& file, TextView name);

// Runs a reader over an open input. A read that fails marks the outcome; the error goes on to the caller.
template <class Reader>
void ReadInput(Translation& translation, const LineReader& file, Reader reader) {
    try {
        reader();
    } catch (const std::exception&) {
        if (file.HasFailed()) translation.outcome.inputUnreadable = true;
        throw;
    }
}

// Opens the output: beside its place when the run puts it there, else under the name that a front end gave, or under
// its own; or in memory. When that fails the outcome is marked, and the error goes on to the caller.
void OpenOutput(Translation& translation, TextView name);

}  // namespace korvande
