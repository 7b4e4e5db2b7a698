#pragma once

#include <optional>
#include <string>

#include "tests/reference/Values.h"

namespace korvande::reference {

// A fieldwork date, when it is a day of the calendar: day, month and year, or the other way round when the first has
// four digits.
std::optional<Date> DateOf(const std::string& text);

}  // namespace korvande::reference
