#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "core/Digits.h"
#include "core/LineWriter.h"
#include "core/modKORVANDE.h"

namespace korvande {

// Writes a value between double quotes and returns the place behind it. Inside them a double quote becomes a single one
// and the terminator a comma, which a reader would take for structure; a value to which that happens is counted. One
// that was never filled is empty.
char* WriteQuoted(char* at, std::string_view value, int& replaced) noexcept;

// One row of an IDEX file, built in place in the output's buffer and ended by End().
class IdexRow {
 public:
    // A row of fixed-width texts and numbers; what has no fixed width needs as much room more.
    explicit IdexRow(LineWriter& lineWriter, std::size_t more = 0)
        : output(lineWriter), begin(output.Reserve(longestFixed + more)), at(begin) {}

    IdexRow& Put(std::string_view bytes) noexcept {
        std::memcpy(at, bytes.data(), bytes.size());
        at += bytes.size();
        return *this;
    }

    // The same of a literal, whose length is known to the compiler.
    template <std::size_t SizeWithEnd>
    IdexRow& Put(const char (&literal)[SizeWithEnd]) noexcept {
        std::memcpy(at, literal, SizeWithEnd - 1);
        at += SizeWithEnd - 1;
        return *this;
    }

    // The first bytes of these.
    using Digits = std::array<char, 11 + roomBehindDigits>;
    IdexRow& PutDigits(const Digits& digits, std::size_t size) noexcept {
        std::memcpy(at, digits.data(), digits.size());
        at += size;
        return *this;
    }

    // A whole number: in digits, or as a print statement writes it (a blank or "-" before, a blank behind).
    IdexRow& PutWhole(std::int32_t number) noexcept {
        at = WriteWhole(at, number);
        return *this;
    }
    IdexRow& PutPrinted(std::int32_t number) noexcept;

    // A number with a point and this many decimals, padded on the right to a width (up to 16), and cut to it, which is
    // counted when it takes more away than zeroes behind the point.
    IdexRow& PutDecimal(double value, int decimals, std::size_t width);

    // Sixteen bits as two groups of digits.
    IdexRow& PutFlags(std::int32_t flags) noexcept;

    // A fixed-width text at its full width; one that was never filled is blank.
    IdexRow& PutFixed(std::string_view text) noexcept;

    // A value between double quotes.
    IdexRow& PutQuoted(std::string_view value) noexcept {
        at = WriteQuoted(at, value, replaced);
        return *this;
    }

    // A point's name, trimmed.
    IdexRow& PutPointID(const PointRec& point) noexcept {
        const auto& name = point.PointIDBytes();
        return IsBlank(name) ? Put("\"\"") : PutQuoted(name.Trimmed());
    }

    // Bytes that were made in such a way before, with so many values replaced in them.
    IdexRow& PutMade(std::string_view bytes, int replacedInThem) noexcept {
        replaced += replacedInThem;
        return Put(bytes);
    }

    void End() noexcept {
        Put("\r\n");
        output.Advance(static_cast<std::size_t>(at - begin));
    }
    // Values of the row that are not what they were: with a character replaced, and numbers that were cut.
    int Replaced() const noexcept { return replaced; }
    int Cut() const noexcept { return cut; }

 private:
    // Most points have no name: its first and its last eight bytes are looked at together.
    static bool IsBlank(const FixedBytes<9>& name) noexcept {
        constexpr std::uint64_t blanks = 0x2020202020202020;
        std::uint64_t first = 0;
        std::uint64_t last = 0;
        std::memcpy(&first, name.bytes.data(), sizeof(first));
        std::memcpy(&last, name.bytes.data() + 1, sizeof(last));
        return ((first ^ blanks) | (last ^ blanks)) == 0;
    }

    static constexpr std::size_t longestFixed = 512;
    static constexpr std::size_t widest = 16;

    LineWriter& output;
    char* begin;
    char* at;
    int replaced = 0;
    int cut = 0;
};

}  // namespace korvande
