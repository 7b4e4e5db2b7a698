#pragma once

#include <string>

#include "core/Text.h"
#include "picture/Comparison.h"
#include "translation/Mode.h"

namespace korvande {

// One of the two drawings, as a JSON object on one line; `isWhole`: nothing of the file was lost when it was read.
std::string ComparedDrawingJson(TextView name, Format format, bool isWhole);

// How many objects of each kind that occurs are equal, changed, missing or added, as a JSON array on one line.
std::string ComparisonCountsJson(const Comparison& comparison);

// A difference as a JSON object on one line; places in metres. docs/json.md tells its members.
std::string DifferenceJson(const Difference& difference);

}  // namespace korvande
