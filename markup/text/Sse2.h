#pragma once

// Whether the target has SSE2, as every 64-bit x86 processor and the product's build do. Without
// it, the same functions go unit by unit.
#if defined(__SSE2__) || defined(_M_X64) || (defined(_M_IX86_FP) && _M_IX86_FP >= 2)
#define BRENNET_HAS_SSE2 1
#include <emmintrin.h>
#else
#define BRENNET_HAS_SSE2 0
#endif
