#include "cli/ProgramArguments.h"

namespace korvande {

std::vector<std::string> ProgramArguments(int argc, char** argv) { return {argv, argv + argc}; }

}  // namespace korvande
