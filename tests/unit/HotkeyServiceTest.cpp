#include "Platform/Linux/SettingsUserDefaults.h"
#include "Services/HotkeyService.h"
#include "Services/Preferences.h"
#include "support/FakeHotkeyRegistrar.h"
#include "support/TemporaryHome.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <gtest/gtest.h>
#include <memory>

namespace lanternix {
namespace {

using Registration = std::pair<quint32, quint32>;

constexpr HotkeyShortcut controlK{40, HotkeyShortcut::control};
constexpr Registration defaultRegistration{49, 768};
constexpr Registration controlKRegistration{40, 4096};

class HotkeyServiceTest : public testing::Test {
 protected:
  std::unique_ptr<HotkeyService> makeService() {
    auto service = std::make_unique<HotkeyService>(userDefaults, registrar);
    service->onToggle = [this] { ++toggles; };
    QObject::connect(service.get(), &HotkeyService::currentShortcutChanged, service.get(),
                     [this] { ++changes; });
    return service;
  }

  QByteArray stored() const {
    return userDefaults.data(Preferences::globalShortcut).valueOr("nothing");
  }

  static void runEvents() { QCoreApplication::processEvents(); }

  TemporaryHome home;
  SettingsUserDefaults userDefaults{home.preferencesFile()};
  FakeHotkeyRegistrar registrar;
  int toggles = 0;
  int changes = 0;
};

TEST_F(HotkeyServiceTest, FirstStart_RegistersTheDefaultAndWritesNothing) {
  const auto service = makeService();
  EXPECT_EQ(registrar.registered, defaultRegistration);
  EXPECT_EQ(service->currentShortcut(), HotkeyShortcut());
  EXPECT_TRUE(service->isRegistered());
  EXPECT_FALSE(QFile::exists(home.preferencesFile()));
}

TEST_F(HotkeyServiceTest, Start_WithStoredShortcut_RegistersIt) {
  userDefaults.setData(controlK.encoded(), Preferences::globalShortcut);
  const auto service = makeService();
  EXPECT_EQ(service->currentShortcut(), controlK);
  EXPECT_EQ(registrar.registered, controlKRegistration);
}

TEST_F(HotkeyServiceTest, Start_WithCorruptBytes_RegistersTheDefaultAndKeepsTheBytes) {
  userDefaults.setData("{\"keyCode\":", Preferences::globalShortcut);
  const auto service = makeService();
  EXPECT_EQ(registrar.registered, defaultRegistration);
  EXPECT_EQ(stored(), "{\"keyCode\":");
  service->setCurrentShortcut(controlK);
  EXPECT_EQ(stored(), controlK.encoded());
}

TEST_F(HotkeyServiceTest, StoredForeignModifierBits_AreNotRegistered) {
  userDefaults.setData(R"({"keyCode":49,"modifiers":1245184})", Preferences::globalShortcut);
  const auto service = makeService();
  EXPECT_EQ(registrar.registered, defaultRegistration);
}

TEST_F(HotkeyServiceTest, Assignment_StoresAndRegisters) {
  const auto service = makeService();
  service->setCurrentShortcut(controlK);
  EXPECT_EQ(registrar.registered, controlKRegistration);
  EXPECT_EQ(stored(), controlK.encoded());
  EXPECT_EQ(changes, 1);
}

TEST_F(HotkeyServiceTest, AssignmentOfAnEqualValue_StoresAndRegistersAnewButTellsNobody) {
  const auto service = makeService();
  service->setCurrentShortcut(HotkeyShortcut());
  EXPECT_EQ(registrar.registrations, 2);
  EXPECT_EQ(stored(), HotkeyShortcut().encoded());
  EXPECT_EQ(changes, 0);
}

TEST_F(HotkeyServiceTest, RefusedAssignment_LeavesNoHotkeyButTheNewValue) {
  const auto service = makeService();
  registrar.refuses = true;
  service->setCurrentShortcut(controlK);
  EXPECT_EQ(registrar.registered, std::nullopt);
  EXPECT_FALSE(service->isRegistered());
  EXPECT_EQ(service->currentShortcut(), controlK);
  EXPECT_EQ(stored(), controlK.encoded());
}

TEST_F(HotkeyServiceTest, FreeAssignmentAfterARefusedOne_Works) {
  const auto service = makeService();
  registrar.refuses = true;
  service->setCurrentShortcut(controlK);
  registrar.refuses = false;
  service->setCurrentShortcut(HotkeyShortcut());
  EXPECT_TRUE(service->isRegistered());
  registrar.press();
  runEvents();
  EXPECT_EQ(toggles, 1);
}

TEST_F(HotkeyServiceTest, RefusedStart_LeavesTheServiceUsable) {
  registrar.refuses = true;
  const auto service = makeService();
  EXPECT_FALSE(service->isRegistered());
  EXPECT_EQ(service->currentShortcut(), HotkeyShortcut());
}

TEST_F(HotkeyServiceTest, RefusalThatComesLate_LeavesNoHotkey) {
  const auto service = makeService();
  registrar.changeRegistration(false);
  EXPECT_FALSE(service->isRegistered());
  EXPECT_EQ(service->currentShortcut(), HotkeyShortcut());
}

TEST_F(HotkeyServiceTest, GrantThatComesLate_MakesTheHotkeyWork) {
  registrar.refuses = true;
  const auto service = makeService();
  registrar.changeRegistration(true);
  EXPECT_TRUE(service->isRegistered());
}

TEST_F(HotkeyServiceTest, Press_TogglesOnceAndNotInsideTheCallback) {
  const auto service = makeService();
  registrar.press();
  EXPECT_EQ(toggles, 0);
  runEvents();
  EXPECT_EQ(toggles, 1);
}

TEST_F(HotkeyServiceTest, QuickPresses_EachToggle) {
  const auto service = makeService();
  registrar.press();
  registrar.press();
  registrar.press();
  runEvents();
  EXPECT_EQ(toggles, 3);
}

TEST_F(HotkeyServiceTest, Press_WithoutCallback_DoesNothing) {
  const auto service = makeService();
  service->onToggle = nullptr;
  registrar.press();
  runEvents();
  service->onToggle = [this] { ++toggles; };
  registrar.press();
  runEvents();
  EXPECT_EQ(toggles, 1);
}

TEST_F(HotkeyServiceTest, CallbackThatReplacesItself_IsWell) {
  const auto service = makeService();
  service->onToggle = [this, service = service.get(), text = std::string(100, 'x')] {
    service->onToggle = nullptr;
    toggles += static_cast<int>(text.size());
  };
  registrar.press();
  runEvents();
  EXPECT_EQ(toggles, 100);
}

TEST_F(HotkeyServiceTest, PressBeforeTheServiceGoes_IsForgotten) {
  auto service = makeService();
  registrar.press();
  service.reset();
  runEvents();
  EXPECT_EQ(toggles, 0);
}

TEST_F(HotkeyServiceTest, ServiceThatGoes_GivesTheCombinationBack) {
  makeService().reset();
  EXPECT_EQ(registrar.registered, std::nullopt);
}

TEST_F(HotkeyServiceTest, Pause_GivesTheShortcutBackAndKeepsIt) {
  const auto service = makeService();
  service->setPaused(true);
  EXPECT_EQ(registrar.registered, std::nullopt);
  EXPECT_FALSE(service->isRegistered());
  EXPECT_EQ(service->currentShortcut(), HotkeyShortcut());
}

TEST_F(HotkeyServiceTest, EndOfThePause_RegistersTheShortcutAgain) {
  const auto service = makeService();
  service->setPaused(true);
  service->setPaused(false);
  EXPECT_EQ(registrar.registered, defaultRegistration);
  EXPECT_TRUE(service->isRegistered());
}

TEST_F(HotkeyServiceTest, AssignmentDuringThePause_IsStoredAtOnceAndRegisteredAtItsEnd) {
  const auto service = makeService();
  service->setPaused(true);
  service->setCurrentShortcut(controlK);
  EXPECT_EQ(stored(), controlK.encoded());
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(registrar.registered, std::nullopt);
  service->setPaused(false);
  EXPECT_EQ(registrar.registered, controlKRegistration);
}

TEST_F(HotkeyServiceTest, PauseWithinAPause_ChangesNothing) {
  const auto service = makeService();
  service->setPaused(false);
  EXPECT_EQ(registrar.registrations, 1);
  service->setPaused(true);
  service->setPaused(true);
  service->setPaused(false);
  EXPECT_EQ(registrar.registrations, 2);
}

}  // namespace
}  // namespace lanternix
