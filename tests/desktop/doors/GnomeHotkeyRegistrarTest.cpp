#include "Platform/KeyCodes.h"
#include "support/HarnessError.h"
#include "support/ProgramEnvironment.h"

#include <QtCore/QProcess>

#include <gtest/gtest.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

constexpr quint32 superShift = KeyCodes::classicCommand | KeyCodes::classicShift;
constexpr quint32 keyK = 40;
constexpr quint32 keyL = 37;

const QString list = u"org.gnome.settings-daemon.plugins.media-keys custom-keybindings"_s;
const QString ours =
    u"org.gnome.settings-daemon.plugins.media-keys.custom-keybinding:"
    "/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/lanternix/"_s;
const QString ourPath =
    u"'/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/lanternix/'"_s;
const QString usersPath =
    u"'/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/custom0/'"_s;
const QString users =
    u"org.gnome.settings-daemon.plugins.media-keys.custom-keybinding:"
    "/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/custom0/"_s;

/// The registrar in a process of its own, over the real settings of GNOME in a home directory of
/// their own, at which the test looks by GNOME's own tool.
class GnomeHotkeyRegistrarTest : public testing::Test {
 protected:
  GnomeHotkeyRegistrarTest() {
    environment.set(u"GSETTINGS_BACKEND"_s, u"keyfile"_s);
    environment.set(u"XDG_CURRENT_DESKTOP"_s, u"ubuntu:GNOME"_s);
  }
  ~GnomeHotkeyRegistrarTest() override { end(); }

  /// What the probe says of the session.
  QByteArray start() {
    probe.setProcessEnvironment(environment.variables());
    probe.start(QStringLiteral(GNOME_SHORTCUT_PROBE), QStringList());
    return nextLine();
  }

  QByteArray registerHotkey(quint32 keyCode, quint32 modifiers) {
    probe.write(QByteArray::number(keyCode) + ' ' + QByteArray::number(modifiers) + '\n');
    return nextLine();
  }

  void end() {
    probe.closeWriteChannel();
    probe.waitForFinished();
  }

  void leaveBindingBehind() {
    start();
    registerHotkey(keyK, superShift);
    probe.kill();
    probe.waitForFinished();
  }

  QByteArray nextLine() {
    while (!probe.canReadLine()) {
      if (!probe.waitForReadyRead()) {
        throw HarnessError(u"the probe says nothing"_s);
      }
    }
    return probe.readLine().trimmed();
  }

  /// "gsettings get SCHEMA KEY" and the like.
  QString settings(const QString &command) const {
    QProcess tool;
    tool.setProcessEnvironment(environment.variables());
    tool.start(u"gsettings"_s, QProcess::splitCommand(command));
    if (!tool.waitForFinished() || tool.exitCode() != 0) {
      throw HarnessError(
          u"gsettings %1: %2; Debian packages libglib2.0-bin, "
          "gnome-settings-daemon-common"_s.arg(command,
                                               QString::fromUtf8(tool.readAllStandardError())));
    }
    return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
  }
  QString ourBinding() const { return settings(u"get "_s + ours + u" binding"_s); }
  QString paths() const { return settings(u"get "_s + list); }

  /// As a user makes one in GNOME's settings.
  void makeUsersBinding(const QString &accelerator) const {
    settings(u"set "_s + users + u" binding "_s + accelerator);
    settings(u"set "_s + users + u" command terminal"_s);
    settings(u"set "_s + list + u" \"["_s + usersPath + u"]\""_s);
  }

  ProgramEnvironment environment;
  QProcess probe;
};

TEST_F(GnomeHotkeyRegistrarTest, Registration_AddsABindingThatCallsTheProgram) {
  ASSERT_EQ(start(), "there");
  EXPECT_EQ(registerHotkey(keyK, superShift), "registered");
  EXPECT_EQ(paths(), u"["_s + ourPath + u"]"_s);
  EXPECT_EQ(ourBinding(), u"'<Shift><Super>0x2d'"_s);
  EXPECT_EQ(settings(u"get "_s + ours + u" name"_s), u"'Lanternix'"_s);
  EXPECT_TRUE(settings(u"get "_s + ours + u" command"_s).contains(u"org.lanternix.Lanternix"_s));
}

TEST_F(GnomeHotkeyRegistrarTest, End_LeavesNothingBehind) {
  start();
  registerHotkey(keyK, superShift);
  end();
  EXPECT_EQ(paths(), u"@as []"_s);
  EXPECT_EQ(ourBinding(), u"''"_s);
}

