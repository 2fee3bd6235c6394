#include "Platform/Linux/StatusNotifierHost.h"
#include "desktop/TrayHost.h"
#include "support/SessionBus.h"
#include "support/WaitUntil.h"

#include <gtest/gtest.h>
#include <memory>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using Presence = StatusNotifierHost::Presence;

class StatusNotifierHostTest : public testing::Test {
 protected:
  ~StatusNotifierHostTest() override {
    host.reset();
    QDBusConnection::disconnectFromBus(u"program"_s);
  }

  void startTray(TrayHost::Shows shows) { tray = std::make_unique<TrayHost>(bus.address(), shows); }
  void startProgram() {
    host = std::make_unique<StatusNotifierHost>(
        QDBusConnection::connectToBus(bus.address(), u"program"_s));
  }
  bool becomes(Presence presence) const {
    return waitUntil([&] { return host->presence() == presence; });
  }

  SessionBus bus;
  std::unique_ptr<TrayHost> tray;
  std::unique_ptr<StatusNotifierHost> host;
};

TEST_F(StatusNotifierHostTest, WithoutAWatcher_IsAbsent) {
  startProgram();
  EXPECT_EQ(host->presence(), Presence::unknown);
  EXPECT_TRUE(becomes(Presence::absent));
}

TEST_F(StatusNotifierHostTest, HostThatComesToAWatcher_IsPresent) {
  startTray(TrayHost::Shows::nothing);
  startProgram();
  ASSERT_TRUE(becomes(Presence::absent));
  tray->beginToShow();
  EXPECT_TRUE(becomes(Presence::present));
}

TEST_F(StatusNotifierHostTest, HostThatLeavesALivingWatcher_IsAbsent) {
  startTray(TrayHost::Shows::items);
  startProgram();
  ASSERT_TRUE(becomes(Presence::present));
  tray->endToShow();
  EXPECT_TRUE(becomes(Presence::absent));
}

TEST_F(StatusNotifierHostTest, WatcherThatComesAndGoes_IsFollowed) {
  startProgram();
  ASSERT_TRUE(becomes(Presence::absent));
  startTray(TrayHost::Shows::items);
  ASSERT_TRUE(becomes(Presence::present));
  tray.reset();
  EXPECT_TRUE(becomes(Presence::absent));
}

}  // namespace
}  // namespace lanternix
