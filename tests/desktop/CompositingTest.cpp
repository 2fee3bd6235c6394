#include "desktop/CompositedTest.h"
#include "support/WindowShape.h"

#include <X11/keysym.h>
#include <vector>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

QPoint below(const QRect &frame, int distance) {
  return {frame.center().x(), frame.bottom() + distance};
}

class CompositingTest : public CompositedTest {
 protected:
  CompositingTest() : CompositedTest(Compositing::on) {}

  QRect frameInWindow() { return frame().translated(-panelGeometry().topLeft()); }

  /// The region that the window manager is asked to blur behind the panel.
  QRegion blurredRegion() {
    const QByteArray bytes = session().windows().connection().property(
        program().panel(), "_KDE_NET_WM_BLUR_BEHIND_REGION");
    std::vector<qint32> numbers(static_cast<size_t>(bytes.size()) / sizeof(qint32));
    std::memcpy(numbers.data(), bytes.constData(), numbers.size() * sizeof(qint32));
    QRegion region;
    for (size_t i = 0; i + 3 < numbers.size(); i += 4) {
      region += QRect(numbers[i], numbers[i + 1], numbers[i + 2], numbers[i + 3]);
    }
    return region;
  }
};

// --- What is told about the window
// ----------------------------------------------------------------

TEST_F(CompositingTest, Panel_TellsWhatOfItsWindowIsShadow) {
  start(commands({u"Build"_s}));
  EXPECT_EQ(frameExtents(), shadow);
}

TEST_F(CompositingTest, FirstStart_PutsTheFrameInItsPlace) {
  start(commands({u"Build"_s}));
  EXPECT_EQ(frame(), placed({700, 500}));
}

TEST_F(CompositingTest, PanelShownAgain_HasItsFrameInItsPlace) {
  startHidden(commands({u"Build"_s}));
  showByShortcut();
  EXPECT_TRUE(waitUntil([this] { return frame() == placed({700, 500}); }));
}

TEST_F(CompositingTest, SmallestSize_IsThatOfTheFrame) {
  start(commands({u"Build"_s}));
  EXPECT_EQ(session().windows().minimumSize(program().panel()), QSize(400, 300).grownBy(shadow));
}

TEST_F(CompositingTest, OnlyTheFrame_TakesPresses) {
  start(commands({u"Build"_s}));
  EXPECT_EQ(WindowShape::input(session().windows().connection(), program().panel()),
            QRegion(frameInWindow()));
}

TEST_F(CompositingTest, BlurIsAskedFor_BehindTheFrameWithoutItsCorners) {
  start(commands({u"Build"_s}));
  const QRegion blurred = blurredRegion();
  EXPECT_EQ(blurred.boundingRect(), frameInWindow());
  EXPECT_FALSE(blurred.contains(frameInWindow().topLeft()));
  EXPECT_TRUE(blurred.contains(frameInWindow().topLeft() + QPoint(4, 4)));
}

// --- What is seen
// ---------------------------------------------------------------------------------

TEST_F(CompositingTest, CornersOfTheFrame_ShowWhatIsBehind) {
  openBackdrop();
  start(commands({u"Build"_s}));
  for (const QPoint corner :
       {frame().topLeft(), frame().topRight(), frame().bottomLeft(), frame().bottomRight()}) {
    EXPECT_TRUE(becomesDarkenedBackdrop(corner)) << corner.x() << ',' << corner.y();
  }
}

TEST_F(CompositingTest, InsideOfTheFrame_HidesNearlyAllOfWhatIsBehind) {
  openBackdrop();
  start(commands({u"Build"_s}));
  EXPECT_TRUE(waitUntil([this] {
    const QColor inside = onScreen(frame().topLeft() + QPoint(8, 8));
    return inside.green() > 200 && inside.blue() > 200 && inside.green() < inside.red();
  }));
}

TEST_F(CompositingTest, Shadow_IsDarkestAtTheFrameAndFadesToNothing) {
  openBackdrop();
  start(commands({u"Build"_s}));
  ASSERT_TRUE(becomesDarkenedBackdrop(below(frame(), 4)));
  int before = 0;
  for (int distance = 4; distance <= shadow.bottom(); ++distance) {
    const QColor color = onScreen(below(frame(), distance));
    EXPECT_EQ(color.green(), 0);
    EXPECT_GE(color.red(), before) << distance;
    before = color.red();
  }
  EXPECT_GE(before, 253);
  EXPECT_TRUE(isBackdrop(onScreen(below(frame(), shadow.bottom() + 1))));
}

