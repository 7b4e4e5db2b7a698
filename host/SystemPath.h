#pragma once

#include <filesystem>

#include "core/Text.h"

namespace korvande {

// A file name as the library knows it, through NativePath, and the name of a path of the library. Paths are exchanged
// with it as the system has them, or else in UTF-8, which no locale changes. A name with a NUL character is a run-time
// error: the system would take the part before it for the name.
std::filesystem::path PathOf(TextView name);
Text NameOf(const std::filesystem::path& path);

}  // namespace korvande
