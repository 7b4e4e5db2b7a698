#pragma once

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <vector>

// Reading lines and writing bytes, a megabyte at a time.
namespace korvande::floor {

constexpr std::size_t blockSize = 1 << 20;

// The file opened, or the end of the program.
inline std::FILE* OpenFile(const char* name, const char* mode) {
    std::FILE* const file = std::fopen(name, mode);
    if (file == nullptr) {
        std::perror(name);
        std::exit(3);
    }
    std::setvbuf(file, nullptr, _IONBF, 0);
    return file;
}

class Lines {
 public:
    explicit Lines(const char* name) : file_(OpenFile(name, "rb")), buffer_(blockSize + longestLine) {}
    Lines(const Lines&) = delete;
    Lines& operator=(const Lines&) = delete;
    ~Lines() { std::fclose(file_); }

    // The next line without its end; it stays as long as no other one is asked for. False at the end of the file.
    bool Next(std::string_view& line) {
        for (;;) {
            const char* const begin = buffer_.data() + at_;
            if (const auto* const end = static_cast<const char*>(std::memchr(begin, '\n', filled_ - at_))) {
                line = {begin, static_cast<std::size_t>(end - begin)};
                at_ += line.size() + 1;
                if (line.ends_with('\r')) line.remove_suffix(1);
                return true;
            }
            if (atEnd_) {
                line = {begin, filled_ - at_};
                at_ = filled_;
                return !line.empty();
            }
            Fill();
        }
    }

 private:
    static constexpr std::size_t longestLine = 1 << 16;

    // Keeps what has not been read yet and reads a block behind it.
    void Fill() {
        std::memmove(buffer_.data(), buffer_.data() + at_, filled_ - at_);
        filled_ -= at_;
        at_ = 0;
        const auto read = std::fread(buffer_.data() + filled_, 1, blockSize, file_);
        atEnd_ = read == 0;
        filled_ += read;
    }

    std::FILE* file_;
    std::vector<char> buffer_;
    std::size_t at_ = 0;
    std::size_t filled_ = 0;
    bool atEnd_ = false;
};

class Writer {
 public:
    explicit Writer(const char* name) : file_(OpenFile(name, "wb")), buffer_(blockSize) {}
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;
    ~Writer() {
        Flush();
        if (std::fclose(file_) != 0) std::perror("floor");
    }

    // Room for so many bytes more; Take says up to where they were filled.
    char* Room(std::size_t size) {
        if (filled_ + size > buffer_.size()) Flush();
        return buffer_.data() + filled_;
    }
    void Take(const char* end) { filled_ = static_cast<std::size_t>(end - buffer_.data()); }

    void Write(std::string_view text) {
        char* const room = Room(text.size());
        std::memcpy(room, text.data(), text.size());
        Take(room + text.size());
    }

 private:
    void Flush() {
        if (std::fwrite(buffer_.data(), 1, filled_, file_) != filled_) {
            std::perror("floor");
            std::exit(3);
        }
        filled_ = 0;
    }

    std::FILE* file_;
    std::vector<char> buffer_;
    std::size_t filled_ = 0;
};

}  // namespace korvande::floor
