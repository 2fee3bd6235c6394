#include "Platform/ActivationToken.h"
#include "Platform/Linux/HotkeyRegistrarFactory.h"
#include "Platform/Linux/QtWindowSystem.h"
#include "desktop/doors/PortalHotkeyTest.h"
#include "support/TemporaryVariable.h"

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class TokenRecorder final : public QtWindowSystem {
 public:
  void noteRequest(const ActivationToken &token) override { tokens.append(token.token); }

  QStringList tokens;
};

/// The registrar of a Wayland session without a compositor that has a door of its own.
class HotkeyRegistrarFactoryTest : public PortalHotkeyTest {
 protected:
  /// What the program asks the portal on the connection that it has for everything.
  void askForColors(const QDBusConnection &connection) const {
    auto question = QDBusMessage::createMethodCall(
        u"org.freedesktop.portal.Desktop"_s, u"/org/freedesktop/portal/desktop"_s,
        u"org.freedesktop.portal.Settings"_s, u"ReadOne"_s);
    question.setArguments({u"org.freedesktop.appearance"_s, u"color-scheme"_s});
    connection.send(question);
    require(u"the question to come"_s, [this] { return portal->calls().contains(u"ReadOne"_s); });
  }

  TemporaryVariable sway{"SWAYSOCK", {}};
  TemporaryVariable desktop{"XDG_CURRENT_DESKTOP", {}};
};

TEST_F(HotkeyRegistrarFactoryTest, TokenOfAPortalsPress_ReachesTheWindowSystemBeforeThePress) {
  startPortal();
  TokenRecorder windowSystem;
  const auto registrar = makeWaylandHotkeyRegistrar(windowSystem, freshConnection());
  QStringList tokensAtPress;
  QObject::connect(registrar.get(), &HotkeyRegistrar::pressed, &windowSystem,
                   [&] { tokensAtPress = windowSystem.tokens; });
  registrar->registerHotkey(KeyCodes::space, superShift);
  ASSERT_TRUE(becomesBound(u"SHIFT+LOGO+space"_s));
  portal->pressWithToken(u"toggle"_s, u"wl-7"_s);
  EXPECT_TRUE(waitUntil([&] { return tokensAtPress == QStringList{u"wl-7"_s}; }));
}

TEST_F(HotkeyRegistrarFactoryTest, ProgramThatAskedThePortalForOtherThings_IntroducesItself) {
  startPortal();
  const TemporaryVariable address("DBUS_SESSION_BUS_ADDRESS", bus.address().toLatin1());
  askForColors(QDBusConnection::sessionBus());
  TokenRecorder windowSystem;
  const auto registrar = makeWaylandHotkeyRegistrar(windowSystem, connectForShortcuts());
  registrar->registerHotkey(KeyCodes::space, superShift);
  ASSERT_TRUE(becomesBound(u"SHIFT+LOGO+space"_s));
  EXPECT_THAT(portal->applications(), testing::ElementsAre(u"org.lanternix.Lanternix"_s));
}

}  // namespace
}  // namespace lanternix
