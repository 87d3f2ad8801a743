// A host that has the calling convention wrong, which only 32-bit code can.

#include "check/CheckedBrennet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "check/CheckedLibrary.h"
#include "tests/check/FakeBrennet.h"

namespace brennet::check {
namespace {

// Calls a slot like a function that takes the object as its first argument. The slot removes other
// bytes from the stack than such a caller expects, which is put right here.
void callWithObjectOnTheStack(const void* function, void* object, const void* argument) {
  __asm__ volatile(
      "movl %%esp, %%esi\n\t"
      "pushl %[argument]\n\t"
      "pushl %[object]\n\t"
      "xorl %%ecx, %%ecx\n\t"
      "call *%[function]\n\t"
      "movl %%esi, %%esp"
      : [argument] "+a"(argument)
      : [function] "D"(function), [object] "b"(object)
      : "ecx", "edx", "esi", "cc", "memory");
}

TEST(CheckedBrennet, IsNotConfusedByAnotherCallingConvention) {
  test::FakeBrennet library;
  std::vector<std::string> lines;
  CheckedLibrary checked(
      library, [&](const std::string& line) { lines.push_back(line); }, false);
  const void* const* const slots = *reinterpret_cast<void***>(&checked.object());
  callWithObjectOnTheStack(slots[indexOf(Slot::LoadSettings)], &checked.object(), L"file");
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_THAT(lines[0], testing::StartsWith("slot 0 LoadSettings: [object] "));
  EXPECT_EQ(library.operation, "") << "it was called";
}

}  // namespace
}  // namespace brennet::check
