#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstring>
#include <stdexcept>
#include <string_view>

namespace korvande::testing {

// Room for bytes whose last one is followed by a page that nobody may touch: reading one byte too many ends the test
// program.
class GuardedBytes {
 public:
    GuardedBytes()
        : begin(static_cast<char*>(
              ::mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))) {
        if (begin == MAP_FAILED || ::mprotect(begin + page, page, PROT_NONE) != 0) throw std::runtime_error("no pages");
    }
    GuardedBytes(const GuardedBytes&) = delete;
    GuardedBytes& operator=(const GuardedBytes&) = delete;
    ~GuardedBytes() { ::munmap(begin, 2 * page); }

    // A copy of the text that ends where the room does.
    std::string_view AtEnd(std::string_view text) {
        char* const place = begin + page - text.size();
        std::memcpy(place, text.data(), text.size());
        return {place, text.size()};
    }

 private:
    std::size_t page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    char* begin;
};

}  // namespace korvande::testing
