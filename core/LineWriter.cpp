#include "core/LineWriter.h"

#include <algorithm>
#include <cerrno>

#include "core/RuntimeError.h"

namespace korvande {

namespace {

constexpr std::size_t bufferSize = std::size_t{1} << 17;

}  // namespace

LineWriter::~LineWriter() { Abandon(); }

LineWriter& LineWriter::operator=(LineWriter&& other) noexcept {
    file = std::move(other.file);
    buffer = std::move(other.buffer);
    memory = other.memory;
    sink = std::exchange(other.sink, Sink::None);
    used = std::exchange(other.used, 0);
    failed = other.failed;
    return *this;
}

void LineWriter::Open(TextView name, OpenMode mode) {
    Abandon();
    file.reset(OpenNativeFile(name, mode));
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    Begin(Sink::File);
}

void LineWriter::OpenBytes(std::string& bytes) {
    Abandon();
    memory = &bytes;
    Begin(Sink::Memory);
}

void LineWriter::OpenNowhere() {
    Abandon();
    Begin(Sink::Nowhere);
}

void LineWriter::Begin(Sink newSink) {
    buffer.resize(bufferSize);
    sink = newSink;
    used = 0;
    failed = false;
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
    } catch (...) {
        Abandon();
        throw;
    }
    const bool isFile = sink == Sink::File;
    sink = Sink::None;
    // What failed before was told then; closing may fail of the same once more.
    if (isFile && std::fclose(file.release()) != 0 && !failed) {
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
    if (sink == Sink::File && std::fwrite(buffer.data(), 1, size, file.get()) != size) {
        failed = true;
        throw RuntimeError(ErrorNumberOf(errno));
    }
}

void LineWriter::RequireOpen() const {
    if (!IsOpen()) throw RuntimeError(errors::badFileName);
}

}  // namespace korvande
