#include <algorithm>
#include <array>

#include "tests/fuzz/Lines.h"
#include "tests/fuzz/Mutators.h"

namespace korvande::fuzz {

namespace {

// A line as its key and its values, whatever separates them.
std::vector<std::string> PartsOf(std::string_view line) {
    std::vector<std::string> parts;
    for (std::size_t first = 0; first <= line.size();) {
        const std::size_t end = std::min(line.find(parts.empty() ? '=' : ',', first), line.size());
        parts.emplace_back(line.substr(first, end - first));
        first = end + 1;
    }
    return parts;
}

std::string TextOf(const std::vector<std::string>& parts) {
    std::string text = parts.front();
    for (std::size_t i = 1; i < parts.size(); ++i) text += (i == 1 ? '=' : ',') + parts[i];
    return text;
}

std::string AnyValue(Chance& chance) {
    constexpr std::array values = {
        "",        " ",        "0",        " 1",       "-1",    "2",         "1.5",          "2.5",       "32767",
        "32768",   "-32769",   "1E9",      "True",     "False", " Unknown",  "STANDRD",      " Q20",      " S01 001",
        " PUNT",   " ROT.PUN", " SYMBOOL", " GRONDSL", " LIJN", " GRENS",    " DUMMY",       " \"A, B\"", " \"A",
        " # niet", " Disk",    " FILE",    " PRINTER", " NONE", " 20240230", " \xE9\x80\xFF"};
    if (chance.Once(8)) return std::string(1 + chance.Below(60), 'W');
    return AnyOf(values, chance);
}

std::string AnyKey(Chance& chance) {
    constexpr std::array keys = {"Unknown ",
                                 "SUFNENFile ",
                                 "IDEXFile ",
                                 "NameLong ",
                                 "Source ",
                                 "Reporting ",
                                 "SymRotation ",
                                 "IncludeZ ",
                                 "IncludeNr ",
                                 "AltDate ",
                                 "UseDateAlt ",
                                 "SUF2Path ",
                                 "NEN1878Path ",
                                 "OutputListing ",
                                 "StandaloneAllowed ",
                                 "PointIDLKI ",
                                 "",
                                 "ThreePointArcs "};
    return AnyOf(keys, chance);
}

void ChangePart(std::vector<std::string>& parts, const std::vector<std::string>& others, Chance& chance) {
    const std::size_t index = chance.Below(parts.size());
    const auto place = parts.begin() + static_cast<std::ptrdiff_t>(index);
    switch (chance.Below(5)) {
        case 0:
            *place = index == 0 ? AnyKey(chance) : AnyValue(chance);
            break;
        case 1:
            *place = others[std::min(index, others.size() - 1)];
            break;
        case 2:
            if (parts.size() > 1) parts.erase(place);
            break;
        case 3:
            parts.insert(place, AnyValue(chance));
            break;
        default:
            std::swap(*place, parts[chance.Below(parts.size())]);
    }
}

void ChangeSection(std::string& line, Chance& chance) {
    constexpr std::array sections = {"[NEN1878]", "[Import]", "[Export]", "[Points]",
                                     "[Lines]",   "[Texts]",  "[End]",    "["};
    line = AnyOf(sections, chance) + std::string(BreakOf(line));
}

void ChangeLine(Lines& lines, Chance& chance) {
    std::string& line = lines[chance.Below(lines.size())];
    if (line.starts_with('[')) {
        if (chance.Once(4)) ChangeSection(line, chance);
        return;
    }
    std::vector<std::string> parts = PartsOf(WithoutBreak(line));
    ChangePart(parts, PartsOf(WithoutBreak(lines[chance.Below(lines.size())])), chance);
    line = TextOf(parts) + std::string(BreakOf(line));
}

// From a "[" to the next one.
Block AnySection(const Lines& lines, Chance& chance) {
    std::size_t first = chance.Below(lines.size());
    while (first > 0 && !lines[first].starts_with('[')) --first;
    std::size_t last = first + 1;
    while (last < lines.size() && !lines[last].starts_with('[')) ++last;
    return {first, last - first};
}

}  // namespace

std::string MutateTable(std::string_view file, unsigned seed, std::size_t limit) {
    Chance chance(seed);
    Lines lines = LinesOf(file);
    for (std::size_t count = 1 + chance.Below(4); count > 0 && !lines.empty(); --count) {
        if (chance.Once(3)) {
            Rearrange(lines, chance.Once(6) ? AnySection(lines, chance) : AnyLines(lines, chance), chance, limit);
        } else {
            ChangeLine(lines, chance);
        }
    }
    return Joined(lines, limit);
}

}  // namespace korvande::fuzz
