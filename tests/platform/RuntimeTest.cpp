#include "platform/Runtime.h"

#include <gtest/gtest.h>

#include <cstring>

#include "platform/MachineCode.h"

namespace brennet::platform {
namespace {

void someFunction() {}

TEST(Runtime, KnowsTheFileOfCode) {
  const Path own = fileOfCode(reinterpret_cast<const void*>(&someFunction));
  EXPECT_EQ(own.stem(), "platform_tests");
  const Path other = fileOfCode(functionOfCLibrary("abort"));
  EXPECT_FALSE(other.empty());
  EXPECT_NE(own, other);
  EXPECT_EQ(fileOfCode(nullptr), Path());
}

TEST(Runtime, MayUnloadWhileTheProcessLives) {
  EXPECT_TRUE(mayUnloadOthers());
}

TEST(MachineCode, RunsWhatWasWritten) {
  constexpr std::size_t kSize = 100;
  void* const pages = takePages(kSize);
  ASSERT_NE(pages, nullptr);
  constexpr unsigned char kReturn42[] = {0xB8, 42, 0, 0, 0, 0xC3};  // mov eax, 42; ret
  std::memcpy(pages, kReturn42, sizeof(kReturn42));
  ASSERT_TRUE(makeRunnable(pages, kSize));
#if defined(__i386__) || defined(__x86_64__)
  EXPECT_EQ(reinterpret_cast<int (*)()>(pages)(), 42);
#endif
}

TEST(MachineCode, KnowsTheFunctionsOfTheCLibrary) {
  EXPECT_NE(functionOfCLibrary("fputs"), nullptr);
  EXPECT_EQ(functionOfCLibrary("no such function"), nullptr);
}

}  // namespace
}  // namespace brennet::platform
