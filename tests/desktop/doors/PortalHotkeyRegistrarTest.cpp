#include "Platform/Linux/PortalHotkeyRegistrar.h"
#include "PortalHotkeyTest.h"
#include "support/ProgramEnvironment.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusReply>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::ElementsAre;
using Offer = PortalHotkeyRegistrar::Offer;
using User = ShortcutsPortal::User;

const QString defaultTrigger = u"SHIFT+LOGO+space"_s;

class PortalHotkeyRegistrarTest : public PortalHotkeyTest {
 protected:
  void startProgram(std::chrono::milliseconds wait = 1min) {
    registrar = std::make_unique<PortalHotkeyRegistrar>(freshConnection(), wait);
    listenTo(*registrar);
  }

  bool registerDefault() { return registrar->registerHotkey(KeyCodes::space, superShift); }

  bool becomesOffered(Offer offer) const {
    return waitUntil([&] { return registrar->offer() == offer; });
  }

  /// What the bus starts takes its time; the test takes the name in its stead.
  void letTheBusStartPortals(const QByteArray &command, const QDBusConnection &connection) const {
    ProgramEnvironment::write(
        bus.serviceDirectory() + u"/portal.service"_s,
        "[D-BUS Service]\nName=org.freedesktop.portal.Desktop\nExec=" + command + '\n');
    require(u"a portal that can be started"_s, [&] {
      return connection.interface()->activatableServiceNames().value().contains(
          u"org.freedesktop.portal.Desktop"_s);
    });
  }

  /// Ends the portal, and waits until the bus has been made to start another one.
  void letPortalBeStartedAnew() {
    const QTemporaryDir directory;
    const QString sign = directory.filePath(u"started"_s);
    letTheBusStartPortals("/bin/sh -c 'touch " + sign.toUtf8() + "; sleep 20'", freshConnection());
    portal.reset();
    require(u"the portal's start"_s, [&] { return QFile::exists(sign); });
    EXPECT_EQ(registrar->offer(), Offer::unknown);
    startPortal();
  }

  /// What the portal has been asked for, once it has answered all of it.
  const QStringList &callsBefore(const QString &lastCall) {
    require(u"the call "_s + lastCall, [&] { return portal->calls().contains(lastCall); });
    return portal->calls();
  }

  std::unique_ptr<PortalHotkeyRegistrar> registrar;
};

TEST_F(PortalHotkeyRegistrarTest, Program_IntroducesItselfBeforeAnythingElseAndOnce) {
  startPortal();
  startProgram();
  EXPECT_TRUE(registerDefault());
  ASSERT_TRUE(becomesBound(defaultTrigger));
  EXPECT_THAT(portal->calls(),
              ElementsAre(u"Register"_s, u"Get"_s, u"CreateSession"_s, u"BindShortcuts"_s));
  EXPECT_THAT(portal->applications(), ElementsAre(u"org.lanternix.Lanternix"_s));
}

TEST_F(PortalHotkeyRegistrarTest, PortalThatKnowsNoIntroduction_GrantsAllTheSame) {
  startPortal({.registry = ShortcutsPortal::Registry::no});
  startProgram();
  EXPECT_TRUE(registerDefault());
  EXPECT_TRUE(becomesBound(defaultTrigger));
}

TEST_F(PortalHotkeyRegistrarTest, ShortcutThatTheProgramComesWith_HasANameForConfigurations) {
  startPortal();
  startProgram();
  registerDefault();
  ASSERT_TRUE(becomesBound(defaultTrigger));
  EXPECT_THAT(portal->identifiers(), ElementsAre(u"toggle"_s));
}

TEST_F(PortalHotkeyRegistrarTest, EachPress_IsTold) {
  startPortal();
  startProgram();
  registerDefault();
  ASSERT_TRUE(becomesBound(defaultTrigger));
  portal->press(u"toggle"_s);
  EXPECT_TRUE(becomesPressed(1));
  portal->press(u"toggle"_s);
  EXPECT_TRUE(becomesPressed(2));
}

