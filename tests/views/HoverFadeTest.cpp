#include "Views/Panel/HoverFade.h"
#include "support/WaitUntil.h"

#include <gtest/gtest.h>

namespace lanternix {

TEST(HoverFade, WithoutAnimation_TheHighlightIsThereAtOnce) {
  HoverFade hover;
  hover.moveTo(3, false);
  EXPECT_EQ(hover.strength(3), 1);
  hover.moveTo(4, false);
  EXPECT_EQ(hover.strength(3), 0);
  EXPECT_EQ(hover.strength(4), 1);
  EXPECT_FALSE(hover.isFading());
}

TEST(HoverFade, TheHighlight_FadesInOnTheRowAndOutOnTheOneBefore) {
  HoverFade hover;
  hover.moveTo(3, false);
  hover.moveTo(4, true);
  EXPECT_EQ(hover.strength(3), 1);
  EXPECT_EQ(hover.strength(4), 0);
  EXPECT_TRUE(waitUntil([&] { return !hover.isFading(); }));
  EXPECT_EQ(hover.strength(3), 0);
  EXPECT_EQ(hover.strength(4), 1);
}

TEST(HoverFade, APointerThatComesBack_FindsTheHighlightWhereItWas) {
  HoverFade hover;
  hover.moveTo(3, false);
  hover.moveTo(-1, true);
  ASSERT_TRUE(waitUntil([&] { return hover.strength(3) < 0.9; }));
  const double strength = hover.strength(3);
  hover.moveTo(3, true);
  EXPECT_EQ(hover.strength(3), strength);
  EXPECT_TRUE(waitUntil([&] { return hover.strength(3) == 1; }));
}

TEST(HoverFade, OtherRows_KeepNothingOfTheOldOnes) {
  HoverFade hover;
  hover.moveTo(3, true);
  hover.reset(7);
  EXPECT_EQ(hover.strength(3), 0);
  EXPECT_EQ(hover.strength(7), 1);
  EXPECT_FALSE(hover.isFading());
}

TEST(HoverFade, NoRow_HasNoHighlight) {
  HoverFade hover;
  EXPECT_EQ(hover.strength(-1), 0);
  EXPECT_EQ(hover.strength(0), 0);
}

}  // namespace lanternix
