#include "run/Recognise.h"

#include <exception>
#include <string>
#include <string_view>

#include "core/Text.h"
#include "core/modScreen.h"
#include "host/modFileHandling.h"
#include "nensuf/RecordLine.h"

namespace korvande {

namespace {

bool HoldsHeader(std::string_view line) { return ToCapitals(line).find("HEADER") != std::string::npos; }

// The format by the 02 record behind an 01 record.
std::optional<Format> ExchangeFormat(std::string_view secondLine) {
    const std::optional<std::string> record = HeaderRecord(secondLine, "02");
    if (!record || record->size() < 8) return {};
    return (*record)[6] == '0' ? Format::Suf2 : Format::Nen1878;
}

}  // namespace

std::optional<Format> Recognise(LineReader& file) {
    std::string_view line;
    if (!NextWritten(file, line)) return {};
    if (HeaderRecord(line, "01")) {
        // A line that only counts as an 01 record may be any line of an IDEX file as well.
        const bool mayBeIdex = !line.starts_with("01");
        const bool isHeader = mayBeIdex && HoldsHeader(line);
        const bool hasSecond = file.Next(line);
        const std::optional<Format> format = hasSecond ? ExchangeFormat(line) : std::nullopt;
        if (format || !mayBeIdex) return format;
        if (isHeader) return Format::Idex;
        if (!hasSecond) return {};
    }
    do {
        if (HoldsHeader(line)) return Format::Idex;
    } while (file.Next(line));
    return {};
}

std::optional<Format> FormatOfFile(Screen& screen, const Text& name) {
    try {
        if (!IsRegularFileOrMissing(name)) return {};
        LineReader file(name, &screen);
        if (!file.IsUtf16()) return Recognise(file);
    } catch (const std::exception&) {
        // As said.
    }
    return {};
}

}  // namespace korvande