TEST_F(PortalHotkeyRegistrarTest, TokenOfAPress_ComesBeforeThePress) {
  startPortal();
  startProgram();
  QStringList tokens;
  QObject::connect(registrar.get(), &PortalHotkeyRegistrar::tokenReceived,
                   [&](const QString &token) {
                     EXPECT_EQ(presses, 1);
                     tokens.append(token);
                   });
  registerDefault();
  ASSERT_TRUE(becomesBound(defaultTrigger));
  portal->press(u"toggle"_s);
  ASSERT_TRUE(becomesPressed(1));
  portal->pressWithToken(u"toggle"_s, u"wl-7"_s);
  ASSERT_TRUE(becomesPressed(2));
  EXPECT_THAT(tokens, ElementsAre(u"wl-7"_s));
}

TEST_F(PortalHotkeyRegistrarTest, PressesOfOtherShortcutsAndSessions_AreNot) {
  startPortal();
  startProgram();
  registerDefault();
  ASSERT_TRUE(becomesBound(defaultTrigger));
  portal->press(u"other"_s);
  portal->press(u"toggle"_s, u"/org/freedesktop/portal/desktop/session/1_0/other"_s);
  portal->press(u"toggle"_s);
  ASSERT_TRUE(becomesPressed(1));
}

TEST_F(PortalHotkeyRegistrarTest, GrantedShortcut_ChangesNothingOfWhatWasSaid) {
  startPortal();
  startProgram();
  registerDefault();
  ASSERT_TRUE(becomesBound(defaultTrigger));
  portal->press(u"toggle"_s);
  ASSERT_TRUE(becomesPressed(1));
  EXPECT_THAT(told, ElementsAre());
}

TEST_F(PortalHotkeyRegistrarTest, UserWhoDeclines_LeavesItUnregistered) {
  startPortal({.user = User::declines});
  startProgram();
  EXPECT_TRUE(registerDefault());
  EXPECT_TRUE(becomesTold({false}));
  EXPECT_EQ(registrar->offer(), Offer::there);
}

TEST_F(PortalHotkeyRegistrarTest, UserWhoStrikesTheShortcut_LeavesItUnregistered) {
  startPortal({.user = User::strikes});
  startProgram();
  EXPECT_TRUE(registerDefault());
  EXPECT_TRUE(becomesTold({false}));
}

TEST_F(PortalHotkeyRegistrarTest, RefusedShortcut_CanBeFollowedByAnother) {
  startPortal({.user = User::declines});
  startProgram();
  registerDefault();
  ASSERT_TRUE(becomesTold({false}));
  EXPECT_TRUE(registrar->registerHotkey(keyK, KeyCodes::classicControl));
  EXPECT_TRUE(becomesTold({false, false}));
}

TEST_F(PortalHotkeyRegistrarTest, KeyWithoutAName_IsRefusedAtOnce) {
  startPortal();
  startProgram();
  constexpr quint32 noKey = 127;
  EXPECT_FALSE(registrar->registerHotkey(noKey, superShift));
}

TEST_F(PortalHotkeyRegistrarTest, Change_EndsTheOldSessionAndAsksForTheNewCombination) {
  startPortal();
  startProgram();
  registerDefault();
  ASSERT_TRUE(becomesBound(defaultTrigger));
  EXPECT_TRUE(registrar->registerHotkey(keyK, KeyCodes::classicControl));
  EXPECT_TRUE(becomesBound(u"CTRL+k"_s));
  portal->press(portal->identifiers().value(0));
  EXPECT_TRUE(becomesPressed(1));
}

TEST_F(PortalHotkeyRegistrarTest, Unregistration_EndsTheSession) {
  startPortal();
  startProgram();
  registerDefault();
  ASSERT_TRUE(becomesBound(defaultTrigger));
  registrar->unregisterHotkey();
  EXPECT_TRUE(waitUntil([this] { return portal->triggers().isEmpty(); }));
  EXPECT_THAT(told, ElementsAre());
}

