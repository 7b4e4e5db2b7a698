#pragma once

#include <string>

#include "cli/Arguments.h"

namespace CLI {  // NOLINT(readability-identifier-naming): the name that the library has
class App;
}

namespace korvande {

// What a command line asked for: of each command its options.
struct Commands {
    bool wantsVersion = false;
    TranslateOptions translate;
    CheckOptions check;
    CompareOptions compare;
    DrawOptions draw;
    GeoPackageOptions geoPackage;
    std::string projectFile;
    bool showsProjectAsJson = false;
};

// The commands and their options, with their help texts, which put what they are given into `commands`.
void DescribeCommands(CLI::App& app, Commands& commands);

}  // namespace korvande
