#include "cli/OptionValues.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

#include "cli/Arguments.h"
#include "cli/Workers.h"
#include "core/Numbers.h"
#include "core/RuntimeError.h"
#include "project/Options.h"

namespace korvande {

namespace {

[[noreturn]] void RefuseValue(TextView option, const std::string& value, TextView wanted) {
    throw UsageError{Concat(u"Ongeldige waarde bij ", option, u": ", FromUtf8(value), u" (", wanted, u")")};
}

// Four numbers separated by commas, in the order of the option: the minima, then the maxima. False when they are no
// rectangle.
bool TakeRectangle(std::string_view value, std::array<std::string_view, 4>& numbers, Rectangle& rectangle) {
    std::array<double, 4> metres{};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const std::size_t end = std::min(value.find(','), value.size());
        const bool isLast = i + 1 == numbers.size();
        numbers[i] = value.substr(0, end);
        if (!IsNumber(numbers[i]) || (end == value.size()) != isLast) return false;
        metres[i] = LeadingNumber(numbers[i]);
        value.remove_prefix(std::min(end + 1, value.size()));
    }
    rectangle = {metres[0], metres[1], metres[2], metres[3]};
    return metres[0] <= metres[2] && metres[1] <= metres[3];
}

// The same, with the numbers as they were written; a UsageError when they are none.
Rectangle TakeRectangleOf(TextView option, const std::string& value, std::array<std::string_view, 4>& numbers) {
    Rectangle rectangle;
    bool isRectangle = false;
    try {
        isRectangle = TakeRectangle(value, numbers, rectangle);
    } catch (const RuntimeError&) {  // a number beyond all bounds
        isRectangle = false;
    }
    if (!isRectangle) RefuseValue(option, value, u"MINX,MINY,MAXX,MAXY in meters");
    return rectangle;
}

}  // namespace

Mode ModeOf(const std::string& name) {
    if (name.empty()) throw UsageError{u"Er ontbreekt een optie: --modus"};
    const Text text = FromUtf8(name);
    const std::optional<Mode> mode = FindMode(text);
    // What a mode is called in the window of a conversion that LISCAD asked for is no name of it here.
    if (!mode || text == NamesOf(*mode).commandLineText) {
        RefuseValue(u"--modus", name, u"idex-nen1878, idex-suf2, nen1878-idex of suf2-idex");
    }
    return *mode;
}

bool YesOrNo(TextView option, const std::string& value) {
    if (value != "ja" && value != "nee") RefuseValue(option, value, u"ja of nee");
    return value == "ja";
}

std::optional<Answer> FixedAnswer(const std::string& value) {
    if (value.empty()) return {};
    if (value == "ja") return Answer::Yes;
    if (value == "nee") return Answer::No;
    if (value == "annuleren") return Answer::Cancel;
    RefuseValue(u"--antwoord", value, u"ja, nee of annuleren");
}

Rectangle RectangleOf(TextView option, const std::string& value) {
    std::array<std::string_view, 4> numbers;
    return TakeRectangleOf(option, value, numbers);
}

void TakeSelection(const std::string& value, Options& options) {
    std::array<std::string_view, 4> numbers;
    TakeRectangleOf(u"--selectie", value, numbers);
    const std::array<Text*, 4> boxes = {&options.txtMinX, &options.txtMinY, &options.txtMaxX, &options.txtMaxY};
    for (std::size_t i = 0; i < boxes.size(); ++i) *boxes[i] = FromUtf8(numbers[i]);
    options.chkSelectXY = true;
}

std::size_t WorkersOf(const std::string& value, std::size_t jobs) {
    constexpr std::size_t most = 64;
    if (value.empty()) return UsualWorkers(jobs);
    std::size_t workers = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), workers);
    const bool isNumber = error == std::errc() && end == value.data() + value.size();
    if (!isNumber || workers == 0 || workers > most) RefuseValue(u"--taken", value, u"1 tot 64");
    return workers;
}

void TakeReading(const ReadingOptions& reading, Options& options) {
    const std::string& name = reading.characterSet;
    if (name == "windows-1252") {
        options.cboCharacterSet = characterSetNames[static_cast<std::size_t>(CharacterSet::Windows1252)];
    } else if (name == "cp850") {
        options.cboCharacterSet = characterSetNames[static_cast<std::size_t>(CharacterSet::Cp850)];
    } else if (!name.empty()) {
        RefuseValue(u"--tekenset", name, u"windows-1252 of cp850");
    }
    options.chkWithoutZeroes = reading.withoutZeroes;
}

void TakeSource(const std::string& value, Options& options) {
    constexpr int last = static_cast<int>(sourceKinds.size()) - 1;
    if (value.size() != 1 || value[0] < '0' || value[0] > '0' + last) {
        RefuseValue(u"--bronvermelding", value, u"0 tot en met 5");
    }
    options.lstSource = value[0] - '0';
}

}  // namespace korvande
