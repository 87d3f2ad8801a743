#include <windows.h>

#include <cstdlib>
#include <memory>

#include "bench/markup/text/SystemText.h"

namespace brennet::bench {
namespace {

constexpr UINT kGb2312 = 936;

std::size_t filled(int length) {
  if (length <= 0) std::abort();
  return static_cast<std::size_t>(length);
}

std::size_t decode(UINT codePage, std::string_view bytes, std::span<char16_t> to) {
  return filled(MultiByteToWideChar(codePage, 0, bytes.data(), static_cast<int>(bytes.size()),
                                    reinterpret_cast<wchar_t*>(to.data()),
                                    static_cast<int>(to.size())));
}

std::size_t encode(UINT codePage, std::u16string_view text, std::span<char> to) {
  return filled(WideCharToMultiByte(codePage, 0, reinterpret_cast<const wchar_t*>(text.data()),
                                    static_cast<int>(text.size()), to.data(),
                                    static_cast<int>(to.size()), nullptr, nullptr));
}

}  // namespace

const char* const kSystemText = "kernel32";

std::size_t decodeGb2312BySystem(std::string_view bytes, std::span<char16_t> to) {
  return decode(kGb2312, bytes, to);
}

std::size_t encodeGb2312BySystem(std::u16string_view text, std::span<char> to) {
  return encode(kGb2312, text, to);
}

std::size_t gb2312ToUtf8BySystem(std::string_view bytes, std::span<char> to) {
  const std::unique_ptr<char16_t[]> units(new char16_t[bytes.size()]);
  const std::size_t length = decode(kGb2312, bytes, {units.get(), bytes.size()});
  return encode(CP_UTF8, {units.get(), length}, to);
}

std::size_t utf8BySystem(std::u16string_view text, std::span<char> to) {
  // There is no conversion of nothing.
  return text.empty() ? 0 : encode(CP_UTF8, text, to);
}

}  // namespace brennet::bench