TEST_F(PortalHotkeyRegistrarTest, UnregistrationWhileTheUserIsAsked_TakesTheQuestionBack) {
  startPortal({.user = User::waits});
  startProgram();
  registerDefault();
  callsBefore(u"BindShortcuts"_s);
  registrar->unregisterHotkey();
  EXPECT_TRUE(waitUntil([this] {
    return portal->calls().mid(4) == QStringList{u"Close request"_s, u"Close session"_s};
  }));
}

TEST_F(PortalHotkeyRegistrarTest, SessionThatTheDesktopEnds_IsAskedForOnceMore) {
  startPortal();
  startProgram();
  registerDefault();
  ASSERT_TRUE(becomesBound(defaultTrigger));
  portal->endSession();
  ASSERT_TRUE(becomesBound(defaultTrigger));
  EXPECT_THAT(told, ElementsAre());
  portal->endSession();
  EXPECT_TRUE(becomesTold({false}));
  EXPECT_THAT(portal->triggers(), ElementsAre());
}

TEST_F(PortalHotkeyRegistrarTest, SessionThatTheDesktopEndsAfterAPress_IsAskedForEachTime) {
  startPortal();
  startProgram();
  registerDefault();
  for (int times = 1; times <= 3; ++times) {
    ASSERT_TRUE(becomesBound(defaultTrigger));
    portal->press(u"toggle"_s);
    ASSERT_TRUE(becomesPressed(times));
    portal->endSession();
  }
  EXPECT_TRUE(becomesBound(defaultTrigger));
  EXPECT_THAT(told, ElementsAre());
}

TEST_F(PortalHotkeyRegistrarTest, UserWhoDeclines_IsNotAskedAgainAndTheSessionEnds) {
  startPortal({.user = User::declines});
  startProgram();
  registerDefault();
  ASSERT_TRUE(becomesTold({false}));
  callsBefore(u"Close session"_s);
  EXPECT_EQ(portal->calls().count(u"CreateSession"_s), 1);
}

TEST_F(PortalHotkeyRegistrarTest, PortalWithoutShortcuts_HasNoneToOffer) {
  startPortal({.shortcuts = ShortcutsPortal::Shortcuts::no});
  startProgram();
  EXPECT_TRUE(registerDefault());
  EXPECT_TRUE(becomesTold({false}));
  EXPECT_EQ(registrar->offer(), Offer::missing);
  EXPECT_FALSE(registerDefault());
}

TEST_F(PortalHotkeyRegistrarTest, NoPortalAtAll_HasNoneToOffer) {
  startProgram();
  EXPECT_TRUE(becomesOffered(Offer::missing));
  EXPECT_FALSE(registerDefault());
}

TEST_F(PortalHotkeyRegistrarTest, PortalThatComesLate_GrantsWhatWasRefused) {
  startProgram();
  ASSERT_TRUE(becomesOffered(Offer::missing));
  ASSERT_FALSE(registerDefault());
  startPortal();
  EXPECT_TRUE(becomesTold({true}));
  EXPECT_THAT(portal->triggers(), ElementsAre(defaultTrigger));
  EXPECT_THAT(portal->applications(), ElementsAre(u"org.lanternix.Lanternix"_s));
}

TEST_F(PortalHotkeyRegistrarTest, PortalThatTheQuestionStarts_IsAskedOnce) {
  QDBusConnection connection = freshConnection();
  letTheBusStartPortals("/bin/sleep 20", connection);
  registrar = std::make_unique<PortalHotkeyRegistrar>(connection, 1min);
  listenTo(*registrar);
  EXPECT_TRUE(registerDefault());
  connection.interface()->isServiceRegistered(u"any.other"_s);  // the question is on its way now
  startPortal();
  ASSERT_TRUE(becomesBound(defaultTrigger));
  EXPECT_THAT(portal->applications(), ElementsAre(u"org.lanternix.Lanternix"_s));
  EXPECT_THAT(told, ElementsAre());
}

