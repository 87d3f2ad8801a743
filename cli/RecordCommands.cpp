#include <nlohmann/json.hpp>

#include <cstring>
#include <iomanip>
#include <ostream>

#include "cli/Changes.h"
#include "cli/Commands.h"
#include "cli/Files.h"
#include "cli/Output.h"
#include "cli/RecordFields.h"
#include "model/BlockFiller.h"
#include "model/BlockMerger.h"

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

std::string bytesOf(const HotkeyBlock& block) {
  return {reinterpret_cast<const char*>(&block), sizeof(block)};
}

HotkeyBlock filledBlock(HotkeyConfig& config) {
  HotkeyBlock block;
  fillBlock(config, block);
  return block;
}

void printField(const RecordField& field, std::string_view record, std::ostream& out) {
  constexpr std::size_t kShown = 8;
  const std::string_view bytes = record.substr(field.offset, field.size);
  std::string hex = hexOf(bytes.substr(0, kShown), " ");
  if (bytes.size() > kShown) hex += " ..";
  out << std::right << std::setw(6) << field.offset << "  " << std::left << std::setw(22)
      << field.name << std::setw(28) << hex << shown(field.meaning) << '\n';
}

}  // namespace

ExitStatus makeRecord(const std::string& file, const std::string& output, Answer answer) {
  HotkeyConfig config = readSettings(file);
  const std::string record = bytesOf(filledBlock(config));
  if (!output.empty()) {
    writeBytes(output, record);
  } else if (answer.isJson) {
    printJson({{"size", record.size()}, {"bytes", hexOf(record)}}, answer.out);
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
    printJson(all, answer.out);
  } else {
    for (const RecordField& field : fields) printField(field, record, answer.out);
  }
  return kDone;
}

ExitStatus applyRecord(const std::string& file, const std::string& record, bool write,
                       Answer answer) {
  const HotkeyConfig before = readSettings(file);
  HotkeyConfig after = before;
  const HotkeyBlock current = filledBlock(after);
  const std::string carried = readRecord(record);
  HotkeyBlock returned = current;
  std::memcpy(&returned, carried.data(), carried.size());
  mergeBlock(current, returned, carried.size(), after);
  const std::vector<Change> changes = changesBetween(before, after);
  if (!changes.empty() && write) writeBytes(file, settingsBytes(after, before.LastSaveTime()));
  print(changes, answer);
  return changes.empty() ? kFound : kDone;
}

}  // namespace brennet::cli
