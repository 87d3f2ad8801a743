#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>

#include <array>
#include <map>
#include <memory>
#include <new>
#include <string>

#include "platform/CodePages.h"

namespace brennet::platform {
namespace {

struct CodePageName {
  CodePage codePage;
  const char* converter;
};

// Code pages whose ICU converter is not found as "windows-N" or "ibm-N", or is found there with
// another vendor's table.
constexpr CodePageName kConverterNames[] = {
    {932, "ibm-943_P15A-2003"},
    {936, "windows-936-2000"},
    {949, "windows-949-2000"},
    {950, "windows-950-2000"},
    {10000, "macintosh"},
    {10006, "x-mac-greek"},
    {10007, "x-mac-cyrillic"},
    {10029, "x-mac-ce"},
    {10081, "x-mac-turkish"},
    {20127, "US-ASCII"},
    {20866, "KOI8-R"},
    {20932, "EUC-JP"},
    {21866, "KOI8-U"},
    {38598, "ISO-8859-8"},
    {50220, "ISO-2022-JP"},
    {50221, "ISO-2022-JP"},
    {50222, "ISO-2022-JP"},
    {50225, "ISO-2022-KR"},
    {50227, "ISO-2022-CN"},
    {51932, "EUC-JP"},
    {51936, "EUC-CN"},
    {51949, "EUC-KR"},
    {52936, "HZ"},
    {54936, "GB18030"},
    {65000, "UTF-7"},
};

constexpr CodePage kShiftJis = 932;
constexpr CodePage kHz = 52936;

// Before the first character of a text in HZ, ICU switches to ASCII, although that is in force
// already. This is what it makes of a blank.
constexpr std::string_view kFirstHzBlank = "~} ";

// Single bytes of code page 932 for which ICU's table has other characters or none: it permutes
// three control characters, and has nothing for the last five.
struct ShiftJisByte {
  unsigned char byte;
  char16_t unit;
};
constexpr ShiftJisByte kShiftJisBytes[] = {
    {0x1A, 0x1A},   {0x1C, 0x1C},   {0x7F, 0x7F},   {0x80, 0x80},
    {0xA0, 0xF8F0}, {0xFD, 0xF8F1}, {0xFE, 0xF8F2}, {0xFF, 0xF8F3},
};

// In this one kernel32 drops the top bit of each byte.
constexpr CodePage kAscii = 20127;

// The lead bytes that kernel32 reports for its double-byte code pages (CPINFO.LeadByte).
struct LeadByteRange {
  CodePage codePage;
  unsigned char first, last;
};
constexpr LeadByteRange kLeadBytes[] = {
    {932, 0x81, 0x9F}, {932, 0xE0, 0xFC}, {936, 0x81, 0xFE}, {949, 0x81, 0xFE}, {950, 0x81, 0xFE},
};

// kernel32's default characters. For code page 932 the Unicode one is the katakana middle dot.
constexpr char kDefaultByte = '?';
char16_t defaultUnit(CodePage codePage) {
  return codePage == 932 ? u'\u30FB' : u'?';
}

bool isDoubleByte(CodePage codePage) {
  for (const LeadByteRange& range : kLeadBytes) {
    if (range.codePage == codePage) return true;
  }
  return false;
}

struct CloseConverter {
  void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using ConverterHandle = std::unique_ptr<UConverter, CloseConverter>;

ConverterHandle openNamed(const std::string& name) {
  UErrorCode error = U_ZERO_ERROR;
  ConverterHandle converter(ucnv_open(name.c_str(), &error));
  // This must not look like a code page that does not exist.
  if (error == U_MEMORY_ALLOCATION_ERROR) throw std::bad_alloc();
  return U_SUCCESS(error) ? std::move(converter) : nullptr;
}

ConverterHandle openConverter(CodePage codePage) {
  for (const CodePageName& row : kConverterNames) {
    if (row.codePage == codePage) return openNamed(row.converter);
  }
  // 28591 to 28605 are ISO 8859-1 to -15; 20xxx are the EBCDIC pages that IBM numbers xxx.
  if (codePage > 28590 && codePage < 28606) {
    return openNamed("ISO-8859-" + std::to_string(codePage - 28590));
  }
  if (codePage > 20000 && codePage < 21000) {
    return openNamed("ibm-" + std::to_string(codePage - 20000));
  }
  ConverterHandle converter = openNamed("windows-" + std::to_string(codePage));
  return converter != nullptr ? std::move(converter) : openNamed("ibm-" + std::to_string(codePage));
}

void U_CALLCONV writeDefaultUnit(const void* context, UConverterToUnicodeArgs* args, const char*,
                                 int32_t, UConverterCallbackReason reason, UErrorCode* error) {
  if (reason > UCNV_IRREGULAR) return;  // reset, close and clone are not conversions
  *error = U_ZERO_ERROR;
  ucnv_cbToUWriteUChars(args, static_cast<const char16_t*>(context), 1, 0, error);
}

void U_CALLCONV writeDefaultByte(const void* lost, UConverterFromUnicodeArgs* args,
                                 const char16_t* units, int32_t length, UChar32 codePoint,
                                 UConverterCallbackReason reason, UErrorCode* error) {
  if (reason > UCNV_IRREGULAR) return;
  *static_cast<bool*>(const_cast<void*>(lost)) = true;
  UCNV_FROM_U_CALLBACK_SUBSTITUTE(nullptr, args, units, length, codePoint, reason, error);
}

// An open converter that treats what it cannot convert as kernel32 does.
class Converter {
 public:
  explicit Converter(CodePage codePage)
      : handle_(openConverter(codePage)), defaultUnit_(defaultUnit(codePage)) {
    if (handle_ == nullptr) return;
    UErrorCode error = U_ZERO_ERROR;
    ucnv_setToUCallBack(handle_.get(), writeDefaultUnit, &defaultUnit_, nullptr, nullptr, &error);
    ucnv_setFromUCallBack(handle_.get(), writeDefaultByte, &lost_, nullptr, nullptr, &error);
    const char16_t substitute = static_cast<char16_t>(kDefaultByte);
    ucnv_setSubstString(handle_.get(), &substitute, 1, &error);
    ucnv_setFallback(handle_.get(), 1);  // the best-fit mappings
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  [[nodiscard]] bool isOpen() const { return handle_ != nullptr; }
  [[nodiscard]] bool isSingleByte() const { return ucnv_getMaxCharSize(handle_.get()) == 1; }

  void decode(std::string_view bytes, std::u16string& out) {
    ucnv_resetToUnicode(handle_.get());
    std::array<char16_t, 2048> buffer;
    const char* source = bytes.data();
    UErrorCode error = U_BUFFER_OVERFLOW_ERROR;
    while (error == U_BUFFER_OVERFLOW_ERROR) {
      error = U_ZERO_ERROR;
      char16_t* target = buffer.data();
      ucnv_toUnicode(handle_.get(), &target, buffer.data() + buffer.size(), &source,
                     bytes.data() + bytes.size(), nullptr, 1, &error);
      out.append(buffer.data(), target);
    }
  }

  bool encode(std::u16string_view text, std::string& out) {
    ucnv_resetFromUnicode(handle_.get());
    lost_ = false;
    std::array<char, 2048> buffer;
    const char16_t* source = text.data();
    UErrorCode error = U_BUFFER_OVERFLOW_ERROR;
    while (error == U_BUFFER_OVERFLOW_ERROR) {
      error = U_ZERO_ERROR;
      char* target = buffer.data();
      ucnv_fromUnicode(handle_.get(), &target, buffer.data() + buffer.size(), &source,
                       text.data() + text.size(), nullptr, 1, &error);
      out.append(buffer.data(), target);
    }
    return lost_;
  }

 private:
  ConverterHandle handle_;
  char16_t defaultUnit_;
  bool lost_ = false;
};

// The converter of `codePage`, opened on its first use; everything runs on the host's GUI thread.
Converter& converterOf(CodePage codePage) {
  static std::map<CodePage, Converter> converters;
  return converters.try_emplace(codePage, codePage).first->second;
}

// Some of ICU's tables turn half-width arrows into the control characters that old consoles draw as
// arrows; kernel32 does not do so in any double-byte code page.
bool isConsoleArrow(char16_t unit, std::string_view bytes) {
  return unit >= 0x80 && bytes.size() == 1 && static_cast<unsigned char>(bytes[0]) < 0x20;
}

}  // namespace

CodePage ansiCodePage() {
  return kGb2312;
}

CodePageShape codePageShape(CodePage codePage) {
  const Converter& converter = converterOf(codePage);
  if (!converter.isOpen()) return CodePageShape::Unsupported;
  if (isDoubleByte(codePage)) return CodePageShape::DoubleByte;
  return converter.isSingleByte() ? CodePageShape::SingleByte : CodePageShape::Other;
}

bool isLeadByte(CodePage codePage, unsigned char byte) {
  for (const LeadByteRange& range : kLeadBytes) {
    if (range.codePage == codePage && byte >= range.first && byte <= range.last) return true;
  }
  return false;
}

char16_t byteToUtf16(CodePage codePage, unsigned char byte) {
  for (const ShiftJisByte& row : kShiftJisBytes) {
    if (codePage == kShiftJis && row.byte == byte) return row.unit;
  }
  std::u16string unit;
  const char text = static_cast<char>(byte);
  converterOf(codePage).decode({&text, 1}, unit);
  return unit.size() == 1 ? unit.front() : defaultUnit(codePage);
}

char16_t pairToUtf16(CodePage codePage, unsigned char lead, unsigned char trail) {
  std::u16string unit;
  const char text[] = {static_cast<char>(lead), static_cast<char>(trail)};
  converterOf(codePage).decode({text, 2}, unit);
  // ICU leaves a trail byte that fits no pair to the next character; kernel32 consumes it.
  return unit.size() == 1 ? unit.front() : defaultUnit(codePage);
}

EncodedUnit utf16ToBytes(CodePage codePage, char16_t unit) {
  for (const ShiftJisByte& row : kShiftJisBytes) {
    if (codePage == kShiftJis && row.unit == unit) return {{row.byte, 0}, 1, false};
  }
  std::string bytes;
  const bool lost = converterOf(codePage).encode({&unit, 1}, bytes);
  if (lost || bytes.empty() || bytes.size() > 2 || isConsoleArrow(unit, bytes)) {
    return {{static_cast<unsigned char>(kDefaultByte), 0}, 1, true};
  }
  const auto second = bytes.size() == 2 ? static_cast<unsigned char>(bytes[1]) : std::uint8_t{0};
  return {{static_cast<unsigned char>(bytes[0]), second},
          static_cast<unsigned char>(bytes.size()),
          false};
}

namespace {

void decodePairs(CodePage codePage, std::string_view bytes, std::u16string& out) {
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    if (!isLeadByte(codePage, byte)) {
      out.push_back(byteToUtf16(codePage, byte));
    } else if (i + 1 == bytes.size()) {
      out.push_back(defaultUnit(codePage));
    } else {
      out.push_back(pairToUtf16(codePage, byte, static_cast<unsigned char>(bytes[++i])));
    }
  }
}

bool encodePairs(CodePage codePage, std::u16string_view text, std::string& out) {
  bool lost = false;
  for (const char16_t unit : text) {
    const EncodedUnit encoded = utf16ToBytes(codePage, unit);
    for (int i = 0; i < encoded.length; ++i) out.push_back(static_cast<char>(encoded.bytes[i]));
    lost = lost || encoded.lost;
  }
  return lost;
}

}  // namespace

void decode(CodePage codePage, std::string_view bytes, std::u16string& out) {
  if (isDoubleByte(codePage)) return decodePairs(codePage, bytes, out);
  if (codePage != kAscii) return converterOf(codePage).decode(bytes, out);
  for (const char byte : bytes) out.push_back(static_cast<char16_t>(byte & 0x7F));
}

bool encode(CodePage codePage, std::u16string_view text, std::string& out) {
  if (isDoubleByte(codePage)) return encodePairs(codePage, text, out);
  if (codePage != kHz) return converterOf(codePage).encode(text, out);
  const std::size_t start = out.size();
  const bool lost = converterOf(codePage).encode(std::u16string(u" ").append(text), out);
  const bool hasSwitch = std::string_view(out).substr(start).starts_with(kFirstHzBlank);
  out.erase(start, hasSwitch ? kFirstHzBlank.size() : 1);
  return lost;
}

}  // namespace brennet::platform
