#include <nlohmann/json.hpp>

#include <algorithm>
#include <iomanip>
#include <ostream>

#include "cli/Commands.h"
#include "cli/Files.h"
#include "cli/RecordFields.h"
#include "model/BlockBytes.h"
#include "model/BlockFiller.h"

namespace brennet::cli {
namespace {

constexpr std::size_t kBytesOfALine = 16;

std::string hexOf(std::string_view bytes, std::string_view between = {}) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  for (const char byte : bytes) {
    if (!text.empty()) text += between;
    text += kDigits[static_cast<unsigned char>(byte) >> 4U];
    text += kDigits[static_cast<unsigned char>(byte) & 0xFU];
  }
  return text;
}

void printBytes(std::string_view bytes, std::ostream& out) {
  for (std::size_t at = 0; at < bytes.size(); at += kBytesOfALine) {
    out << std::setw(4) << at << "  " << hexOf(bytes.substr(at, kBytesOfALine), " ") << '\n';
  }
}

std::string recordOf(HotkeyConfig config) {
  HotkeyBlock block;
  fillBlock(config, block);
  return {reinterpret_cast<const char*>(&block), sizeof(block)};
}

// The record in the file, without what is behind it.
std::string readRecord(const std::string& file) {
  std::string bytes = readBytes(file);
  std::uint32_t size = 0;
  if (bytes.size() >= sizeof(size)) std::memcpy(&size, bytes.data(), sizeof(size));
  if (size < sizeof(size) || size > bytes.size()) {
    throw CommandFailure{file + ": no record, which begins with its size in bytes"};
  }
  bytes.resize(std::min<std::size_t>(size, sizeof(HotkeyBlock)));
  return bytes;
}

void printField(const RecordField& field, std::string_view record, std::ostream& out) {
  constexpr std::size_t kShown = 8;
  const std::string_view bytes = record.substr(field.offset, field.size);
  std::string hex = hexOf(bytes.substr(0, kShown), " ");
  if (bytes.size() > kShown) hex += " ..";
  out << std::right << std::setw(6) << field.offset << "  " << std::left << std::setw(22)
      << field.name << std::setw(28) << hex << field.meaning << '\n';
}

}  // namespace

ExitStatus makeRecord(const std::string& file, const std::string& output, Answer answer) {
  const std::string record = recordOf(readSettings(file));
  if (!output.empty()) {
    writeBytes(output, record);
  } else if (answer.isJson) {
    answer.out << nlohmann::ordered_json{{"size", record.size()}, {"bytes", hexOf(record)}}.dump(2)
               << '\n';
  } else {
    printBytes(record, answer.out);
  }
  return kDone;
}

ExitStatus explainRecordFile(const std::string& file, Answer answer) {
  const std::string record = readRecord(file);
  const std::vector<RecordField> fields = explainRecord(record);
  if (answer.isJson) {
    auto all = nlohmann::ordered_json::array();
    for (const RecordField& field : fields) {
      all.push_back({{"offset", field.offset},
                     {"name", field.name},
                     {"bytes", hexOf(std::string_view(record).substr(field.offset, field.size))},
                     {"meaning", field.meaning}});
    }
    // What is no UTF-8 in a phrase becomes U+FFFD.
    answer.out << all.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
  } else {
    for (const RecordField& field : fields) printField(field, record, answer.out);
  }
  return kDone;
}

}  // namespace brennet::cli
