#include "ui/window/HitTest.h"

#include <gtest/gtest.h>

#include <ostream>

namespace brennet {
namespace {

// A window from (100, 200) up to, but not including, (500, 400), with margins of four widths.
constexpr QRect kFrame(100, 200, 400, 200);
constexpr QMargins kMargins(4, 6, 8, 10);

struct Case {
  const char* place;
  QPoint point;
  Hit hit;
};

void expectHits(const WindowShape& window, Under under, std::initializer_list<Case> cases) {
  for (const Case& row : cases) {
    EXPECT_EQ(static_cast<int>(hitTest(window, row.point, under)), static_cast<int>(row.hit))
        << row.place;
  }
}

constexpr std::initializer_list<Case> kEdges = {
    {"first pixel", {100, 200}, Hit::TopLeft},
    {"end of the top left corner", {103, 205}, Hit::TopLeft},
    {"right of the top left corner", {104, 205}, Hit::Top},
    {"below the top left corner", {103, 206}, Hit::Left},
    {"last pixel above", {499, 200}, Hit::TopRight},
    {"start of the top right corner", {492, 205}, Hit::TopRight},
    {"left of the top right corner", {491, 205}, Hit::Top},
    {"below the top right corner", {492, 206}, Hit::Right},
    {"first pixel below", {100, 399}, Hit::BottomLeft},
    {"start of the bottom left corner", {103, 390}, Hit::BottomLeft},
    {"above the bottom left corner", {103, 389}, Hit::Left},
    {"right of the bottom left corner", {104, 390}, Hit::Bottom},
    {"last pixel", {499, 399}, Hit::BottomRight},
    {"start of the bottom right corner", {492, 390}, Hit::BottomRight},
    {"left of the bottom right corner", {491, 390}, Hit::Bottom},
    {"above the bottom right corner", {492, 389}, Hit::Right},
    {"left band, beside the window", {100, 450}, Hit::Left},
    {"right band, beside the window", {499, 150}, Hit::Right},
    {"top band, beside the window", {50, 200}, Hit::Top},
    {"bottom band, beside the window", {600, 399}, Hit::Bottom},
    {"left of the window", {99, 300}, Hit::NotHandled},
    {"right of the window", {500, 300}, Hit::NotHandled},
    {"above the window", {300, 199}, Hit::NotHandled},
    {"below the window", {300, 400}, Hit::NotHandled},
};

TEST(HitTest, FindsTheEightBandsWhateverIsUnderThePoint) {
  for (const DragArea area : {DragArea::EmptyPlaces, DragArea::TopStrip}) {
    for (const Under under : {Under::Nothing, Under::PushButton, Under::Control}) {
      expectHits({kFrame, kMargins, area}, under, kEdges);
    }
  }
}

TEST(HitTest, FindsNoBandsWithoutMargins) {
  expectHits({kFrame, {}, DragArea::EmptyPlaces}, Under::Nothing,
             {{"first pixel", {100, 200}, Hit::Caption},
              {"last pixel", {499, 399}, Hit::Caption},
              {"left of the window", {99, 200}, Hit::NotHandled},
              {"below the window", {100, 400}, Hit::NotHandled}});
}

// Where two opposite margins overlap, the first one wins.
TEST(HitTest, PrefersTheLeftAndTheTopWhereMarginsOverlap) {
  expectHits({{0, 0, 10, 10}, {8, 8, 8, 8}, DragArea::EmptyPlaces}, Under::Nothing,
             {{"middle", {5, 5}, Hit::TopLeft},
              {"right", {9, 5}, Hit::TopRight},
              {"bottom", {5, 9}, Hit::BottomLeft},
              {"corner", {9, 9}, Hit::BottomRight}});
}

TEST(HitTest, WorksLeftOfAndAboveTheFirstScreen) {
  expectHits({{-1000, -500, 400, 200}, kMargins, DragArea::EmptyPlaces}, Under::Nothing,
             {{"corner", {-1000, -500}, Hit::TopLeft},
              {"last pixel", {-601, -301}, Hit::BottomRight},
              {"inside", {-900, -400}, Hit::Caption}});
}

TEST(HitTestOfADialog, IsDraggedWhereNoControlAndNoLinkIs) {
  const WindowShape window{kFrame, kMargins, DragArea::EmptyPlaces};
  const auto hitOver = [&](Under under) { return hitTest(window, {300, 380}, under); };
  EXPECT_EQ(hitOver(Under::Nothing), Hit::Caption);
  EXPECT_EQ(hitOver(Under::Label), Hit::Caption);
  EXPECT_EQ(hitOver(Under::GroupBox), Hit::Caption);
  EXPECT_EQ(hitOver(Under::Frame), Hit::Caption);
  EXPECT_EQ(hitOver(Under::Link), Hit::Client);
  EXPECT_EQ(hitOver(Under::PushButton), Hit::Client);
  EXPECT_EQ(hitOver(Under::Control), Hit::Client);
}

TEST(HitTestOfABox, IsDraggedByItsTopStripAlone) {
  const WindowShape window{kFrame, kMargins, DragArea::TopStrip};
  for (const Under under :
       {Under::Nothing, Under::Label, Under::Link, Under::GroupBox, Under::Frame, Under::Control}) {
    expectHits(window, under,
               {{"top of the strip", {300, 206}, Hit::Caption},
                {"last line of the strip", {300, 236}, Hit::Caption},
                {"below the strip", {300, 237}, Hit::Client}});
  }
  expectHits(
      window, Under::PushButton,
      {{"in the strip", {300, 206}, Hit::Client}, {"below the strip", {300, 237}, Hit::Client}});
}

// Windows expects a number.
TEST(HitTest, AnswersWithTheNumbersOfWindows) {
  EXPECT_EQ(static_cast<int>(Hit::NotHandled), -2);
  EXPECT_EQ(static_cast<int>(Hit::Client), 1);
  EXPECT_EQ(static_cast<int>(Hit::Caption), 2);
  EXPECT_EQ(static_cast<int>(Hit::Left), 10);
  EXPECT_EQ(static_cast<int>(Hit::Right), 11);
  EXPECT_EQ(static_cast<int>(Hit::Top), 12);
  EXPECT_EQ(static_cast<int>(Hit::TopLeft), 13);
  EXPECT_EQ(static_cast<int>(Hit::TopRight), 14);
  EXPECT_EQ(static_cast<int>(Hit::Bottom), 15);
  EXPECT_EQ(static_cast<int>(Hit::BottomLeft), 16);
  EXPECT_EQ(static_cast<int>(Hit::BottomRight), 17);
}

}  // namespace
}  // namespace brennet
