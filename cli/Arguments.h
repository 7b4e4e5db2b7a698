#pragma once

#include <string>
#include <vector>

#include "core/Text.h"

namespace korvande {

// The exit statuses of the console program.
namespace status {
inline constexpr int done = 0;
inline constexpr int withErrors = 1;  // translated, but with errors or a damaged input; checked, with problems;
                                      // compared, with differences
inline constexpr int wrongUsage = 2;
inline constexpr int failed = 3;  // nothing was translated
}  // namespace status

// A wrong use of the program: one clear line for standard error.
struct UsageError {
    Text message;
};

// How a drawing is read, whatever becomes of it.
struct ReadingOptions {
    std::string characterSet;     // empty: found out line by line
    bool withoutZeroes = false;   // points without coordinates are left out
    bool fromInstrument = false;  // IDEX without LAYERS
};

// What commands that take many drawings have in common.
struct BatchOptions {
    bool goesDeep = false;  // into the folders in a folder
    std::string atATime;    // how many drawings; empty: one a processor
    std::string report;     // empty: none
    bool quiet = false;
};

// Options of `controleer`.
struct CheckOptions {
    std::string project;
    ReadingOptions reading;
    BatchOptions batch;
    bool listsAll = false;  // each problem with its line
    bool asJson = false;
    std::vector<std::string> files;
};

// Options of `vergelijk`.
struct CompareOptions {
    std::string project;
    bool asJson = false;
    ReadingOptions reading;
    std::string first;
    std::string second;
};

// Options of `teken`.
struct DrawOptions {
    std::string project;
    ReadingOptions reading;
    std::string frame;  // empty: everything
    std::string width;  // of a PNG, in pixels; empty: the usual
    std::string input;
    std::string output;
};

// Options of `geopackage`.
struct GeoPackageOptions {
    std::string project;
    ReadingOptions reading;
    BatchOptions batch;
    bool isLocal = false;     // without a coordinate system
    bool isStraight = false;  // no arcs
    bool overwrites = false;
    std::vector<std::string> files;  // the last one is the output
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
    bool resumes = false;  // passes over what the report has
    bool asJson = false;
    bool threePointArcs = false;
    ReadingOptions reading;
    BatchOptions batch;
    std::vector<std::string> files;
};

}  // namespace korvande
