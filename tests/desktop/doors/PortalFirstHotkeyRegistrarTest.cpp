#include "Platform/Linux/PortalFirstHotkeyRegistrar.h"
#include "Platform/Linux/PortalHotkeyRegistrar.h"
#include "PortalHotkeyTest.h"
#include "support/FakeHotkeyRegistrar.h"

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::ElementsAre;

class PortalFirstHotkeyRegistrarTest : public PortalHotkeyTest {
 protected:
  void startProgram() {
    auto portalDoor = std::make_unique<PortalHotkeyRegistrar>(freshConnection(), 1min);
    auto otherDoor = std::make_unique<FakeHotkeyRegistrar>();
    portalsDoor = portalDoor.get();
    otherwise = otherDoor.get();
    registrar =
        std::make_unique<PortalFirstHotkeyRegistrar>(std::move(portalDoor), std::move(otherDoor));
    listenTo(*registrar);
  }

  bool registerDefault() { return registrar->registerHotkey(KeyCodes::space, superShift); }
  bool movesToTheOtherDoor() const {
    return waitUntil([this] { return otherwise->registered.has_value(); });
  }

  PortalHotkeyRegistrar *portalsDoor = nullptr;
  FakeHotkeyRegistrar *otherwise = nullptr;
  std::unique_ptr<PortalFirstHotkeyRegistrar> registrar;
};

TEST_F(PortalFirstHotkeyRegistrarTest, PortalWithShortcuts_IsTheDoor) {
  startPortal();
  startProgram();
  EXPECT_TRUE(registerDefault());
  ASSERT_TRUE(becomesBound(u"SHIFT+LOGO+space"_s));
  portal->press(u"toggle"_s);
  EXPECT_TRUE(becomesPressed(1));
  EXPECT_EQ(otherwise->registrations, 0);
}

TEST_F(PortalFirstHotkeyRegistrarTest, WithoutAPortal_TheOtherDoorGetsTheWish) {
  startProgram();
  EXPECT_TRUE(registerDefault());
  ASSERT_TRUE(movesToTheOtherDoor());
  otherwise->press();
  EXPECT_EQ(presses, 1);
  EXPECT_THAT(told, ElementsAre());
}

TEST_F(PortalFirstHotkeyRegistrarTest, PortalWithoutShortcuts_LeavesTheWishToTheOtherDoor) {
  startPortal({.shortcuts = ShortcutsPortal::Shortcuts::no});
  startProgram();
  EXPECT_TRUE(registerDefault());
  EXPECT_TRUE(movesToTheOtherDoor());
}

TEST_F(PortalFirstHotkeyRegistrarTest, OtherDoorThatRefuses_IsTold) {
  startProgram();
  otherwise->refuses = true;
  EXPECT_TRUE(registerDefault());
  EXPECT_TRUE(becomesTold({false}));
}

TEST_F(PortalFirstHotkeyRegistrarTest, UserWhoDeclines_IsNotPassedByAnotherDoor) {
  startPortal({.user = ShortcutsPortal::User::declines});
  startProgram();
  EXPECT_TRUE(registerDefault());
  EXPECT_TRUE(becomesTold({false}));
  EXPECT_EQ(otherwise->registrations, 0);
}

TEST_F(PortalFirstHotkeyRegistrarTest, PortalThatComesLate_LeavesWhatTheOtherDoorHolds) {
  startProgram();
  registerDefault();
  ASSERT_TRUE(movesToTheOtherDoor());
  startPortal();
  ASSERT_TRUE(waitUntil([this] { return portal->calls().contains(u"Get"_s); }));
  QCoreApplication::processEvents();
  EXPECT_TRUE(otherwise->registered.has_value());
  EXPECT_FALSE(portal->calls().contains(u"CreateSession"_s));
}

TEST_F(PortalFirstHotkeyRegistrarTest, PortalThatComesLate_TakesWhatTheOtherDoorRefused) {
  startProgram();
  otherwise->refuses = true;
  registerDefault();
  ASSERT_TRUE(becomesTold({false}));
  startPortal();
  EXPECT_TRUE(becomesTold({false, true}));
  EXPECT_TRUE(becomesBound(u"SHIFT+LOGO+space"_s));
}

TEST_F(PortalFirstHotkeyRegistrarTest, PortalThatTakesTheWish_EndsWhatTheOtherDoorHasFromBefore) {
  startPortal();
  startProgram();
  otherwise->registered = {keyK, superShift};
  registerDefault();
  ASSERT_TRUE(becomesBound(u"SHIFT+LOGO+space"_s));
  EXPECT_FALSE(otherwise->registered.has_value());
}

TEST_F(PortalFirstHotkeyRegistrarTest, PortalThatEndsForGood_LeavesTheWishToTheOtherDoor) {
  startPortal();
  startProgram();
  registerDefault();
  ASSERT_TRUE(becomesBound(u"SHIFT+LOGO+space"_s));
  portal.reset();
  EXPECT_TRUE(movesToTheOtherDoor());
  EXPECT_THAT(told, ElementsAre(false, true));
}

TEST_F(PortalFirstHotkeyRegistrarTest, ChangeThatTheOtherDoorRefuses_GoesToAPortalThatCameLate) {
  startProgram();
  registerDefault();
  ASSERT_TRUE(movesToTheOtherDoor());
  startPortal();
  ASSERT_TRUE(
      waitUntil([this] { return portalsDoor->offer() == PortalHotkeyRegistrar::Offer::there; }));
  otherwise->refuses = true;
  registrar->registerHotkey(keyK, KeyCodes::classicControl);
  EXPECT_TRUE(becomesBound(u"CTRL+k"_s));
  EXPECT_FALSE(otherwise->registered.has_value());
}

TEST_F(PortalFirstHotkeyRegistrarTest, Change_GoesThroughTheSameDoor) {
  startProgram();
  registerDefault();
  ASSERT_TRUE(movesToTheOtherDoor());
  EXPECT_TRUE(registrar->registerHotkey(keyK, KeyCodes::classicControl));
  EXPECT_EQ(otherwise->registered, std::make_pair(keyK, quint32{KeyCodes::classicControl}));
}

TEST_F(PortalFirstHotkeyRegistrarTest, Unregistration_EmptiesTheDoor) {
  startProgram();
  registerDefault();
  ASSERT_TRUE(movesToTheOtherDoor());
  registrar->unregisterHotkey();
  EXPECT_FALSE(otherwise->registered.has_value());
}

}  // namespace
}  // namespace lanternix
