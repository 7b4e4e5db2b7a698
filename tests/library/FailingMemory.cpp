#include "tests/library/FailingMemory.h"

#include <cstdlib>
#include <new>

namespace korvande::testing {

namespace {

thread_local bool isCounting = false;
thread_local bool failsFromThere = false;
thread_local std::int64_t failing = 0;
thread_local std::int64_t asked = 0;

bool Fails() noexcept {
    if (!isCounting) return false;
    ++asked;
    return failing > 0 && (asked == failing || (failsFromThere && asked > failing));
}

}  // namespace

FailingMemory::FailingMemory(std::int64_t number, bool goesOn) noexcept {
    failing = number;
    failsFromThere = goesOn;
    asked = 0;
    isCounting = true;
}

FailingMemory::~FailingMemory() { isCounting = false; }

std::int64_t FailingMemory::Asked() noexcept { return asked; }

}  // namespace korvande::testing

// These take the place of the library's own in the whole process, the shared library too; the other forms call them.
// NOLINTBEGIN(cppcoreguidelines-no-malloc)
void* operator new(std::size_t size) {
    if (!korvande::testing::Fails()) {
        if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
// NOLINTEND(cppcoreguidelines-no-malloc)
