#include "Platform/Linux/WaylandWindowSystem.h"

#include <QtGui/QWindow>

#include <gtest/gtest.h>

namespace lanternix {
namespace {

/// A panel as it is about to be shown by a compositor that would lay windows side by side.
class WaylandWindowSystemTest : public testing::Test {
 protected:
  void SetUp() override {
    panel.setMinimumSize({400, 300});
    panel.resize(700, 500);
    windowSystem.preparePanel(panel);
  }

  WaylandWindowSystem windowSystem;
  QWindow panel;
};

TEST_F(WaylandWindowSystemTest, PanelThatComesUp_CanHaveOneSizeOnly) {
  EXPECT_EQ(panel.minimumSize(), QSize(700, 500));
  EXPECT_EQ(panel.maximumSize(), QSize(700, 500));
}

TEST_F(WaylandWindowSystemTest, PanelThatHasTheKeyboard_CanBeResized) {
  Q_EMIT panel.activeChanged();
  EXPECT_EQ(panel.minimumSize(), QSize(400, 300));
  EXPECT_GT(panel.maximumWidth(), 10'000);
}

TEST_F(WaylandWindowSystemTest, PanelThatWasRefusedTheKeyboard_CanBeResizedAllTheSame) {
  windowSystem.takeDrag(panel, Qt::RightEdge, {699, 250});
  EXPECT_EQ(panel.minimumSize(), QSize(400, 300));
  EXPECT_GT(panel.maximumWidth(), 10'000);
}

}  // namespace
}  // namespace lanternix
