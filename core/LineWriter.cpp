#include "core/LineWriter.h"

#include <algorithm>
#include <cerrno>

#include "core/RuntimeError.h"

namespace korvande {

namespace {

constexpr std::size_t bufferSize = std::size_t{1} << 17;

// How many of the bytes were written, to a file without a buffer of its own.
std::size_t WriteBytes(std::FILE* file, std::string_view bytes) {
    std::size_t count = std::fwrite(bytes.data(), 1, bytes.size(), file);
    while (count < bytes.size() && IsOnlyInterrupted(file)) {
        std::clearerr(file);
        count += std::fwrite(bytes.data() + count, 1, bytes.size() - count, file);
    }
    return count;
}

}  // namespace

LineWriter::~LineWriter() { Abandon(); }

LineWriter& LineWriter::operator=(LineWriter&& other) noexcept {
    file = std::move(other.file);
    buffer = std::move(other.buffer);
    memory = other.memory;
    sink = std::exchange(other.sink, Sink::None);
    used = std::exchange(other.used, 0);
    failed = other.failed;
    staysOnDisk = other.staysOnDisk;
    return *this;
}

void LineWriter::Open(TextView name, OpenMode mode) {
    MakeReady();
    file.reset(OpenNativeFile(name, mode));
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    Begin(Sink::File);
}

bool LineWriter::Create(TextView name, TextView rightsOf) {
    MakeReady();
    file.reset(CreateNativeFile(name, rightsOf));
    if (!file) return false;
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    Begin(Sink::File);
    return true;
}

void LineWriter::OpenBytes(std::string& bytes) {
    MakeReady();
    memory = &bytes;
    Begin(Sink::Memory);
}

void LineWriter::OpenNowhere() {
    MakeReady();
    Begin(Sink::Nowhere);
}

// When there is no room for a buffer, no file has been made or emptied yet.
void LineWriter::MakeReady() {
    Abandon();
    buffer.resize(bufferSize);
}

void LineWriter::Begin(Sink newSink) noexcept {
    sink = newSink;
    used = 0;
    failed = staysOnDisk = false;
}

void LineWriter::Put(std::string_view bytes) {
    std::copy(bytes.begin(), bytes.end(), Reserve(bytes.size()));
    Advance(bytes.size());
}

void LineWriter::PutLine(std::string_view bytes) {
    char* const lineEnd = std::copy(bytes.begin(), bytes.end(), Reserve(bytes.size() + 2));
    lineEnd[0] = '\r';
    lineEnd[1] = '\n';
    Advance(bytes.size() + 2);
}

char* LineWriter::Reserve(std::size_t size) {
    if (buffer.size() - used < size) {
        Flush();
        if (buffer.size() < size) buffer.resize(size);
    }
    RequireOpen();
    return buffer.data() + used;
}

void LineWriter::Close() {
    try {
        Flush();
        if (sink == Sink::File && staysOnDisk && !failed) {
            failed = true;
            FlushToDisk(file.get());
            failed = false;
        }
    } catch (...) {
        Abandon();
        throw;
    }
    const bool isFile = sink == Sink::File;
    sink = Sink::None;
    // What failed before was told then; closing may fail of the same once more. One that a signal came between is
    // closed.
    if (isFile && std::fclose(file.release()) != 0 && !failed && errno != EINTR) {
        failed = true;
        throw RuntimeError(ErrorNumberOf(errno));
    }
}

void LineWriter::Abandon() noexcept {
    file.reset();
    sink = Sink::None;
    used = 0;
}

void LineWriter::Flush() {
    RequireOpen();
    const std::size_t size = used;
    used = 0;
    if (failed || size == 0) return;
    if (sink == Sink::Memory) memory->append(buffer.data(), size);
    if (sink == Sink::File && WriteBytes(file.get(), {buffer.data(), size}) != size) {
        failed = true;
        throw RuntimeError(ErrorNumberOf(errno));
    }
}

void LineWriter::RequireOpen() const {
    if (!IsOpen()) throw RuntimeError(errors::badFileName);
}

}  // namespace korvande
