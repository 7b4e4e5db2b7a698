#include <algorithm>
#include <array>

#include "tests/fuzz/Lines.h"
#include "tests/fuzz/Mutators.h"

namespace korvande::fuzz {

namespace {

// Two columns of the kind, six fields of a letter and nine characters, two columns of the end code.
constexpr std::size_t lineColumns = 64;
constexpr std::size_t fieldColumns = 10;
constexpr std::size_t valueColumns = fieldColumns - 1;

bool HasColumns(const std::string& line) { return WithoutBreak(line).size() == lineColumns; }

std::size_t AnyField(Chance& chance) { return 2 + fieldColumns * chance.Below(6); }

void ChangeKind(std::string& line, Chance& chance) {
    constexpr std::array kinds = {"01", "02", "03", "04", "05", "06", "07", "99"};
    line.replace(0, 2, AnyOf(kinds, chance));
}

// Whether a record goes on.
void ChangeEnd(std::string& line, Chance& chance) {
    constexpr std::array ends = {"00", "01", "  "};
    line.replace(lineColumns - 2, 2, AnyOf(ends, chance));
}

void ChangeLetter(std::string& line, Chance& chance) {
    line[AnyField(chance)] = AnyOf(std::string_view("MGDBINXYZQKFAT "), chance);
}

// A number at the end of its columns: at a limit, or near the one that was there.
void ChangeNumber(std::string& line, Chance& chance) {
    constexpr std::array numbers = {"0",         "-1",        "1",      "999999999", "-99999999", "1000000",
                                    "999999998", "-99999999", "300000", "1.5",       "1E9",       "-0"};
    const std::size_t place = AnyField(chance) + 1;
    std::string value = AnyOf(numbers, chance);
    const std::string there = line.substr(place, valueColumns);
    const std::size_t digits = there.find_first_not_of(' ');
    const bool isNumber =
        digits != std::string::npos && there.find_first_not_of("0123456789", digits) == std::string::npos;
    if (isNumber && chance.Once(2)) value = std::to_string(std::stol(there) + chance.Between(-1000, 1000));
    value.resize(std::min(value.size(), valueColumns));
    line.replace(place, valueColumns, std::string(valueColumns - value.size(), ' ') + value);
}

void ChangeSign(std::string& line, Chance& chance) {
    const std::size_t place = AnyField(chance) + 1;
    char& first = line[place + chance.Below(valueColumns)];
    first = first == '-' ? ' ' : '-';
}

// A word at the beginning of its columns that means something to a reader, with its letter.
void ChangeWord(std::string& line, Chance& chance) {
    constexpr std::array words = {"G0101",     "G1201",    "G1301",      "G 10 ",   "G 30 ", "G 40 ",   "I1",
                                  "I2",        "I4",       "F112",       "F012A01", "F111",  "F1",      "D 20240230",
                                  "MQ22",      "MS01 001", "MB05",       "MZ04",    "MQ20",  "MQ00",    "NPUNT1",
                                  "A05TTEKST", "A99T",     "Q  1  2  3", "KZ04",    "QZ04",  "K  9  9", "BGEM"};
    std::string word = AnyOf(words, chance);
    word.resize(fieldColumns, ' ');
    line.replace(AnyField(chance), fieldColumns, word);
}

void ExchangeFields(std::string& line, std::string& other, Chance& chance) {
    const std::size_t place = AnyField(chance);
    const std::size_t otherPlace = AnyField(chance);
    std::swap_ranges(line.begin() + static_cast<std::ptrdiff_t>(place),
                     line.begin() + static_cast<std::ptrdiff_t>(place + fieldColumns),
                     other.begin() + static_cast<std::ptrdiff_t>(otherPlace));
}

void ChangeCharacter(std::string& line, Chance& chance) {
    constexpr std::string_view characters = "0123456789 -.,\"';ABZ\xE9\x80\x7F\t";
    line[chance.Below(lineColumns)] = AnyOf(characters, chance);
}

void ChangeColumns(Lines& lines, Chance& chance) {
    std::string& line = lines[chance.Below(lines.size())];
    if (!HasColumns(line)) return;
    constexpr std::array changes = {ChangeKind, ChangeEnd,  ChangeLetter,   ChangeNumber,
                                    ChangeSign, ChangeWord, ChangeCharacter};
    if (chance.Once(5)) {
        std::string& other = lines[chance.Below(lines.size())];
        if (HasColumns(other) && &other != &line) ExchangeFields(line, other, chance);
    } else {
        AnyOf(changes, chance)(line, chance);
    }
}

// From a 03 record to the next, or what a line is amid without one.
Block AnyObject(const Lines& lines, Chance& chance) {
    std::size_t first = chance.Below(lines.size());
    while (first > 0 && !lines[first].starts_with("03")) --first;
    std::size_t last = first + 1;
    while (last < lines.size() && !lines[last].starts_with("03") && !lines[last].starts_with("99")) ++last;
    return {first, last - first};
}

void ChangeOnce(Lines& lines, Chance& chance, std::size_t limit) {
    if (lines.empty()) return;
    if (chance.Once(3)) {
        Rearrange(lines, chance.Once(2) ? AnyObject(lines, chance) : AnyLines(lines, chance), chance, limit);
    } else {
        ChangeColumns(lines, chance);
    }
}

// Lines that are too short or too long, columns that stand elsewhere, other line breaks.
void BreakLine(Lines& lines, Chance& chance) {
    constexpr std::array breaks = {"\r\n", "\n", "\r", "\r\n\r\n", ""};
    std::string& line = lines[chance.Below(lines.size())];
    std::string text(WithoutBreak(line));
    std::string end(BreakOf(line));
    const std::size_t place = chance.Below(text.size() + 1);
    switch (chance.Below(5)) {
        case 0:
            text.resize(place);
            break;
        case 1:
            text.append(1 + chance.Below(70), chance.Once(2) ? ' ' : '0');
            break;
        case 2:
            text.insert(place, 1 + chance.Below(3), ' ');
            break;
        case 3:
            text.erase(place, 1 + chance.Below(fieldColumns));
            break;
        default:
            end = AnyOf(breaks, chance);
    }
    line = text + end;
}

}  // namespace

std::string ChangeRecords(std::string_view file, unsigned seed, std::size_t limit) {
    Chance chance(seed);
    Lines lines = LinesOf(file);
    for (std::size_t count = 1 + chance.Below(4); count > 0; --count) ChangeOnce(lines, chance, limit);
    return Joined(lines, limit);
}

std::string MutateExchange(std::string_view file, unsigned seed, std::size_t limit) {
    Chance chance(seed);
    if (!chance.Once(6)) return ChangeRecords(file, seed, limit);
    Lines lines = LinesOf(file);
    if (!lines.empty()) BreakLine(lines, chance);
    return Joined(lines, limit);
}

}  // namespace korvande::fuzz
