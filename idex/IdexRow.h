#pragma once

#include <cstdint>
#include <string_view>

#include "core/FixedText.h"
#include "core/LineWriter.h"

namespace korvande {

// One row of an IDEX file, built in place in the output's buffer and ended by End().
class IdexRow {
 public:
    explicit IdexRow(LineWriter& lineWriter) : output(lineWriter), begin(output.Reserve(longest)), at(begin) {}

    IdexRow& Put(std::string_view bytes) noexcept;

    // A whole number: in digits, or as a print statement writes it (a blank or "-" before, a blank behind).
    IdexRow& PutWhole(std::int32_t number) noexcept;
    IdexRow& PutPrinted(std::int32_t number) noexcept;

    // A number with a point and this many decimals, padded on the right to a width, and cut to it.
    IdexRow& PutDecimal(double value, int decimals, std::size_t width);

    // A value between double quotes. Inside them a double quote becomes a single one and the terminator a comma, which
    // a reader would take for structure.
    IdexRow& PutQuoted(TextView value) noexcept;
    IdexRow& PutQuoted(std::string_view value) noexcept;

    void End() noexcept;

 private:
    // More than any row of fixed-width texts and numbers has.
    static constexpr std::size_t longest = 512;

    LineWriter& output;
    char* begin;
    char* at;
};

}  // namespace korvande
