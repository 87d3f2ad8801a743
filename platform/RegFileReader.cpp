// How RegFile reads the text of .reg files.

#include <optional>
#include <utility>

#include "platform/CodePages.h"
#include "platform/RegFile.h"
#include "platform/Utf16Bytes.h"

namespace brennet::platform {
namespace {

constexpr std::u16string_view kUnicodeHeader = u"Windows Registry Editor Version 5.00";
constexpr std::u16string_view kAnsiHeader = u"REGEDIT4";

bool isBlank(char16_t unit) {
  return unit == u' ' || unit == u'\t';
}

void dropBlanks(std::u16string_view& text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
}

void dropBlanksAtEnd(std::u16string_view& text) {
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
}

// Takes `word` off the front of `text`, if it is there.
bool take(std::u16string_view word, std::u16string_view& text) {
  if (!text.starts_with(word)) return false;
  text.remove_prefix(word.size());
  return true;
}

// Only a comment may follow what a line says.
bool isEnd(std::u16string_view text) {
  dropBlanks(text);
  return text.empty() || text.front() == u';';
}

int digitOf(char16_t unit) {
  if (unit >= u'0' && unit <= u'9') return unit - u'0';
  if (unit >= u'a' && unit <= u'f') return unit - u'a' + 10;
  if (unit >= u'A' && unit <= u'F') return unit - u'A' + 10;
  return -1;
}

// Takes a hexadecimal number of one to `most` digits.
std::optional<std::uint32_t> takeHex(std::size_t most, std::u16string_view& text) {
  std::uint32_t number = 0;
  std::size_t digits = 0;
  for (; digits < text.size() && digitOf(text[digits]) >= 0; ++digits) {
    if (digits == most) return std::nullopt;
    number = number << 4U | static_cast<std::uint32_t>(digitOf(text[digits]));
  }
  if (digits == 0) return std::nullopt;
  text.remove_prefix(digits);
  return number;
}

// Takes a text in quotation marks, in which a backslash stands before each quotation mark and each
// backslash.
std::optional<std::u16string> takeQuoted(std::u16string_view& text) {
  if (!take(u"\"", text)) return std::nullopt;
  std::u16string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == u'"') {
      text.remove_prefix(at + 1);
      return result;
    }
    if (text[at] == u'\\' && ++at == text.size()) break;
    result.push_back(text[at]);
  }
  return std::nullopt;
}

// Takes bytes with commas between them.
std::optional<std::string> takeBytes(std::u16string_view& text) {
  std::string bytes;
  dropBlanks(text);
  if (isEnd(text)) return bytes;
  do {
    dropBlanks(text);
    const std::optional<std::uint32_t> byte = takeHex(2, text);
    if (!byte) return std::nullopt;
    bytes.push_back(static_cast<char>(*byte));
    dropBlanks(text);
  } while (take(u",", text));
  return bytes;
}

std::u16string textOf(std::string_view bytes) {
  constexpr std::string_view kMark = "\xFF\xFE";
  if (bytes.starts_with(kMark)) return utf16FromBytes(bytes.substr(kMark.size()));
  std::u16string text;
  decode(ansiCodePage(), bytes, text);
  return text;
}

class Reader {
 public:
  Reader(std::u16string_view text, RegFile& target) : rest_(text), target_(&target) {}

  bool read() {
    std::u16string_view header = nextLine();
    dropBlanksAtEnd(header);
    if (header != kUnicodeHeader && header != kAnsiHeader) return false;
    textsAreAnsi_ = header == kAnsiHeader;
    while (!rest_.empty()) readLine();
    return true;
  }