TEST_F(CompositingTest, Shadow_FadesToNothingOnEverySide) {
  openBackdrop();
  start(commands({u"Build"_s}));
  ASSERT_TRUE(becomesDarkenedBackdrop(below(frame(), 4)));
  const QRect window = panelGeometry();
  const QPoint centre = frame().center();
  for (const QPoint edge :
       {QPoint(window.left(), centre.y()), QPoint(window.right(), centre.y()),
        QPoint(centre.x(), window.top()), QPoint(centre.x(), window.bottom())}) {
    EXPECT_GE(onScreen(edge).red(), 253) << edge.x() << ',' << edge.y();
  }
  EXPECT_LT(onScreen({frame().left() - 2, centre.y()}).red(), 240);
  EXPECT_LT(onScreen({frame().right() + 2, centre.y()}).red(), 240);
}

// --- What presses do
// ------------------------------------------------------------------------------

TEST_F(CompositingTest, PressInTheShadow_Hides) {
  openBackdrop();
  start(commands({u"Build"_s}));
  input().click(below(frame(), 10));
  EXPECT_TRUE(becomesHidden());
}

/// Where no window manager puts the panel into a frame of its own, which would take the press.
class BareCompositingTest : public CompositedTest {
 protected:
  BareCompositingTest() : CompositedTest(Compositing::on, DesktopSession::WithManager::no) {}
};

TEST_F(BareCompositingTest, PressInTheShadow_HidesAndReachesTheWindowBelow) {
  start(commands({u"Build"_s}));
  const QRect panel = frame();
  OtherClient underneath(session().displayName(), panel.adjusted(-60, 100, 60, 100));
  underneath.show();
  const quint32 belowOthers = XCB_STACK_MODE_BELOW;
  xcb_configure_window(session().windows().connection(), underneath.window(),
                       XCB_CONFIG_WINDOW_STACK_MODE, &belowOthers);
  session().windows().connection().sync();
  input().click(below(panel, 10));
  EXPECT_TRUE(becomesHidden());
  EXPECT_TRUE(waitUntil([&] { return underneath.buttons() == QList<quint8>{1}; }));
}

TEST_F(CompositingTest, DragOfTheFramesCorner_StoresTheFramesSize) {
  start(commands({u"Build"_s}));
  constexpr QPoint distance(120, 110);
  const QPoint grip = frame().bottomRight() - QPoint(1, 12);
  dragPanel(grip, grip + distance, panelGeometry().adjusted(0, 0, distance.x(), distance.y()));
  EXPECT_TRUE(waitUntil([this] {
    return session().home().preference(u"panelWidth"_s) == u"820"_s &&
           session().home().preference(u"panelHeight"_s) == u"610"_s;
  }));
}

TEST_F(CompositingTest, DragFarInwards_StopsAtTheFramesMinimum) {
  start(commands({u"Build"_s}));
  const QPoint grip = frame().bottomRight() - QPoint(1, 12);
  const QRect smallest(frame().topLeft(), QSize(400, 300));
  dragPanel(grip, frame().topLeft() + QPoint(50, 50), smallest.marginsAdded(shadow));
}

TEST_F(CompositingTest, DragOfTheBackground_MovesTheFrame) {
  start(commands({u"Build"_s}));
  const QPoint header = frame().topLeft() + QPoint(400, 12);
  constexpr QPoint distance(60, 80);
  dragPanel(header, header + distance, panelGeometry().translated(distance));
}

TEST_F(CompositingTest, PanelAsLargeAsTheWorkArea_FillsItExactly) {
  session().home().writePreferences("panelWidth=5000\npanelHeight=5000");
  start(commands({u"Build"_s}));
  EXPECT_TRUE(waitUntil([this] { return frame() == session().windows().workArea(); }));
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  showByShortcut();
  EXPECT_TRUE(waitUntil([this] { return frame() == session().windows().workArea(); }));
}

}  // namespace
}  // namespace lanternix
