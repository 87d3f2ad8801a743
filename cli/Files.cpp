#include "cli/Files.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "brennet/HotkeyBlock.h"
#include "cli/Commands.h"
#include "markup/DeclaredEncoding.h"
#include "markup/MarkupDocument.h"
#include "markup/ResultLog.h"
#include "markup/text/TextDecoding.h"
#include "markup/text/TextEncoding.h"
#include "markup/text/Utf8.h"
#include "platform/Files.h"

namespace brennet::cli {
namespace {

std::u16string utf16Of(const std::string& name) {
  std::u16string text;
  utf8ToUtf16(name, text);
  return text;
}

}  // namespace

std::string readBytes(const std::string& name) {
  const std::filesystem::path path(utf16Of(name));
  std::error_code error;
  if (!std::filesystem::is_directory(path, error)) {
    std::ifstream file(path, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    if (file.is_open() && !file.bad()) return bytes;
  }
  throw CommandFailure{name + ": cannot be read"};
}

void writeBytes(const std::string& name, std::string_view bytes, platform::OldContent old) {
  const auto error = platform::replaceFile(platform::pathFromUtf16(utf16Of(name)), bytes, old);
  if (error) throw CommandFailure{name + ": cannot be written: " + error.message()};
}

std::string settingsBytes(const HotkeyConfig& config, std::uint32_t saveTime) {
  MarkupDocument document;
  ResultLog log;
  if (!config.saveTo(document, saveTime)) throw CommandFailure{"the settings are too long"};
  return encodeText(document.doc(), declaredEncoding(document.doc()), log);
}

bool isRecord(std::string_view bytes) {
  std::uint32_t size = 0;
  if (bytes.size() < sizeof(size)) return false;
  std::memcpy(&size, bytes.data(), sizeof(size));
  return size >= sizeof(size) && size <= bytes.size();
}

std::string readRecord(const std::string& name) {
  std::string bytes = readBytes(name);
  if (!isRecord(bytes)) {
    throw CommandFailure{name + ": no record, which begins with its size in bytes"};
  }
  std::uint32_t size = 0;
  std::memcpy(&size, bytes.data(), sizeof(size));
  bytes.resize(std::min<std::size_t>(size, sizeof(HotkeyBlock)));
  return bytes;
}

HotkeyConfig readSettings(const std::string& name) {
  ResultLog log;
  MarkupDocument document;
  HotkeyConfig config;
  const std::string bytes = readBytes(name);
  if (!document.setDoc(decodeText(bytes, declaredEncodingOfBytes, log).text) ||
      !config.loadFrom(document)) {
    throw CommandFailure{name + ": no settings file that a load accepts; `brennet check` says why"};
  }
  return config;
}

}  // namespace brennet::cli
