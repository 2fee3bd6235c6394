#include "Platform/KeyCodes.h"
#include "Platform/Linux/X11EventTime.h"
#include "Platform/Linux/X11HotkeyRegistrar.h"
#include "Platform/Linux/X11KeyboardHold.h"
#include "TestDisplay.h"
#include "support/InputDriver.h"
#include "support/OtherClient.h"
#include "support/WaitUntil.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>

#include <X11/keysym.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using namespace lanternix::KeyCodes;

constexpr quint32 keyK = 40;
constexpr quint32 keyY = 16;
constexpr quint32 keypadEight = 91;

/// Changes the keyboard map as the desktop's settings do, and back at the end of the test.
class KeyboardMap {
 public:
  static void set(const QStringList &arguments) {
    ASSERT_EQ(QProcess::execute(u"setxkbmap"_s, arguments), 0) << "Debian package x11-xkb-utils";
  }
  ~KeyboardMap() { QProcess::execute(u"setxkbmap"_s, {u"us"_s, u"-option"_s, QString()}); }
};

/// Whether a combination is refused to \p other.
bool isHeld(OtherClient &other, xcb_keysym_t key, quint16 modifiers) {
  const bool free = other.holdKey(key, modifiers);
  if (free) {
    other.letKeyGo(key, modifiers);
  }
  return !free;
}

/// Counts what the server reports, repeats and all.
class KeyPressCounter : public QAbstractNativeEventFilter {
 public:
  KeyPressCounter() { QCoreApplication::instance()->installNativeEventFilter(this); }
  int count() const { return m_count; }

  bool nativeEventFilter(const QByteArray & /*eventType*/, void *message,
                         qintptr * /*result*/) override {
    m_count += static_cast<xcb_generic_event_t *>(message)->response_type == XCB_KEY_PRESS ? 1 : 0;
    return false;
  }

 private:
  int m_count = 0;
};

class X11HotkeyRegistrarTest : public testing::Test {
 protected:
  X11HotkeyRegistrarTest() {
    QObject::connect(&registrar, &X11HotkeyRegistrar::pressed, &registrar, [this] { ++presses; });
  }

  bool waitForPresses(int count) {
    const bool told = waitUntil([&] { return presses >= count; });
    // Nobody answers the presses here, and what the test does next is not to be kept back.
    keyboardHold.end();
    awaitReply(xcb_get_input_focus_reply, server, xcb_get_input_focus(server.connection()));
    return told;
  }

  /// Presses a key that is certainly heard after everything before it, at a later moment.
  void settle() {
    constexpr quint32 f8 = 100;
    X11EventTime markerTime;
    X11HotkeyRegistrar marker(server, markerTime, keyboardHold);
    ASSERT_TRUE(marker.registerHotkey(f8, 0));
    quint32 first = 0;
    ASSERT_TRUE(waitUntil([&] {
      input.tap(XK_F8);
      first = first == 0 ? markerTime.recent() : first;
      return markerTime.recent() > first;
    }));
  }

  X11Server server;
  X11EventTime eventTime;
  X11KeyboardHold keyboardHold{server};
  X11HotkeyRegistrar registrar{server, eventTime, keyboardHold};
  InputDriver input{testDisplay().name()};
  int presses = 0;
};

TEST_F(X11HotkeyRegistrarTest, RegisteredCombination_WhenPressed_IsToldOnce) {
  ASSERT_TRUE(registrar.registerHotkey(space, classicCommand | classicShift));
  input.tap(XK_space, {XK_Super_L, XK_Shift_L});
  EXPECT_TRUE(waitForPresses(1));
  settle();
  EXPECT_EQ(presses, 1);
}

TEST_F(X11HotkeyRegistrarTest, EveryModifier_WhenPressed_IsTold) {
  const struct {
    quint32 modifiers;
    QList<xcb_keysym_t> keys;
  } combinations[] = {
      {0, {}},
      {classicShift, {XK_Shift_L}},
      {classicControl, {XK_Control_L}},
      {classicOption, {XK_Alt_L}},
      {classicCommand, {XK_Super_L}},
      {classicShift | classicControl | classicOption | classicCommand,
       {XK_Shift_L, XK_Control_L, XK_Alt_L, XK_Super_L}},
  };
  int expected = 0;
  for (const auto &combination : combinations) {
    ASSERT_TRUE(registrar.registerHotkey(keyK, combination.modifiers));
    input.tap(XK_k, combination.keys);
    EXPECT_TRUE(waitForPresses(++expected)) << combination.modifiers;
  }
}

