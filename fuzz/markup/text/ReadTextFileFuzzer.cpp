// Any bytes as a document file: they decode, alike for every block size and for a naive decoder,
// and what was decoded can be written and read again.
//
// Input: the block size, and the content of the file.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/Target.h"
#include "markup/DeclaredEncoding.h"
#include "markup/ResultLog.h"
#include "markup/text/TextDecoding.h"
#include "markup/text/TextEncoding.h"
#include "tests/markup/text/NaiveDecoding.h"

namespace brennet {
namespace {

using fuzz::require;

void checkFile(std::string_view input) {
  if (input.empty()) return;
  const std::size_t blockSize = static_cast<unsigned char>(input[0]);
  const std::string_view bytes = input.substr(1);

  ResultLog log;
  const DecodedText whole = decodeText(bytes, declaredEncodingOfBytes, log);
  ResultLog logOfBlocks;
  const DecodedText blocks = decodeText(bytes, declaredEncodingOfBytes, logOfBlocks, blockSize);
  require(blocks.text == whole.text);
  require(blocks.form.codePage == whole.form.codePage);
  require(whole.text.find(u'\0') == std::u16string::npos);
  require(test::decodedNaively(bytes).value_or(whole.text) == whole.text);

  // In UTF-8 with a mark nothing can be misread, so every well-formed text comes back.
  ResultLog logOfWriting;
  const std::string written =
      encodeText(whole.text, u"utf-8", logOfWriting, {platform::kUtf8, true});
  const bool lost = logOfWriting.text().find(u"conversion_loss") != std::u16string::npos;
  const DecodedText again = decodeText(written, declaredEncodingOfBytes, log);
  require(lost || again.text == whole.text);
  require(again.text.size() == whole.text.size());

  ResultLog logOfDeclared;
  require(
      !encodeText(whole.text, declaredEncoding(whole.text), logOfDeclared, whole.form).empty() ||
      whole.text.empty());
}

}  // namespace
}  // namespace brennet

const brennet::fuzz::Grammar& brennet::fuzz::targetGrammar() {
  return textFileGrammar();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  brennet::checkFile(brennet::fuzz::bytesOf(data, size));
  return 0;
}
