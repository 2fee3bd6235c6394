#include "desktop/doors/PortalHotkeyRegistrarTest.h"

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using User = ShortcutsPortal::User;

const QString defaultTrigger = u"SHIFT+LOGO+space"_s;

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
  QObject::connect(registrar.get(), &PortalHotkeyRegistrar::tokenReceived, registrar.get(),
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
