#include "ui/capture/KeyCapture.h"

#include <gtest/gtest.h>

#include <vector>

namespace brennet {
namespace {

using Outcome = Capture::Outcome;

constexpr unsigned kBackspace = 0x08, kTab = 0x09, kReturn = 0x0D, kShift = 0x10, kControl = 0x11,
                   kAlt = 0x12, kSpace = 0x20, kDelete = 0x2E;
constexpr CaptureStyle kAdvancedPage{};
constexpr CaptureStyle kBasicPage{.beforeName = u" "};

KeyEvent press(unsigned key) {
  return {.isPress = true, .virtualKey = key};
}
KeyEvent withControl(unsigned key) {
  return {.isPress = true, .virtualKey = key, .controlIsHeld = true};
}
KeyEvent withAlt(unsigned key) {
  return {.isPress = true, .virtualKey = key, .altIsHeld = true};
}
KeyEvent withBoth(unsigned key) {
  return {.isPress = true, .virtualKey = key, .controlIsHeld = true, .altIsHeld = true};
}
KeyEvent repeated(unsigned key) {
  return {.isPress = true, .isRepeat = true, .virtualKey = key};
}
KeyEvent release(unsigned key) {
  return {.isPress = false, .virtualKey = key};
}

TEST(KeyCapture, TakesALoneModifierForAKeyUntilItIsReleased) {
  constexpr unsigned kCtrl = 0x11;
  KeyCapture capture{CaptureStyle{.modifiersAreKeys = true}};
  const Capture ctrl = capture.handle({.isPress = true, .virtualKey = kCtrl});
  EXPECT_EQ(ctrl.outcome, Capture::Outcome::Captured);
  EXPECT_EQ(ctrl.key, KeyWord(kCtrl, 0));
  EXPECT_EQ(ctrl.text.view(), u"CTRL");
  const Capture alt = capture.handle({.isPress = true, .virtualKey = kAlt, .controlIsHeld = true});
  EXPECT_EQ(alt.key, KeyWord(kAlt, 0)) << "the one that was pressed last";
  EXPECT_EQ(capture.handle({.isPress = false, .virtualKey = kAlt}).outcome,
            Capture::Outcome::Cleared);
  EXPECT_EQ(capture.handle({.isPress = false, .virtualKey = kCtrl}).outcome,
            Capture::Outcome::Ignored);

  static_cast<void>(capture.handle({.isPress = true, .virtualKey = kCtrl}));
  const Capture q = capture.handle({.isPress = true, .virtualKey = 'Q', .controlIsHeld = true});
  EXPECT_EQ(q.key, KeyWord('Q', KeyWord::kCtrl));
  EXPECT_EQ(capture.handle({.isPress = false, .virtualKey = 'Q'}).outcome,
            Capture::Outcome::Ignored)
      << "a whole key stays";

  static_cast<void>(capture.handle({.isPress = true, .virtualKey = kAlt}));
  EXPECT_EQ(capture.handle({.isPress = true, .virtualKey = 0x0D, .altIsHeld = true}).outcome,
            Capture::Outcome::Ignored);
  EXPECT_EQ(capture.leave().outcome, Capture::Outcome::Cleared) << "Return completes nothing";
  static_cast<void>(capture.handle({.isPress = true, .virtualKey = kAlt}));
  EXPECT_EQ(capture.handle({.isPress = true, .virtualKey = 8, .altIsHeld = true}).outcome,
            Capture::Outcome::Cleared);
  EXPECT_EQ(capture.leave().outcome, Capture::Outcome::Ignored);
}

TEST(KeyCapture, IgnoresTheReleasesOfAKeyThatRepeats) {
  KeyCapture capture{CaptureStyle{}};
  static_cast<void>(capture.handle({.isPress = true, .virtualKey = 0x11}));
  EXPECT_EQ(capture.handle({.isPress = false, .isRepeat = true, .virtualKey = 'Q'}).outcome,
            Capture::Outcome::Ignored);
  EXPECT_EQ(capture.handle({.isPress = false, .virtualKey = 0x11}).outcome,
            Capture::Outcome::Shown);
}

TEST(KeyCapture, TurnsAPressIntoAKeyAndItsText) {
  struct Row {
    KeyEvent event;
    Outcome outcome;
    std::u16string_view advanced, basic;
    std::uint16_t key;
  };
  const Row kRows[] = {
      {press('Q'), Outcome::Captured, u"Q", u" Q", 0x5100},
      {press(kSpace), Outcome::Captured, u"SPACE", u" SPACE", 0x2000},
      {press(kTab), Outcome::Captured, u"TAB", u" TAB", 0x0900},
      {press(kShift), Outcome::Captured, u"SHIFT", u" SHIFT", 0x1000},
      {withControl('Q'), Outcome::Captured, u"CTRL +Q", u"CTRL + Q", 0x5102},
      {withAlt('Q'), Outcome::Captured, u"Alt +Q", u"Alt + Q", 0x5104},
      {withBoth('Q'), Outcome::Captured, u"CTRL +Alt +Q", u"CTRL +Alt + Q", 0x5106},
      {press(0x70), Outcome::Captured, u"F1", u" F1", 0x7000},
      {press(0x07), Outcome::Captured, u"", u" ", 0x0700},
      {press(0xFF), Outcome::Captured, u"", u" ", 0xFF00},
      {press(kControl), Outcome::Shown, u"CTRL +", u"CTRL +", 0xFF00},
      {withControl(kControl), Outcome::Shown, u"CTRL +", u"CTRL +", 0xFF00},
      {press(kAlt), Outcome::Shown, u"Alt +", u"Alt +", 0xFF00},
      {withControl(kAlt), Outcome::Shown, u"CTRL +Alt +", u"CTRL +Alt +", 0xFF00},
      {withAlt(kControl), Outcome::Shown, u"CTRL +Alt +", u"CTRL +Alt +", 0xFF00},
      {press(kBackspace), Outcome::Cleared, u"", u"", 0xFF00},
      {withControl(kDelete), Outcome::Cleared, u"", u"", 0xFF00},
      {press(kReturn), Outcome::Ignored, u"", u"", 0xFF00},
      {withControl(kReturn), Outcome::Ignored, u"", u"", 0xFF00},
      {press(0), Outcome::Ignored, u"", u"", 0xFF00},
      {press(0x100), Outcome::Ignored, u"", u"", 0xFF00},
      {repeated('Q'), Outcome::Ignored, u"", u"", 0xFF00},
      {release('Q'), Outcome::Ignored, u"", u"", 0xFF00},
  };
  for (const Row& row : kRows) {
    for (const CaptureStyle& style : {kAdvancedPage, kBasicPage}) {
      const Capture capture = KeyCapture(style).handle(row.event);
      const bool isBasic = !style.beforeName.empty();
      SCOPED_TRACE(testing::Message() << "key " << row.event.virtualKey << " basic " << isBasic);
      EXPECT_EQ(capture.outcome, row.outcome);
      EXPECT_EQ(capture.text.view(), isBasic ? row.basic : row.advanced);
      EXPECT_EQ(capture.key.raw(), row.key);
    }
  }
}

// What the field shows after a row of events, and what is stored.
struct Course {
  const char* what;
  std::vector<KeyEvent> events;
  std::vector<Outcome> outcomes;
};

TEST(KeyCapture, WaitsAfterALoneModifier) {
  using enum Outcome;
  const Course kCourses[] = {
      {"Ctrl and its release", {press(kControl), release(kControl)}, {Shown, Shown}},
      {"any release counts", {press(kAlt), release('Q')}, {Shown, Shown}},
      {"once", {press(kAlt), release(kAlt), release(kAlt)}, {Shown, Shown, Ignored}},
      {"Ctrl, Q", {press(kControl), withControl('Q'), release('Q')}, {Shown, Captured, Ignored}},
      {"Ctrl, held down",
       {press(kControl), repeated(kControl), release(kControl)},
       {Shown, Ignored, Shown}},
      {"Ctrl, Alt", {press(kControl), withControl(kAlt), release(kAlt)}, {Shown, Shown, Shown}},
      {"Ctrl, Return",
       {press(kControl), withControl(kReturn), release(kControl)},
       {Shown, Ignored, Shown}},
      {"Ctrl, Backspace",
       {press(kControl), withControl(kBackspace), release(kControl)},
       {Shown, Cleared, Ignored}},
  };
  for (const Course& course : kCourses) {
    KeyCapture capture(kAdvancedPage);
    std::vector<Outcome> outcomes;
    for (const KeyEvent& event : course.events) outcomes.push_back(capture.handle(event).outcome);
    EXPECT_EQ(outcomes, course.outcomes) << course.what;
  }
}

TEST(KeyCapture, EmptiesTheFieldOnReleaseAndWhenTheFocusGoes) {
  KeyCapture capture(kAdvancedPage);
  EXPECT_EQ(capture.handle(press(kControl)).text.view(), u"CTRL +");
  EXPECT_EQ(capture.handle(release(kControl)).text.view(), u"");

  EXPECT_EQ(capture.leave().outcome, Outcome::Ignored);
  EXPECT_EQ(capture.handle(press(kAlt)).text.view(), u"Alt +");
  const Capture left = capture.leave();
  EXPECT_EQ(left.outcome, Outcome::Shown);
  EXPECT_EQ(left.text.view(), u"");
  EXPECT_EQ(capture.leave().outcome, Outcome::Ignored);
}

TEST(KeyCapture, WritesModifiersInTheStyleOfThePage) {
  KeyCapture capture({.control = u"Ctrl-", .alt = u"ALT +", .beforeName = u"_"});
  EXPECT_EQ(capture.handle(withBoth('Q')).text.view(), u"Ctrl-ALT +_Q");
}

}  // namespace
}  // namespace brennet
