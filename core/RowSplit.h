#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

// Rows of fields split in one pass: the bytes that mean something are marked sixteen at a time, and only they are
// looked at.
namespace korvande {

// What is known of the bytes of a row, of which each has a bit.
struct RowMarks {
    static constexpr std::size_t most = 256;  // bytes of a row
    using Bits = std::array<std::uint64_t, most / 64>;

    Bits special{};  // the separator, the terminator and double quotes
    Bits written{};  // all but blanks and tabs
    bool hasBackslash = false;
};

// Marks a row of at most that many bytes; and the same byte by byte, where a processor cannot do it otherwise.
void MarkRow(std::string_view row, char separator, char terminator, RowMarks& marks) noexcept;
void MarkRowPlainly(std::string_view row, char separator, char terminator, RowMarks& marks) noexcept;

// What a row was split into: so many fields.
struct RowEnd {
    std::size_t count = 0;
    std::size_t terminator = std::string_view::npos;  // the place of the first one
    bool hasBackslash = false;
};

// The fields of a row, as ParseFields with blanks of both kinds finds them, and no more than there is room for.
RowEnd SplitRow(std::string_view row, char separator, char terminator, std::span<std::string_view> fields);

}  // namespace korvande
