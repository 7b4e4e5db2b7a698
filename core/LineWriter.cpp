#include "core/LineWriter.h"

#include <algorithm>
#include <cerrno>

#include "core/RuntimeError.h"

namespace korvande {

namespace {

constexpr std::size_t bufferSize = std::size_t{1} << 17;

}  // namespace

LineWriter::~LineWriter() { Abandon(); }

void LineWriter::Open(TextView name, OpenMode mode) {
    Abandon();
    file.reset(OpenNativeFile(name, mode));
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    buffer.resize(bufferSize);
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
    // What failed before was told then; closing may fail of the same once more.
    if (std::fclose(file.release()) != 0 && !failed) {
        failed = true;
        throw RuntimeError(ErrorNumberOf(errno));
    }
}

void LineWriter::Abandon() noexcept {
    file.reset();
    used = 0;
}

void LineWriter::Flush() {
    RequireOpen();
    const std::size_t size = used;
    used = 0;
    if (failed || size == 0) return;
    if (std::fwrite(buffer.data(), 1, size, file.get()) != size) {
        failed = true;
        throw RuntimeError(ErrorNumberOf(errno));
    }
}

void LineWriter::RequireOpen() const {
    if (!file) throw RuntimeError(errors::badFileName);
}

}  // namespace korvande
