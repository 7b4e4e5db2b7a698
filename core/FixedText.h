#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "core/Text.h"

namespace korvande {

// Whether the letters of a file's bytes are put into capitals on their way.
enum class Letters { AsTheyAre, Capitals };

// A text of exactly N characters, left-aligned: a shorter value is padded with blanks on the right, a longer one is
// cut. One that was never assigned holds NUL characters ("never filled"), which assigning the empty text does not. It
// is trivial, so that whole pages of records can begin as zeroed memory.
template <std::size_t N>
struct FixedText {
    std::array<char16_t, N> characters;

    static constexpr std::size_t width = N;

    // The text may be a part of this one.
    FixedText& operator=(TextView text) noexcept {
        const std::size_t length = std::min(text.size(), N);
        std::copy_n(text.begin(), length, characters.begin());
        std::fill(characters.begin() + static_cast<std::ptrdiff_t>(length), characters.end(), u' ');
        return *this;
    }

    // Windows-1252 bytes.
    void Assign(std::string_view bytes, Letters letters = Letters::AsTheyAre) noexcept {
        const bool capitals = letters == Letters::Capitals;
        const std::size_t length = std::min(bytes.size(), N);
        for (std::size_t i = 0; i < length; ++i) {
            const auto byte = static_cast<unsigned char>(bytes[i]);
            characters[i] = windows1252Characters[capitals ? windows1252Capitals[byte] : byte];
        }
        std::fill(characters.begin() + static_cast<std::ptrdiff_t>(length), characters.end(), u' ');
    }

    bool NeverFilled() const noexcept { return characters[0] == u'\0'; }
    TextView View() const noexcept { return {characters.data(), N}; }
    TextView TrimmedRight() const noexcept { return TrimRight(View()); }
    TextView Trimmed() const noexcept { return Trim(View()); }
    bool IsBlank() const noexcept { return TrimmedRight().empty(); }

    friend bool operator==(const FixedText&, const FixedText&) = default;
};

template <std::size_t N>
FixedText<N> MakeFixedText(TextView text) noexcept {
    FixedText<N> fixed{};
    fixed = text;
    return fixed;
}

}  // namespace korvande
