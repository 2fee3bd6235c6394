#include "Platform/Linux/QtWindowSystem.h"
#include "Utilities/FloatingPanel.h"
#include "Utilities/WindowEdgeResizer.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace lanternix {

namespace {

class FloatingPanelTest : public testing::Test {
 protected:
  void SetUp() override {
    panel.setFrame({100, 50, 500, 400});
    panel.makeKeyAndOrderFront();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel));
  }
  /// The mouse keeps its buttons from one test to the next.
  void TearDown() override {
    if (QGuiApplication::mouseButtons().testFlag(Qt::LeftButton)) {
      release(Qt::LeftButton, positionOf({250, 200}));
    }
    EXPECT_EQ(QGuiApplication::mouseButtons(), Qt::NoButton);
  }

  void drag(const QPoint &from, const QPoint &distance) {
    press(Qt::LeftButton, positionOf(from));
    dragOn(positionOf(from) + distance);
  }

  /// The other button is clicked on the way, at \p meanwhile from where the drag begins.
  void dragWithAnotherButton(const QPoint &from, const QPoint &meanwhile, const QPoint &distance) {
    const QPoint start = positionOf(from);
    press(Qt::LeftButton, start);
    move(start + meanwhile);
    press(Qt::RightButton, start + meanwhile);
    release(Qt::RightButton, start + meanwhile);
    dragOn(start + distance);
  }

  // Positions on the screen, for the window may move along with the pointer.

  QPoint positionOf(const QPoint &inWindow) const {
    return panel.windowHandle()->mapToGlobal(inWindow);
  }
  void press(Qt::MouseButton button, const QPoint &position) {
    QTest::mousePress(panel.windowHandle(), button, {}, inWindow(position));
  }
  void move(const QPoint &position) { QTest::mouseMove(panel.windowHandle(), inWindow(position)); }
  /// As the system tells it, whatever was pressed here before.
  void moveHolding(Qt::MouseButtons buttons, const QPoint &position) {
    QMouseEvent event(QEvent::MouseMove, inWindow(position), position, Qt::NoButton, buttons,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(panel.windowHandle(), &event);
    QCoreApplication::processEvents();
  }
  void release(Qt::MouseButton button, const QPoint &position) {
    QTest::mouseRelease(panel.windowHandle(), button, {}, inWindow(position));
  }
  void dragOn(const QPoint &target) {
    move(target);
    release(Qt::LeftButton, target);
    QCoreApplication::processEvents();
  }
  QPoint inWindow(const QPoint &position) const {
    return panel.windowHandle()->mapFromGlobal(position);
  }

  QtWindowSystem windowSystem;
  FloatingPanel panel{windowSystem};
};

/// Carries out every drag itself.
class DragRecorder final : public QtWindowSystem {
 public:
  bool takeDrag(QWindow & /*window*/, Qt::Edges edges, QPoint /*position*/) override {
    drags.append(edges);
    return true;
  }

  QList<Qt::Edges> drags;
};

/// Takes its time with a window that it is asked to move.
class SlowWindowSystem : public QtWindowSystem {
 public:
  bool isComposited() const override { return m_isComposited; }
  void setGeometry(QWindow & /*window*/, const QRect &geometry) override { asked = geometry; }
  void setComposited(bool isComposited) {
    m_isComposited = isComposited;
    Q_EMIT compositingChanged();
  }

  QRect asked;

 private:
  bool m_isComposited = true;
};

/// A panel that the window manager is still bringing to its place.
class FloatingPanelOnItsWayTest : public testing::Test {
 protected:
  void SetUp() override {
    panel.setFrame(frame);
    panel.makeKeyAndOrderFront();
    panel.windowHandle()->setPosition(0, 0);
    windowSystem.asked = {};
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel));
    QCoreApplication::processEvents();
    ASSERT_EQ(panel.pos(), QPoint(0, 0));
  }

  /// What a window manager makes of a panel that it does not let have its size.
  void showInAnotherSize(FloatingPanel &squeezed) {
    squeezed.setFrame(frame);
    squeezed.makeKeyAndOrderFront();
    squeezed.windowHandle()->resize(560, 440);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&squeezed));
    QCoreApplication::processEvents();
  }

  static constexpr QRect frame{200, 150, 500, 400};
  SlowWindowSystem windowSystem;
  FloatingPanel panel{windowSystem};
};

}  // namespace

TEST_F(FloatingPanelTest, StartsInItsUsualSize) {
  const FloatingPanel fresh(windowSystem);
  EXPECT_EQ(fresh.size(), QSize(700, 500));
}

