#include "tests/fuzz/Targets.h"

namespace korvande::fuzz {

const std::vector<Target>& Targets() {
    static const std::vector<Target> targets = {
        {"idex", TryIdex, "idex"},           {"exchange", TryExchange, "exchange"},  {"run", TryRun, "run"},
        {"table", TryControlTable, "table"}, {"command", TryCommandLine, "command"}, {"compare", TryComparison, "run"}};
    return targets;
}

}  // namespace korvande::fuzz
