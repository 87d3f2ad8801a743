// The built library as a host sees it: found by file name, called through the exported function.

#include <gtest/gtest.h>

#include <bit>
#include <cstddef>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include "brennet/HotkeyBlock.h"
#include "brennet/IBrennet.h"
#include "tests/support/ScopedProfile.h"
#include "tests/support/SharedLibrary.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TestData.h"

namespace brennet {
namespace {

using namespace test;

static_assert(std::is_abstract_v<IBrennet>);
static_assert(!std::has_virtual_destructor_v<IBrennet>);
static_assert(sizeof(IBrennet) == sizeof(void*), "an interface has no data");

class LoadedLibrary : public testing::Test {
 protected:
  LoadedLibrary() : profile_(folder_.path()) {}

  static IBrennet* get() {
    const auto function =
        reinterpret_cast<GetBrennetPtrFunction>(functionOf(BRENNET_LIBRARY, "GetBrennetPtr"));
    EXPECT_NE(function, nullptr);
    return function != nullptr ? function() : nullptr;
  }

  TempFolder folder_;
  ScopedProfile profile_;
};

TEST_F(LoadedLibrary, GivesTheSameObjectEachTime) {
  IBrennet* const first = get();
  EXPECT_EQ(first, get());
}

TEST_F(LoadedLibrary, AnswersFromTheDefaultsBeforeAnyLoad) {
  IBrennet& brennet = *get();
  EXPECT_EQ(brennet.GetLastSaveTime(), 0U);
  EXPECT_EQ(brennet.GetDisableLWinFlag(), 0);
  EXPECT_EQ(brennet.GetViewNoDragFlag(), 0);
  EXPECT_EQ(brennet.GetStartJSQFlag(), 0);
  EXPECT_FALSE(brennet.IsCapsLockUsed());
  EXPECT_FALSE(brennet.IsShiftUsed());
  HotkeyBlock block{};
  block.size = sizeof(block);
  EXPECT_TRUE(brennet.FillHotkeyBlock(&block));
  EXPECT_EQ(block.zoomValue, 100);
}

TEST_F(LoadedLibrary, FailsToSaveWithoutALoad) {
  EXPECT_FALSE(get()->SetEnabled(true, 5));
  HotkeyBlock block{};
  block.size = sizeof(block);
  ASSERT_TRUE(get()->FillHotkeyBlock(&block));
  block.zoomValue = 90;
  EXPECT_EQ(get()->ApplyHotkeyBlock(&block, 5), -1);
}

// A pointer to a member function, made by hand from its address in the layout that the compilers of
// the tests use.
template <class Result, class... Arguments>
auto memberAt(void* address) {
  struct Pointer {
    void* function;
    std::ptrdiff_t adjustment;
  };
  using Member = Result (IBrennet::*)(Arguments...);
  return std::bit_cast<Member>(Pointer{address, 0});
}

// The operations that the public header declares, in order: the name between the calling convention
// and the arguments.
std::vector<std::string> declaredOperations() {
  const std::string header = readBytes(projectFile("host/include/brennet/IBrennet.h"));
  const std::string convention = " BRENNET_CALL ";
  std::vector<std::string> names;
  std::size_t at = header.find("class IBrennet {");
  while ((at = header.find(convention, at)) != std::string::npos) {
    at += convention.size();
    names.push_back(header.substr(at, header.find('(', at) - at));
  }
  return names;
}

// The slots are counted by hand here, so that operations cannot change places unseen.
TEST_F(LoadedLibrary, HasItsOperationsInTheFixedSlots) {
  const auto path = folder_ / "KeyInfo.xml";
  writeBytes(path,
             "<KeyInfo enable=\"1\"><LastSaveTime>77</LastSaveTime><KeyInfo_0><DisableLWinFlag>1"
             "</DisableLWinFlag><SecretaryKey><Key id=\"0\">4096</Key></SecretaryKey>"
             "</KeyInfo_0></KeyInfo>");
  IBrennet* const brennet = get();
  void** const slots = *reinterpret_cast<void***>(brennet);
  std::set<std::size_t> called = {1};
  const auto call = [&]<class Result, class... Arguments>(std::size_t slot, Result,
                                                          Arguments... arguments) {
    called.insert(slot);
    return (brennet->*memberAt<Result, Arguments...>(slots[slot]))(arguments...);
  };
  const std::wstring name = path.wstring();
  EXPECT_TRUE(call(0, bool(), name.c_str()));
  (brennet->*memberAt<void, const wchar_t*>(slots[1]))(L"");
  bool saved = true;
  EXPECT_FALSE(call(2, bool(), &saved, std::uint32_t{1}));
  EXPECT_FALSE(saved);
  HotkeyBlock block{};
  block.size = sizeof(block);
  EXPECT_TRUE(call(3, bool(), &block));
  EXPECT_EQ(block.flags, 0x80000001U);
  EXPECT_EQ(call(4, std::uint8_t()), 1);
  EXPECT_EQ(call(5, std::uint32_t()), 77U);
  EXPECT_TRUE(call(6, bool(), false, std::uint32_t{78}));
  EXPECT_EQ(call(7, std::uint8_t()), 0);
  EXPECT_FALSE(call(8, bool()));
  EXPECT_TRUE(call(9, bool()));
  block.flags = 1;
  block.zoomValue = 90;
  EXPECT_EQ(call(10, std::int32_t(), &block, std::uint32_t{79}), 0);
  EXPECT_EQ(call(10, std::int32_t(), &block, std::uint32_t{79}), -1);
  EXPECT_EQ(call(11, std::uint8_t()), 0);
  const std::vector<std::string> declared = declaredOperations();
  for (std::size_t slot = 0; slot < declared.size(); ++slot) {
    EXPECT_TRUE(called.contains(slot))
        << "call slot " << slot << ", " << declared[slot] << ", in this test";
  }
  EXPECT_EQ(called.size(), declared.size());
}

}  // namespace
}  // namespace brennet
