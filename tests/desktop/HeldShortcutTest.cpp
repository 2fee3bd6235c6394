#include "desktop/DesktopTest.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

constexpr quint16 commandAndShift = XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT;

class HeldShortcutTest : public DesktopTest {
 protected:
  HeldShortcutTest() : other(session().displayName()) {}

  OtherClient other;
};

TEST_F(HeldShortcutTest, ShortcutOfAnotherProgram_StaysWithIt) {
  ASSERT_TRUE(other.holdKey(XK_space, commandAndShift));
  startHidden(commands({u"Build"_s}));
  pressShortcut();
  EXPECT_TRUE(waitUntil([&] { return other.keys() == QList<xcb_keysym_t>{XK_space}; }));
  EXPECT_FALSE(isShown());
}

TEST_F(HeldShortcutTest, RefusedShortcut_LeavesThePanelUsable) {
  ASSERT_TRUE(other.holdKey(XK_space, commandAndShift));
  start(commands({u"Build"_s, u"Deploy"_s}));
  input().type(u"Deploy"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
  EXPECT_TRUE(becomesHidden());
}

TEST_F(HeldShortcutTest, RefusedInOneLockState_IsGivenBackInTheOthers) {
  ASSERT_TRUE(other.holdKey(XK_space, commandAndShift | XCB_MOD_MASK_LOCK));
  start(commands({u"Build"_s}));
  EXPECT_TRUE(other.holdKey(XK_space, commandAndShift));
}

TEST_F(HeldShortcutTest, RunningProgram_HoldsTheShortcutInEveryLockState) {
  start(commands({u"Build"_s}));
  constexpr quint16 numLock = XCB_MOD_MASK_2;
  for (const quint16 locks : {quint16{0}, quint16{XCB_MOD_MASK_LOCK}, numLock,
                              static_cast<quint16>(XCB_MOD_MASK_LOCK | numLock)}) {
    EXPECT_FALSE(other.holdKey(XK_space, commandAndShift | locks)) << locks;
  }
}

TEST_F(HeldShortcutTest, EndOfTheProgram_FreesTheShortcut) {
  start(commands({u"Build"_s}));
  program().terminate();
  EXPECT_TRUE(waitUntil([&] { return other.holdKey(XK_space, commandAndShift); }));
}

}  // namespace
}  // namespace lanternix