TEST_F(FloatingPanelTest, IsResizedByItsCorner) {
  const QSignalSpy resized(&panel, &FloatingPanel::didEndLiveResize);
  drag({498, 398}, {60, 40});
  EXPECT_EQ(panel.geometry(), QRect(100, 50, 560, 440));
  EXPECT_EQ(resized.count(), 1);
}

TEST_F(FloatingPanelTest, ItsLeftEdge_LeavesTheRightOneWhereItIs) {
  drag({1, 200}, {40, 0});
  EXPECT_EQ(panel.geometry(), QRect(140, 50, 460, 400));
}

TEST_F(FloatingPanelTest, CannotBeShrunkBelow400By300) {
  drag({1, 1}, {300, 300});
  EXPECT_EQ(panel.geometry(), QRect(200, 150, 400, 300));
}

TEST_F(FloatingPanelTest, HiddenWhileAnEdgeIsHeld_HasBeenResized) {
  const QSignalSpy resized(&panel, &FloatingPanel::didEndLiveResize);
  QWindow *window = panel.windowHandle();
  QTest::mousePress(window, Qt::LeftButton, {}, {498, 398});
  QTest::mouseMove(window, {558, 438});
  panel.orderOut();
  EXPECT_EQ(resized.count(), 1);
  EXPECT_EQ(panel.frame().size(), QSize(560, 440));
}

TEST_F(FloatingPanelTest, ResizedByMeansOfTheWindowManager_SaysSoOnceForEachSize) {
  QSignalSpy resized(&panel, &FloatingPanel::didEndLiveResize);
  QCoreApplication::processEvents();
  panel.windowHandle()->resize(560, 420);
  panel.windowHandle()->resize(600, 450);
  ASSERT_TRUE(resized.wait());
  EXPECT_EQ(resized.count(), 1);
  panel.windowHandle()->resize(500, 400);  // as it came up
  ASSERT_TRUE(resized.wait());
  EXPECT_EQ(resized.count(), 2);
}

// A taskbar that has made it smaller is answered with its own size, at another place.
TEST_F(FloatingPanelTest, ResizedByMeansOfTheWindowManager_IsNotInTheUsersHand) {
  QCoreApplication::processEvents();
  panel.windowHandle()->resize(560, 420);
  QCoreApplication::processEvents();
  EXPECT_FALSE(panel.isInTheUsersHand());
}

TEST_F(FloatingPanelTest, HiddenRightAfterAResizeByTheWindowManager_SaysSoBefore) {
  const QSignalSpy resized(&panel, &FloatingPanel::didEndLiveResize);
  QCoreApplication::processEvents();
  panel.windowHandle()->resize(600, 450);
  QCoreApplication::processEvents();
  panel.orderOut();
  EXPECT_EQ(resized.count(), 1);
}

// As when a monitor goes: the window keeps its size in the pixels of that one, is given its place
// on another, and is told of both.
TEST_F(FloatingPanelTest, GivenAFrameAfterItsWindowGotAnotherSize_DoesNotTakeThatForTheUsers) {
  const QSignalSpy resized(&panel, &FloatingPanel::didEndLiveResize);
  QCoreApplication::processEvents();
  panel.windowHandle()->resize(1000, 800);
  panel.setFrame({10, 20, 500, 400});
  QCoreApplication::processEvents();
  EXPECT_EQ(panel.windowHandle()->geometry(), QRect(10, 20, 500, 400));
  panel.windowHandle()->resize(1000, 800);
  panel.windowHandle()->resize(500, 400);
  QCoreApplication::processEvents();
  panel.orderOut();
  EXPECT_EQ(resized.count(), 0);
}

TEST_F(FloatingPanelTest, GivenAFrameRightAfterItsWindowGotAnotherSize_ForgetsThatOne) {
  const QSignalSpy resized(&panel, &FloatingPanel::didEndLiveResize);
  QCoreApplication::processEvents();
  panel.windowHandle()->resize(1000, 800);
  QCoreApplication::processEvents();
  panel.setFrame({10, 20, 500, 400});
  panel.windowHandle()->resize(1000, 800);  // once more, by a slow window manager
  QCoreApplication::processEvents();
  panel.orderOut();
  EXPECT_EQ(resized.count(), 0);
}

TEST_F(FloatingPanelTest, DoubleClickOnAnEdge_DragsNothingButTheEdge) {
  DragRecorder recorder;
  FloatingPanel dragged(recorder);
  dragged.setFrame({100, 50, 500, 400});
  dragged.makeKeyAndOrderFront();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&dragged));
  QTest::mouseDClick(dragged.windowHandle(), Qt::LeftButton, {}, {498, 200});
  EXPECT_EQ(recorder.drags, QList<Qt::Edges>(2, Qt::RightEdge));
}

