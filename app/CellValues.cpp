#include "app/CellValues.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "project/CellCheck.h"

namespace korvande {

namespace {

// As the table cuts it.
TextView FieldOfType(TextView type) { return type.substr(0, WidthOfColumn(Grid::Type)); }

bool IsSmallNumber(TextView value) {
    const std::string digits = ToWindows1252(value);
    std::int16_t number = 0;
    const char* const end = digits.data() + digits.size();
    const std::from_chars_result result = std::from_chars(digits.data(), end, number);
    return result.ec == std::errc() && result.ptr == end;
}

}  // namespace

bool HasTypes(const EditedGrid& edited) noexcept { return !edited.listItems.empty(); }

Text CellValue(Grid::Column column, TextView value) {
    const TextView trimmed = Trim(value);
    return column == Grid::Type ? ToCapitals(trimmed) : Text(trimmed);
}

Text WhyValueIsRefused(const EditedGrid& edited, Grid::Column column, TextView value) {
    if (value.empty()) return {};
    if (column >= Grid::P) {
        return IsSmallNumber(value) ? Text()
                                    : Concat(u"'", value, u"' is geen geheel getal van -32768 tot en met 32767.");
    }
    if (column == Grid::Type && !HasTypes(edited)) return u"Tekstobjecten hebben geen type.";
    const std::size_t width = WidthOfColumn(column);
    // The list writes its longest item in full too.
    const bool isListed = column == Grid::Type && IsKnownType(edited, FieldOfType(value));
    if (value.size() > width && !isListed) {
        return Concat(u"'", value, u"' heeft ", value.size(), u" tekens; er passen er ", width, u".");
    }
    return WhyCellIsRefused(column, value);
}

bool IsKnownType(const EditedGrid& edited, TextView type) {
    return std::any_of(edited.listItems.begin(), edited.listItems.end(),
                       [type](const Text& item) { return FieldOfType(ToCapitals(item)) == FieldOfType(type); });
}

Text ListOfReasons(TextView heading, const std::vector<Text>& reasons) {
    constexpr std::size_t most = 10;
    Text text(heading);
    for (std::size_t i = 0; i < std::min(most, reasons.size()); ++i) AppendTo(text, Concat(u"\n", reasons[i]));
    if (reasons.size() > most) AppendTo(text, Concat(u"\n… en nog ", reasons.size() - most, u"."));
    return text;
}

}  // namespace korvande
