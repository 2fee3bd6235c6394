#include "Platform/KeyCodes.h"
#include "Platform/Linux/SwayHotkeyRegistrar.h"
#include "desktop/doors/SwayServer.h"
#include "support/WaitUntil.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using Answer = SwayServer::Answer;

constexpr quint32 superShift = KeyCodes::classicCommand | KeyCodes::classicShift;
constexpr quint32 keyK = 40;
constexpr quint32 workspaceEvent = 0x80000000;
constexpr auto ourCommand = "nop org.lanternix.Lanternix toggle";

const QString bindDefault =
    u"bindsym --no-repeat --to-code Shift+Mod4+space nop org.lanternix.Lanternix toggle"_s;
const QString unbindDefault = u"unbindsym --to-code Shift+Mod4+space"_s;

class SwayHotkeyRegistrarTest : public testing::Test {
 protected:
  SwayHotkeyRegistrarTest() {
    QObject::connect(&registrar, &HotkeyRegistrar::pressed, [this] { ++presses; });
    QObject::connect(&registrar, &HotkeyRegistrar::registrationChanged,
                     [this](bool registered) { told.push_back(registered); });
  }

  bool registerDefault() { return registrar.registerHotkey(KeyCodes::space, superShift); }
  bool becomesPressed(int times) const {
    return waitUntil([&] { return presses == times; });
  }
  bool becomesTold(const std::vector<bool> &expected) const {
    return waitUntil([&] { return told == expected; });
  }

  SwayServer sway;
  SwayHotkeyRegistrar registrar{sway.path()};
  int presses = 0;
  std::vector<bool> told;
};

TEST_F(SwayHotkeyRegistrarTest, Registration_BindsTheKeys) {
  EXPECT_TRUE(registrar.isAvailable());
  EXPECT_TRUE(registerDefault());
  EXPECT_THAT(sway.commands(), ElementsAre(bindDefault));
}

TEST_F(SwayHotkeyRegistrarTest, Unregistration_UnbindsThemAndListensNoMore) {
  registerDefault();
  registrar.unregisterHotkey();
  EXPECT_THAT(sway.commands(), ElementsAre(bindDefault, unbindDefault));
  EXPECT_TRUE(waitUntil([this] { return sway.subscribers() == 0; }));
  registrar.unregisterHotkey();
  EXPECT_EQ(sway.commands().size(), 2);
}

TEST_F(SwayHotkeyRegistrarTest, Change_UnbindsTheOldKeysFirst) {
  registerDefault();
  EXPECT_TRUE(registrar.registerHotkey(keyK, KeyCodes::classicControl));
  EXPECT_THAT(sway.commands(),
              ElementsAre(bindDefault, unbindDefault,
                          u"bindcode --no-repeat Control+45 nop org.lanternix.Lanternix toggle"_s));
}

TEST_F(SwayHotkeyRegistrarTest, EachUseOfTheBinding_IsAPress) {
  registerDefault();
  sway.tellOfUse(ourCommand);
  EXPECT_TRUE(becomesPressed(1));
  sway.tellOfUse(ourCommand);
  EXPECT_TRUE(becomesPressed(2));
}

TEST_F(SwayHotkeyRegistrarTest, UseOfAnotherBinding_IsNone) {
  registerDefault();
  sway.tellOfUse("exec terminal");
  sway.tellOfUse(ourCommand);
  ASSERT_TRUE(becomesPressed(1));
}

TEST_F(SwayHotkeyRegistrarTest, EventInPieces_IsPutTogether) {
  registerDefault();
  sway.tellOfUse(ourCommand, 5);
  sway.tellOfUse(ourCommand, 3);
  EXPECT_TRUE(becomesPressed(2));
}

TEST_F(SwayHotkeyRegistrarTest, RefusedBinding_LeavesItUnregistered) {
  sway.answerCommandsWith(Answer::refusal);
  EXPECT_FALSE(registerDefault());
  EXPECT_TRUE(waitUntil([this] { return sway.subscribers() == 0; }));
}

TEST_F(SwayHotkeyRegistrarTest, NonsenseForAnAnswer_IsARefusal) {
  sway.answerCommandsWith(Answer::nonsense);
  EXPECT_FALSE(registerDefault());
}

TEST_F(SwayHotkeyRegistrarTest, ConnectionThatEndsBeforeTheAnswer_IsARefusal) {
  sway.answerCommandsWith(Answer::hangUp);
  EXPECT_FALSE(registerDefault());
}

TEST_F(SwayHotkeyRegistrarTest, KeyWithoutAName_IsRefusedUnasked) {
  constexpr quint32 noKey = 127;
  EXPECT_FALSE(registrar.registerHotkey(noKey, superShift));
  EXPECT_THAT(sway.commands(), ElementsAre());
}

TEST_F(SwayHotkeyRegistrarTest, ReloadedConfiguration_IsGivenTheBindingAgain) {
  registerDefault();
  sway.tell(workspaceEvent, R"({"change":"reload"})");
  EXPECT_TRUE(waitUntil([this] {
    return sway.commands() == QStringList{bindDefault, bindDefault};
  }));
  EXPECT_THAT(told, ElementsAre());
}

TEST_F(SwayHotkeyRegistrarTest, ReloadedConfigurationThatRefuses_IsTold) {
  registerDefault();
  sway.answerCommandsWith(Answer::refusal);
  sway.tell(workspaceEvent, R"({"change":"reload"})");
  EXPECT_TRUE(becomesTold({false}));
}

TEST_F(SwayHotkeyRegistrarTest, OtherEventsOfWorkspaces_BindNothing) {
  registerDefault();
  sway.tell(workspaceEvent, R"({"change":"focus"})");
  sway.tellOfUse(ourCommand);
  ASSERT_TRUE(becomesPressed(1));
  EXPECT_THAT(sway.commands(), ElementsAre(bindDefault));
}

TEST_F(SwayHotkeyRegistrarTest, SwayThatEnds_IsTold) {
  registerDefault();
  sway.stop();
  EXPECT_TRUE(becomesTold({false}));
  EXPECT_FALSE(registrar.isAvailable());
  EXPECT_FALSE(registerDefault());
}

TEST_F(SwayHotkeyRegistrarTest, SwayThatTalksNonsense_IsToldAsItsEnd) {
  registerDefault();
  sway.tellNonsense();
  EXPECT_TRUE(becomesTold({false}));
}

TEST_F(SwayHotkeyRegistrarTest, PathWithoutASocket_IsNoSway) {
  EXPECT_FALSE(SwayHotkeyRegistrar(QString()).isAvailable());
  EXPECT_FALSE(SwayHotkeyRegistrar(u"/nonexistent"_s).isAvailable());
  EXPECT_FALSE(SwayHotkeyRegistrar(u"/"_s + QString(200, u'x')).isAvailable());
}

}  // namespace
}  // namespace lanternix
