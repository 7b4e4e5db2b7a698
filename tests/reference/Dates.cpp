#include "tests/reference/Dates.h"

#include <chrono>
#include <vector>

#include "tests/reference/Texts.h"

namespace korvande::reference {

namespace {

std::vector<std::string> GroupsOf(const std::string& text) {
    std::vector<std::string> groups(1);
    for (const char c : text) {
        if (std::string("-/.:").find(c) != std::string::npos) {
            groups.emplace_back();
        } else {
            groups.back() += c;
        }
    }
    for (std::string& group : groups) group = Trimmed(group);
    return groups;
}

bool IsWhole(const std::string& group) {
    return !group.empty() && group.size() < 9 && group.find_first_not_of("0123456789") == std::string::npos;
}

// 0 when it is no year.
int YearOf(const std::string& group) {
    const int number = std::stoi(group);
    if (group.size() == 2) return number < 30 ? 2000 + number : 1900 + number;
    if (group.size() == 3) return 2000 + number % 10;
    return group.size() == 4 ? number : 0;
}

}  // namespace

std::optional<Date> DateOf(const std::string& text) {
    std::vector<std::string> groups = GroupsOf(text);
    if (groups.size() < 3 || !IsWhole(groups[0]) || !IsWhole(groups[1]) || !IsWhole(groups[2])) return std::nullopt;
    if (groups[0].size() == 4) std::swap(groups[0], groups[2]);
    const Date date{YearOf(groups[2]), std::stoi(groups[1]), std::stoi(groups[0])};
    if (date.year == 0 || date.month > 12 || date.day > 31) return std::nullopt;
    const std::chrono::year_month_day day{std::chrono::year{date.year},
                                          std::chrono::month{static_cast<unsigned>(date.month)},
                                          std::chrono::day{static_cast<unsigned>(date.day)}};
    if (!day.ok()) return std::nullopt;
    return date;
}

}  // namespace korvande::reference
