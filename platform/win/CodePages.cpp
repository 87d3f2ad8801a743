#include <windows.h>

#include <algorithm>
#include <array>
#include <limits>
#include <map>

#include "platform/CodePages.h"

namespace brennet::platform {
namespace {

constexpr char kDefaultByte = '?';

// kernel32 counts in int; longer texts are converted piece by piece.
constexpr std::size_t kLongestText = std::numeric_limits<int>::max() / 8;

// What GetCPInfo says about a code page, asked once.
struct CodePageFacts {
  CodePageShape shape = CodePageShape::Unsupported;
  std::array<bool, 256> isLead{};
};

CodePageFacts askSystem(CodePage codePage) {
  CodePageFacts facts;
  CPINFO info{};
  if (IsValidCodePage(codePage) == FALSE || GetCPInfo(codePage, &info) == FALSE) return facts;
  for (std::size_t i = 0; i + 1 < MAX_LEADBYTES && info.LeadByte[i] != 0; i += 2) {
    for (unsigned byte = info.LeadByte[i]; byte <= info.LeadByte[i + 1]; ++byte) {
      facts.isLead[byte] = true;
    }
  }
  const bool hasLeads = info.LeadByte[0] != 0;
  facts.shape = info.MaxCharSize == 1               ? CodePageShape::SingleByte
                : info.MaxCharSize == 2 && hasLeads ? CodePageShape::DoubleByte
                                                    : CodePageShape::Other;
  return facts;
}

const CodePageFacts& factsOf(CodePage codePage) {
  static std::map<CodePage, CodePageFacts> facts;
  const auto known = facts.find(codePage);
  if (known != facts.end()) return known->second;
  return facts.emplace(codePage, askSystem(codePage)).first->second;
}

// Whether WideCharToMultiByte can report its use of the default character: it cannot in UTF-7,
// GB18030 and the stateful code pages.
bool tellsOfLoss(CodePage codePage) {
  return factsOf(codePage).shape != CodePageShape::Other;
}

char16_t decodeOne(CodePage codePage, const char* bytes, int size) {
  wchar_t units[4] = {};
  const int length = MultiByteToWideChar(codePage, 0, bytes, size, units, 4);
  if (length >= 1) return static_cast<char16_t>(units[0]);
  return u'?';
}

// A call that fails gives no text: the system does not say how much it had written.
void decodePiece(CodePage codePage, std::string_view bytes, std::u16string& out) {
  const int size = static_cast<int>(bytes.size());
  const int length = MultiByteToWideChar(codePage, 0, bytes.data(), size, nullptr, 0);
  if (length == 0) return;
  const std::size_t end = out.size();
  out.resize(end + static_cast<std::size_t>(length));
  const int done = MultiByteToWideChar(codePage, 0, bytes.data(), size,
                                       reinterpret_cast<wchar_t*>(out.data() + end), length);
  out.resize(end + static_cast<std::size_t>(done));
}

bool isReadAs(CodePage codePage, std::string_view bytes, std::u16string_view text) {
  std::u16string back;
  decodePiece(codePage, bytes, back);
  return back == text;
}

// Returns whether anything was lost: everything, if a call fails.
bool encodePiece(CodePage codePage, std::u16string_view text, std::string& out) {
  const auto* const units = reinterpret_cast<const wchar_t*>(text.data());
  const int size = static_cast<int>(text.size());
  const int length = WideCharToMultiByte(codePage, 0, units, size, nullptr, 0, nullptr, nullptr);
  if (length == 0) return true;
  const std::size_t end = out.size();
  out.resize(end + static_cast<std::size_t>(length));
  BOOL usedDefault = FALSE;
  const bool isTold = tellsOfLoss(codePage);
  const int done = WideCharToMultiByte(codePage, 0, units, size, out.data() + end, length, nullptr,
                                       isTold ? &usedDefault : nullptr);
  out.resize(end + static_cast<std::size_t>(done));
  if (done == 0) return true;
  if (isTold) return usedDefault != FALSE;
  return !isReadAs(codePage, std::string_view(out).substr(end), text);
}

}  // namespace

CodePage ansiCodePage() {
  return GetACP();
}

CodePageShape codePageShape(CodePage codePage) {
  return factsOf(codePage).shape;
}

bool isLeadByte(CodePage codePage, unsigned char byte) {
  return factsOf(codePage).isLead[byte];
}

char16_t byteToUtf16(CodePage codePage, unsigned char byte) {
  const char text = static_cast<char>(byte);
  return decodeOne(codePage, &text, 1);
}

char16_t pairToUtf16(CodePage codePage, unsigned char lead, unsigned char trail) {
  const char text[] = {static_cast<char>(lead), static_cast<char>(trail)};
  return decodeOne(codePage, text, 2);
}

EncodedUnit utf16ToBytes(CodePage codePage, char16_t unit) {
  char bytes[4] = {};
  BOOL usedDefault = FALSE;
  const auto wide = static_cast<wchar_t>(unit);
  const int length = WideCharToMultiByte(codePage, 0, &wide, 1, bytes, 4, nullptr, &usedDefault);
  if (length < 1 || length > 2 || usedDefault != FALSE) {
    return {{static_cast<unsigned char>(kDefaultByte), 0}, 1, true};
  }
  return {{static_cast<unsigned char>(bytes[0]), static_cast<unsigned char>(bytes[1])},
          static_cast<unsigned char>(length),
          false};
}

void decode(CodePage codePage, std::string_view bytes, std::u16string& out) {
  for (; !bytes.empty(); bytes.remove_prefix(std::min(bytes.size(), kLongestText))) {
    decodePiece(codePage, bytes.substr(0, kLongestText), out);
  }
}

bool encode(CodePage codePage, std::u16string_view text, std::string& out) {
  bool lost = false;
  for (; !text.empty(); text.remove_prefix(std::min(text.size(), kLongestText))) {
    lost = encodePiece(codePage, text.substr(0, kLongestText), out) || lost;
  }
  return lost;
}

}  // namespace brennet::platform
