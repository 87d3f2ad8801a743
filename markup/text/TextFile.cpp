#include "markup/text/TextFile.h"

#include <system_error>
#include <utility>

#include "markup/text/TextEncoding.h"
#include "markup/text/Utf8.h"
#include "platform/Files.h"

namespace brennet {
namespace {

// The common errors have the same words on every system; the system's own words would come in the
// user's language and in some code page.
void logError(const std::error_code& error, TextLog& log) {
  const std::error_condition common = error.default_error_condition();
  std::u16string message = u"System error";
  if (common.category() == std::generic_category()) {
    message.clear();
    utf8ToUtf16(common.message(), message);
  }
  log.add(TextEvent::FileError, message, error.value());
}

}  // namespace

bool readTextFile(std::u16string_view path, DeclaredEncodingFinder findDeclared,
                  std::u16string& text, TextLog& log, std::size_t blockSize, TextForm* form) {
  std::string bytes;
  const platform::Path file = platform::pathFromUtf16(path);
  if (const std::error_code error = platform::readFile(file, bytes, kLargestTextFile)) {
    logError(error, log);
    return false;
  }
  DecodedText decoded = decodeText(bytes, findDeclared, log, blockSize);
  text = std::move(decoded.text);
  if (form != nullptr) *form = decoded.form;
  return true;
}

bool writeTextFile(std::u16string_view path, std::u16string_view text, std::u16string_view encoding,
                   TextLog& log, const TextForm& form, platform::OldContent old) {
  const std::string bytes = encodeText(text, encoding, log, form);
  const platform::Path file = platform::pathFromUtf16(path);
  if (const std::error_code error = platform::replaceFile(file, bytes, old)) {
    logError(error, log);
    return false;
  }
  return true;
}

}  // namespace brennet
