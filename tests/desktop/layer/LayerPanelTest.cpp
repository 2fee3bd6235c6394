#include "desktop/PortalService.h"
#include "desktop/layer/LayerSession.h"
#include "desktop/layer/PanelOnScreen.h"
#include "support/HarnessError.h"
#include "support/SampleGroups.h"
#include "support/WaitUntil.h"

#include <QtCore/QDir>

#include <gtest/gtest.h>
#include <utility>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using Compositor = LayerSession::Compositor;

/// The built program on a compositor with a layer shell. What can be seen of it, a person could
/// see.
class LayerPanelTest : public testing::TestWithParam<Compositor> {
 protected:
  void start(int scale = 1, const QByteArray &preferences = {}) {
    session = std::make_unique<LayerSession>(GetParam(), scale);
    if (!preferences.isEmpty()) {
      session->home().writePreferences(preferences);
    }
    writeGroups();
    program = run();
    require(u"the panel"_s, [this] { return isShown(); });
  }

  void writeGroups() {
    SampleGroups groups;
    groups.group(u"Commands"_s);
    for (const QString &name : {u"build"_s, u"deploy"_s}) {
      groups.command(name, session->home().marking(name));
    }
    ProgramEnvironment::write(session->home().dataFile(), groups.json());
  }

  std::unique_ptr<ChildProcess> run() {
    auto process =
        std::make_unique<ChildProcess>(QStringLiteral(LANTERNIX_PROGRAM), u"lanternix"_s);
    process->start({}, session->variables());
    return process;
  }

  /// Starts the program over a terminal that has the keyboard and fills the screen.
  void startOverTerminal(const QString &option) {
    session = std::make_unique<LayerSession>(GetParam());
    const auto ground = [this] { return session->picture().pixelColor(640, 700); };
    const QColor empty = ground();
    terminal = std::make_unique<ChildProcess>(u"foot"_s, u"foot"_s);
    terminal->start({option}, session->variables());
    require(u"the terminal"_s, [&] { return ground() != empty; });
    writeGroups();
    program = run();
    require(u"the panel"_s, [this] { return isShown(); });
  }

  /// Shows the hidden panel, as a second start does.
  void showAgain() {
    const auto second = run();
    require(u"the panel"_s, [this] { return isShown(); });
  }

  QRect frame() const { return panelOnScreen(session->picture(), LayerSession::screenSize); }
  bool isShown() const { return !frame().isEmpty(); }
  bool becomesHidden() const {
    return waitUntil([this] { return !isShown(); });
  }
  /// Whether the panel gets there; says where it is instead.
  testing::AssertionResult becomes(const QRect &expected) const {
    if (waitUntil([&] { return frame() == expected; })) {
      return testing::AssertionSuccess();
    }
    const QRect now = frame();
    return testing::AssertionFailure() << "the panel is at " << now.x() << ',' << now.y() << ' '
                                       << now.width() << 'x' << now.height();
  }

  /// The same for the end of a drag, of which the program does not hear the way that the mouse has
  /// gone before it has dealt with the press.
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

  /// In the middle of what the bars leave, 60 pixels up.
  QRect centred(QSize size) const {
    const QRect area = session->workArea();
    return {QPoint(area.x() + (area.width() - size.width()) / 2,
                   area.y() + (area.height() - size.height()) / 2 - 60),
            size};
  }

  /// The picture once nothing moves in it any more.
  QImage settledPicture() const {
    QImage settled;
    require(u"the screen to come to rest"_s, [&] {
      const QImage now = session->picture();
      return std::exchange(settled, now) == now;
    });
    return settled;
  }

  /// Opens the menu of the first row of a panel that is there.
  void openMenu(const QRect &panel) {
    const QPoint row = panel.topLeft() + QPoint(200, 150);
    input().moveTo(row);  // which lights up
    const QImage before = settledPicture();
    input().click(row, BTN_RIGHT);
    const QRect below(row + QPoint(10, 10), QSize(60, 40));
    require(u"the menu"_s, [&] { return session->picture().copy(below) != before.copy(below); });
  }

  /// Into the directory that the environment names, for people to look at.
  void savePicture(const QString &name) const {
    const QString directory = qEnvironmentVariable("LANTERNIX_PICTURES");
    if (!directory.isEmpty()) {
      QDir().mkpath(directory);
      settledPicture().save(directory + u'/' + nameOf(GetParam()) + u'-' + name + u".png"_s);
    }
  }

