#pragma once

#include "cli/Arguments.h"

namespace CLI {  // NOLINT(readability-identifier-naming): the name that the library has
class App;
}

// The options and arguments of the commands, with their help texts.
namespace korvande {

void DescribeJson(CLI::App& command, bool& asJson);
void DescribeTranslate(CLI::App& command, TranslateOptions& options);
void DescribeCheck(CLI::App& command, CheckOptions& options);
void DescribeCompare(CLI::App& command, CompareOptions& options);
void DescribeDraw(CLI::App& command, DrawOptions& options);
void DescribeGeoPackage(CLI::App& command, GeoPackageOptions& options);

}  // namespace korvande
