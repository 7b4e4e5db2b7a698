#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "core/LineWriter.h"
#include "core/RuntimeError.h"
#include "core/Text.h"

namespace korvande {

// The log book of a run: a Windows-1252 text file with lines that end in CR LF. While it is not open, what is written
// to it is dropped.
class LogBook {
 public:
    // Creates the file; a run-time error when that fails. The count of errors starts at 0.
    void Open(TextView name);

    // Opens one that was closed again, to write behind its end.
    void Reopen(TextView name);

    bool IsOpen() const noexcept { return file.IsOpen(); }
    bool HasFailed() const noexcept { return file.HasFailed(); }
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

    // "FOUT:  " and the message, with its line breaks as blanks; counted.
    void WriteError(TextView message);

    // The line for an error that escaped a reader or writer, with the line of the input when one was being read.
    void WriteEscapedError(const RuntimeError& error);

    std::int64_t ErrorCount() const noexcept { return errorCount; }

    // Called with the message of every error, whether the log book is open or not.
    std::function<void(TextView message)> onError;

 private:
    void Put(std::string_view bytes);

    LineWriter file;
    int column = 1;  // where the next character goes
    std::int64_t errorCount = 0;
};

LogBook& LogFile() noexcept;

}  // namespace korvande
