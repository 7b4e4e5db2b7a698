#include "idex/IdexFile.h"

#include <algorithm>
#include <array>

#include "core/RuntimeError.h"
#include "core/modParser.h"
#include "translation/Files.h"

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

bool IsLetter(char byte) noexcept { return ToCapital(byte) >= 'A' && ToCapital(byte) <= 'Z'; }
bool IsOfWord(char byte) noexcept { return IsLetter(byte) || (byte >= '0' && byte <= '9') || byte == '_'; }

// What an END line names that ends more than a block inside a table.
bool EndsTable(std::string_view name) noexcept {
    constexpr std::array<std::string_view, 6> tables = {"POINTS", "LINES", "EDGES", "POLYGONS", "TEXT", "DATABASE"};
    return std::find(tables.begin(), tables.end(), name) != tables.end();
}

}  // namespace

void RequireArrayIndex(std::int32_t number, std::int64_t rowsRead) {
    constexpr std::int32_t alwaysAllowed = 1'000'000;
    if (number < 0 || (number > alwaysAllowed && number > 10 * rowsRead)) {
        throw RuntimeError(errors::subscriptOutOfRange);
    }
}

bool IsStartOf(std::string_view keyword, std::string_view line) noexcept {
    return line.size() >= keyword.size() &&
           std::equal(keyword.begin(), keyword.end(), line.begin(), [](char a, char b) { return a == ToCapital(b); });
}

std::string NameOfEnd(std::string_view line) {
    return ToCapitals(Trimmed(line.substr(std::min(line.size(), std::string_view("END").size()))));
}

bool IdexFile::TryNextRaw(std::string_view& line) {
    if (takenBack) {
        takenBack = false;
    } else if (!NextLine(translation, reader, current)) {
        return false;
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
    rowLine = translation.inputLine;
    if (!StartsWith(row, "END")) return true;
    NoteEnd(row);
    return false;
}

void IdexFile::NoteEnd(std::string_view line) {
    if (StartsWith(line, "END") && NameOfEnd(line).starts_with("DATABASE")) hasEnded = true;
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

bool IdexFile::SkipToContaining(std::string_view keyword, std::string& line) {
    std::string_view candidate;
    while (TryNext(candidate)) {
        const auto found = std::search(candidate.begin(), candidate.end(), keyword.begin(), keyword.end(),
                                       [](char a, char b) { return ToCapital(a) == b; });
        if (found == candidate.end()) continue;
        line = candidate;
        return true;
    }
    return false;
}

std::string_view IdexFile::NameOfBlock(std::string_view row) const noexcept {
    if (row.size() < 3 || !IsLetter(row.front()) || row.back() != ')') return {};
    // The parenthesis at its end is no part of a word, nor a blank.
    std::size_t end = 0;
    while (IsOfWord(row[end])) ++end;
    const std::size_t open = row.find_first_not_of(blanks, end);
    if (row[open] != '(' || row.find(terminator) != std::string_view::npos) return {};
    const std::string_view names = row.substr(open + 1, row.size() - open - 2);
    const bool isList = std::all_of(names.begin(), names.end(), [this](char byte) {
        return IsOfWord(byte) || byte == separator || blanks.find(byte) != std::string_view::npos;
    });
    return isList ? row.substr(0, end) : std::string_view();
}

bool IdexFile::SkipNestedBlock(std::string_view row, std::string_view table) {
    // Of nearly every row the last character tells that it opens none.
    if (row.back() != ')') return false;
    const std::string name = ToCapitals(NameOfBlock(row));
    if (name.empty()) return false;
    const std::int64_t line = rowLine;
    if (EndsTable(name)) Tell(ProblemKind::CutOff, std::string("END ").append(table), line);
    std::int64_t count = 0;
    while (true) {
        const std::string_view next = Next();
        if (StartsWith(next, "END")) {
            const std::string ended = NameOfEnd(next);
            if (ended.empty() || ended == name) break;
            if (EndsTable(ended)) {
                TakeBack();
                break;
            }
        }
        if (!next.empty()) ++count;
    }
    TellBlock(name, line, count);
    return true;
}

void IdexFile::SkipExtraInfo() {
    const std::int64_t begins = rowLine;
    std::int64_t count = 0;
    std::string_view line;
    while (TryNext(line) && !StartsWith(line, "END")) {
        if (!line.empty()) ++count;
    }
    NoteEnd(line);
    if (count > 0) Tell(ProblemKind::ExtraInfoOfEdges, {}, begins, count);
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

void IdexFile::TellOfRow(ProblemKind kind, std::int64_t count) { Tell(kind, {}, rowLine, count); }

void IdexFile::Tell(ProblemKind kind, std::string_view words, std::int64_t line, std::int64_t count) {
    constexpr std::size_t longestWords = 40;
    const Text told = FromWindows1252(words.substr(0, longestWords));
    korvande::Tell(translation, {.kind = kind, .words = told, .line = line}, count);
}

void IdexFile::TellBlock(std::string_view name, std::int64_t line, std::int64_t count) {
    if (count > 0) return Tell(ProblemKind::BlockSkipped, name, line, count);
    Tell(ProblemKind::EmptyBlock, name, line);
}

}  // namespace korvande