// As by a menu that is opened by a key meanwhile.
TEST_F(FloatingPanelTest, EdgeWhoseReleaseGoesElsewhere_IsLetGoAtTheNextMove) {
  const QSignalSpy resized(&panel, &FloatingPanel::didEndLiveResize);
  const QPoint edge = positionOf({498, 200});
  press(Qt::LeftButton, edge);
  move(edge + QPoint(30, 0));
  moveHolding(Qt::NoButton, edge + QPoint(90, 0));
  EXPECT_EQ(panel.geometry(), QRect(100, 50, 530, 400));
  EXPECT_EQ(resized.count(), 1);
}

TEST_F(FloatingPanelTest, BackgroundWhoseReleaseGoesElsewhere_IsLetGoAtTheNextMove) {
  const QPoint background = positionOf({250, 200});
  press(Qt::LeftButton, background);
  move(background + QPoint(30, 20));
  moveHolding(Qt::RightButton, background + QPoint(90, 90));
  EXPECT_EQ(panel.geometry(), QRect(130, 70, 500, 400));
}

TEST_F(FloatingPanelTest, AnotherButtonMeanwhile_LeavesTheEdgeHeld) {
  // No narrower than it may be, so that the pointer leaves the edge.
  dragWithAnotherButton({498, 200}, {-200, 0}, {30, 20});
  EXPECT_EQ(panel.geometry(), QRect(100, 50, 530, 400));
}

TEST_F(FloatingPanelTest, AnotherButtonMeanwhile_LeavesTheBackgroundHeld) {
  dragWithAnotherButton({250, 200}, {100, 100}, {30, 20});
  EXPECT_EQ(panel.geometry(), QRect(130, 70, 500, 400));
}

TEST_F(FloatingPanelTest, IsMovedByItsBackground) {
  const QSignalSpy resized(&panel, &FloatingPanel::didEndLiveResize);
  drag({250, 200}, {30, 20});
  EXPECT_EQ(panel.geometry(), QRect(130, 70, 500, 400));
  EXPECT_EQ(resized.count(), 0);
}

TEST_F(FloatingPanelTest, IsNotClosedByTheWindowManager) {
  const QSignalSpy asked(&panel, &FloatingPanel::closeRequested);
  EXPECT_FALSE(panel.close());
  EXPECT_TRUE(panel.isVisible());
  EXPECT_EQ(asked.count(), 1);
}

TEST_F(FloatingPanelOnItsWayTest, FoundElsewhere_IsAskedForItsPlaceOnceMore) {
  EXPECT_EQ(windowSystem.asked.marginsRemoved(panel.contentsMargins()), frame);
}

TEST_F(FloatingPanelOnItsWayTest, CompositorThatEnds_LeavesItsPlaceToIt) {
  windowSystem.setComposited(false);
  EXPECT_EQ(panel.frame(), frame);
}

TEST_F(FloatingPanelOnItsWayTest, MovedByTheUserOnceThere_StaysWhereItIsWhenACompositorEnds) {
  panel.windowHandle()->setGeometry(windowSystem.asked);
  QCoreApplication::processEvents();
  panel.windowHandle()->setPosition(90, 70);
  QCoreApplication::processEvents();
  const QRect moved = panel.frame();
  windowSystem.setComposited(false);
  EXPECT_EQ(panel.frame(), moved);
}

TEST_F(FloatingPanelOnItsWayTest, SizesThatItPassesThrough_AreNotTheUsers) {
  FloatingPanel squeezed(windowSystem);
  const QSignalSpy resized(&squeezed, &FloatingPanel::didEndLiveResize);
  ASSERT_NO_FATAL_FAILURE(showInAnotherSize(squeezed));
  squeezed.windowHandle()->resize(540, 420);
  QCoreApplication::processEvents();
  squeezed.hide();
  EXPECT_EQ(resized.count(), 0);
}

TEST_F(FloatingPanelOnItsWayTest, SizesAfterTheUserHasGivenItOne_AreTheUsers) {
  FloatingPanel squeezed(windowSystem);
  QSignalSpy resized(&squeezed, &FloatingPanel::didEndLiveResize);
  ASSERT_NO_FATAL_FAILURE(showInAnotherSize(squeezed));
  QWindow *window = squeezed.windowHandle();
  const QPoint edge(squeezed.contentsRect().right(), 200);
  QTest::mousePress(window, Qt::LeftButton, {}, edge);
  window->resize(580, 440);
  QTest::mouseRelease(window, Qt::LeftButton, {}, edge);
  ASSERT_EQ(resized.count(), 1);
  window->resize(600, 440);
  EXPECT_TRUE(resized.wait());
}

}  // namespace lanternix
