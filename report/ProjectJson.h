#pragma once

#include <string>

#include "core/Text.h"

namespace korvande {

struct Project;

// A text, such as the name of the file.
std::string JsonString(TextView text);

// The settings of a control table, and its code tables, as JSON on one line each. docs/json.md tells their members.
std::string SettingsJson(const Project& project);
std::string CodeTablesJson(const Project& project);

}  // namespace korvande
