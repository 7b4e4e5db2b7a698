#pragma once

#include <string_view>

#include "core/LineWriter.h"
#include "core/Text.h"

namespace korvande {

// The log book of a run: a Windows-1252 text file with lines that end in CR LF. While it is not open, what is written
// to it is dropped.
class LogBook {
 public:
    // Creates the file; a run-time error when that fails.
    void Open(TextView name);

    // Opens one that was closed again, to write behind its end.
    void Reopen(TextView name);

    bool IsOpen() const noexcept { return file.IsOpen(); }
    bool HasFailed() const noexcept { return file.HasFailed(); }
    // The number of the run-time error that says why.
    int Failure() const noexcept { return failure; }
    void Close() noexcept;

    // Ends the line with this text. A carriage return or a line feed inside it becomes CR LF.
    void WriteLine(TextView text = {});

    // Ends an unfinished line, then writes empty ones.
    void WriteEmptyLines(int count);

    // Writes without ending the line.
    void Write(TextView text);

    // The print column, counted from 1, where the next character goes.
    int Column() const noexcept { return column; }

    // Writes at a print column; one that lies behind already counts as the next one.
    void WriteAtColumn(int atColumn, TextView text);
    void EndLine();

    // "FOUT:  " and the message, with its line breaks as blanks.
    void WriteError(TextView message);

 private:
    void Put(std::string_view bytes);

    LineWriter file;
    int failure = 0;
    int column = 1;  // where the next character goes
};

}  // namespace korvande
