#include "markup/text/TextDecoding.h"

#include <algorithm>

#include "markup/text/BlockDecoder.h"
#include "markup/text/EncodingDetection.h"

namespace brennet {
namespace {

void logLength(TextLog& log, TextEvent event, std::u16string_view encoding, std::size_t length) {
  log.add(event, encoding, static_cast<std::int64_t>(length));
}

// Decodes the block at the front of `bytes`, which is enlarged while it holds no whole character.
DecodedBlock decodeOne(BlockDecoder& decoder, std::string_view bytes, std::size_t blockSize,
                       std::u16string& text) {
  for (;; blockSize *= 2) {
    const bool isLast = blockSize >= bytes.size();
    const std::string_view block = bytes.substr(0, blockSize);
    const DecodedBlock decoded = decoder.decode(block, isLast, text);
    if (decoded.bytes > 0) return decoded;
  }
}

void decodeBlocks(std::string_view bytes, const DetectedEncoding& encoding, std::size_t blockSize,
                  std::u16string& text, TextLog& log) {
  BlockDecoder decoder(encoding.codePage);
  const std::size_t unit = unitSize(encoding.codePage);
  // A little more than the number of units, as invalid bytes may become longer.
  const std::size_t units = bytes.size() / unit;
  text.reserve(units + units / 100);
  while (!bytes.empty()) {
    const std::size_t read = std::min(blockSize, bytes.size());
    logLength(log, TextEvent::Read, encoding.name, read / unit);
    if (read < bytes.size() && !decoder.canExamineEnd()) {
      log.add(TextEvent::TruncationError, encoding.name);
      blockSize = bytes.size();
    }
    const std::size_t before = text.size();
    const DecodedBlock block = decodeOne(decoder, bytes, blockSize, text);
    if (block.bytes != read) logLength(log, TextEvent::Read, encoding.name, block.bytes / unit);
    if (block.nulls > 0) log.add(TextEvent::NullsRemoved, static_cast<std::int64_t>(block.nulls));
    if (!isUtf16(encoding.codePage)) {
      logLength(log, TextEvent::ConvertedTo, u"UTF-16", text.size() - before);
    }
    bytes.remove_prefix(block.bytes);
  }
}

}  // namespace

DecodedText decodeText(std::string_view bytes, DeclaredEncodingFinder findDeclared, TextLog& log,
                       std::size_t blockSize) {
  DecodedText decoded;
  const DetectedEncoding encoding = detectEncoding(bytes, findDeclared);
  if (!bytes.empty()) {
    decoded.form = {encoding.codePage, encoding.markLength > 0};
    if (encoding.source == DetectedEncoding::Source::Mark) log.add(TextEvent::Bom);
    if (encoding.source == DetectedEncoding::Source::Utf8Detection) {
      log.add(TextEvent::Utf8Detection);
    }
    bytes.remove_prefix(encoding.markLength);
  }
  if (bytes.empty()) {
    log.add(TextEvent::Read, encoding.name, 0);
    return decoded;
  }
  const std::size_t wholeSize = std::min(std::max(blockSize, std::size_t{1}), bytes.size());
  decodeBlocks(bytes, encoding, wholeSize, decoded.text, log);
  return decoded;
}

}  // namespace brennet