  static QString nameOf(Compositor compositor) {
    return compositor == Compositor::sway ? u"sway"_s : u"kwin"_s;
  }

  WaylandInput &input() { return session->input(); }

  std::unique_ptr<LayerSession> session;
  std::unique_ptr<ChildProcess> terminal;
  std::unique_ptr<ChildProcess> program;
};

TEST_P(LayerPanelTest, Panel_StandsSixtyPixelsAboveTheMiddleOfTheWorkArea) {
  start();
  EXPECT_EQ(frame(), centred({700, 500}));
  savePicture(u"panel"_s);
}

TEST_P(LayerPanelTest, AtTwiceTheScale_ThePanelStandsThereToo) {
  if (GetParam() == Compositor::kwin) {
    GTEST_SKIP() << "inside another screen, this compositor has no scale";
  }
  start(2);
  EXPECT_EQ(frame(), centred({700, 500}));
  savePicture(u"panel-2x"_s);
}

TEST_P(LayerPanelTest, StoredSize_IsKept) {
  start(1, "panelWidth=820\npanelHeight=420");
  EXPECT_EQ(frame(), centred({820, 420}));
}

TEST_P(LayerPanelTest, Panel_HasTheKeyboardAtOnce) {
  start();
  input().type(u"dep"_s);
  savePicture(u"search"_s);
  input().tap(KEY_ENTER);
  EXPECT_TRUE(session->home().becomesMarked(u"deploy"_s));
  EXPECT_TRUE(becomesHidden());
  EXPECT_FALSE(session->home().isMarked(u"build"_s));
}

TEST_P(LayerPanelTest, HiddenAndShownAgain_ThePanelStandsThereWithTheKeyboard) {
  start();
  for (int round = 0; round < 3; ++round) {
    input().tap(KEY_ESC);
    ASSERT_TRUE(becomesHidden());
    showAgain();
    EXPECT_EQ(frame(), centred({700, 500}));
  }
  input().type(u"bui"_s);
  input().tap(KEY_ENTER);
  EXPECT_TRUE(session->home().becomesMarked(u"build"_s));
}

TEST_P(LayerPanelTest, Background_MovesThePanel) {
  start();
  const QRect before = frame();
  const QPoint grip = before.topLeft() + QPoint(350, 25);
  input().drag(grip, grip + QPoint(-120, 90));
  EXPECT_TRUE(becomesNear(before.translated(-120, 90)));
  EXPECT_EQ(frame().size(), before.size());
}

