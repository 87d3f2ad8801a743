#include "check/ObjectPlace.h"

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <exception>
#include <initializer_list>
#include <new>
#include <string>

#include "check/Findings.h"
#include "platform/MachineCode.h"

namespace brennet::check {
namespace {

// What is left of the object: the table of its slots, and for each the line that it writes and the
// code that writes it.
struct Remains {
  const void* const* table;
  const void* slots[kSlots.size()];
  char lines[kSlots.size()][512];
  std::uint8_t code[kSlots.size()][64];
};

// Functions of the C library, which stays in the process.
struct Functions {
  const void* write = platform::functionOfCLibrary("fputs");
  const void* end = platform::functionOfCLibrary("abort");
};

class MachineCode {
 public:
  explicit MachineCode(std::uint8_t* at) : at_(at) {}

  MachineCode& bytes(std::initializer_list<unsigned> bytes) {
    for (const unsigned byte : bytes) *at_++ = static_cast<std::uint8_t>(byte);
    return *this;
  }

  MachineCode& pointer(const void* pointer) { return word(pointer); }
  MachineCode& number(std::int32_t number) { return word(number); }

 private:
  template <class Word>
  MachineCode& word(Word word) {
    std::memcpy(at_, &word, sizeof(word));
    at_ += sizeof(word);
    return *this;
  }

  std::uint8_t* at_;
};

#if defined(__x86_64__) && !defined(__MINGW32__)

constexpr bool kHasCode = true;

void writeSlot(MachineCode code, const SlotFacts& slot, const char* line,
               const Functions& functions, bool stops) {
  code.bytes({0x48, 0x83, 0xEC, 0x08});           // sub rsp, 8
  code.bytes({0x48, 0xBF}).pointer(line);         // mov rdi, line
  code.bytes({0x48, 0xBE}).pointer(stderr);       // mov rsi, stream
  code.bytes({0x48, 0xB8}).pointer(functions.write).bytes({0xFF, 0xD0});  // call
  if (stops) code.bytes({0x48, 0xB8}).pointer(functions.end).bytes({0xFF, 0xD0});
  code.bytes({0xB8}).number(slot.failure).bytes({0x48, 0x83, 0xC4, 0x08, 0xC3});  // return
}

#elif defined(__i386__) && defined(__MINGW32__)

constexpr bool kHasCode = true;

// __thiscall: the slot removes its arguments.
void writeSlot(MachineCode code, const SlotFacts& slot, const char* line,
               const Functions& functions, bool stops) {
  code.bytes({0x68}).pointer(stderr).bytes({0x68}).pointer(line);            // push
  code.bytes({0xB8}).pointer(functions.write).bytes({0xFF, 0xD0});           // call
  code.bytes({0x83, 0xC4, 0x08});                                            // add esp, 8
  if (stops) code.bytes({0xB8}).pointer(functions.end).bytes({0xFF, 0xD0});  // call
  code.bytes({0xB8}).number(slot.failure).bytes({0xC2, slot.argumentBytes, 0x00});  // return
}

#else

constexpr bool kHasCode = false;

void writeSlot(MachineCode /*code*/, const SlotFacts& /*slot*/, const char* /*line*/,
               const Functions& /*functions*/, bool /*stops*/) {}

#endif

void writeLine(char (&line)[512], Slot slot) {
  const std::string text = "BrennetCheck: " + findingText(Rule::Unloaded, slot) + "\n";
  line[text.copy(line, sizeof(line) - 1)] = '\0';
}

}  // namespace

ObjectPlace::ObjectPlace() : pages_(platform::takePages(sizeof(Remains))) {
  if (pages_ == nullptr) throw std::bad_alloc();
}

void ObjectPlace::outlive(bool stops) {
  auto* const remains = new (pages_) Remains;
  const Functions functions;
  const bool hasCode = kHasCode && functions.write != nullptr && functions.end != nullptr;
  remains->table = remains->slots;
  for (std::size_t i = 0; i < kSlots.size(); ++i) {
    remains->slots[i] = hasCode ? static_cast<const void*>(remains->code[i])
                                : reinterpret_cast<const void*>(&std::terminate);
    if (!hasCode) continue;
    writeLine(remains->lines[i], static_cast<Slot>(i));
    writeSlot(MachineCode(remains->code[i]), kSlots[i], remains->lines[i], functions, stops);
  }
  // Without the right to run it, a call ends the process where it would have ended it anyway.
  static_cast<void>(platform::makeRunnable(pages_, sizeof(Remains)));
}

}  // namespace brennet::check
