#include "tests/fuzz/Targets.h"

#include "tests/fuzz/Mutators.h"

namespace korvande::fuzz {

const std::vector<Target>& Targets() {
    static const std::vector<Target> targets = {{"idex", TryIdex, MutateDrawing},
                                                {"exchange", TryExchange, MutateDrawing},
                                                {"run", TryRun, MutateRun},
                                                {"table", TryControlTable, MutateTable},
                                                {"command", TryCommandLine},
                                                {"roundtrip", TryRoundTrip, MutateDrawing},
                                                {"library", TryLibrary, MutateCalls},
                                                {"grid", TryGrid},
                                                {"compare", TryComparison, MutateRun, "run"}};
    return targets;
}

}  // namespace korvande::fuzz