TEST_F(PortalHotkeyRegistrarTest, RestartedPortal_IsToldEverythingAgain) {
  startPortal();
  startProgram();
  registerDefault();
  ASSERT_TRUE(becomesBound(defaultTrigger));
  portal.reset();
  ASSERT_TRUE(becomesTold({false}));
  startPortal();
  EXPECT_TRUE(becomesTold({false, true}));
  EXPECT_THAT(portal->calls(),
              ElementsAre(u"Register"_s, u"Get"_s, u"CreateSession"_s, u"BindShortcuts"_s));
  portal->press(u"toggle"_s);
  EXPECT_TRUE(becomesPressed(1));
}

TEST_F(PortalHotkeyRegistrarTest, PortalThatEnds_IsStartedAnewByTheBus) {
  startPortal();
  startProgram();
  registerDefault();
  ASSERT_TRUE(becomesBound(defaultTrigger));
  letPortalBeStartedAnew();
  EXPECT_TRUE(becomesTold({false, true}));
  EXPECT_THAT(portal->triggers(), ElementsAre(defaultTrigger));
  EXPECT_EQ(portal->calls().count(u"Register"_s), 1);
}

TEST_F(PortalHotkeyRegistrarTest, PortalThatWasStartedAnewAndEndsBeforeAPress_IsLeftAlone) {
  startPortal();
  startProgram();
  registerDefault();
  ASSERT_TRUE(becomesBound(defaultTrigger));
  letPortalBeStartedAnew();
  ASSERT_TRUE(becomesTold({false, true}));
  portal.reset();
  EXPECT_TRUE(becomesTold({false, true, false}));
  EXPECT_EQ(registrar->offer(), Offer::missing);
}

TEST_F(PortalHotkeyRegistrarTest, PortalThatEndsForGood_HasNoneToOffer) {
  startPortal();
  startProgram();
  ASSERT_TRUE(becomesOffered(Offer::there));
  portal.reset();
  ASSERT_TRUE(becomesOffered(Offer::unknown));
  EXPECT_TRUE(registerDefault());
  EXPECT_TRUE(becomesTold({false}));
  EXPECT_EQ(registrar->offer(), Offer::missing);
}

TEST_F(PortalHotkeyRegistrarTest, PortalThatEndsUnasked_IsMetAnewWithoutAShortcut) {
  startPortal();
  startProgram();
  ASSERT_TRUE(becomesOffered(Offer::there));
  portal.reset();
  startPortal();
  callsBefore(u"Get"_s);
  EXPECT_THAT(portal->calls(), ElementsAre(u"Register"_s, u"Get"_s));
}

TEST_F(PortalHotkeyRegistrarTest, PortalThatNeverAnswers_CountsAsNoneAfterAWhile) {
  startPortal();
  portal->keepSilent();
  startProgram(50ms);
  EXPECT_TRUE(registerDefault());
  EXPECT_TRUE(becomesTold({false}));
  EXPECT_EQ(registrar->offer(), Offer::missing);
}

TEST_F(PortalHotkeyRegistrarTest, AnswerAfterThatWhile_StillCounts) {
  startPortal();
  portal->keepSilent();
  startProgram(50ms);
  registerDefault();
  ASSERT_TRUE(becomesTold({false}));
  portal->answerAll();
  EXPECT_TRUE(becomesTold({false, true}));
}

TEST_F(PortalHotkeyRegistrarTest, RegistrarThatGoes_LeavesNoShortcut) {
  startPortal();
  startProgram();
  registerDefault();
  ASSERT_TRUE(becomesBound(defaultTrigger));
  registrar.reset();
  EXPECT_TRUE(waitUntil([this] { return portal->triggers().isEmpty(); }));
}

}  // namespace
}  // namespace lanternix
