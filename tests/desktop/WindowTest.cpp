#include "desktop/DesktopTest.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using testing::IsSupersetOf;

class WindowTest : public DesktopTest {
 protected:
  QStringList panelStates() { return session().windows().states(program().panel()); }
};

const QStringList &expectedStates() {
  static const QStringList states{u"_NET_WM_STATE_ABOVE"_s, u"_NET_WM_STATE_SKIP_TASKBAR"_s,
                                  u"_NET_WM_STATE_SKIP_PAGER"_s};
  return states;
}

TEST_F(WindowTest, Panel_IsAboveOthersOnEveryDesktopAndInNoTaskbarOrPager) {
  start(commands({u"Build"_s}));
  program().settle();
  EXPECT_THAT(panelStates(), IsSupersetOf(expectedStates()));
  EXPECT_EQ(session().windows().desktop(program().panel()), 0xFFFFFFFFU);
}

TEST_F(WindowTest, PanelShownAgain_IsStillAboveOthersOnEveryDesktopAndInNoTaskbarOrPager) {
  startHidden(commands({u"Build"_s}));
  showByShortcut();
  program().settle();
  EXPECT_THAT(panelStates(), IsSupersetOf(expectedStates()));
  EXPECT_EQ(session().windows().desktop(program().panel()), 0xFFFFFFFFU);
}

TEST_F(WindowTest, PanelShownAgainAtOnce_IsStillAboveOthersOnEveryDesktopAndInNoTaskbarOrPager) {
  start(commands({u"Build"_s}));
  // So quickly that the window manager has not yet seen the hiding when the showing begins.
  pressShortcut();
  pressShortcut();
  program().settle();
  EXPECT_THAT(panelStates(), IsSupersetOf(expectedStates()));
  EXPECT_EQ(session().windows().desktop(program().panel()), 0xFFFFFFFFU);
}

TEST_F(WindowTest, Panel_IsNamedAfterTheProgram) {
  start(commands({u"Build"_s}));
  EXPECT_EQ(session().windows().wmClass(program().panel()),
            QStringList({u"lanternix"_s, u"Lanternix"_s}));
  EXPECT_EQ(session().windows().title(program().panel()), u"Lanternix"_s);
}

TEST_F(WindowTest, Panel_HasNoFrame) {
  start(commands({u"Build"_s}));
  EXPECT_EQ(session().windows().frameGeometry(program().panel()), panelGeometry());
}

TEST_F(WindowTest, Panel_AsksForAMinimumSize) {
  start(commands({u"Build"_s}));
  EXPECT_EQ(session().windows().minimumSize(program().panel()), QSize(400, 300));
}

TEST_F(WindowTest, RaisedWindow_StaysBelowThePanel) {
  start(commands({u"Build"_s}));
  const auto other = session().openOtherWindow(panelGeometry());
  const quint32 above = XCB_STACK_MODE_ABOVE;
  xcb_configure_window(session().windows().connection(), other->window(),
                       XCB_CONFIG_WINDOW_STACK_MODE, &above);
  session().windows().connection().sync();
  // A second window that is managed after the request tells that the request has been answered.
  const auto later = session().openOtherWindow({0, 700, 50, 50});
  EXPECT_TRUE(session().windows().isAbove(program().panel(), other->window()));
  EXPECT_TRUE(session().windows().isAbove(program().panel(), later->window()));
}

TEST_F(WindowTest, Panel_ShowsAPicture) {
  start(commands({u"Build"_s}));
  const QImage panel = settledPicture();
  QSet<QRgb> colours;
  for (int y = 0; y < panel.height(); ++y) {
    for (int x = 0; x < panel.width(); ++x) {
      colours.insert(panel.pixel(x, y));
    }
  }
  // Smooth letters alone bring many shades with them.
  EXPECT_GT(colours.size(), 16);
}

TEST_F(WindowTest, HiddenPanel_IsTheSameWindowWhenShownAgain) {
  startHidden(commands({u"Build"_s}));
  const xcb_window_t before = program().panel();
  showByShortcut();
  EXPECT_EQ(session().windows().find(u"lanternix"_s, u"Lanternix"_s), before);
}

}  // namespace
}  // namespace lanternix
