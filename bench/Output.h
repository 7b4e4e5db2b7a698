#pragma once

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <utility>

namespace korvande::bench {

// Collects bytes and hands them on to the file a megabyte at a time; without a file it keeps them all.
class Output {
 public:
    explicit Output(std::FILE* file) : file_(file) { buffer_.reserve(flushSize + 4096); }

    Output& operator<<(std::string_view text) {
        buffer_ += text;
        return *this;
    }

    Output& operator<<(std::int64_t number) { return Padded(number, 0); }

    // A number on the right of its width.
    Output& Padded(std::int64_t number, std::size_t width) {
        std::array<char, 24> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
        const auto length = static_cast<std::size_t>(end - digits.data());
        if (length < width) buffer_.append(width - length, ' ');
        buffer_.append(digits.data(), length);
        return *this;
    }

    // Thousandths as a decimal number with the zeros given behind it, on the left of its width.
    Output& Decimal(std::int32_t thousandths, std::string_view zeros, std::size_t width) {
        const auto start = buffer_.size();
        *this << std::int64_t{thousandths / 1000} << ".";
        const auto rest = thousandths % 1000;
        for (const auto digit : {rest / 100, rest / 10 % 10, rest % 10}) buffer_ += static_cast<char>('0' + digit);
        buffer_ += zeros;
        const auto length = buffer_.size() - start;
        if (length < width) buffer_.append(width - length, ' ');
        return *this;
    }

    void EndRow() {
        buffer_ += "\r\n";
        if (buffer_.size() >= flushSize) Flush();
    }

    void Flush() {
        if (file_ == nullptr) return;
        std::fwrite(buffer_.data(), 1, buffer_.size(), file_);
        buffer_.clear();
    }

    std::string Take() { return std::move(buffer_); }

 private:
    static constexpr std::size_t flushSize = 1 << 20;

    std::FILE* file_;
    std::string buffer_;
};

}  // namespace korvande::bench
