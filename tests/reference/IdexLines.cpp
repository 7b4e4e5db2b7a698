#include "tests/reference/IdexLines.h"

#include "tests/reference/Texts.h"
#include "tests/reference/Values.h"

namespace korvande::reference {

bool Starts(const std::string& line, const std::string& keyword) {
    return BeginsWith(Capitals(Trimmed(line, idexBlanks)), keyword);
}

std::string KeywordOf(const std::string& line) {
    const std::string text = Capitals(Trimmed(line, idexBlanks));
    return text.substr(0, text.find_first_of(idexBlanks));
}

std::string RestOf(const std::string& line) {
    const std::string text = Capitals(Trimmed(line, idexBlanks));
    return Trimmed(text.substr(KeywordOf(line).size()), idexBlanks);
}

IdexLines::IdexLines(const std::string& file) : lines(LinesOf(file)) {}

std::string IdexLines::Take() {
    if (IsAtEnd()) throw Error("Invoer voorbij het einde van het bestand");
    return lines[next++];
}

std::string IdexLines::TakeRow() {
    std::string line;
    while (line.empty()) line = Trimmed(Take(), idexBlanks);
    return line;
}

bool IdexLines::Skip(const std::function<bool(const std::string&)>& isIt) {
    while (!IsAtEnd()) {
        if (isIt(Take())) return true;
    }
    return false;
}

void IdexLines::SkipTo(const std::string& keyword) {
    while (!Starts(Take(), keyword)) continue;
}

std::string IdexLines::WithNextLine(const std::string& row) {
    // In capitals, for the terminator may be a letter.
    if (Capitals(row).find(terminator) != std::string::npos) return row;
    const std::size_t here = next;
    const std::string more = TakeRow();
    if (!Starts(more, "END") && (BlockOf(more).empty() || Starts(more, "EXTRAINFO"))) return row + more;
    next = here;
    return row;
}

TableColumns IdexLines::ColumnsOfTable() {
    std::string text = lines[next - 1];
    while (!Contains(text, ")")) text += Take();
    if (!Contains(text, "(")) return {"", separator, terminator};
    const std::size_t begin = text.find('(') + 1;
    return {text.substr(begin, text.find(')', begin) - begin), separator, terminator};
}

std::string IdexLines::BlockOf(const std::string& row) const {
    const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    const std::string ofNames = letters + "0123456789_";
    const std::string text = Capitals(row);
    const std::size_t open = text.find('(');
    const std::string word = TrimmedRight(text.substr(0, open), idexBlanks);
    const bool isWord = word.find_first_not_of(ofNames) == std::string::npos && !word.empty() &&
                        letters.find(word[0]) != std::string::npos;
    if (open == std::string::npos || !isWord || !EndsWith(text, ")")) return "";
    const std::string names = text.substr(open + 1, text.size() - open - 2);
    const bool areNames = names.find_first_not_of(ofNames + idexBlanks + separator) == std::string::npos;
    return areNames && text.find(terminator) == std::string::npos ? word : "";
}

bool IdexLines::IsEndedByBlock(const std::string& word) {
    for (;;) {
        const std::string row = TakeRow();
        if (!Starts(row, "END")) continue;
        const std::string name = Capitals(TrimmedLeft(row.substr(3), idexBlanks));
        if (name.empty() || name == word) return false;
        for (const char* const table : {"POINTS", "LINES", "EDGES", "POLYGONS", "TEXT", "DATABASE"}) {
            if (name == table) return true;
        }
    }
}

}  // namespace korvande::reference
