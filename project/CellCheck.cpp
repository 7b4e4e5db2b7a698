#include "project/CellCheck.h"

#include <algorithm>

namespace korvande {

namespace {

bool HasByte(char16_t character) {
    constexpr char16_t firstPrinted = u' ';
    const bool isControl = character < firstPrinted && character != u'\t';
    return !isControl && windows1252Characters[static_cast<unsigned char>(ToWindows1252(character))] == character;
}

// Where the quotes end that a field begins with: a doubled quote inside is none. 0 without quotes, npos when they do
// not end.
std::size_t EndOfQuotes(TextView field) {
    if (!field.starts_with(u'"')) return 0;
    std::size_t quote = field.find(u'"', 1);
    while (quote != TextView::npos && field.substr(quote + 1).starts_with(u'"')) quote = field.find(u'"', quote + 2);
    return quote == TextView::npos ? quote : quote + 1;
}

// What the reader of the control table would take for something else in any field.
Text WhyFieldIsRefused(TextView field, std::size_t width) {
    if (!std::all_of(field.begin(), field.end(), HasByte)) {
        return u"De tekst heeft een teken dat niet in een controletabel kan staan.";
    }
    if (field.find(u'#') != TextView::npos) return u"Wat achter een # staat, is in een controletabel een opmerking.";
    const std::size_t endOfQuotes = EndOfQuotes(field);
    if (endOfQuotes == TextView::npos) {
        return Concat(u"Een tekst die met een dubbel aanhalingsteken begint, moet binnen ", width,
                      u" tekens een tweede hebben, dat sluit.");
    }
    if (field.find(u',', endOfQuotes) != TextView::npos) {
        return u"Een komma scheidt in een controletabel de velden, behalve in een tekst tussen dubbele "
               u"aanhalingstekens.";
    }
    return {};
}

// What would not be a row's code at the beginning of a line.
Text WhyCodeIsRefused(TextView code) {
    if (code.starts_with(u'[')) return u"Een regel die met [ begint, is in een controletabel het begin van een sectie.";
    if (code.find(u'=') != TextView::npos) return u"Een = scheidt in een controletabel de code van de velden.";
    if (ToCapitals(code) == u"UNKNOWN")
        return u"UNKNOWN is in een controletabel de eerste regel, voor onbekende codes.";
    return {};
}

}  // namespace

std::size_t WidthOfColumn(Grid::Column column) noexcept {
    switch (column) {
        case Grid::Liscad:
            return decltype(CodeRow::LiscadCode)::width;
        case Grid::Lki:
            return decltype(CodeRow::LkiCode)::width;
        case Grid::Type:
            return decltype(CodeRow::Type)::width;
        case Grid::Description:
            return decltype(CodeRow::Description)::width;
        default:
            return 0;
    }
}

Text WhyCellIsRefused(Grid::Column column, TextView text) {
    if (column >= Grid::P) return {};  // of a number only the number is kept
    const std::size_t width = WidthOfColumn(column);
    const TextView field = Trim(text.substr(0, width));
    Text why = WhyFieldIsRefused(field, width);
    if (why.empty() && column == Grid::Liscad) why = WhyCodeIsRefused(field);
    return why;
}

}  // namespace korvande
