#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

// Rows of fields split in one pass: the bytes that mean something are marked sixteen at a time, and only they are
// looked at.
namespace korvande {

// The places in a row that hold its separator, its terminator or a double quote, a bit for each; and whether there is a
// backslash.
struct RowMarks {
    static constexpr std::size_t most = 256;  // bytes of a row

    std::array<std::uint64_t, most / 64> words{};
    bool hasBackslash = false;
};

// Marks a row of at most that many bytes; and the same byte by byte, where a processor cannot do it otherwise.
void MarkRow(std::string_view row, char separator, char terminator, RowMarks& marks) noexcept;
void MarkRowPlainly(std::string_view row, char separator, char terminator, RowMarks& marks) noexcept;

struct RowEnd {
    std::size_t terminator = std::string_view::npos;  // the place of the first one
    bool hasBackslash = false;
};

// The fields of a row, as ParseFields with blanks of both kinds finds them.
RowEnd SplitRow(std::string_view row, char separator, char terminator, std::vector<std::string_view>& fields,
                std::size_t maximum);

}  // namespace korvande
