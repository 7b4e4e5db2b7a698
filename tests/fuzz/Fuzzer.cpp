#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "tests/fuzz/Targets.h"

// A fuzzer of one target. It stops at whatever must not happen; the library then keeps the input and shows it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using korvande::fuzz::Target;
    using korvande::fuzz::Targets;
    static const Target target = *std::find_if(Targets().begin(), Targets().end(), [](const Target& candidate) {
        return candidate.name == KORVANDE_FUZZ_TARGET;
    });
    try {
        target.attempt({reinterpret_cast<const char*>(bytes), size});
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", KORVANDE_FUZZ_TARGET, error.what());
        std::abort();
    }
    return 0;
}
