#include "desktop/doors/ShortcutsPortal.h"
#include "desktop/doors/SwayServer.h"
#include "support/HarnessError.h"
#include "support/ProgramEnvironment.h"
#include "support/SessionBus.h"
#include "support/WaitUntil.h"

#include <QtCore/QProcess>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

/// The door to the shortcut that a program chooses by what is there in its Wayland session, where
/// there is nothing but what a test adds.
class HotkeyRegistrarOrderTest : public testing::Test {
 protected:
  ~HotkeyRegistrarOrderTest() override {
    program.closeWriteChannel();
    program.waitForFinished();
  }

  void addPortal() {
    environment.set(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address());
    portal = std::make_unique<ShortcutsPortal>(bus.address());
  }
  void addSway() { environment.set(u"SWAYSOCK"_s, sway.path()); }
  void addGnome() {
    environment.set(u"XDG_CURRENT_DESKTOP"_s, u"GNOME"_s);
    environment.set(u"GSETTINGS_BACKEND"_s, u"keyfile"_s);
  }

  /// The door's type, and what it answers at once.
  QByteArray choice() {
    program.setProcessEnvironment(environment.variables());
    program.start(QStringLiteral(SHORTCUT_DOOR_PROBE), QStringList());
    require(u"the program's word"_s, [this] { return program.canReadLine(); });
    return program.readLine().trimmed();
  }

  /// What GNOME starts commands for, beside its own.
  QByteArray gnomesBindings() const {
    QProcess tool;
    tool.setProcessEnvironment(environment.variables());
    tool.start(u"gsettings"_s, {u"get"_s, u"org.gnome.settings-daemon.plugins.media-keys"_s,
                                u"custom-keybindings"_s});
    if (!tool.waitForFinished() || tool.exitCode() != 0) {
      throw HarnessError(QString::fromUtf8(tool.readAllStandardError()));
    }
    return tool.readAllStandardOutput().trimmed();
  }

  SessionBus bus;
  SwayServer sway;
  std::unique_ptr<ShortcutsPortal> portal;
  ProgramEnvironment environment;
  QProcess program;
};

TEST_F(HotkeyRegistrarOrderTest, NothingAtAll_RefusesAndTheProgramLivesOn) {
  EXPECT_EQ(choice(), "lanternix::NullHotkeyRegistrar refuses");
  program.closeWriteChannel();
  EXPECT_TRUE(program.waitForFinished());
  EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(program.exitCode(), 0);
}

TEST_F(HotkeyRegistrarOrderTest, BusWithoutAnything_IsToldOfARefusalAndTheProgramLivesOn) {
  environment.set(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address());
  EXPECT_EQ(choice(), "lanternix::PortalFirstHotkeyRegistrar registers")
      << "it waits for the portal";
  require(u"the program's word"_s, [this] { return program.canReadLine(); });
  EXPECT_EQ(program.readLine().trimmed(), "refused later");
  EXPECT_EQ(program.state(), QProcess::Running);
}

TEST_F(HotkeyRegistrarOrderTest, GnomesSettingsAlone_HoldIt) {
  addGnome();
  EXPECT_EQ(choice(), "lanternix::GnomeHotkeyRegistrar registers");
  EXPECT_TRUE(gnomesBindings().contains("/lanternix/"));
}

TEST_F(HotkeyRegistrarOrderTest, SwaysSocket_GoesBeforeGnomesSettings) {
  addGnome();
  addSway();
  EXPECT_EQ(choice(), "lanternix::SwayHotkeyRegistrar registers");
  EXPECT_EQ(sway.commands().size(), 1);
  EXPECT_EQ(gnomesBindings(), "@as []");
}

TEST_F(HotkeyRegistrarOrderTest, Portal_GoesBeforeSwayAndGnome) {
  addGnome();
  addSway();
  addPortal();
  EXPECT_EQ(choice(), "lanternix::PortalFirstHotkeyRegistrar registers");
  EXPECT_TRUE(waitUntil([this] { return !portal->triggers().isEmpty(); }));
  EXPECT_THAT(portal->triggers(), ElementsAre(u"SHIFT+LOGO+k"_s));
  EXPECT_THAT(sway.commands(), IsEmpty());
  EXPECT_EQ(gnomesBindings(), "@as []");
}

TEST_F(HotkeyRegistrarOrderTest, PortalThatWasAskedForOtherThings_IsToldTheProgramsNameFirst) {
  addPortal();
  choice();
  ASSERT_TRUE(waitUntil([this] { return !portal->triggers().isEmpty(); }));
  EXPECT_TRUE(portal->calls().contains(u"ReadAll"_s));
  EXPECT_THAT(portal->applications(), ElementsAre(u"org.lanternix.Lanternix"_s));
}

TEST_F(HotkeyRegistrarOrderTest, BusWithoutAPortal_LeavesItToSway) {
  addGnome();
  addSway();
  environment.set(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address());
  choice();
  EXPECT_TRUE(waitUntil([this] { return sway.commands().size() == 1; }));
  EXPECT_EQ(gnomesBindings(), "@as []");
}

}  // namespace
}  // namespace lanternix
