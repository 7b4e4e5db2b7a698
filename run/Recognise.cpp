#include "run/Recognise.h"

#include <string>
#include <string_view>

#include "core/Text.h"

namespace korvande {

std::optional<Format> Recognise(LineReader& file) {
    std::string_view line;
    if (!file.Next(line)) return {};
    if (line.starts_with("01")) {
        if (!file.Next(line) || !line.starts_with("02") || line.size() < 8) return {};
        return line[6] == '0' ? Format::Suf2 : Format::Nen1878;
    }
    do {
        if (ToCapitals(line).find("HEADER") != std::string::npos) return Format::Idex;
    } while (file.Next(line));
    return {};
}

}  // namespace korvande
