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

}  // namespace
}  // namespace lanternix
