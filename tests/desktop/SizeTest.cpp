#include "desktop/DesktopTest.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class SizeTest : public DesktopTest {
 protected:
  /// Centred on the work area, 60 pixels up.
  QRect placed(QSize size) {
    QRect rect(QPoint(), size);
    rect.moveCenter(session().windows().workArea().center() - QPoint(0, 60));
    return rect;
  }

  void startWithSize(const QByteArray &width, const QByteArray &height) {
    session().home().writePreferences("panelWidth=" + width + "\npanelHeight=" + height);
    start(commands({u"Build"_s}));
  }

  void hideAndShow() {
    input().tap(XK_Escape);
    require(u"the panel to hide"_s, [this] { return !isShown(); });
    showByShortcut();
  }

  /// A point that takes hold of the lower right corner: on the edge, right above its rounding.
  QPoint grip() { return panelGeometry().bottomRight() - QPoint(1, 12); }

  void dragCorner(QPoint distance) {
    const QRect expected = panelGeometry().adjusted(0, 0, distance.x(), distance.y());
    dragPanel(grip(), grip() + distance, expected);
  }

  /// By the middle of the header, between the name and the settings button.
  void dragHeader() {
    constexpr QPoint distance(60, 80);
    dragPanel(onPanel({400, 12}), onPanel({400, 12}) + distance,
              panelGeometry().translated(distance));
  }

  /// A taskbar of that height comes up at the lower edge.
  void showTaskbar(int height) {
    const QSize screen = session().screenSize();
    const QRect area(0, screen.height() - height, screen.width(), height);
    m_taskbar =
        std::make_unique<OtherClient>(session().displayName(), area, OtherClient::Shape::dock);
    const QRect before = session().windows().workArea();
    m_taskbar->show();
    require(u"room for the taskbar"_s, [&] { return session().windows().workArea() != before; });
    program().settle();
  }

  bool becomesStored(QSize size) {
    return waitUntil([&] {
      return session().home().preference(u"panelWidth"_s) == QString::number(size.width()) &&
             session().home().preference(u"panelHeight"_s) == QString::number(size.height());
    });
  }

 private:
  std::unique_ptr<OtherClient> m_taskbar;
};

TEST_F(SizeTest, TaskbarThatComesUpBesideADraggedPanel_LeavesItWhereItIs) {
  start(commands({u"Build"_s}));
  dragHeader();
  const QRect dragged = panelGeometry();
  showTaskbar(36);
  EXPECT_EQ(panelGeometry(), dragged);
}

TEST_F(SizeTest, TaskbarThatComesUpWhereADraggedPanelIs_MovesItToItsUsualPlace) {
  start(commands({u"Build"_s}));
  dragHeader();
  showTaskbar(200);
  EXPECT_TRUE(waitUntil([this] { return panelGeometry() == placed({700, 500}); }));
}

TEST_F(SizeTest, TaskbarThatComesUpWhileThePanelIsDragged_LeavesItInTheHand) {
  start(commands({u"Build"_s}));
  const QRect before = panelGeometry();
  input().moveTo(onPanel({400, 12}));
  input().pressButton();
  const auto isDraggedTo = [&](QPoint distance) {
    input().moveTo(before.topLeft() + QPoint(400, 12) + distance);
    return waitUntil([&] { return panelGeometry() == before.translated(distance); });
  };
  ASSERT_TRUE(isDraggedTo({60, 80}));
  showTaskbar(200);
  EXPECT_EQ(panelGeometry(), before.translated(60, 80));
  EXPECT_TRUE(isDraggedTo({70, 60}));
}

TEST_F(SizeTest, FirstStart_Is700By500AboveTheCentre) {
  start(commands({u"Build"_s}));
  EXPECT_EQ(panelGeometry(), placed({700, 500}));
}

TEST_F(SizeTest, StoredSize_IsUsed) {
  startWithSize("820", "610");
  EXPECT_EQ(panelGeometry(), placed({820, 610}));
}

TEST_F(SizeTest, SizeAtTheFloors_IsUsed) {
  startWithSize("400", "300");
  EXPECT_EQ(panelGeometry(), placed({400, 300}));
}

TEST_F(SizeTest, SizeJustBelowTheFloors_FallsBack) {
  startWithSize("399.5", "299.5");
  EXPECT_EQ(panelGeometry(), placed({700, 500}));
}

TEST_F(SizeTest, EachDimension_FallsBackByItself) {
  startWithSize("350", "420");
  EXPECT_EQ(panelGeometry(), placed({700, 420}));
}

TEST_F(SizeTest, NegativeAndZeroSizes_FallBack) {
  startWithSize("-800", "0");
  EXPECT_EQ(panelGeometry(), placed({700, 500}));
}

TEST_F(SizeTest, SizesThatAreNoNumbers_FallBack) {
  startWithSize("wide", "nan");
  EXPECT_EQ(panelGeometry(), placed({700, 500}));
}

TEST_F(SizeTest, DragOfACorner_ResizesAndStoresTheSize) {
  start(commands({u"Build"_s}));
  dragCorner({120, 110});
  EXPECT_TRUE(becomesStored({820, 610}));
}

TEST_F(SizeTest, ResizedPanel_IsCentredAtItsNewSizeAtTheNextShow) {
  start(commands({u"Build"_s}));
  dragCorner({120, 110});
  ASSERT_TRUE(becomesStored({820, 610}));
  hideAndShow();
  EXPECT_EQ(panelGeometry(), placed({820, 610}));
}

TEST_F(SizeTest, DragOfTheLeftEdge_ResizesTheWidthAlone) {
  start(commands({u"Build"_s}));
  const QRect before = panelGeometry();
  const QPoint edge(before.left() + 1, before.center().y());
  dragPanel(edge, edge - QPoint(80, 0), before.adjusted(-80, 0, 0, 0));
  EXPECT_TRUE(becomesStored({780, 500}));
}

TEST_F(SizeTest, DragFarInwards_StopsAtTheMinimum) {
  start(commands({u"Build"_s}));
  const QRect before = panelGeometry();
  const QPoint corner = grip();
  dragPanel(corner, before.topLeft() + QPoint(50, 50), QRect(before.topLeft(), QSize(400, 300)));
  EXPECT_TRUE(becomesStored({400, 300}));
}

TEST_F(SizeTest, DragOfTheBackground_MovesThePanel) {
  start(commands({u"Build"_s}));
  dragHeader();
  EXPECT_NE(panelGeometry(), placed({700, 500}));
}

TEST_F(SizeTest, MovedPanel_IsCentredAgainAtTheNextShow) {
  start(commands({u"Build"_s}));
  dragHeader();
  hideAndShow();
  EXPECT_EQ(panelGeometry(), placed({700, 500}));
  EXPECT_FALSE(session().home().preference(u"panelWidth"_s).has_value());
}

}  // namespace
}  // namespace lanternix
