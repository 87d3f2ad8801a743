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
#include "platform/Files.h"

namespace brennet::cli {
namespace {

// Elsewhere than under Windows names are bytes, whether they are UTF-8 or not.
std::filesystem::path pathOf(const std::string& name) {
  return std::u8string(name.begin(), name.end());
}

std::uint32_t sizeField(std::string_view record) {
  std::uint32_t size = 0;
  std::memcpy(&size, record.data(), sizeof(size));
  return size;
}

}  // namespace

std::string readBytes(const std::string& name) {
  return readBytes(pathOf(name), name);
}

std::string readBytes(const std::filesystem::path& path, const std::string& name) {
  std::error_code error;
  if (!std::filesystem::is_directory(path, error)) {
    std::ifstream file(path, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    if (file.is_open() && !file.bad()) return bytes;
  }
  throw CommandFailure{name + ": cannot be read"};
}

void writeBytes(const std::string& name, std::string_view bytes) {
  const auto error = platform::replaceFile(pathOf(name), bytes);
  if (error) throw CommandFailure{name + ": cannot be written: " + error.message()};
}

std::string putAside(const std::string& name, std::string_view bytes) {
  std::string aside = name + ".damaged";
  for (int n = 2; platform::pathExists(pathOf(aside)); ++n) {
    aside = name + ".damaged-" + std::to_string(n);
  }
  writeBytes(aside, bytes);
  return aside;
}

std::string settingsBytes(const HotkeyConfig& config, std::uint32_t saveTime) {
  MarkupDocument document;
  ResultLog log;
  if (!config.saveTo(document, saveTime)) throw CommandFailure{"the settings are too long"};
  std::string bytes = encodeText(document.doc(), declaredEncoding(document.doc()), log);
  if (log.text().find(u"conversion_loss") != std::u16string::npos) {
    throw CommandFailure{"a phrase has characters that settings files cannot hold"};
  }
  return bytes;
}

bool isRecord(std::string_view bytes) {
  if (bytes.size() < sizeof(std::uint32_t)) return false;
  return sizeField(bytes) >= sizeof(std::uint32_t) && sizeField(bytes) <= bytes.size();
}

std::string readRecord(const std::string& name) {
  std::string bytes = readBytes(name);
  if (!isRecord(bytes)) {
    throw CommandFailure{name + ": no record, which begins with its size in bytes"};
  }
  bytes.resize(std::min<std::size_t>(sizeField(bytes), sizeof(HotkeyBlock)));
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
