#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/LineReader.h"

namespace korvande::testing {

using Lines = std::vector<std::string>;

inline Lines AllLines(LineReader& reader) {
    Lines lines;
    std::string_view line;
    while (reader.Next(line)) lines.emplace_back(line);
    return lines;
}

}  // namespace korvande::testing
