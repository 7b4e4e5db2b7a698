#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "core/FixedText.h"
#include "core/Text.h"

namespace korvande {

// A text of exactly N characters as a file has them, in Windows-1252 bytes, by the rules of FixedText: left-aligned,
// padded with blanks or cut, and all NUL when it was never assigned. It has no padding of its own, so that records of
// such texts can be compared byte for byte.
template <std::size_t N>
struct FixedBytes {
    std::array<char, N> bytes;

    static constexpr std::size_t width = N;

    // The text may be a part of this one.
    void Assign(std::string_view text, Letters letters = Letters::AsTheyAre) noexcept {
        const std::size_t length = std::min(text.size(), N);
        if (letters == Letters::AsTheyAre) {
            std::copy(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(length), bytes.begin());
        } else {
            for (std::size_t i = 0; i < length; ++i) bytes[i] = ToCapital(text[i]);
        }
        std::memset(bytes.data() + length, ' ', N - length);
    }

    // A text in memory; "?" stands for a character that Windows-1252 lacks.
    void Assign(TextView text) noexcept {
        const std::size_t length = std::min(text.size(), N);
        for (std::size_t i = 0; i < length; ++i) bytes[i] = ToWindows1252(text[i]);
        std::memset(bytes.data() + length, ' ', N - length);
    }

    FixedText<N> Wide() const noexcept {
        FixedText<N> wide{};
        for (std::size_t i = 0; i < N; ++i) {
            wide.characters[i] = windows1252Characters[static_cast<unsigned char>(bytes[i])];
        }
        return wide;
    }

    bool NeverFilled() const noexcept { return bytes[0] == '\0'; }
    std::string_view View() const noexcept { return {bytes.data(), N}; }
    std::string_view TrimmedRight() const noexcept { return TrimRight(View()); }
    std::string_view Trimmed() const noexcept { return Trim(View()); }
    bool IsBlank() const noexcept {
        static constexpr std::array<char, N> blanks = [] {
            std::array<char, N> some{};
            some.fill(' ');
            return some;
        }();
        return bytes == blanks;
    }

    friend bool operator==(const FixedBytes&, const FixedBytes&) = default;
};

template <std::size_t N>
FixedBytes<N> MakeFixedBytes(TextView text) noexcept {
    FixedBytes<N> fixed{};
    fixed.Assign(text);
    return fixed;
}

}  // namespace korvande
