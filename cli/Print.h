#pragma once

#include <cstdio>
#include <functional>
#include <string>

#include "core/Text.h"

namespace korvande {

// A line on standard output (UTF-8, safe for a terminal), and one on standard error.
void PrintLine(TextView text);
void PrintErrorLine(TextView text);

// Tells the error being handled (call inside a catch block), also when there is no memory left to put its words
// together.
void PrintCurrentError() noexcept;

// As long as one is alive, what its thread prints goes to a listener instead, a line with its line feed at a time; or
// without a listener to the standard streams again.
class PrintsElsewhere {
 public:
    using Listener = std::function<void(std::FILE* stream, std::string line)>;

    explicit PrintsElsewhere(Listener itsListener = {});
    PrintsElsewhere(const PrintsElsewhere&) = delete;
    PrintsElsewhere& operator=(const PrintsElsewhere&) = delete;
    ~PrintsElsewhere();

 private:
    Listener listener;
    const Listener* before;
};

}  // namespace korvande
