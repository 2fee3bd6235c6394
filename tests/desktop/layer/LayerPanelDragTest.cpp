// Moving and resizing the panel, which on a layer surface the program does itself.
#include "desktop/layer/LayerPanelTest.h"

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class LayerPanelDragTest : public LayerPanelTest {
 protected:
  /// Whether the panel gets there at the end of a drag, of which the program does not hear the way
  /// that the mouse has gone before it has dealt with the press.
  testing::AssertionResult becomesNear(const QRect &expected) const {
    constexpr int reach = 20;
    const auto isNear = [](QPoint a, QPoint b) { return (a - b).manhattanLength() <= reach; };
    QRect now;
    const auto arrives = [&] {
      now = frame();
      return isNear(now.topLeft(), expected.topLeft()) &&
             isNear(now.bottomRight(), expected.bottomRight());
    };
    return waitUntil(arrives) ? testing::AssertionSuccess()
                              : testing::AssertionFailure()
                                    << "the panel is at " << now.x() << ',' << now.y() << ' '
                                    << now.width() << 'x' << now.height();
  }
};

TEST_P(LayerPanelDragTest, Background_MovesThePanel) {
  start();
  const QRect before = frame();
  const QPoint grip = before.topLeft() + QPoint(350, 25);
  input().drag(grip, grip + QPoint(-120, 90));
  EXPECT_TRUE(becomesNear(before.translated(-120, 90)));
  EXPECT_EQ(frame().size(), before.size());
}

TEST_P(LayerPanelDragTest, RightBottomCorner_ResizesThePanel_WhichKeepsItsSize) {
  start();
  const QRect before = frame();
  input().drag(before.bottomRight() - QPoint(1, 1), before.bottomRight() + QPoint(59, 39));
  ASSERT_TRUE(becomesNear(before.adjusted(0, 0, 60, 40)));
  const auto stored = [this](const QString &key) { return session->home().preference(key); };
  const auto isKept = [&] {
    const QSize shown = frame().size();
    return stored(u"panelWidth"_s) == QString::number(shown.width()) &&
           stored(u"panelHeight"_s) == QString::number(shown.height());
  };
  ASSERT_TRUE(waitUntil(isKept));
  const QSize kept = frame().size();
  input().tap(KEY_ESC);
  ASSERT_TRUE(becomesHidden());
  showAgain();
  EXPECT_TRUE(becomes(centred(kept)));
}

TEST_P(LayerPanelDragTest, LeftTopCorner_LeavesTheOppositeOneWhereItIs) {
  start();
  const QRect before = frame();
  input().drag(before.topLeft() + QPoint(2, 2), before.topLeft() + QPoint(82, 52));
  EXPECT_TRUE(becomesNear(before.adjusted(80, 50, 0, 0)));
  EXPECT_EQ(frame().bottomRight(), before.bottomRight());
}

TEST_P(LayerPanelDragTest, CornerDraggedFarInwards_StopsAtTheSmallestSize) {
  start();
  const QRect before = frame();
  input().drag(before.bottomRight() - QPoint(1, 1), before.bottomRight() - QPoint(600, 450));
  EXPECT_TRUE(becomes(QRect(before.topLeft(), QSize(400, 300))));
}

INSTANTIATE_TEST_SUITE_P(On, LayerPanelDragTest, everyLayerCompositor(), layerCompositorOf);

}  // namespace
}  // namespace lanternix
