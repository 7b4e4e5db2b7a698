#include "run/RunValues.h"

#include <algorithm>

namespace korvande {

RunValues& TheRun() noexcept {
    static RunValues run;
    return run;
}

void OpenOutput(TextView name) {
    RunValues& run = TheRun();
    run.output.Open(run.temporaryOutput.empty() ? name : TextView(run.temporaryOutput));
}

std::int64_t& CurrentInputLine() noexcept {
    static std::int64_t line = 0;
    return line;
}

Text WithLastThreeReplaced(TextView name, TextView extension) {
    return Concat(name.substr(0, name.size() - std::min<std::size_t>(name.size(), 3)), extension);
}

}  // namespace korvande
