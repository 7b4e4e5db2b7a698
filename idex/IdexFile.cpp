#include "idex/IdexFile.h"

#include <algorithm>

#include "core/RuntimeError.h"
#include "core/modParser.h"
#include "core/modScreen.h"

namespace korvande {

namespace {

constexpr std::string_view blanks = " \t";

std::string_view Trimmed(std::string_view line) noexcept { return TrimAs(Blanks::SpacesAndTabs, line); }

// Whether another byte has this one for its capital.
bool HasSmallLetter(char byte) noexcept {
    for (int code = 0; code < 256; ++code) {
        const char other = static_cast<char>(code);
        if (other != byte && ToCapital(other) == byte) return true;
    }
    return false;
}

}  // namespace

void RequireArrayIndex(std::int32_t number, std::int64_t rowsRead) {
    constexpr std::int32_t alwaysAllowed = 1'000'000;
    if (number < 0 || (number > alwaysAllowed && number > 10 * rowsRead)) {
        throw RuntimeError(errors::subscriptOutOfRange);
    }
}

bool StartsWith(std::string_view line, std::string_view keyword) noexcept {
    return line.size() >= keyword.size() &&
           std::equal(keyword.begin(), keyword.end(), line.begin(), [](char a, char b) { return a == ToCapital(b); });
}

bool IdexFile::TryNextRaw(std::string_view& line) {
    if (takenBack) {
        takenBack = false;
    } else {
        if (!reader.Next(current)) return false;
        inputLine = reader.LineNumber();
        StepProgress(screen, ReadUnits(reader));
    }
    line = current;
    return true;
}

bool IdexFile::TryNext(std::string_view& line) {
    if (!TryNextRaw(line)) return false;
    line = Trimmed(line);
    return true;
}

std::string_view IdexFile::Next() {
    std::string_view line;
    if (!TryNext(line)) throw RuntimeError(errors::inputPastEnd);
    return line;
}

bool IdexFile::NextRow(std::string_view& row) {
    do {
        row = Next();
    } while (row.empty());
    return !StartsWith(row, "END");
}

void IdexFile::SetSeparator(char character) noexcept {
    separator = character;
    letters = HasSmallLetter(separator) || HasSmallLetter(terminator);
}

void IdexFile::SetTerminator(char character) noexcept {
    terminator = character;
    letters = HasSmallLetter(separator) || HasSmallLetter(terminator);
}

bool IdexFile::NextCapitalRow(std::string_view& row) {
    const bool isRow = NextRow(row);
    if (!letters) return isRow;
    capitalRow = row;
    for (char& character : capitalRow) character = ToCapital(character);
    row = capitalRow;
    return isRow;
}

KeywordLine IdexFile::NextKeyword() {
    std::string_view line;
    if (!TryNext(line)) return {{}, "EOF", {}};
    capitals = ToCapitals(line);
    const std::string_view whole(capitals);
    const std::size_t end = std::min(whole.find_first_of(blanks), whole.size());
    return {whole, whole.substr(0, end), Trimmed(whole.substr(end))};
}

bool IdexFile::SkipToStart(std::string_view keyword, std::string& line) {
    std::string_view candidate;
    while (TryNext(candidate)) {
        if (!StartsWith(candidate, keyword)) continue;
        line = candidate;
        return true;
    }
    return false;
}

bool IdexFile::SkipToContaining(std::string_view keyword) {
    std::string_view line;
    while (TryNext(line)) {
        const auto found = std::search(line.begin(), line.end(), keyword.begin(), keyword.end(),
                                       [](char a, char b) { return ToCapital(a) == b; });
        if (found != line.end()) return true;
    }
    return false;
}

void IdexFile::SkipBlock() {
    std::string_view line;
    while (TryNext(line) && !StartsWith(line, "END")) {
    }
}

void IdexFile::CompleteHeader(std::string& header) {
    while (header.find(')') == std::string::npos) {
        std::string_view line;
        do {
            if (!TryNextRaw(line)) throw RuntimeError(errors::inputPastEnd);
            header.append(line);
        } while (line.find(')') == std::string_view::npos);
    }
}

void IdexTable::ReadHeader(std::string_view headerLine) {
    std::string header(headerLine);
    file.CompleteHeader(header);
    header = ToCapitals(header);
    const std::size_t open = header.find('(');
    const std::size_t close = header.find(')', open == std::string::npos ? 0 : open);
    std::string_view list;
    if (open != std::string::npos && close != std::string::npos) {
        list = std::string_view(header).substr(open + 1, close - open - 1);
    }
    ParseFields(list, file.Separator(), file.Terminator(), Blanks::SpacesAndTabs, fields);

    positions.clear();
    for (const std::string_view name : names) {
        const auto found = std::find(fields.begin(), fields.end(), name);
        positions.push_back(found == fields.end() ? 0 : static_cast<std::size_t>(found - fields.begin()) + 1);
    }
    lastPosition = *std::max_element(positions.begin(), positions.end());
    fields.clear();
}

std::string_view IdexTable::WithSingleQuotes(std::string_view value) {
    unquoted = value;
    std::replace(unquoted.begin(), unquoted.end(), '"', '\'');
    return unquoted;
}

void IdexTable::Split(std::string_view row) {
    ParseFields(row, file.Separator(), file.Terminator(), Blanks::SpacesAndTabs, fields, lastPosition);
}

}  // namespace korvande
