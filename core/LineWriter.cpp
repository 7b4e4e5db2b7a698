#include "core/LineWriter.h"

#include <cerrno>
#include <cstring>

#include "core/NativePath.h"
#include "core/RuntimeError.h"

namespace korvande {

namespace {

constexpr std::size_t bufferSize = std::size_t{1} << 17;

}  // namespace

LineWriter::~LineWriter() { Abandon(); }

void LineWriter::Open(TextView name) {
    Abandon();
    file.reset(OpenNativeFile(name, OpenMode::Write));
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    buffer.resize(bufferSize);
    used = 0;
    failed = false;
}

void LineWriter::Put(std::string_view bytes) {
    std::memcpy(Reserve(bytes.size()), bytes.data(), bytes.size());
    Advance(bytes.size());
}

void LineWriter::PutLine(std::string_view bytes) {
    char* const place = Reserve(bytes.size() + 2);
    std::memcpy(place, bytes.data(), bytes.size());
    place[bytes.size()] = '\r';
    place[bytes.size() + 1] = '\n';
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
    RequireOpen();
    Flush();
    if (std::fclose(file.release()) != 0) {
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
