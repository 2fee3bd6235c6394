#include "desktop/CompositedTest.h"
#include "support/WindowShape.h"

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// Begins on a desktop where windows are not blended.
class CompositorStartTest : public CompositedTest {
 protected:
  CompositorStartTest() : CompositedTest(Compositing::off) {}
};

TEST_F(CompositorStartTest, WithoutACompositor_TheCornersAreCutOff) {
  openBackdrop();
  start(commands({u"Build"_s}));
  const QRect panel = panelGeometry();
  EXPECT_TRUE(becomesShadowless());
  for (const QPoint corner :
       {panel.topLeft(), panel.topRight(), panel.bottomLeft(), panel.bottomRight()}) {
    EXPECT_TRUE(becomesBackdrop(corner)) << corner.x() << ',' << corner.y();
  }
  EXPECT_FALSE(isBackdrop(onScreen(panel.topLeft() + QPoint(4, 4))));
  EXPECT_TRUE(becomesBackdrop({panel.center().x(), panel.bottom() + 1}));
}

TEST_F(CompositorStartTest, WithoutACompositor_APressOnACutCornerHides) {
  OtherClient &backdrop = openBackdrop();
  start(commands({u"Build"_s}));
  input().click(panelGeometry().topLeft());
  EXPECT_TRUE(becomesHidden());
  EXPECT_TRUE(waitUntil([&] { return backdrop.buttons() == QList<quint8>{1}; }));
}

TEST_F(CompositorStartTest, CompositorStartedUnderTheShownPanel_AddsTheShadowAroundTheFrame) {
  openBackdrop();
  start(commands({u"Build"_s}));
  const QRect before = panelGeometry();
  startCompositor();
  ASSERT_TRUE(becomesShadowed());
  EXPECT_TRUE(waitUntil([&] { return frame() == before; }));
  EXPECT_TRUE(becomesDarkenedBackdrop({before.center().x(), before.bottom() + 8}));
  EXPECT_TRUE(becomesDarkenedBackdrop(before.topLeft()));
  program().settle();
  EXPECT_EQ(frame(), before);
  EXPECT_TRUE(isShown());
}

TEST_F(CompositorStartTest, CompositorStartedWhileHidden_ShowsTheFrameInItsPlace) {
  startHidden(commands({u"Build"_s}));
  startCompositor();
  ASSERT_TRUE(becomesShadowed());
  showByShortcut();
  EXPECT_TRUE(waitUntil([this] { return frame() == placed({700, 500}); }));
}

TEST_F(CompositorStartTest, CompositorStarted_StoresNoSize) {
  start(commands({u"Build"_s}));
  startCompositor();
  ASSERT_TRUE(becomesShadowed());
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  program().settle();
  EXPECT_FALSE(session().home().preference(u"panelWidth"_s).has_value());
}

/// Begins on a desktop where they are.
class CompositorEndTest : public CompositedTest {
 protected:
  CompositorEndTest() : CompositedTest(Compositing::on) {}
};

TEST_F(CompositorEndTest, CompositorEndedUnderTheShownPanel_LeavesTheBareFrame) {
  openBackdrop();
  start(commands({u"Build"_s}));
  const QRect before = frame();
  stopCompositor();
  ASSERT_TRUE(becomesShadowless());
  EXPECT_TRUE(waitUntil([&] { return panelGeometry() == before; }));
  EXPECT_TRUE(becomesBackdrop(before.topLeft()));
  EXPECT_TRUE(becomesBackdrop({before.center().x(), before.bottom() + 1}));
  EXPECT_TRUE(becomesBackdrop({before.left() - 1, before.center().y()}));
  program().settle();
  EXPECT_EQ(panelGeometry(), before);
}

TEST_F(CompositorEndTest, CompositorEndedUnderTheShownPanel_CutsTheCornersOff) {
  start(commands({u"Build"_s}));
  stopCompositor();
  ASSERT_TRUE(becomesShadowless());
  EXPECT_TRUE(waitUntil([this] {
    const QRegion shape =
        WindowShape::bounding(session().windows().connection(), program().panel());
    const QRect whole(QPoint(), panelGeometry().size());
    return shape.boundingRect() == whole && !shape.contains(whole.topLeft()) &&
           !shape.contains(whole.bottomRight());
  }));
}

TEST_F(CompositorEndTest, CompositorEnded_LeavesTheSurfaceThatAPanelWithoutOneHas) {
  openBackdrop();
  start(commands({u"Build"_s}));
  stopCompositor();
  ASSERT_TRUE(becomesShadowless());
  // Neither black nor see-through along its edges.
  EXPECT_TRUE(waitUntil([this] {
    const QRect panel = panelGeometry();
    const QColor surface = onScreen(panel.topLeft() + QPoint(200, 8));
    return surface.green() > 200 && surface.red() - surface.green() < 4 &&
           onScreen(panel.topLeft() + QPoint(200, 0)) == surface &&
           onScreen({panel.left(), panel.top() + 20}) == surface &&
           onScreen({panel.right(), panel.top() + 20}) == surface;
  }));
}

TEST_F(CompositorEndTest, PanelAfterTheCompositorsEnd_TakesKeysAndClicks) {
  start(commands({u"first"_s, u"second"_s}));
  stopCompositor();
  ASSERT_TRUE(becomesShadowless());
  program().settle();
  const QRect first = selectNextRow();
  input().click(onPanel(first.translated(0, first.height()).center()));
  EXPECT_TRUE(becomesMarked(u"second"_s));
}

TEST_F(CompositorEndTest, CompositorThatIsReplacedAgainAndAgain_NeverMovesTheFrame) {
  start(commands({u"Build"_s}));
  const QRect before = frame();
  for (int i = 0; i < 3; ++i) {
    stopCompositor();
    ASSERT_TRUE(becomesShadowless());
    EXPECT_TRUE(waitUntil([&] { return frame() == before; }));
    startCompositor();
    ASSERT_TRUE(becomesShadowed());
    EXPECT_TRUE(waitUntil([&] { return frame() == before; }));
  }
}

}  // namespace
}  // namespace lanternix
