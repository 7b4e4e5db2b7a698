#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

#include "core/CharacterSet.h"
#include "core/Text.h"

namespace korvande {

struct CloseFile {
    void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, CloseFile>;

class Screen;

// Reads a text line by line: of a file, in blocks, or of bytes in memory. Lines end at CR LF, LF or CR; a last byte 1A
// hex is no character of the file. Lines come as Windows-1252 bytes; a file that begins with a UTF-8 byte order mark is
// converted.
class LineReader {
 public:
    LineReader() = default;

    // Opens the file; a run-time error, and no open file, when it cannot be opened or its beginning cannot be read.
    // When a signal interrupts the wait for input, the events of `waiting` run.
    explicit LineReader(TextView name, Screen* waiting = nullptr) { Open(name, waiting); }
    void Open(TextView name, Screen* waiting = nullptr);

    // Reads bytes as if they were a file; they must outlive the reading.
    void OpenBytes(std::string_view bytes) noexcept;
    void Close() noexcept;
    bool IsOpen() const noexcept { return isOpen; }

    // The next line, without its end; false at the end of the file. The line stands until the next call. A file that
    // is not open is error 52, a read that fails the run-time error of its cause.
    bool Next(std::string_view& line);

    // Says what the bytes stand for, from the next line on: files that only this system writes are Windows-1252, which
    // a reader begins with. With a width, lines of exactly so many bytes keep their columns when they are UTF-8.
    void ReadAs(CharacterSet newSet, std::size_t newKeptWidth = 0) noexcept {
        characterSet = newSet;
        keptWidth = newKeptWidth;
    }

    // The first line that was read as UTF-8 without a mark that told so (0: none); and whether the line read last has a
    // character that Windows-1252 lacks, which became "?".
    std::int64_t FirstUtf8Line() const noexcept { return firstUtf8Line; }
    bool LacksCharacter() const noexcept { return lacksCharacter; }

    // Whether the file begins with a byte order mark of UTF-16.
    bool IsUtf16() const noexcept { return utf16; }

    // Whether a read has failed, rather than come to the end.
    bool HasFailed() const noexcept { return failed; }

    // The number of the line read last, counted from 1; 0 before the first.
    std::int64_t LineNumber() const noexcept { return lineNumber; }

    // The length of the file in bytes (0 when it has none, such as a pipe) and how far the lines have come.
    std::int64_t Length() const noexcept { return length; }
    std::int64_t Position() const noexcept { return blockStart + static_cast<std::int64_t>(at); }

 private:
    void SkipByteOrderMark() noexcept;
    void Convert(std::string_view& line);
    void DropEndOfFileMark() noexcept;
    bool FillMore();
    bool WasInterrupted();
    [[noreturn]] void Fail();
    std::size_t PlaceOfLineEnd();

    bool isOpen = false;
    FileHandle file;  // none for bytes in memory
    Screen* screen = nullptr;
    std::string buffer;          // of a file: the block being read, and of the one before what had no line end yet
    const char* data = nullptr;  // the buffer, or the bytes in memory
    std::size_t at = 0;          // where the next line begins
    std::size_t end = 0;         // behind the last byte read
    std::size_t lookedTo = 0;    // how far behind `at` its end was looked for
    int readError = 0;           // the system's number for a read that failed
    bool failed = false;
    bool atEnd = false;  // the file has no more bytes
    bool utf8 = false;
    bool utf16 = false;
    CharacterSet characterSet = CharacterSet::Windows1252;
    std::size_t keptWidth = 0;
    bool hasHighBytes = false;  // somewhere in what was read so far
    std::int64_t firstUtf8Line = 0;
    bool lacksCharacter = false;
    std::string converted;
    std::int64_t blockStart = 0;  // the place in the file of buffer[0]
    std::int64_t lineNumber = 0;
    std::int64_t length = 0;
};

// How far the reading of a file has come, and how far it goes, in the units of its progress (128 bytes).
inline std::int64_t ReadUnits(const LineReader& file) noexcept { return file.Position() / 128; }
inline std::int64_t AllUnits(const LineReader& file) noexcept { return file.Length() / 128; }

}  // namespace korvande
