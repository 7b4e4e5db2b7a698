#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "tests/fuzz/Mutators.h"
#include "tests/fuzz/Targets.h"

// A fuzzer of one target. It stops at whatever must not happen; the library then keeps the input and shows it.

namespace {

using korvande::fuzz::Target;

const Target& TheTarget() {
    using korvande::fuzz::Targets;
    static const Target target = *std::find_if(Targets().begin(), Targets().end(), [](const Target& candidate) {
        return candidate.name == KORVANDE_FUZZ_TARGET;
    });
    return target;
}

std::string_view View(const std::uint8_t* bytes, std::size_t size) {
    return {reinterpret_cast<const char*>(bytes), size};
}

std::size_t Put(const std::string& input, std::uint8_t* bytes) {
    std::memcpy(bytes, input.data(), input.size());
    return input.size();
}

}  // namespace

extern "C" {

// The library's own changes of bytes, and with the words of its dictionary.
std::size_t LLVMFuzzerMutate(std::uint8_t* bytes, std::size_t size, std::size_t limit);

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    try {
        TheTarget().attempt(View(bytes, size));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", KORVANDE_FUZZ_TARGET, error.what());
        std::abort();
    }
    return 0;
}

// Two changes of three know the format.
std::size_t LLVMFuzzerCustomMutator(std::uint8_t* bytes, std::size_t size, std::size_t limit, unsigned seed) {
    if (TheTarget().mutate == nullptr || seed % 3 == 0) return LLVMFuzzerMutate(bytes, size, limit);
    return Put(TheTarget().mutate(View(bytes, size), seed / 3, limit), bytes);
}

std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* bytes, std::size_t size, const std::uint8_t* otherBytes,
                                      std::size_t otherSize, std::uint8_t* crossed, std::size_t limit, unsigned seed) {
    return Put(korvande::fuzz::CrossLines(View(bytes, size), View(otherBytes, otherSize), seed, limit), crossed);
}
}
