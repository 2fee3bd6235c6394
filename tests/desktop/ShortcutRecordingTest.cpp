#include "desktop/SettingsWindowTest.h"

#include <QtCore/QProcess>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class ShortcutRecordingTest : public SettingsWindowTest {
 protected:
  /// Opens the settings and clicks the recorder, which then waits for keys.
  void startRecording() {
    openSettings();
    showTab(u"Settings"_s);
    recorder = control(u"push button"_s, u"Toggle Popup Panel"_s);
    click(recorder);
    require(u"the recorder to wait"_s, [this] { return shows(u"Press shortcut..."_s); });
  }
  bool shows(const QString &text) const { return reader.description(recorder) == text; }
  bool comesToShow(const QString &text) const {
    return waitUntil([&] { return shows(text); });
  }

  /// Whether the preferences have a shortcut of this key code and these modifiers.
  bool becomesStored(const QString &keyCode, const QString &modifiers) {
    return waitUntil([&] {
      const auto stored = session().home().preference(u"globalShortcut"_s);
      return stored && stored->contains(u"keyCode\\\":%1,"_s.arg(keyCode)) &&
             stored->contains(u"modifiers\\\":%1}"_s.arg(modifiers));
    });
  }

  AccessibilityBus::Node recorder;
};

TEST_F(ShortcutRecordingTest, TheRecordedKeys_ToggleThePanelAndTheOldOnesDoNot) {
  startRecording();
  input().tap(XK_k, {XK_Control_L, XK_Alt_L});
  ASSERT_TRUE(comesToShow(u"⌃⌥K"_s));
  program().settle();
  EXPECT_FALSE(isShown()) << "they are not meant for the panel yet";

  input().tap(XK_k, {XK_Control_L, XK_Alt_L});
  EXPECT_TRUE(becomesShown());
  EXPECT_TRUE(waitUntil([this] { return panelHasFocus(); }));
  pressShortcut();
  program().settle();
  EXPECT_TRUE(isShown());
  input().tap(XK_k, {XK_Control_L, XK_Alt_L});
  EXPECT_TRUE(becomesHidden());
}

TEST_F(ShortcutRecordingTest, TheRecordedKeys_AreStored) {
  startRecording();
  input().tap(XK_k, {XK_Control_L, XK_Alt_L});
  EXPECT_TRUE(becomesStored(u"40"_s, u"786432"_s));
}

TEST_F(ShortcutRecordingTest, CommandAndOptionWithALetter_AreRecordedAndGoNowhereElse) {
  startRecording();
  input().tap(XK_k, {XK_Super_L, XK_Alt_L});
  EXPECT_TRUE(comesToShow(u"⌥⌘K"_s));
  EXPECT_TRUE(becomesStored(u"40"_s, u"1572864"_s));
  program().settle();
  EXPECT_FALSE(isShown());
  EXPECT_TRUE(areSettingsShown());
  input().tap(XK_k, {XK_Super_L, XK_Alt_L});
  EXPECT_TRUE(becomesShown());
}

TEST_F(ShortcutRecordingTest, AFunctionKeyUnderCapsLock_IsRecordedWithItsModifiersAlone) {
  startRecording();
  input().tap(XK_Caps_Lock);
  program().settle();
  EXPECT_TRUE(shows(u"Press shortcut..."_s)) << "the lock is no key of a shortcut";
  input().tap(XK_F5, {XK_Shift_L});
  EXPECT_TRUE(comesToShow(u"⇧F5"_s));
  EXPECT_TRUE(becomesStored(u"96"_s, u"131072"_s));
  program().settle();
  input().tap(XK_Caps_Lock);
  input().tap(XK_F5, {XK_Shift_L});
  EXPECT_TRUE(becomesShown());
}

TEST_F(ShortcutRecordingTest, ASecondClick_EndsItAndTheShortcutHolds) {
  startRecording();
  click(recorder);
  EXPECT_TRUE(comesToShow(u"⇧⌘Space"_s));
  input().tap(XK_k, {XK_Control_L, XK_Alt_L});
  program().settle();
  EXPECT_TRUE(shows(u"⇧⌘Space"_s));
  EXPECT_FALSE(session().home().preference(u"globalShortcut"_s).has_value());
  pressShortcut();
  EXPECT_TRUE(becomesShown());
}

