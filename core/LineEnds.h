#pragma once

namespace korvande {

// The first line feed or return of some bytes, or their end: sixteen bytes at a time; and the same byte by byte, where
// a processor cannot do it otherwise.
const char* FindLineEnd(const char* at, const char* end) noexcept;
const char* FindLineEndPlainly(const char* at, const char* end) noexcept;

}  // namespace korvande
