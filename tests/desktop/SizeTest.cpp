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

  bool becomesStored(QSize size) {
    return waitUntil([&] {
      return session().home().preference(u"panelWidth"_s) == QString::number(size.width()) &&
             session().home().preference(u"panelHeight"_s) == QString::number(size.height());
    });
  }
};

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
  const QRect before = panelGeometry();
  dragPanel(before.bottomRight() - QPoint(1, 1), before.bottomRight() + QPoint(119, 109));
  const QSize after = panelGeometry().size();
  EXPECT_GT(after.width(), before.width() + 100);
  EXPECT_GT(after.height(), before.height() + 90);
  EXPECT_TRUE(becomesStored(after));
}

TEST_F(SizeTest, ResizedPanel_IsCentredAtItsNewSizeAtTheNextShow) {
  start(commands({u"Build"_s}));
  const QRect before = panelGeometry();
  dragPanel(before.bottomRight() - QPoint(1, 1), before.bottomRight() + QPoint(119, 109));
  const QSize after = panelGeometry().size();
  ASSERT_NE(after, before.size());
  ASSERT_TRUE(becomesStored(after));
  hideAndShow();
  EXPECT_EQ(panelGeometry(), placed(after));
}

TEST_F(SizeTest, DragOfTheLeftEdge_ResizesTheWidthAlone) {
  start(commands({u"Build"_s}));
  const QRect before = panelGeometry();
  const QPoint edge(before.left() + 1, before.center().y());
  dragPanel(edge, edge - QPoint(80, 0));
  const QRect after = panelGeometry();
  EXPECT_GT(after.width(), before.width() + 60);
  EXPECT_EQ(after.height(), before.height());
  EXPECT_EQ(after.right(), before.right());
}

TEST_F(SizeTest, DragFarInwards_StopsAtTheMinimum) {
  start(commands({u"Build"_s}));
  const QRect before = panelGeometry();
  dragPanel(before.bottomRight() - QPoint(1, 1), before.topLeft() + QPoint(50, 50));
  EXPECT_EQ(panelGeometry().size(), QSize(400, 300));
  EXPECT_TRUE(becomesStored({400, 300}));
}

TEST_F(SizeTest, DragOfTheBackground_MovesThePanel) {
  start(commands({u"Build"_s}));
  const QRect before = panelGeometry();
  // The middle of the header, between the name and the settings button.
  dragPanel(onPanel({400, 12}), onPanel({460, 92}));
  EXPECT_EQ(panelGeometry().size(), before.size());
  EXPECT_NE(panelGeometry().topLeft(), before.topLeft());
}

TEST_F(SizeTest, MovedPanel_IsCentredAgainAtTheNextShow) {
  start(commands({u"Build"_s}));
  dragPanel(onPanel({400, 12}), onPanel({460, 92}));
  hideAndShow();
  EXPECT_EQ(panelGeometry(), placed({700, 500}));
  EXPECT_FALSE(session().home().preference(u"panelWidth"_s).has_value());
}

}  // namespace
}  // namespace lanternix
