#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "core/Text.h"
#include "core/modScreen.h"
#include "translation/Mode.h"

// The values of the options of `vertaal` and `controleer`. A value that is none is a UsageError.
namespace korvande {

struct Options;
struct ReadingOptions;

// The mode of a short name or a text of the mode list.
Mode ModeOf(const std::string& name);

// "ja" or "nee" behind this option.
bool YesOrNo(TextView option, const std::string& value);

// The answer to every question; nothing when none was given.
std::optional<Answer> FixedAnswer(const std::string& value);

// How many of so many jobs are done at a time, 1 to 64; when nobody says so, one a processor.
std::size_t WorkersOf(const std::string& value, std::size_t jobs);

// What the bytes of a drawing stand for, and what of it is left out.
void TakeReading(const ReadingOptions& reading, Options& options);

// Four numbers (metres) behind this option, of which the minima are not above the maxima.
struct Rectangle {
    double minX = 0;
    double minY = 0;
    double maxX = 0;
    double maxY = 0;
};
Rectangle RectangleOf(TextView option, const std::string& value);

// The rectangle that limits an import, and the source kind of the G field.
void TakeSelection(const std::string& value, Options& options);
void TakeSource(const std::string& value, Options& options);

}  // namespace korvande
