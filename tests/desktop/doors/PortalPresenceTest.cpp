#include "desktop/doors/PortalHotkeyRegistrarTest.h"
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

/// Whether there is a portal, and what becomes of the shortcut as it comes and goes.
class PortalPresenceTest : public PortalHotkeyRegistrarTest {
 protected:
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
};

const QString defaultTrigger = u"SHIFT+LOGO+space"_s;

TEST_F(PortalPresenceTest, PortalWithoutShortcuts_HasNoneToOffer) {
  startPortal({.shortcuts = ShortcutsPortal::Shortcuts::no});
  startProgram();
  EXPECT_TRUE(registerDefault());
  EXPECT_TRUE(becomesTold({false}));
  EXPECT_EQ(registrar->offer(), Offer::missing);
  EXPECT_FALSE(registerDefault());
}

TEST_F(PortalPresenceTest, NoPortalAtAll_HasNoneToOffer) {
  startProgram();
  EXPECT_TRUE(becomesOffered(Offer::missing));
  EXPECT_FALSE(registerDefault());
}

TEST_F(PortalPresenceTest, PortalThatComesLate_GrantsWhatWasRefused) {
  startProgram();
  ASSERT_TRUE(becomesOffered(Offer::missing));
  ASSERT_FALSE(registerDefault());
  startPortal();
  EXPECT_TRUE(becomesTold({true}));
  EXPECT_THAT(portal->triggers(), ElementsAre(defaultTrigger));
  EXPECT_THAT(portal->applications(), ElementsAre(u"org.lanternix.Lanternix"_s));
}

TEST_F(PortalPresenceTest, PortalThatTheQuestionStarts_IsAskedOnce) {
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

TEST_F(PortalPresenceTest, RestartedPortal_IsToldEverythingAgain) {
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

TEST_F(PortalPresenceTest, PortalThatEnds_IsStartedAnewByTheBus) {
  startPortal();
  startProgram();
  registerDefault();
  ASSERT_TRUE(becomesBound(defaultTrigger));
  letPortalBeStartedAnew();
  EXPECT_TRUE(becomesTold({false, true}));
  EXPECT_THAT(portal->triggers(), ElementsAre(defaultTrigger));
  EXPECT_EQ(portal->calls().count(u"Register"_s), 1);
}

TEST_F(PortalPresenceTest, PortalThatWasStartedAnewAndEndsBeforeAPress_IsLeftAlone) {
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

TEST_F(PortalPresenceTest, PortalThatEndsForGood_HasNoneToOffer) {
  startPortal();
  startProgram();
  ASSERT_TRUE(becomesOffered(Offer::there));
  portal.reset();
  ASSERT_TRUE(becomesOffered(Offer::unknown));
  EXPECT_TRUE(registerDefault());
  EXPECT_TRUE(becomesTold({false}));
  EXPECT_EQ(registrar->offer(), Offer::missing);
}

TEST_F(PortalPresenceTest, PortalThatEndsUnasked_IsMetAnewWithoutAShortcut) {
  startPortal();
  startProgram();
  ASSERT_TRUE(becomesOffered(Offer::there));
  portal.reset();
  startPortal();
  callsBefore(u"Get"_s);
  EXPECT_THAT(portal->calls(), ElementsAre(u"Register"_s, u"Get"_s));
}

TEST_F(PortalPresenceTest, PortalThatNeverAnswers_CountsAsNoneAfterAWhile) {
  startPortal();
  portal->keepSilent();
  startProgram(50ms);
  EXPECT_TRUE(registerDefault());
  EXPECT_TRUE(becomesTold({false}));
  EXPECT_EQ(registrar->offer(), Offer::missing);
}

TEST_F(PortalPresenceTest, AnswerAfterThatWhile_StillCounts) {
  startPortal();
  portal->keepSilent();
  startProgram(50ms);
  registerDefault();
  ASSERT_TRUE(becomesTold({false}));
  portal->answerAll();
  EXPECT_TRUE(becomesTold({false, true}));
}

}  // namespace
}  // namespace lanternix
