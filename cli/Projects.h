#pragma once

#include <string>

namespace korvande {

struct Project;
class Screen;

// Loads a control table, or the defaults with unknown objects taken along when no file is named. False when it cannot
// be read; the message has been shown.
bool LoadControlTable(Screen& screen, Project& project, const std::string& file);

// `project maak` and `project toon`: the exit status. A UsageError is thrown before anything is written.
int MakeProject(const std::string& file);
int ShowProject(const std::string& file, bool asJson);

}  // namespace korvande
