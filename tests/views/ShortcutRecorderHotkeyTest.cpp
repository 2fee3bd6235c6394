// What becomes of the shortcut in force while another one is recorded.
#include "views/ShortcutRecorderTest.h"

namespace lanternix {

namespace {

using namespace Qt::StringLiterals;

constexpr std::pair<quint32, quint32> defaultRegistration{49, 768};

class ShortcutRecorderHotkeyTest : public ShortcutRecorderTest {};

}  // namespace

TEST_F(ShortcutRecorderHotkeyTest, WhileRecording_TheShortcutIsFree) {
  click();
  EXPECT_EQ(hotkeyRegistrar.registered, std::nullopt);
  click();
  EXPECT_EQ(hotkeyRegistrar.registered, defaultRegistration);
}

TEST_F(ShortcutRecorderHotkeyTest, TheSameShortcut_CanBeRecordedAgain) {
  click();
  tap(keySpace(), Qt::MetaModifier | Qt::ShiftModifier);
  EXPECT_FALSE(recorder->isRecording());
  EXPECT_EQ(recorder->text(), u"⇧⌘Space"_s);
  EXPECT_TRUE(userDefaults.data("globalShortcut").state != StoredValue<QByteArray>::State::absent);
  EXPECT_EQ(hotkeyRegistrar.registered, defaultRegistration);
}

TEST_F(ShortcutRecorderHotkeyTest, TheRecordedShortcut_HoldsFromTheReleaseOn) {
  click();
  press(keyK(), Qt::ControlModifier);
  EXPECT_EQ(hotkeyRegistrar.registered, std::nullopt) << "the key that is held would toggle";
  release(keyK(), Qt::ControlModifier);
  EXPECT_EQ(hotkeyRegistrar.registered, (std::pair<quint32, quint32>(40, 4096)));
}

TEST_F(ShortcutRecorderHotkeyTest, AHeldKeyThatRepeats_ReachesNobody) {
  click();
  field->setFocus();
  press(keyK(), Qt::ControlModifier);
  send(QEvent::KeyRelease, keyK(), {}, true);
  send(QEvent::KeyPress, keyK(), {}, true);
  EXPECT_EQ(field->text(), QString());
  EXPECT_EQ(hotkeyRegistrar.registered, std::nullopt);
}

TEST_F(ShortcutRecorderHotkeyTest, AShortcutThatIsRefused_IsShownAllTheSame) {
  hotkeyRegistrar.refuses = true;
  click();
  tap(keyK(), Qt::ControlModifier);
  EXPECT_EQ(recorder->text(), u"⌃K"_s);
  EXPECT_FALSE(service.isRegistered());
}

TEST_F(ShortcutRecorderHotkeyTest, AHiddenRecorder_RecordsNoLonger) {
  click();
  recorder->hide();
  recorder->show();
  EXPECT_FALSE(recorder->isRecording());
  EXPECT_EQ(hotkeyRegistrar.registered, defaultRegistration);
}

TEST_F(ShortcutRecorderHotkeyTest, AClosedWindow_EndsRecording) {
  click();
  window.close();
  EXPECT_FALSE(recorder->isRecording());
  EXPECT_EQ(hotkeyRegistrar.registered, defaultRegistration);
}

TEST_F(ShortcutRecorderHotkeyTest, AWindowWithoutTheKeyboard_RecordsNoLonger) {
  click();
  QWidget other;
  other.show();
  other.activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !recorder->isRecording(); }));
  EXPECT_EQ(hotkeyRegistrar.registered, defaultRegistration);
}

TEST_F(ShortcutRecorderHotkeyTest, ARecorderThatIsDestroyed_LeavesTheShortcutInForce) {
  click();
  delete recorder;
  EXPECT_EQ(hotkeyRegistrar.registered, defaultRegistration);
  tap(keyK(), Qt::ControlModifier);
  EXPECT_EQ(service.currentShortcut(), HotkeyShortcut());
}

}  // namespace lanternix
