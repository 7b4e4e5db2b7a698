#include "tests/fuzz/Lines.h"

#include <algorithm>
#include <iterator>

namespace korvande::fuzz {

namespace {

std::size_t SizeOf(Lines::const_iterator first, Lines::const_iterator last) {
    std::size_t size = 0;
    for (; first != last; ++first) size += first->size();
    return size;
}

Lines::iterator At(Lines& lines, std::size_t index) { return lines.begin() + static_cast<std::ptrdiff_t>(index); }

void Repeat(Lines& lines, const Block& block, Chance& chance, std::size_t limit) {
    const auto first = At(lines, block.first);
    const Lines copy(first, first + static_cast<std::ptrdiff_t>(block.count));
    const std::size_t size = SizeOf(lines.begin(), lines.end());
    const std::size_t most =
        (limit - std::min(limit, size)) / std::max<std::size_t>(SizeOf(copy.begin(), copy.end()), 1);
    constexpr std::size_t manyTimes = 100;
    const std::size_t times = std::min(most, chance.Once(16) ? 1 + chance.Below(manyTimes) : 1);
    Lines repeated;
    for (std::size_t i = 0; i < times; ++i) repeated.insert(repeated.end(), copy.begin(), copy.end());
    lines.insert(At(lines, block.first), repeated.begin(), repeated.end());
}

void Move(Lines& lines, const Block& block, Chance& chance) {
    const auto first = At(lines, block.first);
    const Lines moved(first, first + static_cast<std::ptrdiff_t>(block.count));
    lines.erase(first, first + static_cast<std::ptrdiff_t>(block.count));
    lines.insert(At(lines, chance.Below(lines.size() + 1)), moved.begin(), moved.end());
}

}  // namespace

Lines LinesOf(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        end += text.substr(end, 2) == "\r\n" ? 2 : 1;
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(lines.back().size());
    }
    return lines;
}

std::string Joined(const Lines& lines, std::size_t limit) {
    if (!lines.empty() && lines.front().size() > limit) return lines.front().substr(0, limit);
    std::string text;
    for (const std::string& line : lines) {
        if (text.size() + line.size() > limit) break;
        text += line;
    }
    return text;
}

std::string_view WithoutBreak(std::string_view line) { return line.substr(0, line.find_first_of("\r\n")); }

std::string_view BreakOf(std::string_view line) { return line.substr(WithoutBreak(line).size()); }

void Rearrange(Lines& lines, const Block& block, Chance& chance, std::size_t limit) {
    if (block.count == 0) return;
    const auto first = At(lines, block.first);
    const auto last = At(lines, block.first + block.count);
    switch (chance.Below(4)) {
        case 0:
            lines.erase(first, last);
            break;
        case 1:
            Move(lines, block, chance);
            break;
        case 2:
            std::rotate(first, last, At(lines, std::min(block.first + 2 * block.count, lines.size())));
            break;
        default:
            Repeat(lines, block, chance, limit);
    }
}

Block AnyLines(const Lines& lines, Chance& chance) {
    if (lines.empty()) return {};
    const std::size_t first = chance.Below(lines.size());
    const std::size_t most = chance.Once(4) ? lines.size() : 3;
    return {first, 1 + chance.Below(std::min(most, lines.size() - first))};
}

}  // namespace korvande::fuzz
