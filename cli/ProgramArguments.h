#pragma once

#include <string>
#include <vector>

// Apart from the other needs of a process: on Windows it takes a library of the desktop, which only a program needs.
namespace korvande {

// The program's name and its arguments in UTF-8, whatever the locale.
std::vector<std::string> ProgramArguments(int argc, char** argv);

}  // namespace korvande
