#include "core/LineReader.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "core/LineEnds.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "core/modScreen.h"

namespace korvande {

namespace {

constexpr std::size_t blockSize = std::size_t{1} << 17;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr char endOfFileMark = '\x1A';

std::int64_t LengthOf(std::FILE* file) {
    if (std::fseek(file, 0, SEEK_END) != 0) {
        std::clearerr(file);
        return 0;
    }
    const long length = std::ftell(file);
    std::rewind(file);
    return std::max<std::int64_t>(length, 0);
}

}  // namespace

void LineReader::Open(TextView name, Screen* waiting) {
    Close();
    file.reset(OpenNativeFile(name, OpenMode::Read));
    screen = waiting;
    isOpen = true;
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    length = LengthOf(file.get());
    buffer.resize(blockSize);
    data = buffer.data();
    try {
        while (end < byteOrderMark.size() && FillMore()) {
        }
    } catch (...) {
        Close();
        throw;
    }
    SkipByteOrderMark();
}

void LineReader::OpenBytes(std::string_view bytes) noexcept {
    Close();
    isOpen = atEnd = true;
    data = bytes.data();
    end = bytes.size();
    length = static_cast<std::int64_t>(end);
    hasHighBytes = HasHighByte(bytes);
    DropEndOfFileMark();
    SkipByteOrderMark();
}

void LineReader::SkipByteOrderMark() noexcept {
    const std::string_view beginning(data, end);
    utf16 = beginning.starts_with("\xFF\xFE") || beginning.starts_with("\xFE\xFF");
    if (!beginning.starts_with(byteOrderMark)) return;
    utf8 = true;
    at = lookedTo = byteOrderMark.size();
}

void LineReader::DropEndOfFileMark() noexcept {
    if (end > at && data[end - 1] == endOfFileMark) --end;
}

void LineReader::Close() noexcept {
    file.reset();
    screen = nullptr;
    isOpen = false;
    at = end = lookedTo = 0;
    readError = 0;
    atEnd = utf8 = utf16 = failed = false;
    hasHighBytes = lacksCharacter = false;
    firstUtf8Line = blockStart = lineNumber = length = 0;
}

bool LineReader::Next(std::string_view& line) {
    if (!isOpen) throw RuntimeError(errors::badFileName);
    const std::size_t lineEnd = PlaceOfLineEnd();
    if (lineEnd == end && at == end) return false;
    line = std::string_view(data + at, lineEnd - at);
    const bool pair = lineEnd + 1 < end && data[lineEnd] == '\r' && data[lineEnd + 1] == '\n';
    at = std::min(lineEnd + (pair ? 2 : 1), end);
    ++lineNumber;
    lacksCharacter = false;
    if (hasHighBytes && (utf8 || characterSet != CharacterSet::Windows1252)) Convert(line);
    return true;
}

void LineReader::Convert(std::string_view& line) {
    if (!HasHighByte(line)) return;
    if (utf8) {
        converted = Utf8ToWindows1252(line);
    } else if (characterSet == CharacterSet::Cp850) {
        converted = Cp850ToWindows1252(line);
    } else {
        const Columns columns = line.size() == keptWidth ? Columns::Kept : Columns::Free;
        if (!Utf8LineToWindows1252(line, columns, converted)) return;
        if (firstUtf8Line == 0) firstUtf8Line = lineNumber;
    }
    const auto marks = std::count(converted.begin(), converted.end(), '?');
    lacksCharacter = marks > 0 && marks > std::count(line.begin(), line.end(), '?');
    line = converted;
}

// Reads another block behind what the buffer still holds; false at the end of the file.
bool LineReader::FillMore() {
    if (atEnd) return false;
    if (readError != 0) Fail();
    if (at > 0) {
        std::memmove(buffer.data(), buffer.data() + at, end - at);
        blockStart += static_cast<std::int64_t>(at);
        end -= at;
        lookedTo -= std::min(lookedTo, at);
        at = 0;
    }
    // The room doubles, so that a long line is not copied at every block.
    if (buffer.size() - end < blockSize) {
        buffer.resize(std::max(buffer.size() * 2, end + blockSize));
        data = buffer.data();
    }
    std::size_t count = 0;
    bool isInterrupted = false;
    do {
        count = std::fread(buffer.data() + end, 1, blockSize, file.get());
        isInterrupted = WasInterrupted();
    } while (isInterrupted && count == 0);
    // One that came behind bytes is told when those have been read.
    if (std::ferror(file.get()) != 0) readError = errno;
    if (count == 0) {
        if (readError != 0) Fail();
        atEnd = true;
        DropEndOfFileMark();
        return false;
    }
    hasHighBytes = hasHighBytes || HasHighByte({buffer.data() + end, count});
    end += count;
    return true;
}

void LineReader::Fail() {
    failed = true;
    throw RuntimeError(ErrorNumberOf(readError));
}

// Whether a signal ended the wait for input (a pipe may keep a reader waiting). It may come from a person who wants the
// end of the run, so events run at once.
bool LineReader::WasInterrupted() {
    if (std::ferror(file.get()) == 0 || errno != EINTR) return false;
    std::clearerr(file.get());
    if (screen != nullptr) screen->PumpEvents();
    return true;
}

// The place of the first line end at or behind `at`; the end of the bytes when the last line has none.
std::size_t LineReader::PlaceOfLineEnd() {
    while (true) {
        lookedTo = static_cast<std::size_t>(FindLineEnd(data + std::max(lookedTo, at), data + end) - data);
        // Whether a return is the first half of CR LF shows only when the byte behind it is there.
        if (lookedTo + 1 < end || (lookedTo < end && data[lookedTo] == '\n') || atEnd) return lookedTo;
        FillMore();
    }
}

}  // namespace korvande
