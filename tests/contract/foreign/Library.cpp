#include "Library.h"

#include "MemberCall.h"
#include "Report.h"

namespace {

constexpr wchar_t kName[] = L"Brennet.dll";

unsigned checkedCall(void* function, void* object, const unsigned* arguments, unsigned count) {
  MemberCall call = {};
  call.function = function;
  call.object = object;
  call.arguments = arguments;
  call.count = count;
  call.alignment = place.alignment;
  makeMemberCall(&call);
  require(call.stackAfter == call.stackBefore, kStackMoved);
  require(call.ebx == kEbx, kEbxLost);
  require(call.esi == kEsi, kEsiLost);
  require(call.edi == kEdi, kEdiLost);
  require(call.ebp == kEbp, kEbpLost);
  require(call.x87Control == kX87Control, kX87ControlChanged);
  require((call.sseControl & kSseControlBits) == kSseControl, kSseControlChanged);
  require((call.flags & kDirectionFlag) == 0, kDirectionChanged);
  return call.eax;
}

}  // namespace

Library::Library() : module_(LoadLibraryW(kName)) {
  place.slot = kNoSlot;
  require(module_ != nullptr, kNoLibrary);
  void* const getBrennetPtr = GetProcAddress(module_, "GetBrennetPtr");
  require(getBrennetPtr != nullptr, kNoExport);
  const auto get = [=] {
    return reinterpret_cast<void**>(checkedCall(getBrennetPtr, nullptr, nullptr, 0));
  };
  object_ = get();
  require(object_ != nullptr, kNoObject);
  require(get() == object_, kOtherObject);
}

void Library::unload() {
  place.slot = kNoSlot;
  require(FreeLibrary(module_) != 0, kStillLoaded);
  require(GetModuleHandleW(kName) == nullptr, kStillLoaded);
}

unsigned Library::callSlot(Slot slot, const unsigned* arguments, unsigned count) const {
  place.slot = slot;
  void** const slots = static_cast<void**>(*object_);
  return checkedCall(slots[slot], object_, arguments, count);
}

bool Library::checkedBool(unsigned eax) {
  const auto byte = static_cast<unsigned char>(eax);
  require(byte <= 1, kNoBool);
  return byte == 1;
}