TEST_F(X11HotkeyRegistrarTest, OtherModifiers_AreNotTold) {
  ASSERT_TRUE(registrar.registerHotkey(keyK, classicCommand));
  input.tap(XK_k);
  input.tap(XK_k, {XK_Super_L, XK_Shift_L});
  input.tap(XK_k, {XK_Control_L});
  settle();
  EXPECT_EQ(presses, 0);
}

TEST_F(X11HotkeyRegistrarTest, LocksInAnyState_DoNotMatter) {
  ASSERT_TRUE(registrar.registerHotkey(keyK, classicCommand));
  int expected = 0;
  for (const xcb_keysym_t lock :
       QList<xcb_keysym_t>{XK_Caps_Lock, XK_Num_Lock, XK_Caps_Lock, XK_Num_Lock}) {
    input.tap(lock);
    input.tap(XK_k, {XK_Super_L});
    EXPECT_TRUE(waitForPresses(++expected)) << "after lock " << lock;
  }
}

TEST_F(X11HotkeyRegistrarTest, HeldKey_DoesNotRepeat) {
  ASSERT_TRUE(registrar.registerHotkey(keyK, 0));
  const KeyPressCounter reports;
  input.press(XK_k);
  ASSERT_TRUE(waitUntil([&] { return reports.count() >= 4; })) << "the server repeats no key";
  EXPECT_EQ(presses, 1);
  input.release(XK_k);
  settle();
  input.tap(XK_k);
  EXPECT_TRUE(waitForPresses(2));
}

TEST_F(X11HotkeyRegistrarTest, QuickPresses_AreAllTold) {
  ASSERT_TRUE(registrar.registerHotkey(keyK, classicCommand));
  input.press(XK_Super_L);
  for (int i = 0; i < 10; ++i) {
    input.tap(XK_k);
  }
  input.release(XK_Super_L);
  EXPECT_TRUE(waitForPresses(10)) << presses;
}

TEST_F(X11HotkeyRegistrarTest, CombinationOfAnotherProgram_IsRefused) {
  OtherClient other(testDisplay().name());
  ASSERT_TRUE(other.holdKey(XK_k, XCB_MOD_MASK_4));
  EXPECT_FALSE(registrar.registerHotkey(keyK, classicCommand));
}

TEST_F(X11HotkeyRegistrarTest, CombinationHeldElsewhereUnderOneLock_IsRefusedAndWhollyGivenBack) {
  OtherClient other(testDisplay().name());
  ASSERT_TRUE(other.holdKey(XK_k, XCB_MOD_MASK_4 | XCB_MOD_MASK_LOCK));
  ASSERT_FALSE(registrar.registerHotkey(keyK, classicCommand));
  OtherClient third(testDisplay().name());
  EXPECT_TRUE(third.holdKey(XK_k, XCB_MOD_MASK_4));
}

TEST_F(X11HotkeyRegistrarTest, RefusedCombination_CanBeHadOnceItIsFree) {
  OtherClient other(testDisplay().name());
  ASSERT_TRUE(other.holdKey(XK_k, XCB_MOD_MASK_4));
  ASSERT_FALSE(registrar.registerHotkey(keyK, classicCommand));
  other.letKeyGo(XK_k, XCB_MOD_MASK_4);
  ASSERT_TRUE(registrar.registerHotkey(keyK, classicCommand));
  input.tap(XK_k, {XK_Super_L});
  EXPECT_TRUE(waitForPresses(1));
}

TEST_F(X11HotkeyRegistrarTest, UnregisteredCombination_IsFreeForOthers) {
  ASSERT_TRUE(registrar.registerHotkey(keyK, classicCommand));
  OtherClient other(testDisplay().name());
  ASSERT_FALSE(other.holdKey(XK_k, XCB_MOD_MASK_4));
  registrar.unregisterHotkey();
  EXPECT_TRUE(waitUntil([&] { return other.holdKey(XK_k, XCB_MOD_MASK_4); }));
}

