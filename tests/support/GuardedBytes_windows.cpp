#include <windows.h>

#include <cstring>
#include <stdexcept>

#include "tests/support/GuardedBytes.h"

namespace korvande::testing {

namespace {

std::size_t PageSize() {
    SYSTEM_INFO info;
    ::GetSystemInfo(&info);
    return info.dwPageSize;
}

}  // namespace

GuardedBytes::GuardedBytes(std::size_t most)
    : page(PageSize()),
      room((most + page - 1) / page * page),
      begin(static_cast<char*>(::VirtualAlloc(nullptr, room + page, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE))) {
    DWORD before = 0;
    if (begin == nullptr || ::VirtualProtect(begin + room, page, PAGE_NOACCESS, &before) == 0) {
        throw std::runtime_error("no pages");
    }
}

GuardedBytes::~GuardedBytes() { ::VirtualFree(begin, 0, MEM_RELEASE); }

std::string_view GuardedBytes::AtEnd(std::string_view text) {
    if (text.size() > room) throw std::runtime_error("too long a text");
    char* const place = begin + room - text.size();
    std::memcpy(place, text.data(), text.size());
    return {place, text.size()};
}

}  // namespace korvande::testing
