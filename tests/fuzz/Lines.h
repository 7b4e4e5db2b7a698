#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tests/run/RandomDrawing.h"

// An input as its lines: what the mutators of every format have in common.
namespace korvande::fuzz {

using testing::Chance;

// Each with the line break that ends it, if it has one.
using Lines = std::vector<std::string>;

Lines LinesOf(std::string_view text);

// As many lines as the limit leaves room for; of a first one that is too long its beginning.
std::string Joined(const Lines& lines, std::size_t limit);

// What ends a line, and a line without it.
std::string_view BreakOf(std::string_view line);
std::string_view WithoutBreak(std::string_view line);

// Lines in a row.
struct Block {
    std::size_t first = 0;
    std::size_t count = 0;
};

// Doubles a block (now and then many times, up to the limit), removes it, moves it, or exchanges it with as many lines
// behind it.
void Rearrange(Lines& lines, const Block& block, Chance& chance, std::size_t limit);

// A few lines in a row.
Block AnyLines(const Lines& lines, Chance& chance);

// One of several, by chance.
template <class List>
const auto& AnyOf(const List& list, Chance& chance) {
    return list[chance.Below(std::size(list))];
}

}  // namespace korvande::fuzz
