#pragma once

#include <cstddef>
#include <exception>
#include <string_view>

#include "core/LineReader.h"
#include "core/RuntimeError.h"
#include "translation/Translation.h"

// The input and the output of a translation: files, or memory in their place.
namespace korvande {

// Shows that a file of the run could not be opened ("Error:", number, description, name) and logs it.
void ReportOpenFailure(Translation& translation, TextView name, const RuntimeError& error);

// Opens the input, which has this name when it is a file, and begins its progress, counted in the units of ReadUnits.
// Its bytes are taken for what the options say; lines of `keptWidth` bytes keep their columns. When it cannot be
// opened, or is of a character set that is not read, a message and the log book tell so, the outcome is marked, and the
// result is false.
bool OpenInput(Translation& translation, LineReader& file, TextView name, std::size_t keptWidth = 0);

// The next line of an open input, which is now the line being read; false at the end of the file. It is progress, and
// characters that it lost are told.
bool NextLine(Translation& translation, LineReader& file, std::string_view& line);

// Tells of an input that was read to its end, or to an error: how its bytes were read, and from where the rest was not.
void TellHowRead(Translation& translation, const LineReader& file, const std::exception* error);

// Runs a reader over an open input, and tells how it was read. A read that fails marks the outcome; the error goes on
// to the caller.
template <class Reader>
void ReadInput(Translation& translation, const LineReader& file, Reader reader) {
    try {
        reader();
    } catch (const std::exception& error) {
        if (file.HasFailed()) translation.outcome.inputUnreadable = true;
        TellHowRead(translation, file, &error);
        throw;
    }
    TellHowRead(translation, file, nullptr);
}

// Opens the output: beside its place when the run puts it there, else under the name that a front end gave, or under
// its own; or in memory. When that fails the outcome is marked, and the error goes on to the caller.
void OpenOutput(Translation& translation, TextView name);

}  // namespace korvande
