#include <unicode/ucnv.h>
#include <unicode/ustring.h>

#include <cstdlib>

#include "bench/markup/text/SystemText.h"

namespace brennet::bench {
namespace {

void require(UErrorCode error) {
  if (U_FAILURE(error)) std::abort();
}

UConverter* openConverter(const char* name) {
  UErrorCode error = U_ZERO_ERROR;
  UConverter* converter = ucnv_open(name, &error);
  require(error);
  return converter;
}

// Open as long as the program runs, as our codec is.
UConverter* gb2312() {
  static UConverter* const converter = openConverter("windows-936-2000");
  return converter;
}

UConverter* utf8() {
  static UConverter* const converter = openConverter("UTF-8");
  return converter;
}

}  // namespace

const char* const kSystemText = "icu";

std::size_t decodeGb2312BySystem(std::string_view bytes, std::span<char16_t> to) {
  const char* source = bytes.data();
  char16_t* target = to.data();
  UErrorCode error = U_ZERO_ERROR;
  ucnv_toUnicode(gb2312(), &target, target + to.size(), &source, source + bytes.size(), nullptr, 1,
                 &error);
  require(error);
  return static_cast<std::size_t>(target - to.data());
}

std::size_t encodeGb2312BySystem(std::u16string_view text, std::span<char> to) {
  const char16_t* source = text.data();
  char* target = to.data();
  UErrorCode error = U_ZERO_ERROR;
  ucnv_fromUnicode(gb2312(), &target, target + to.size(), &source, source + text.size(), nullptr, 1,
                   &error);
  require(error);
  return static_cast<std::size_t>(target - to.data());
}

std::size_t gb2312ToUtf8BySystem(std::string_view bytes, std::span<char> to) {
  const char* source = bytes.data();
  char* target = to.data();
  UErrorCode error = U_ZERO_ERROR;
  ucnv_convertEx(utf8(), gb2312(), &target, target + to.size(), &source, source + bytes.size(),
                 nullptr, nullptr, nullptr, nullptr, 1, 1, &error);
  require(error);
  return static_cast<std::size_t>(target - to.data());
}

std::size_t utf8BySystem(std::u16string_view text, std::span<char> to) {
  int32_t length = 0;
  UErrorCode error = U_ZERO_ERROR;
  u_strToUTF8(to.data(), static_cast<int32_t>(to.size()), &length, text.data(),
              static_cast<int32_t>(text.size()), &error);
  require(error);
  return static_cast<std::size_t>(length);
}

}  // namespace brennet::bench
