// The harness itself: what these tests show is what the others build on.
#include "support/DesktopSession.h"
#include "support/HarnessError.h"
#include "support/SuspendedProcess.h"
#include "support/WaitUntil.h"

#include <X11/keysym.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

TEST(SessionTest, TypedText_ReachesTheFocusedWindow) {
  DesktopSession session;
  const auto other = session.openOtherWindow();
  session.input().type(u"a:B"_s);
  EXPECT_TRUE(waitUntil([&] { return other->keys().size() == 5; }));
  EXPECT_THAT(other->keys(), ElementsAre(XK_a, XK_Shift_L, XK_semicolon, XK_Shift_L, XK_b));
}

TEST(SessionTest, Click_ReachesTheWindowUnderThePointer) {
  DesktopSession session;
  const auto lower = session.openOtherWindow({100, 100, 300, 200});
  const auto upper = session.openOtherWindow({700, 300, 300, 200});
  session.input().click(session.windows().geometry(lower->window()).center());
  EXPECT_TRUE(waitUntil([&] { return lower->buttons() == QList<quint8>{1}; }));
  EXPECT_TRUE(upper->buttons().isEmpty());
  EXPECT_TRUE(waitUntil([&] { return lower->hasFocus(); }));
}

TEST(SessionTest, HeldKey_IsRefusedToAnotherProgram) {
  DesktopSession session(DesktopSession::WithManager::no, DesktopSession::WithBus::no);
  OtherClient first(session.displayName());
  OtherClient second(session.displayName());
  EXPECT_TRUE(first.holdKey(XK_space, XCB_MOD_MASK_4));
  EXPECT_FALSE(second.holdKey(XK_space, XCB_MOD_MASK_4));
  session.input().tap(XK_space, {XK_Super_L});
  EXPECT_TRUE(waitUntil([&] { return first.keys() == QList<xcb_keysym_t>{XK_space}; }));
}

TEST(SessionTest, FullScreenWindow_CoversTheScreen) {
  DesktopSession session;
  const auto other = session.openOtherWindow({0, 0, 100, 100}, OtherClient::Shape::fullScreen);
  WindowProbe &windows = session.windows();
  EXPECT_TRUE(waitUntil(
      [&] { return windows.geometry(other->window()) == QRect(QPoint(), session.screenSize()); }));
  EXPECT_THAT(windows.states(other->window()), testing::Contains(u"_NET_WM_STATE_FULLSCREEN"_s));
}

TEST(SessionTest, WorkArea_LeavesTheReservedStripOut) {
  DesktopSession session;
  EXPECT_EQ(session.windows().workArea(),
            QRect(0, WindowManager::topMargin, 1280, 900 - WindowManager::topMargin));
}

TEST(SessionTest, GrabbedPicture_ShowsTheWindowsColour) {
  DesktopSession session;
  const auto other = session.openOtherWindow();
  const QImage picture = session.windows().grab(other->window());
  ASSERT_EQ(picture.size(), QSize(400, 300));
  EXPECT_EQ(picture.pixel(200, 150), qRgb(255, 255, 255));
}

TEST(SessionTest, MissingProgram_NamesItsPackage) {
  ChildProcess process(u"no-such-program"_s, u"no-such-package"_s);
  try {
    process.start({}, QProcessEnvironment::systemEnvironment());
    FAIL() << "started a program that is not there";
  } catch (const std::exception &error) {
    EXPECT_THAT(error.what(), testing::HasSubstr("no-such-package"));
  }
}

TEST(SessionTest, SuspensionOfNoProcess_SaysSo) {
  EXPECT_THROW(SuspendedProcess(0), HarnessError);
  EXPECT_THROW(SuspendedProcess(-1), HarnessError);
}

}  // namespace
}  // namespace lanternix
