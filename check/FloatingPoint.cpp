#include "check/FloatingPoint.h"

#include <cstdint>

namespace brennet::check {

#if defined(__i386__) || defined(__x86_64__)

namespace {

// The bits of the x87 control word and of MXCSR, see Intel's manual for developers, volume 1,
// chapters 8.1.5 and 10.2.3.
constexpr std::uint16_t kX87Masks = 0x003F;
constexpr std::uint16_t kX87Precision = 0x0300;  // 0: 24 bits
constexpr std::uint16_t kX87Rounding = 0x0C00;   // 0: to the nearest
constexpr std::uint32_t kSseMasks = 0x1F80;
constexpr std::uint32_t kSseRounding = 0x6000;

std::string inHex(std::uint32_t word) {
  std::string text;
  for (int shift = 12; shift >= 0; shift -= 4) text += "0123456789ABCDEF"[word >> shift & 0xF];
  return text;
}

}  // namespace

std::string floatingPointFault() {
  std::uint16_t x87 = 0;
  std::uint32_t sse = 0;
  __asm__ volatile("fnstcw %0" : "=m"(x87));
  __asm__ volatile("stmxcsr %0" : "=m"(sse));
  const bool isX87Fine = (x87 & kX87Masks) == kX87Masks && (x87 & kX87Precision) != 0 &&
                         (x87 & kX87Rounding) == 0;
  const bool isSseFine = (sse & kSseMasks) == kSseMasks && (sse & kSseRounding) == 0;
  if (isX87Fine && isSseFine) return {};
  return "x87 control word " + inHex(x87) + ", MXCSR " + inHex(sse);
}

#else

std::string floatingPointFault() {
  return {};
}

#endif

}  // namespace brennet::check
