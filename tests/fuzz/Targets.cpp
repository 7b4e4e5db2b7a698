#include "tests/fuzz/Targets.h"

namespace korvande::fuzz {

const std::vector<Target>& Targets() {
    static const std::vector<Target> targets = {
        {"idex", TryIdex},          {"exchange", TryExchange},   {"run", TryRun},
        {"table", TryControlTable}, {"command", TryCommandLine}, {"compare", TryComparison}};
    return targets;
}

}  // namespace korvande::fuzz
