#pragma once

#include <cstddef>
#include <string_view>

#include "core/LineReader.h"
#include "core/NativePath.h"

namespace korvande {

// Writes a text file of Windows-1252 bytes through a buffer; lines end with CR LF. A write that fails is the run-time
// error of its cause (61 for a full disk), now or when the file is closed; after one, nothing more is written.
class LineWriter {
 public:
    LineWriter() = default;
    LineWriter(LineWriter&&) noexcept = default;
    LineWriter& operator=(LineWriter&&) noexcept = default;
    ~LineWriter();

    // Creates the file, or empties it, or in append mode writes behind what it holds; a run-time error when that cannot
    // be done.
    void Open(TextView name, OpenMode mode = OpenMode::Write);
    bool IsOpen() const noexcept { return file != nullptr; }

    void Put(std::string_view bytes);
    void PutLine(std::string_view bytes);

    // Room for `size` bytes in the buffer, to be filled in place; Advance takes what was filled.
    char* Reserve(std::size_t size);
    void Advance(std::size_t size) noexcept { used += size; }

    // Writes what is left and closes the file, also when that fails.
    void Close();

    // Closes the file without a word, whatever the state of what was left to write.
    void Abandon() noexcept;

    bool HasFailed() const noexcept { return failed; }

 private:
    void Flush();
    void RequireOpen() const;

    FileHandle file;
    std::string buffer;
    std::size_t used = 0;
    bool failed = false;
};

}  // namespace korvande
