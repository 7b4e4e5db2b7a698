#include "tests/reference/IdexRows.h"

#include "tests/reference/Texts.h"

namespace korvande::reference {

namespace {

// Where the separator is looked for: behind the closing quote of a field that begins with one.
std::size_t EndOfQuotes(const std::string& text) {
    if (text[0] != '"') return 0;
    std::size_t at = 1;
    while ((at = text.find('"', at)) != std::string::npos) {
        if (at + 1 == text.size() || text[at + 1] != '"') return at + 1;
        at += 2;
    }
    return 1;
}

}  // namespace

std::vector<std::string> FieldsOf(const std::string& row, char separator, char terminator) {
    std::vector<std::string> fields;
    std::string rest = Trimmed(row, idexBlanks);
    rest = Trimmed(rest.substr(0, rest.find(terminator)), idexBlanks);
    while (!rest.empty()) {
        const std::size_t end = rest.find(separator, EndOfQuotes(rest));
        fields.push_back(Trimmed(rest.substr(0, end), idexBlanks));
        if (end == std::string::npos) break;
        rest = Trimmed(rest.substr(end + 1), idexBlanks);
    }
    return fields;
}

std::string Unquoted(const std::string& field) {
    std::string text = Trimmed(field, idexBlanks);
    if (BeginsWith(text, "\"")) text = text.substr(1);
    if (EndsWith(text, "\"")) text.pop_back();
    for (char& c : text) {
        if (c == '"') c = '\'';
    }
    return text;
}

TableColumns::TableColumns(const std::string& list, char separator, char terminator) {
    const std::vector<std::string> names = FieldsOf(Capitals(list), separator, terminator);
    for (std::size_t i = 0; i < names.size(); ++i) places.emplace(names[i], i);
}

std::string TableColumns::operator()(const std::vector<std::string>& fields, const std::string& column) const {
    const auto place = places.find(column);
    return place == places.end() || place->second >= fields.size() ? "" : fields[place->second];
}

}  // namespace korvande::reference
