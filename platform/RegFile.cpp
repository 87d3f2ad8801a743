#include "platform/RegFile.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/Utf16Bytes.h"

namespace brennet::platform {
namespace {

constexpr std::u16string_view kHeader = u"Windows Registry Editor Version 5.00";
constexpr std::u16string_view kLineEnd = u"\r\n";
constexpr std::u16string_view kDigits = u"0123456789abcdef";

constexpr std::array<std::u16string_view, 5> kRoots = {u"hkey_classes_root", u"hkey_current_config",
                                                       u"hkey_current_user", u"hkey_local_machine",
                                                       u"hkey_users"};

bool hasLineBreak(std::u16string_view text) {
  return text.find_first_of(u"\r\n") != std::u16string_view::npos;
}

bool isRoot(std::u16string_view loweredPath) {
  return std::find(kRoots.begin(), kRoots.end(), loweredPath) != kRoots.end();
}

bool isPath(std::u16string_view loweredPath) {
  if (!isRoot(loweredPath.substr(0, loweredPath.find(u'\\')))) return false;
  return loweredPath.back() != u'\\' && loweredPath.find(u"\\\\") == std::u16string_view::npos &&
         !hasLineBreak(loweredPath);
}

void appendHex(std::uint32_t number, int digits, std::u16string& text) {
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
    text.push_back(kDigits[number >> static_cast<unsigned>(shift) & 0xFU]);
  }
}

void appendQuoted(std::u16string_view text, std::u16string& out) {
  out.push_back(u'"');
  for (const char16_t unit : text) {
    if (unit == u'"' || unit == u'\\') out.push_back(u'\\');
    out.push_back(unit);
  }
  out.push_back(u'"');
}

void appendBytes(const RegistryValue& value, std::u16string& out) {
  out.append(u"hex");
  if (value.type != kRegistryBinary) {
    out.push_back(u'(');
    appendHex(value.type, 8, out);
    out.push_back(u')');
  }
  out.push_back(u':');
  for (std::size_t i = 0; i < value.data.size(); ++i) {
    if (i != 0) out.push_back(u',');
    appendHex(static_cast<unsigned char>(value.data[i]), 2, out);
  }
}

// Whether a line can hold this text value, and its text: it ends in a zero, and has no other
// control characters.
bool isPlainText(const RegistryValue& value, std::u16string& text) {
  const std::string& data = value.data;
  if (value.type != kRegistryText || data.size() % 2 != 0 || data.empty()) return false;
  text = utf16FromBytes(data);
  if (text.back() != u'\0') return false;
  text.pop_back();
  return std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit >= u' '; });
}

void appendValue(const RegistryValue& value, std::u16string& out) {
  std::u16string text;
  if (const auto number = numberIn(value)) {
    out.append(u"dword:");
    appendHex(*number, 8, out);
  } else if (isPlainText(value, text)) {
    appendQuoted(text, out);
  } else {
    appendBytes(value, out);
  }
}

}  // namespace

std::u16string RegFile::lowered(std::u16string_view name) {
  std::u16string result(name);
  for (char16_t& unit : result) {
    if (unit >= u'A' && unit <= u'Z') unit = static_cast<char16_t>(unit - u'A' + u'a');
  }
  return result;
}

std::string RegFile::serialize() const {
  std::u16string text = u"\xFEFF";
  text.append(kHeader).append(kLineEnd);
  for (const auto& [loweredPath, key] : keys_) {
    text.append(kLineEnd).append(u"[").append(key.path).append(u"]").append(kLineEnd);
    for (const auto& [loweredName, value] : key.values) {
      if (value.name.empty()) {
        text.push_back(u'@');
      } else {
        appendQuoted(value.name, text);
      }
      text.push_back(u'=');
      appendValue(value.content, text);
      text.append(kLineEnd);
    }
  }
  std::string bytes;
  appendUtf16Bytes(text, bytes);
  return bytes;
}

bool RegFile::hasKey(std::u16string_view path) const {
  std::u16string wanted = lowered(path);
  if (keys_.contains(wanted)) return true;
  wanted.push_back(u'\\');
  const auto below = keys_.lower_bound(wanted);
  return below != keys_.end() && below->first.starts_with(wanted);
}

const RegistryValue* RegFile::find(std::u16string_view path, std::u16string_view name) const {
  const auto key = keys_.find(lowered(path));
  if (key == keys_.end()) return nullptr;
  const auto value = key->second.values.find(lowered(name));
  return value == key->second.values.end() ? nullptr : &value->second.content;
}

RegFile::Key* RegFile::keyToChange(std::u16string_view path) {
  std::u16string wanted = lowered(path);
  if (!isPath(wanted)) return nullptr;
  const auto [key, isNew] = keys_.try_emplace(std::move(wanted));
  if (isNew) key->second.path = path;
  return &key->second;
}

void RegFile::createKey(std::u16string_view path) {
  static_cast<void>(keyToChange(path));
}

void RegFile::deleteKey(std::u16string_view path) {
  std::u16string wanted = lowered(path);
  if (isRoot(wanted) || !hasKey(path)) return;
  keys_.erase(wanted);
  wanted.push_back(u'\\');
  const auto first = keys_.lower_bound(wanted);
  auto last = first;
  while (last != keys_.end() && last->first.starts_with(wanted)) ++last;
  keys_.erase(first, last);
  createKey(path.substr(0, path.rfind(u'\\')));
}

bool RegFile::set(std::u16string_view path, std::u16string_view name, RegistryValue value) {
  if (!hasKey(path) || hasLineBreak(name)) return false;
  Key* const key = keyToChange(path);
  if (key == nullptr) return false;
  Value& place = key->values[lowered(name)];
  if (place.name.empty()) place.name = name;
  place.content = std::move(value);
  return true;
}

void RegFile::remove(std::u16string_view path, std::u16string_view name) {
  const auto key = keys_.find(lowered(path));
  if (key != keys_.end()) key->second.values.erase(lowered(name));
}

}  // namespace brennet::platform
