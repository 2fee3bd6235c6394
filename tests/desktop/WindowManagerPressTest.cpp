#include "desktop/WindowManagerTest.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class WindowManagerPressTest : public WindowManagerTest {
 protected:
  /// The corner of the panel's frame, right above its rounding, where both edges are taken hold of.
  QPoint grip() { return frame().bottomRight() - QPoint(1, 12); }
  QPoint header() { return frame().topLeft() + QPoint(400, 12); }

  bool becomesStored(QSize size) {
    return waitUntil([&] {
      return session().home().preference(u"panelWidth"_s) == QString::number(size.width()) &&
             session().home().preference(u"panelHeight"_s) == QString::number(size.height());
    });
  }
};

TEST_F(WindowManagerPressTest, PressOnAnotherWindow_HidesAndReachesIt) {
  start(commands({u"Build"_s}));
  const auto other = session().openOtherWindow({20, 500, 200, 200});
  manager().settle();
  program().settle();
  input().click(session().windows().geometry(other->window()).bottomLeft() + QPoint(20, -20));
  EXPECT_TRUE(becomesHidden());
  EXPECT_TRUE(waitUntil([&] { return other->buttons() == QList<quint8>{1}; }));
}

TEST_F(WindowManagerPressTest, PressOnTheBareDesktop_Hides) {
  start(commands({u"Build"_s}));
  input().click({60, 800});
  EXPECT_TRUE(becomesHidden());
}

TEST_F(WindowManagerPressTest, PressOnADesktopPanel_HidesAndReachesIt) {
  OtherClient dock(session().displayName(), {0, 864, 1280, 36}, OtherClient::Shape::dock);
  dock.show();
  start(commands({u"Build"_s}));
  input().click(session().windows().geometry(dock.window()).center());
  EXPECT_TRUE(becomesHidden());
  EXPECT_TRUE(waitUntil([&] { return dock.buttons() == QList<quint8>{1}; }));
}

TEST_F(WindowManagerPressTest, PressInsideThePanel_DoesNotHide) {
  start(commands({u"Build"_s, u"Deploy"_s}));
  input().click(frame().topLeft() + QPoint(28, 62));
  input().type(u"Deploy"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Deploy"_s));
}

TEST_F(WindowManagerPressTest, Panel_ComesUpInTheMiddleAndABitUp) {
  start(commands({u"Build"_s}));
  EXPECT_TRUE(waitUntil([this] { return frame() == placed({700, 500}); }));
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  showByShortcut();
  EXPECT_TRUE(waitUntil([this] { return frame() == placed({700, 500}); }));
}

TEST_F(WindowManagerPressTest, DragOfACorner_Resizes) {
  start(commands({u"Build"_s}));
  program().settle();
  constexpr QPoint distance(60, 70);
  dragPanel(grip(), grip() + distance, panelGeometry().adjusted(0, 0, distance.x(), distance.y()));
  EXPECT_TRUE(becomesStored({760, 570}));
}

TEST_F(WindowManagerPressTest, DragOfTheLeftEdge_ResizesTheWidthAlone) {
  start(commands({u"Build"_s}));
  program().settle();
  const QPoint edge(frame().left() + 1, frame().center().y());
  dragPanel(edge, edge - QPoint(80, 0), panelGeometry().adjusted(-80, 0, 0, 0));
  EXPECT_TRUE(becomesStored({780, 500}));
}

TEST_F(WindowManagerPressTest, DragOfTheBackground_Moves) {
  start(commands({u"Build"_s}));
  program().settle();
  constexpr QPoint distance(60, 80);
  dragPanel(header(), header() + distance, panelGeometry().translated(distance));
}

}  // namespace
}  // namespace lanternix
