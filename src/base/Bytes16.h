// Sixteen bytes of text in one vector register, where the compiler has them (gcc and clang do on
// every target they build this for): the readers and writers look for a few byte values sixteen
// at a time.
#pragma once

#include <bit>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

using Bytes16 = unsigned char __attribute__((vector_size(16)));

// The sixteen bytes at p, which must all be readable.
inline Bytes16 Load16(const char* p) {
    Bytes16 bytes;
    std::memcpy(&bytes, p, sizeof bytes);
    return bytes;
}

// Bit i set when byte i of a comparison's result is set (each byte is all ones or zero).
template <typename Mask>
unsigned BitsOf(Mask mask) {
    static_assert(sizeof mask == 16);
#if defined(__SSE2__)
    return static_cast<unsigned>(_mm_movemask_epi8(std::bit_cast<__m128i>(mask)));
#else
    unsigned char bytes[16];
    std::memcpy(bytes, &mask, sizeof bytes);
    unsigned bits = 0;
    for (unsigned i = 0; i < 16; ++i) {
        bits |= (bytes[i] & 1u) << i;
    }
    return bits;
#endif
}