TEST_P(LayerPanelTest, RightBottomCorner_ResizesThePanel_WhichKeepsItsSize) {
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

TEST_P(LayerPanelTest, LeftTopCorner_LeavesTheOppositeOneWhereItIs) {
  start();
  const QRect before = frame();
  input().drag(before.topLeft() + QPoint(2, 2), before.topLeft() + QPoint(82, 52));
  EXPECT_TRUE(becomesNear(before.adjusted(80, 50, 0, 0)));
  EXPECT_EQ(frame().bottomRight(), before.bottomRight());
}

TEST_P(LayerPanelTest, CornerDraggedFarInwards_StopsAtTheSmallestSize) {
  start();
  const QRect before = frame();
  input().drag(before.bottomRight() - QPoint(1, 1), before.bottomRight() - QPoint(600, 450));
  EXPECT_TRUE(becomes(QRect(before.topLeft(), QSize(400, 300))));
}

TEST_P(LayerPanelTest, ContextMenu_LeavesThePanelShown_AndIsUsable) {
  start();
  openMenu(frame());
  savePicture(u"menu"_s);
  EXPECT_TRUE(isShown());
  input().tap(KEY_DOWN);
  input().tap(KEY_ENTER);
  EXPECT_TRUE(waitUntil([this] { return !session->home().item(u"build Copy"_s).isEmpty(); }));
}

TEST_P(LayerPanelTest, UnpluggedScreen_HidesThePanel_WhichComesBackOnAnother) {
  if (GetParam() == Compositor::kwin) {
    GTEST_SKIP() << "inside another screen, this compositor has but one";
  }
  start();
  input().tap(KEY_ESC);
  ASSERT_TRUE(becomesHidden());
  session->plugScreen();
  showAgain();
  session->unplugScreen();
  ASSERT_TRUE(becomesHidden());
  showAgain();
  EXPECT_EQ(frame(), centred({700, 500}));
}

TEST_P(LayerPanelTest, DarkDesktop_MakesPanelMenuAndSettingsDark) {
  session = std::make_unique<LayerSession>(GetParam());
  PortalService portal(session->bus().address(),
                       {{u"org.freedesktop.appearance"_s, {{u"color-scheme"_s, 1U}}}});
  writeGroups();
  program = run();
  const QRect panel = centred({700, 500});
  const auto ground = [&] { return session->picture().pixelColor(panel.center()); };
  EXPECT_TRUE(waitUntil([&] { return qGray(ground().rgb()) > 30 && qGray(ground().rgb()) < 60; }));
  savePicture(u"panel-dark"_s);
  openMenu(panel);
  savePicture(u"menu-dark"_s);
  input().tap(KEY_ESC);
  input().tap(KEY_COMMA, {KEY_LEFTCTRL});
  EXPECT_TRUE(
      waitUntil([&] { return ground() == QColor(0x262629) || ground() == QColor(0x1E1E1E); }));
  savePicture(u"settings-dark"_s);
}

TEST_P(LayerPanelTest, PressOnAnotherWindow_HidesThePanel) {
  if (GetParam() == Compositor::sway) {
    GTEST_SKIP() << "while the panel is there, a press on no window takes the keyboard here";
  }
  startOverTerminal(u"--maximized"_s);
  settledPicture();
  input().click({60, 700});
  EXPECT_TRUE(becomesHidden());
}

TEST_P(LayerPanelTest, OverAFullScreenWindow_ThePanelIsSeenAndHasTheKeyboard) {
  startOverTerminal(u"--fullscreen"_s);
  savePicture(u"over-full-screen"_s);
  input().type(u"dep"_s);
  input().tap(KEY_ENTER);
  EXPECT_TRUE(session->home().becomesMarked(u"deploy"_s));
}

TEST_P(LayerPanelTest, AnotherWorkspace_HasThePanelWithTheKeyboardToo) {
  if (GetParam() == Compositor::kwin) {
    GTEST_SKIP() << "inside another screen, this compositor has but one";
  }
  startOverTerminal(u"--maximized"_s);
  const QRect panel = frame();
  session->switchWorkspace();
  settledPicture();
  EXPECT_EQ(frame(), panel);
  input().type(u"bui"_s);
  input().tap(KEY_ENTER);
  EXPECT_TRUE(session->home().becomesMarked(u"build"_s));
}

TEST_P(LayerPanelTest, Shortcut_HidesAndShowsThePanel_WhichTakesTheLettersThatFollow) {
  if (GetParam() == Compositor::kwin) {
    GTEST_SKIP() << "this compositor has no door for shortcuts but the portal";
  }
  start();
  const auto pressShortcut = [this] { input().tap(KEY_SPACE, {KEY_LEFTMETA, KEY_LEFTSHIFT}); };
  for (int round = 0; round < 3; ++round) {
    pressShortcut();
    ASSERT_TRUE(becomesHidden());
    pressShortcut();
    require(u"the panel"_s, [this] { return isShown(); });
  }
  input().type(u"bui"_s);
  input().tap(KEY_ENTER);
  EXPECT_TRUE(session->home().becomesMarked(u"build"_s));
}

TEST_P(LayerPanelTest, SettingsFromThePanel_HaveTheKeyboard) {
  start();
  const QRect panel = frame();
  input().tap(KEY_COMMA, {KEY_LEFTCTRL});
  ASSERT_TRUE(waitUntil([&] { return isShown() && frame() != panel; }));
  savePicture(u"settings"_s);
  input().tap(KEY_W, {KEY_LEFTCTRL});
  EXPECT_TRUE(becomesHidden());
}

INSTANTIATE_TEST_SUITE_P(On, LayerPanelTest, testing::Values(Compositor::sway, Compositor::kwin),
                         [](const testing::TestParamInfo<Compositor> &of) {
                           return of.param == Compositor::sway ? "sway" : "kwin";
                         });

}  // namespace
}  // namespace lanternix
