#include "desktop/SettingsFlowTest.h"

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using State = AccessibilityBus::State;

/// The panel is on the screen while a window of the settings has the keyboard.
class PanelOverSettingsTest : public SettingsFlowTest {
 protected:
  /// Opens the settings where something of every dialog over them lies beside the panel.
  void openBuild() {
    openSettings(commands({u"Build"_s}));
    moveSettings({0, 200});
    program().settle();
  }
  /// Shows the panel and gives the keyboard back to \p window by a press beside the panel.
  void showPanelAndPress(const AccessibilityBus::Node &window) {
    showByShortcut();
    program().settle();  // or the press meets the window manager amidst the show
    const QPoint place = reader.geometry(window).bottomLeft() + QPoint(12, -12);
    ASSERT_FALSE(panelGeometry().contains(place));
    input().click(place);
    require(u"the window to have the keyboard"_s, [&] { return isActive(window); });
    ASSERT_TRUE(isShown());
  }
};

TEST_F(PanelOverSettingsTest, ReturnInAnEditor_OpensTheFirstItemAndTheNextOneSaves) {
  openBuild();
  click(button(u"Add Group"_s));
  const auto editor = dialog(u"New Group"_s);
  input().type(u"Play"_s);
  showPanelAndPress(editor);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Build"_s));
  EXPECT_TRUE(becomesHidden());
  EXPECT_EQ(storedGroups(), QStringList(u"Commands"_s));
  EXPECT_TRUE(reader.isKnown(editor));
  input().tap(XK_Return);
  EXPECT_TRUE(becomesStored({u"Commands"_s, u"Play"_s}));
}

TEST_F(PanelOverSettingsTest, EscapeOverAQuestion_HidesThePanelAndTheNextOneAnswers) {
  openBuild();
  select(u"Commands"_s);
  input().tap(XK_Delete);
  const auto question = dialog(u"Delete \"Commands\"?"_s);
  showPanelAndPress(question);
  input().tap(XK_Escape);
  EXPECT_TRUE(becomesHidden());
  EXPECT_TRUE(reader.isKnown(question));
  input().tap(XK_Escape);
  requireClosed(question);
  EXPECT_EQ(storedGroups(), QStringList(u"Commands"_s));
}

TEST_F(PanelOverSettingsTest, PanelMadeAnIcon_LeavesTheirKeysToTheSettings) {
  openBuild();
  click(button(u"Add Group"_s));
  const auto editor = dialog(u"New Group"_s);
  input().type(u"Play"_s);
  showPanelAndPress(editor);
  // The program takes an icon that is made soon after a hiding for the window manager's mistake.
  const auto staysAnIcon = [this] {
    session().windows().iconify(program().panel());
    return !waitUntil([this] { return session().windows().isInNormalState(program().panel()); },
                      std::chrono::milliseconds(500));
  };
  require(u"the panel to be an icon"_s, staysAnIcon);
  require(u"the editor to have the keyboard"_s, [&] { return isActive(editor); });
  input().tap(XK_Return);
  EXPECT_TRUE(becomesStored({u"Commands"_s, u"Play"_s}));
  EXPECT_FALSE(isMarked(u"Build"_s));
}

TEST_F(PanelOverSettingsTest, Letters_AreTypedIntoTheWindowWithTheKeyboard) {
  openBuild();
  click(button(u"Add Group"_s));
  const auto editor = dialog(u"New Group"_s);
  showPanelAndPress(editor);
  input().type(u"Play"_s);
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  input().tap(XK_Return);
  EXPECT_TRUE(waitUntil([this] { return storedGroups().contains(u"Play"_s); }));
}

TEST_F(PanelOverSettingsTest, AShortcut_IsRecordedAndOtherKeysAreThePanels) {
  openBuild();
  showTab(u"Settings"_s);
  const auto recorder = control(u"push button"_s, u"Toggle Popup Panel"_s);
  showPanelAndPress(window(u"Lanternix Settings"_s));
  tabTo(recorder);
  input().tap(XK_space);
  const auto comesToShow = [&](const QString &text) {
    return waitUntil([&] { return reader.description(recorder) == text; });
  };
  ASSERT_TRUE(comesToShow(u"Press shortcut..."_s));
  input().tap(XK_Return, {XK_Control_L});
  EXPECT_TRUE(comesToShow(u"⌃↩"_s)) << reader.description(recorder).toStdString();
  program().settle();
  EXPECT_TRUE(isShown());
  EXPECT_FALSE(isMarked(u"Build"_s));

  input().tap(XK_space);
  ASSERT_TRUE(comesToShow(u"Press shortcut..."_s));
  input().tap(XK_Escape);
  EXPECT_TRUE(becomesHidden());
  EXPECT_TRUE(comesToShow(u"Press shortcut..."_s));
}

}  // namespace
}  // namespace lanternix
