#pragma once

#include "core/Text.h"

namespace korvande {

// A line on standard output (UTF-8, safe for a terminal), and one on standard error.
void PrintLine(TextView text);
void PrintErrorLine(TextView text);

// Tells the error being handled (call inside a catch block), also when there is no memory left to put its words
// together.
void PrintCurrentError() noexcept;

}  // namespace korvande
