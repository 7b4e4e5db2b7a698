#pragma once

#include <string>
#include <vector>

#include "core/Text.h"

namespace korvande {

// The exit statuses of the console program.
namespace status {
inline constexpr int done = 0;
inline constexpr int withErrors = 1;  // translated, but with errors in the log book; or checked, with problems
inline constexpr int wrongUsage = 2;
inline constexpr int failed = 3;  // nothing was translated
}  // namespace status

// A wrong use of the program: one clear line for standard error.
struct UsageError {
    Text message;
};

// Options of `vertaal`, as given (UTF-8).
struct TranslateOptions {
    std::string mode;
    std::string project;
    std::string logBook;
    bool withoutLogBook = false;
    std::string answer;
    std::string selection;
    std::string source;
    std::string unknowns;
    std::string outputFolder;
    bool quiet = false;
    std::vector<std::string> files;
};

}  // namespace korvande