 private:
  std::u16string_view nextLine() {
    const std::size_t end = rest_.find_first_of(u"\r\n");
    const std::u16string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end == std::u16string_view::npos ? rest_.size() : end + 1);
    return line;
  }

  void readLine() {
    std::u16string_view line = nextLine();
    dropBlanks(line);
    if (take(u"[", line)) {
      readKey(line);
    } else if (!key_.empty() && !line.empty() && line.front() != u';') {
      readValue(line);
    }
  }

  void readKey(std::u16string_view line) {
    key_.clear();
    const std::size_t end = line.rfind(u']');
    if (end == std::u16string_view::npos) return;
    std::u16string_view path = line.substr(0, end);
    if (take(u"-", path)) return target_->deleteKey(path);
    target_->createKey(path);
    if (target_->hasKey(path)) key_ = path;
  }

  void readValue(std::u16string_view line) {
    std::optional<std::u16string> name;
    if (take(u"@", line)) {
      name.emplace();
    } else {
      name = takeQuoted(line);
    }
    dropBlanks(line);
    if (!name || !take(u"=", line)) return;
    dropBlanks(line);
    if (line.starts_with(u"-") && isEnd(line.substr(1))) return target_->remove(key_, *name);
    if (auto value = takeValue(line)) target_->set(key_, *name, *std::move(value));
  }

  std::optional<RegistryValue> takeValue(std::u16string_view text) {
    if (text.starts_with(u"\"")) return takeText(text);
    if (take(u"dword:", text)) {
      dropBlanks(text);
      const std::optional<std::uint32_t> number = takeHex(8, text);
      if (!number || !isEnd(text)) return std::nullopt;
      return dwordValue(*number);
    }
    if (!take(u"hex", text)) return std::nullopt;
    return takeTyped(text);
  }

  static std::optional<RegistryValue> takeText(std::u16string_view text) {
    const std::optional<std::u16string> content = takeQuoted(text);
    if (!content || !isEnd(text)) return std::nullopt;
    RegistryValue value{kRegistryText, {}};
    appendUtf16Bytes(*content, value.data);
    value.data.append(2, '\0');
    return value;
  }

  std::optional<RegistryValue> takeTyped(std::u16string_view text) {
    RegistryValue value;
    if (take(u"(", text)) {
      const std::optional<std::uint32_t> type = takeHex(8, text);
      if (!type || !take(u")", text)) return std::nullopt;
      value.type = *type;
    }
    if (!take(u":", text)) return std::nullopt;
    const std::u16string lines = continued(text);
    text = lines;
    std::optional<std::string> bytes = takeBytes(text);
    if (!bytes || !isEnd(text)) return std::nullopt;
    value.data = inUtf16(value.type, *std::move(bytes));
    return value;
  }

  // `text` and the lines after it, as long as each ends in a backslash and another one with bytes
  // follows.
  std::u16string continued(std::u16string_view text) {
    std::u16string lines;
    for (;;) {
      dropBlanksAtEnd(text);
      if (!text.ends_with(u'\\') || !bytesFollow()) return lines.append(text);
      text.remove_suffix(1);
      lines.append(text);
      text = nextLine();
    }
  }

  // Whether the next line can continue the bytes. A line that begins anything else is left alone.
  [[nodiscard]] bool bytesFollow() {
    take(u"\n", rest_);  // of CR LF
    std::u16string_view line = rest_;
    dropBlanks(line);
    return !line.empty() && digitOf(line.front()) >= 0;
  }

  // Texts given as bytes are in the ANSI code page in old files, and in UTF-16 in the registry.
  [[nodiscard]] std::string inUtf16(std::uint32_t type, std::string bytes) const {
    constexpr std::uint32_t kExpandableText = 2;
    constexpr std::uint32_t kTexts = 7;
    const bool isText = type == kRegistryText || type == kExpandableText || type == kTexts;
    if (!textsAreAnsi_ || !isText) return bytes;
    std::u16string text;
    decode(ansiCodePage(), bytes, text);
    bytes.clear();
    appendUtf16Bytes(text, bytes);
    return bytes;
  }

  std::u16string_view rest_;
  RegFile* target_;
  std::u16string key_;  // the key whose values the lines give; empty: none
  bool textsAreAnsi_ = false;
};

}  // namespace

bool RegFile::merge(std::string_view fileBytes) {
  return Reader(textOf(fileBytes), *this).read();
}

}  // namespace brennet::platform