TEST_F(ShortcutRecordingTest, KeysOfAnotherProgram_AreShownAndStayWithIt) {
  OtherClient other(session().displayName());
  startRecording();
  ASSERT_TRUE(other.holdKey(XK_k, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1));
  input().tap(XK_k, {XK_Control_L, XK_Alt_L});
  EXPECT_TRUE(comesToShow(u"⌃⌥K"_s));
  program().settle();
  input().tap(XK_k, {XK_Control_L, XK_Alt_L});
  EXPECT_TRUE(waitUntil([&] { return other.keys().count(XK_k) == 1; }));
  program().settle();
  EXPECT_FALSE(isShown());
  EXPECT_TRUE(other.holdKey(XK_space, XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT)) << "these are free too";
  other.letKeyGo(XK_space, XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT);

  click(recorder);
  require(u"the recorder to wait"_s, [this] { return shows(u"Press shortcut..."_s); });
  input().tap(XK_F7, {XK_Control_L});
  ASSERT_TRUE(comesToShow(u"⌃F7"_s));
  program().settle();
  input().tap(XK_F7, {XK_Control_L});
  EXPECT_TRUE(becomesShown());
}

TEST_F(ShortcutRecordingTest, TheShortcutInForce_CanBeRecordedAgain) {
  startRecording();
  pressShortcut();
  EXPECT_TRUE(comesToShow(u"⇧⌘Space"_s));
  program().settle();
  EXPECT_FALSE(isShown());
  pressShortcut();
  EXPECT_TRUE(becomesShown());
}

TEST_F(ShortcutRecordingTest, TheCommandOfTheWindowItself_CanBeRecorded) {
  startRecording();
  input().tap(XK_w, {XK_Control_L});
  EXPECT_TRUE(comesToShow(u"⌃W"_s));
  EXPECT_TRUE(areSettingsShown());
}

TEST_F(ShortcutRecordingTest, AKeyWithoutModifiers_DoesNotEndIt) {
  startRecording();
  input().tap(XK_k);
  input().tap(XK_Escape);
  program().settle();
  EXPECT_TRUE(shows(u"Press shortcut..."_s));
}

TEST_F(ShortcutRecordingTest, UnderACyrillicLayout_TheKeyIsTheOneInThatPlace) {
  startRecording();
  const QStringList arguments{u"-display"_s, session().displayName(), u"ru"_s};
  ASSERT_EQ(QProcess::execute(u"setxkbmap"_s, arguments), 0) << "Debian package x11-xkb-utils";
  input().refreshKeyboard();
  input().tap(XK_Cyrillic_el, {XK_Control_L});
  EXPECT_TRUE(comesToShow(u"⌃K"_s));
  program().settle();  // it is shown at the press, but held from the release on
  input().tap(XK_Cyrillic_el, {XK_Control_L});
  EXPECT_TRUE(becomesShown());
}

TEST_F(ShortcutRecordingTest, WithoutAKey_OtherProgramsGetTheKeyboardBackAfterAWhile) {
  startRecording();
  const OtherClient locker(session().displayName());
  EXPECT_TRUE(waitUntil([&] { return locker.isKeyboardTaken(); }));
  EXPECT_TRUE(waitUntil([&] { return !locker.isKeyboardTaken(); }, std::chrono::seconds(30)));
  input().tap(XK_k, {XK_Control_L, XK_Alt_L});
  EXPECT_TRUE(comesToShow(u"⌃⌥K"_s));
}

TEST_F(ShortcutRecordingTest, AnotherWindow_EndsItAndTheShortcutHolds) {
  startRecording();
  const auto other = session().openOtherWindow();
  EXPECT_TRUE(comesToShow(u"⇧⌘Space"_s));
  pressShortcut();
  EXPECT_TRUE(becomesShown());
}

TEST_F(ShortcutRecordingTest, TheRecordedKeys_AreTakenWhenTheyAreLetGo) {
  startRecording();
  input().press(XK_Control_L);
  input().press(XK_k);
  ASSERT_TRUE(comesToShow(u"⌃K"_s));
  // Held on they repeat, which would be presses of a shortcut that held already.
  OtherClient other(session().displayName());
  ASSERT_TRUE(other.holdKey(XK_k, XCB_MOD_MASK_CONTROL));
  other.letKeyGo(XK_k, XCB_MOD_MASK_CONTROL);
  input().release(XK_k);
  input().release(XK_Control_L);
  program().settle();
  EXPECT_FALSE(isShown());
  EXPECT_FALSE(other.holdKey(XK_k, XCB_MOD_MASK_CONTROL));
}

}  // namespace
}  // namespace lanternix
