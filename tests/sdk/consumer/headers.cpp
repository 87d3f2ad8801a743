#include <brennet/HotkeyBlock.h>
#include <brennet/IBrennet.h>
#include <brennet/Version.h>

std::uint32_t emptyRecord(brennet::GetBrennetPtrFunction get) {
  brennet::HotkeyBlock block = {};
  return get()->FillHotkeyBlock(&block) ? block.size : 1;
}
