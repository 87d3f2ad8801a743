#include "tests/host/SettingsWithoutMarks.h"
#include "tests/host/TestedBrennet.h"
#include "tests/support/SharedLibrary.h"
#include "tests/support/TempFolder.h"

namespace brennet::test {

// The object is the library's, and still has whatever an earlier test of this process left in it.
std::shared_ptr<IBrennet> testedBrennet() {
  static const auto get =
      reinterpret_cast<GetBrennetPtrFunction>(functionOf(BRENNET_LIBRARY, "GetBrennetPtr"));
  const TempFolder folder;
  const std::filesystem::path settings = folder / "KeyInfo.xml";
  writeBytes(settings, settingsWithoutMarks());
  get()->LoadSettings(settings.wstring().c_str());
  return {get(), [](IBrennet*) {}};
}

}  // namespace brennet::test
