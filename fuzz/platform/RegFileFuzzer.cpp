// Any bytes as a .reg file: what is no such file changes nothing, and what was read is the same
// after writing and reading it again.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/Target.h"
#include "platform/RegFile.h"

namespace brennet::platform {
namespace {

using fuzz::require;

constexpr std::u16string_view kKey = u"HKEY_CURRENT_USER\\Software\\Tollamere";

void checkRegFile(std::string_view bytes) {
  RegFile content;
  content.createKey(kKey);
  require(content.set(kKey, u"N", dwordValue(1)));
  const RegFile before = content;
  if (!content.merge(bytes)) require(content == before);

  RegFile again;
  require(again.merge(content.serialize()));
  require(again == content);

  // The bytes as a value, and as the name of one.
  content.createKey(kKey);
  const std::u16string name(bytes.begin(), bytes.end());
  const RegistryValue value{static_cast<std::uint32_t>(bytes.size()), std::string(bytes)};
  const bool isSet = content.set(kKey, name, value);
  require(isSet == (name.find_first_of(u"\r\n") == std::u16string::npos));
  if (isSet) require(*content.find(kKey, name) == value);
  RegFile withName;
  require(withName.merge(content.serialize()));
  require(withName == content);
  content.deleteKey(kKey);
  require(!content.hasKey(kKey) && content.find(kKey, u"N") == nullptr);
}

}  // namespace
}  // namespace brennet::platform

const brennet::fuzz::Grammar& brennet::fuzz::targetGrammar() {
  return regFileGrammar();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  brennet::platform::checkRegFile(brennet::fuzz::bytesOf(data, size));
  return 0;
}
