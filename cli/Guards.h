#pragma once

#include <string>

#include "cli/Arguments.h"

// The library that reads the command line would take a list in brackets apart, and take some names for marks of its
// own. An argument that it could take so goes through it behind a character that it knows nothing of.
namespace korvande {

inline constexpr char guard = '\x01';

std::string Guarded(const std::string& argument);

// Take it away again.
void TakeGuardAway(std::string& argument);
void TakeGuardsAway(CheckOptions& options);
void TakeGuardsAway(CompareOptions& options);
void TakeGuardsAway(DrawOptions& options);
void TakeGuardsAway(GeoPackageOptions& options);
void TakeGuardsAway(TranslateOptions& options);

}  // namespace korvande
