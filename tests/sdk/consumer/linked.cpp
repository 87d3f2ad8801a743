// A host that links the library. It loads KeyInfo.xml from the working folder.

#include <brennet/HotkeyBlock.h>
#include <brennet/IBrennet.h>

#include <cstdio>

extern "C" brennet::IBrennet* GetBrennetPtr();

int main() {
  brennet::IBrennet* const brennet = GetBrennetPtr();
  const bool loaded = brennet->LoadSettings(L"KeyInfo.xml");
  brennet::HotkeyBlock block = {};
  block.size = sizeof(block);
  const bool filled = brennet->FillHotkeyBlock(&block);
  std::printf("loaded: %d, save time: %lu, filled: %d, zoom: %d\n", loaded ? 1 : 0,
              static_cast<unsigned long>(brennet->GetLastSaveTime()), filled ? 1 : 0,
              static_cast<int>(block.zoomValue));
  return loaded && filled ? 0 : 1;
}