TEST_F(GnomeHotkeyRegistrarTest, BindingsOfTheUser_AreLeftAlone) {
  makeUsersBinding(u"<Super>t"_s);
  start();
  EXPECT_EQ(registerHotkey(keyK, superShift), "registered");
  EXPECT_EQ(paths(), u"["_s + usersPath + u", "_s + ourPath + u"]"_s);
  end();
  EXPECT_EQ(paths(), u"["_s + usersPath + u"]"_s);
  EXPECT_EQ(settings(u"get "_s + users + u" binding"_s), u"'<Super>t'"_s);
  EXPECT_EQ(settings(u"get "_s + users + u" command"_s), u"'terminal'"_s);
}

TEST_F(GnomeHotkeyRegistrarTest, Change_MovesTheOneBinding) {
  start();
  registerHotkey(keyK, superShift);
  EXPECT_EQ(registerHotkey(keyL, superShift), "registered");
  EXPECT_EQ(paths(), u"["_s + ourPath + u"]"_s);
  EXPECT_EQ(ourBinding(), u"'<Shift><Super>0x2e'"_s);
}

TEST_F(GnomeHotkeyRegistrarTest, CombinationOfGnomesOwn_IsRefused) {
  start();
  // Switches the keyboard's layout backwards, unless the user has changed that.
  EXPECT_EQ(registerHotkey(KeyCodes::space, superShift), "refused");
  EXPECT_EQ(paths(), u"@as []"_s);
  settings(u"set org.gnome.desktop.wm.keybindings switch-input-source-backward []"_s);
  end();
  start();
  EXPECT_EQ(registerHotkey(KeyCodes::space, superShift), "registered");
}

TEST_F(GnomeHotkeyRegistrarTest, CombinationOfTheUsers_IsRefusedHoweverItIsWritten) {
  for (const QString &accelerator : {u"<Mod4><shift>K"_s, u"<Super><Shift>0x2D"_s}) {
    makeUsersBinding(accelerator);
    start();
    EXPECT_EQ(registerHotkey(keyK, superShift), "refused") << accelerator.toStdString();
    EXPECT_EQ(paths(), u"["_s + usersPath + u"]"_s);
    end();
  }
}

TEST_F(GnomeHotkeyRegistrarTest, RefusalAfterARegistration_LeavesNone) {
  start();
  registerHotkey(keyK, superShift);
  EXPECT_EQ(registerHotkey(KeyCodes::space, superShift), "refused");
  EXPECT_EQ(paths(), u"@as []"_s);
}

TEST_F(GnomeHotkeyRegistrarTest, BindingLeftBehindByACrash_IsTakenOver) {
  leaveBindingBehind();
  ASSERT_EQ(start(), "there");
  EXPECT_EQ(registerHotkey(keyK, superShift), "registered");
  end();
  EXPECT_EQ(paths(), u"@as []"_s);
}

TEST_F(GnomeHotkeyRegistrarTest, BindingLeftBehindByACrash_GoesWithARefusal) {
  leaveBindingBehind();
  ASSERT_EQ(start(), "there");
  EXPECT_EQ(registerHotkey(KeyCodes::space, superShift), "refused");
  EXPECT_EQ(paths(), u"@as []"_s);
}

TEST_F(GnomeHotkeyRegistrarTest, BindingLeftBehindByACrash_IsGivenBackWithoutANewOne) {
  leaveBindingBehind();
  ASSERT_EQ(start(), "there");
  end();
  EXPECT_EQ(paths(), u"@as []"_s);
  EXPECT_EQ(ourBinding(), u"''"_s);
}

TEST_F(GnomeHotkeyRegistrarTest, OtherDesktops_HaveNone) {
  environment.set(u"XDG_CURRENT_DESKTOP"_s, u"sway"_s);
  EXPECT_EQ(start(), "missing");
}

TEST_F(GnomeHotkeyRegistrarTest, WithoutTheToolThatCallsTheProgram_ThereAreNone) {
  environment.set(u"PATH"_s, u"/nonexistent"_s);
  EXPECT_EQ(start(), "missing");
}

TEST_F(GnomeHotkeyRegistrarTest, WithoutGnomesSettings_ThereAreNone) {
  environment.set(u"XDG_DATA_DIRS"_s, u"/nonexistent"_s);
  EXPECT_EQ(start(), "missing");
}

}  // namespace
}  // namespace lanternix
