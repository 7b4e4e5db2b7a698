#pragma once

#include <optional>
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

// The commands; each returns the exit status. A UsageError is thrown before anything is written.
int Translate(const TranslateOptions& options);
int Check(const std::string& project, const std::vector<std::string>& files);
int MakeProject(const std::string& file);
int ShowProject(const std::string& file);

// A line on standard output (UTF-8, safe for a terminal), and one on standard error.
void PrintLine(TextView text);
void PrintErrorLine(TextView text);

// Loads a control table into the form, or the defaults with unknown objects taken along when no file is named. False
// when it cannot be read; the message has been shown.
bool LoadControlTable(const std::string& file);

}  // namespace korvande
