#include "desktop/doors/ShortcutsPortal.h"
#include "desktop/wayland/SwayTest.h"
#include "support/AccessibilityBus.h"
#include "support/OtherClient.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

using SwayShortcutTest = SwayTest;

TEST_F(SwayShortcutTest, PortalWithShortcuts_GoesBeforeSway) {
  startSession();
  ShortcutsPortal portal(session->bus().address());
  startHidden();
  ASSERT_TRUE(waitUntil([&] { return !portal.triggers().isEmpty(); }));
  EXPECT_EQ(portal.applications(), QStringList{u"org.lanternix.Lanternix"_s});
  portal.press(u"toggle"_s);
  EXPECT_TRUE(becomesShown());
  portal.press(u"toggle"_s);
  EXPECT_TRUE(becomesHidden());
}

TEST_F(SwayShortcutTest, BindingInGnomesSettings_ShowsThePanel) {
  startSession();
  variables().remove(u"SWAYSOCK"_s);
  variables().insert(u"XDG_CURRENT_DESKTOP"_s, u"GNOME"_s);
  variables().insert(u"GSETTINGS_BACKEND"_s, u"keyfile"_s);
  session->home().writePreferences(
      R"ini(globalShortcut="@ByteArray({\"keyCode\":40,\"modifiers\":786432})")ini");
  startHidden();
  const QString binding =
      u"org.gnome.settings-daemon.plugins.media-keys.custom-keybinding:"
      "/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/lanternix/"_s;
  ASSERT_EQ(run({u"gsettings"_s, u"get"_s, binding, u"binding"_s}), u"'<Control><Alt>0x2d'"_s);
  // What GNOME starts at a press.
  const QString command = run({u"gsettings"_s, u"get"_s, binding, u"command"_s});
  run(QProcess::splitCommand(command.mid(1, command.size() - 2)));
  EXPECT_TRUE(becomesShown());
}

TEST_F(SwayShortcutTest, Shortcut_HidesAndShowsThePanel) {
  startProgram();
  pressShortcut();
  EXPECT_TRUE(becomesHidden());
  pressShortcut();
  EXPECT_TRUE(becomesShown());
  pressShortcut();
  EXPECT_TRUE(becomesHidden());
}

TEST_F(SwayShortcutTest, HeldShortcut_TogglesOnce) {
  startSession(u"input * repeat_delay 20\ninput * repeat_rate 200"_s);
  startHidden();
  input().pressKey(KEY_LEFTMETA);
  input().pressKey(KEY_LEFTSHIFT);
  input().pressKey(KEY_SPACE);
  ASSERT_TRUE(becomesShown());
  // Long enough for a hundred repeats; each would hide the panel or show it again.
  EXPECT_TRUE(staysShown());
  input().releaseKey(KEY_SPACE);
  input().releaseKey(KEY_LEFTSHIFT);
  input().releaseKey(KEY_LEFTMETA);
}

TEST_F(SwayShortcutTest, ShortcutOfACharacterKey_GoesByItsPosition) {
  startSession(u"input * xkb_layout de"_s);
  session->home().writePreferences(
      R"ini(globalShortcut="@ByteArray({\"keyCode\":6,\"modifiers\":786432})")ini");
  startHidden();
  input().tap(KEY_Z, {KEY_LEFTCTRL, KEY_LEFTALT});
  EXPECT_TRUE(becomesShown());
}

TEST_F(SwayShortcutTest, RecordedShortcut_TogglesThePanel_AndTheOldOneReachesTheWindowBelow) {
  startSession();
  AccessibilityBus reader(variables());
  OtherClient other(session->displayName());
  other.show();
  startProgram();
  recordShortcut(
      reader,
      [this] {
        input().tap(KEY_K, {KEY_LEFTCTRL, KEY_LEFTALT});
      },
      u"⌃⌥K"_s);
  input().tap(KEY_W, {KEY_LEFTCTRL});
  require(u"the other window with the keyboard"_s, [&] { return other.hasFocus(); });
  pressShortcut();
  EXPECT_TRUE(waitUntil([&] { return other.keys().contains(XK_space); }));
  EXPECT_FALSE(isShown());
  input().tap(KEY_K, {KEY_LEFTCTRL, KEY_LEFTALT});
  EXPECT_TRUE(becomesShown());
  EXPECT_FALSE(other.keys().contains(XK_k));
  input().tap(KEY_K, {KEY_LEFTCTRL, KEY_LEFTALT});
  EXPECT_TRUE(becomesHidden());
}

TEST_F(SwayShortcutTest, ReloadedConfiguration_KeepsTheShortcut) {
  startHidden();
  session->command(u"reload"_s);
  // The program hears of it a moment after sway has done it.
  EXPECT_TRUE(waitUntil([this] {
    pressShortcut();
    return waitUntil([this] { return isShown(); }, std::chrono::milliseconds(300));
  }));
}

TEST_F(SwayShortcutTest, BindingOfTheUsersOwn_IsBackAfterTheEnd) {
  startSession(u"bindsym Mod4+Shift+space exec touch $HOME/own-binding"_s);
  const QString trace = session->home().path(u"own-binding"_s);
  startHidden();
  pressShortcut();
  ASSERT_TRUE(becomesShown());
  EXPECT_FALSE(QFile::exists(trace));
  program->stop();
  EXPECT_EQ(program->exitCode(), 0);
  pressShortcut();
  EXPECT_TRUE(waitUntil([&] { return QFile::exists(trace); }));
}

}  // namespace
}  // namespace lanternix
