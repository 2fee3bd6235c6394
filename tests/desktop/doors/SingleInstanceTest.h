#pragma once

#include "support/ChildProcess.h"
#include "support/SessionBus.h"
#include "support/WaitUntil.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

namespace lanternix {

/// One start of the program, as far as it looks after being the only one.
class Start : public ChildProcess {
 public:
  explicit Start(const QProcessEnvironment &environment)
      : ChildProcess(QStringLiteral(INSTANCE_PROBE), QStringLiteral("lanternix")) {
    start({}, environment);
  }

  /// Waits until it has found out.
  bool isFirst() { return firstLine() == "first"; }
  bool endsWell() {
    return waitUntil([this] { return exitCode() == 0; });
  }
  /// What has been asked of it, as "request token=... id=...".
  QStringList heard() {
    return QString::fromUtf8(output()).split(u'\n', Qt::SkipEmptyParts).mid(1);
  }
  bool hears(const QStringList &requests) {
    return waitUntil([&] { return heard() == requests; });
  }
  bool isShown() {
    return waitUntil([this] { return !heard().filter(QStringLiteral("showPanel")).isEmpty(); });
  }
};

/// Starts in a session without a bus.
class SingleInstanceTest : public testing::Test {
 protected:
  SingleInstanceTest() {
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), directory.path());
    environment.insert(QStringLiteral("XDG_DATA_HOME"), directory.filePath(QStringLiteral("data")));
    environment.insert(QStringLiteral("HOME"), directory.path());
    environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    environment.remove(QStringLiteral("DISPLAY"));
  }

  void expectOneProgram() {
    Start first(environment);
    ASSERT_TRUE(first.isFirst());
    Start second(environment);
    EXPECT_FALSE(second.isFirst());
    EXPECT_TRUE(second.endsWell());
    EXPECT_TRUE(first.isShown());
    EXPECT_TRUE(first.isRunning());
  }

  void expectAnotherAfter(void (ChildProcess::*end)()) {
    Start first(environment);
    ASSERT_TRUE(first.isFirst());
    (first.*end)();
    Start second(environment);
    EXPECT_TRUE(second.isFirst());
  }

  void expectTokenHandedOver() {
    Start first(environment);
    ASSERT_TRUE(first.isFirst());
    EXPECT_TRUE(
        Start(withToken(QStringLiteral("wl-7"), QStringLiteral("menu 1_TIME70"))).endsWell());
    EXPECT_TRUE(first.hears({QStringLiteral("showPanel token=wl-7 id=menu 1_TIME70")}))
        << first.output().toStdString();
  }

  /// The environment in which a desktop starts a program with a token.
  QProcessEnvironment withToken(const QString &token, const QString &startupId) const {
    QProcessEnvironment variables = environment;
    variables.insert(QStringLiteral("XDG_ACTIVATION_TOKEN"), token);
    variables.insert(QStringLiteral("DESKTOP_STARTUP_ID"), startupId);
    return variables;
  }

  QTemporaryDir directory;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

/// Starts in a session with a bus of the test's own.
class SingleInstanceOnBusTest : public SingleInstanceTest {
 protected:
  SingleInstanceOnBusTest() {
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
  }

  SessionBus bus;
};

}  // namespace lanternix
