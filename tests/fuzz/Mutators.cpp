#include "tests/fuzz/Mutators.h"

#include <algorithm>

#include "tests/fuzz/Lines.h"

namespace korvande::fuzz {

namespace {

std::string MutateFile(std::string_view file, unsigned seed, std::size_t limit) {
    const bool isIdex = file.substr(0, 4096).find("HEADER") != std::string_view::npos;
    return isIdex ? MutateIdex(file, seed, limit) : MutateExchange(file, seed, limit);
}

// What stands behind the byte of options, and that byte, which changes now and then.
struct Parts {
    std::string options;
    std::string_view rest;
};

Parts PartsOf(std::string_view input, unsigned seed) {
    Chance chance(seed);
    Parts parts{std::string(input.substr(0, 1)), input.substr(std::min<std::size_t>(1, input.size()))};
    if (parts.options.empty() || chance.Once(16)) parts.options = static_cast<char>(chance.Below(256));
    return parts;
}

}  // namespace

std::size_t EndOfTable(std::string_view input) {
    constexpr std::string_view tableEnd = "[End]\r\n";
    const std::size_t end = input.find(tableEnd);
    return end == std::string_view::npos ? 0 : end + tableEnd.size();
}

std::string MutateDrawing(std::string_view input, unsigned seed, std::size_t limit) {
    if (limit == 0) return {};
    const Parts parts = PartsOf(input, seed);
    return parts.options + MutateFile(parts.rest, seed, limit - 1);
}

std::string MutateRun(std::string_view input, unsigned seed, std::size_t limit) {
    if (limit == 0) return {};
    const Parts parts = PartsOf(input, seed);
    const std::string_view table = parts.rest.substr(0, EndOfTable(parts.rest));
    const std::string_view drawing = parts.rest.substr(table.size());
    if (table.empty() || seed % 3 != 0) {
        const std::size_t room = limit - 1 - std::min(limit - 1, table.size());
        return (parts.options + std::string(table)).substr(0, limit) + MutateFile(drawing, seed, room);
    }
    const std::size_t room = limit - 1 - std::min(limit - 1, drawing.size());
    return (parts.options + MutateTable(table, seed, room) + std::string(drawing)).substr(0, limit);
}

std::string MutateCalls(std::string_view input, unsigned seed, std::size_t limit) {
    Chance chance(seed);
    const std::size_t end = std::min(input.find('\n'), input.size());
    std::string calls(input.substr(0, end));
    const std::string_view drawing = input.substr(std::min(end + 1, input.size()));
    if (chance.Once(3)) {
        const std::size_t room = limit - std::min(limit, calls.size() + 1);
        return (calls + '\n').substr(0, limit) + MutateFile(drawing, seed, room);
    }
    const std::size_t place = chance.Below(calls.size() + 1);
    auto call = static_cast<char>(chance.Below(256));
    if (call == '\n') call = 0;
    switch (chance.Below(3)) {
        case 0:
            calls.insert(place, 1, call);
            break;
        case 1:
            calls.erase(place, 1);
            break;
        default:
            calls.replace(place, 1, 1, call);
    }
    return (calls + '\n' + std::string(drawing)).substr(0, limit);
}

std::string CrossLines(std::string_view input, std::string_view other, unsigned seed, std::size_t limit) {
    Chance chance(seed);
    Lines lines = LinesOf(input);
    const Lines others = LinesOf(other);
    const Block block = AnyLines(others, chance);
    const auto first = others.begin() + static_cast<std::ptrdiff_t>(block.first);
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(chance.Below(lines.size() + 1)), first,
                 first + static_cast<std::ptrdiff_t>(block.count));
    return Joined(lines, limit);
}

}  // namespace korvande::fuzz
