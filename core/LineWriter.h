#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "core/LineReader.h"
#include "core/NativePath.h"

namespace korvande {

// Writes a text of Windows-1252 bytes through a buffer, into a file, into memory or to nowhere; lines end with CR LF. A
// write that fails is the run-time error of its cause (61 for a full disk), now or when the file is closed; after one,
// nothing more is written.
class LineWriter {
 public:
    LineWriter() = default;
    LineWriter(LineWriter&& other) noexcept { *this = std::move(other); }
    LineWriter& operator=(LineWriter&& other) noexcept;
    ~LineWriter();

    // Creates the file, or empties it, or in append mode writes behind what it holds; a run-time error when that cannot
    // be done.
    void Open(TextView name, OpenMode mode = OpenMode::Write);

    // Makes a file that is new, with the rights of another one when that is there; false, and nothing open, when
    // anything has its name already. Any other failure is a run-time error.
    bool Create(TextView name, TextView rightsOf);

    // From now on closing the file has all of it reach the disk first.
    void KeepOnDisk() noexcept { staysOnDisk = true; }

    // Appends to these bytes, which must outlive the writing.
    void OpenBytes(std::string& bytes);

    // Takes everything and keeps nothing.
    void OpenNowhere();

    bool IsOpen() const noexcept { return sink != Sink::None; }

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
    enum class Sink { None, File, Memory, Nowhere };

    void MakeReady();
    void Begin(Sink newSink) noexcept;
    void Flush();
    void RequireOpen() const;

    Sink sink = Sink::None;
    FileHandle file;
    std::string* memory = nullptr;
    std::string buffer;
    std::size_t used = 0;
    bool failed = false;
    bool staysOnDisk = false;
};

}  // namespace korvande