TEST_F(X11HotkeyRegistrarTest, SecondRegistration_TakesThePlaceOfTheFirst) {
  ASSERT_TRUE(registrar.registerHotkey(keyK, classicCommand));
  ASSERT_TRUE(registrar.registerHotkey(keyY, classicCommand));
  input.tap(XK_k, {XK_Super_L});
  input.tap(XK_y, {XK_Super_L});
  ASSERT_TRUE(waitForPresses(1));
  settle();
  EXPECT_EQ(presses, 1);
}

TEST_F(X11HotkeyRegistrarTest, UnknownVirtualCode_IsRefused) {
  EXPECT_FALSE(registrar.registerHotkey(4711, classicCommand));
}

TEST_F(X11HotkeyRegistrarTest, EveryKeyOfTheTable_CanBeRegistered) {
  for (const Key &key : allKeys()) {
    EXPECT_TRUE(registrar.registerHotkey(key.virtualCode, classicCommand | classicOption))
        << key.virtualCode;
  }
}

TEST_F(X11HotkeyRegistrarTest, KeypadKey_WithNumLockInEitherState_IsTold) {
  ASSERT_TRUE(registrar.registerHotkey(keypadEight, classicCommand));
  input.tap(XK_KP_Up, {XK_Super_L});
  EXPECT_TRUE(waitForPresses(1));
  input.tap(XK_Num_Lock);
  input.tap(XK_KP_Up, {XK_Super_L});
  EXPECT_TRUE(waitForPresses(2));
  input.tap(XK_Num_Lock);
}

TEST_F(X11HotkeyRegistrarTest, CharacterKey_StaysOnItsPositionInAnotherLayout) {
  const KeyboardMap restored;
  ASSERT_TRUE(registrar.registerHotkey(keyY, classicCommand));
  KeyboardMap::set({u"de"_s});
  input.refreshKeyboard();
  input.tap(XK_z, {XK_Super_L});  // where a German keyboard has what others call Y
  EXPECT_TRUE(waitForPresses(1));
}

TEST_F(X11HotkeyRegistrarTest, NamedKey_IsFollowedToWhereItsOwnerPutsIt) {
  const KeyboardMap restored;
  ASSERT_TRUE(registrar.registerHotkey(escape, classicCommand));
  KeyboardMap::set({u"us"_s, u"-option"_s, u"caps:swapescape"_s});
  input.refreshKeyboard();
  OtherClient other(testDisplay().name());
  // Held once the new place refuses others.
  ASSERT_TRUE(waitUntil([&] { return isHeld(other, XK_Escape, XCB_MOD_MASK_4); }));
  input.tap(XK_Escape, {XK_Super_L});
  EXPECT_TRUE(waitForPresses(1));
  input.tap(XK_Caps_Lock, {XK_Super_L});
  input.tap(XK_Caps_Lock);
  settle();
  EXPECT_EQ(presses, 1);
}

TEST_F(X11HotkeyRegistrarTest, NumLockMovedToAnotherModifier_StillDoesNotMatter) {
  const KeyboardMap restored;
  ASSERT_TRUE(registrar.registerHotkey(keyK, classicCommand));
  ASSERT_EQ(QProcess::execute(u"xmodmap"_s,
                              {u"-e"_s, u"clear mod2"_s, u"-e"_s, u"add mod3 = Num_Lock"_s}),
            0)
      << "Debian package x11-xserver-utils";
  OtherClient other(testDisplay().name());
  ASSERT_TRUE(waitUntil([&] { return isHeld(other, XK_k, XCB_MOD_MASK_4 | XCB_MOD_MASK_3); }));
  input.tap(XK_Num_Lock);
  input.tap(XK_k, {XK_Super_L});
  EXPECT_TRUE(waitForPresses(1));
  input.tap(XK_Num_Lock);
}

TEST_F(X11HotkeyRegistrarTest, Press_NotesTheServersTime) {
  ASSERT_TRUE(registrar.registerHotkey(keyK, classicCommand));
  input.tap(XK_k, {XK_Super_L});
  ASSERT_TRUE(waitForPresses(1));
  EXPECT_NE(eventTime.recent(), 0U);
}

}  // namespace
}  // namespace lanternix
