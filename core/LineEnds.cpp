#include "core/LineEnds.h"

#include <algorithm>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>

#include <bit>
#include <cstddef>
#define KORVANDE_HAS_SSE2
#endif

namespace korvande {

const char* FindLineEndPlainly(const char* at, const char* end) noexcept {
    return std::find_if(at, end, [](char byte) { return byte == '\n' || byte == '\r'; });
}

const char* FindLineEnd(const char* at, const char* end) noexcept {
#ifdef KORVANDE_HAS_SSE2
    constexpr std::ptrdiff_t atOnce = 16;
    const __m128i feeds = _mm_set1_epi8('\n');
    const __m128i returns = _mm_set1_epi8('\r');
    for (; end - at >= atOnce; at += atOnce) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        const __m128i ends = _mm_or_si128(_mm_cmpeq_epi8(bytes, feeds), _mm_cmpeq_epi8(bytes, returns));
        const auto bits = static_cast<unsigned>(_mm_movemask_epi8(ends));
        if (bits != 0) return at + std::countr_zero(bits);
    }
#endif
    return FindLineEndPlainly(at, end);
}

}  // namespace korvande
