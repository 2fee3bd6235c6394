#include "desktop/DesktopTest.h"

#include <QtGui/QColor>

#include <X11/keysym.h>
#include <cmath>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

// Without a desktop that names another.
constexpr QRgb accent = 0xff007aff;
constexpr double hoverOpacity = 0.08;
constexpr double selectionOpacity = 0.15;

/// \p ground with the accent laid over it.
QColor tinted(const QColor &ground, double opacity) {
  const QColor tint(accent);
  const auto mixed = [opacity](int below, int above) {
    return qRound(below + (above - below) * opacity);
  };
  return {mixed(ground.red(), tint.red()), mixed(ground.green(), tint.green()),
          mixed(ground.blue(), tint.blue())};
}

bool isNear(const QColor &color, const QColor &expected) {
  return std::abs(color.red() - expected.red()) <= 1 &&
         std::abs(color.green() - expected.green()) <= 1 &&
         std::abs(color.blue() - expected.blue()) <= 1;
}

class HoverTest : public DesktopTest {
 protected:
  /// Shows three rows, the first of them selected.
  void startWithRows() {
    start(commands({u"first"_s, u"second"_s, u"third"_s}));
    input().moveTo(onPanel({350, 20}));
    m_first = selectNextRow();
    m_ground = colorOf(m_first.translated(0, m_first.height()));
  }

  QRect row(int index) const { return m_first.translated(0, index * m_first.height()); }
  void pointAt(int index) { input().moveTo(onPanel(row(index).center())); }

  /// In front of the row's icon, where nothing but the highlight is drawn.
  QColor colorOf(const QRect &row) {
    constexpr int beforeTheIcon = 6;
    return picture().pixelColor(row.left() + beforeTheIcon, row.center().y());
  }
  bool becomes(int index, const QColor &expected) {
    return waitUntil([&] { return isNear(colorOf(row(index)), expected); });
  }
  bool becomesHovered(int index) { return becomes(index, tinted(m_ground, hoverOpacity)); }
  bool becomesPlain(int index) { return becomes(index, m_ground); }
  bool looksSelected(int index) {
    return isNear(colorOf(row(index)), tinted(m_ground, selectionOpacity));
  }

 private:
  QRect m_first;
  QColor m_ground;
};

TEST_F(HoverTest, PointerOverARow_TintsItSlightly) {
  startWithRows();
  pointAt(1);
  EXPECT_TRUE(becomesHovered(1));
}

TEST_F(HoverTest, PointerOverTheNextRow_TakesTheTintAlong) {
  startWithRows();
  pointAt(1);
  ASSERT_TRUE(becomesHovered(1));
  pointAt(2);
  EXPECT_TRUE(becomesHovered(2));
  EXPECT_TRUE(becomesPlain(1));
}

TEST_F(HoverTest, PointerOutOfTheList_TakesTheTintAway) {
  startWithRows();
  pointAt(1);
  ASSERT_TRUE(becomesHovered(1));
  input().moveTo(onPanel({350, 20}));
  EXPECT_TRUE(becomesPlain(1));
}

TEST_F(HoverTest, PointerOutOfThePanel_TakesTheTintAway) {
  startWithRows();
  pointAt(1);
  ASSERT_TRUE(becomesHovered(1));
  input().moveTo(panelGeometry().bottomRight() + QPoint(60, 60));
  EXPECT_TRUE(becomesPlain(1));
}

TEST_F(HoverTest, PointerOverTheSelectedRow_LeavesItsStrongerTint) {
  startWithRows();
  pointAt(1);
  ASSERT_TRUE(becomesHovered(1));
  pointAt(0);
  // The pointer has been noticed where it is now as soon as it is gone from where it was.
  ASSERT_TRUE(becomesPlain(1));
  EXPECT_TRUE(looksSelected(0));
}

TEST_F(HoverTest, HoveredRow_IsNotSelected) {
  startWithRows();
  pointAt(2);
  ASSERT_TRUE(becomesHovered(2));
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"first"_s));
  EXPECT_FALSE(isMarked(u"third"_s));
}

TEST_F(HoverTest, SelectionMovedOntoTheHoveredRow_ReplacesItsTint) {
  startWithRows();
  pointAt(1);
  ASSERT_TRUE(becomesHovered(1));
  input().tap(XK_Down);
  EXPECT_TRUE(waitUntil([this] { return looksSelected(1); }));
  input().tap(XK_Down);
  EXPECT_TRUE(becomesHovered(1));
}

TEST_F(HoverTest, PanelShownAgainUnderNoPointer_HasNoTint) {
  startWithRows();
  pointAt(1);
  ASSERT_TRUE(becomesHovered(1));
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  input().moveTo({1270, 890});
  showByShortcut();
  settledPicture();
  EXPECT_TRUE(becomesPlain(1));
}

TEST_F(HoverTest, WheelUnderARestingPointer_TintsTheRowThatComesThere) {
  QStringList names;
  for (int i = 0; i < 40; ++i) {
    names.append(u"item%1"_s.arg(i));
  }
  start(commands(names));
  input().moveTo(onPanel({350, 20}));
  const QRect first = selectNextRow();
  input().tap(XK_Up);  // which selects the last row and scrolls to it
  input().tap(XK_Down);
  const QImage top = settledPicture();
  const QPoint pointer = first.translated(0, 2 * first.height()).center();
  input().moveTo(onPanel(pointer));
  // Two steps of the wheel move the rows, but a row is under the pointer before and after.
  const QColor ground = top.pixelColor(2, pointer.y());
  const QPoint spot(first.left() + 6, pointer.y());
  const auto isTinted = [&](const QImage &now) {
    return isNear(now.pixelColor(spot), tinted(ground, hoverOpacity));
  };
  ASSERT_TRUE(waitUntil([&] { return isTinted(picture()); }));
  for (int step = 0; step < 4; ++step) {
    input().pressButton(5);
    input().releaseButton(5);
  }
  const QRect list(0, 110, top.width(), 300);
  ASSERT_TRUE(waitUntil([&] { return picture().copy(list) != top.copy(list); }));
  program().settle();
  EXPECT_TRUE(waitUntil([&] { return isTinted(picture()); }));
}

}  // namespace
}  // namespace lanternix
