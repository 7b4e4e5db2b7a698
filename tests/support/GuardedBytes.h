#pragma once

#include <cstddef>
#include <string_view>

namespace korvande::testing {

// Room for bytes whose last one is followed by a page that nobody may touch: reading one byte too many ends the test
// program.
class GuardedBytes {
 public:
    // For texts of at most so many bytes.
    explicit GuardedBytes(std::size_t most = 1);
    GuardedBytes(const GuardedBytes&) = delete;
    GuardedBytes& operator=(const GuardedBytes&) = delete;
    ~GuardedBytes();

    // A copy of the text that ends where the room does.
    std::string_view AtEnd(std::string_view text);

 private:
    std::size_t page;
    std::size_t room;
    char* begin;
};

}  // namespace korvande::testing
