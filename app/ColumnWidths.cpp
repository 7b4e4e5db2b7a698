#include "app/ColumnWidths.h"

#include <algorithm>
#include <numeric>

#include "app/Remembered.h"
#include "core/Numbers.h"

namespace korvande {

namespace {

Text ValueName(TextView grid) { return Concat(u"ColumnWidths ", grid); }

}  // namespace

ColumnWidths RememberedWidths(TextView grid) {
    constexpr int smallest = 10;
    constexpr int largest = 4000;
    const Text value = Remembered(ValueName(grid));
    ColumnWidths widths{};
    TextView rest = value;
    for (int& width : widths) {
        const std::size_t end = std::min(rest.find(u' '), rest.size());
        const int number = SmallNumberOrZero(ToWindows1252(rest.substr(0, end)));
        width = number >= smallest && number <= largest ? number : 0;
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return widths;
}

void RememberWidths(TextView grid, const ColumnWidths& widths) {
    Text value;
    for (const int width : widths) AppendTo(value, Concat(value.empty() ? TextView() : TextView(u" "), width));
    Remember(ValueName(grid), value);
}

ColumnWidths WidthsInRoom(const ColumnWidths& chosen, const ColumnWidths& least, int room) {
    ColumnWidths widths = least;
    for (std::size_t column = 0; column < widths.size(); ++column) {
        if (chosen[column] > 0) widths[column] = chosen[column];
    }
    const int sum = std::accumulate(widths.begin(), widths.end(), 0);
    if (chosen[Grid::Description] == 0) widths[Grid::Description] += std::max(room - sum, 0);
    return widths;
}

}  // namespace korvande
