#include "desktop/DesktopTest.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

struct Locks {
  const char *name;
  QList<xcb_keysym_t> keys;
};

void PrintTo(const Locks &locks, std::ostream *stream) {
  *stream << locks.name;
}

class LocksTest : public DesktopTest, public testing::WithParamInterface<Locks> {
 protected:
  void SetUp() override {
    for (const xcb_keysym_t key : GetParam().keys) {
      input().tap(key);
    }
  }
};

TEST_P(LocksTest, Shortcut_TogglesThePanel) {
  start(commands({u"Build"_s}));
  pressShortcut();
  ASSERT_TRUE(becomesHidden());
  pressShortcut();
  EXPECT_TRUE(becomesShown());
}

TEST_P(LocksTest, LettersAndReturn_OpenTheThing) {
  start(commands({u"Build"_s, u"Deploy"_s}));
  input().type(u"dep"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
}

INSTANTIATE_TEST_SUITE_P(Locked, LocksTest,
                         testing::Values(Locks{"CapsLock", {XK_Caps_Lock}},
                                         Locks{"NumLock", {XK_Num_Lock}},
                                         Locks{"Both", {XK_Caps_Lock, XK_Num_Lock}}),
                         [](const auto &test) { return std::string(test.param.name); });

}  // namespace
}  // namespace lanternix
