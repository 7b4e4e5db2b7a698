#include <sys/mman.h>
#include <unistd.h>

#include <cstring>
#include <stdexcept>

#include "tests/support/GuardedBytes.h"

namespace korvande::testing {

GuardedBytes::GuardedBytes(std::size_t most)
    : page(static_cast<std::size_t>(::sysconf(_SC_PAGESIZE))),
      room((most + page - 1) / page * page),
      begin(static_cast<char*>(
          ::mmap(nullptr, room + page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))) {
    if (begin == MAP_FAILED || ::mprotect(begin + room, page, PROT_NONE) != 0) throw std::runtime_error("no pages");
}

GuardedBytes::~GuardedBytes() { ::munmap(begin, room + page); }

std::string_view GuardedBytes::AtEnd(std::string_view text) {
    if (text.size() > room) throw std::runtime_error("too long a text");
    char* const place = begin + room - text.size();
    std::memcpy(place, text.data(), text.size());
    return {place, text.size()};
}

}  // namespace korvande::testing
