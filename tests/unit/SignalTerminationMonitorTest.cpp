#include "Platform/Linux/SignalTerminationMonitor.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>
#include <memory>
#include <pthread.h>

namespace lanternix {
namespace {

void (*handlerOf(int signal))(int) {
  struct sigaction action {};
  sigaction(signal, nullptr, &action);
  return action.sa_handler;
}

class SignalTerminationMonitorTest : public testing::TestWithParam<int> {};

TEST_P(SignalTerminationMonitorTest, Signal_BecomesARequest) {
  SignalTerminationMonitor monitor;
  const QSignalSpy requests(&monitor, &TerminationMonitor::terminationRequested);
  raise(GetParam());
  EXPECT_TRUE(requests.isEmpty()) << "nothing may happen within the handler";
  EXPECT_TRUE(QTest::qWaitFor([&] { return requests.size() == 1; }));
}

TEST_P(SignalTerminationMonitorTest, SignalsInARow_AreOneRequest) {
  SignalTerminationMonitor monitor;
  const QSignalSpy requests(&monitor, &TerminationMonitor::terminationRequested);
  for (int i = 0; i < 100'000; ++i) {  // more than the pipe holds
    raise(GetParam());
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return !requests.isEmpty(); }));
  QCoreApplication::processEvents();
  EXPECT_EQ(requests.size(), 1);
}

TEST_P(SignalTerminationMonitorTest, IgnoredSignal_StaysIgnored) {
  signal(GetParam(), SIG_IGN);
  {
    const SignalTerminationMonitor monitor;
    EXPECT_EQ(handlerOf(GetParam()), SIG_IGN);
  }
  EXPECT_EQ(handlerOf(GetParam()), SIG_IGN);
  signal(GetParam(), SIG_DFL);
}

TEST_P(SignalTerminationMonitorTest, AfterTheMonitor_TheSignalIsTheSystemsAgain) {
  std::make_unique<SignalTerminationMonitor>().reset();
  EXPECT_EQ(handlerOf(GetParam()), SIG_DFL);
}

TEST_P(SignalTerminationMonitorTest, Signal_IsNotBlocked) {
  const SignalTerminationMonitor monitor;
  sigset_t blocked;
  pthread_sigmask(SIG_SETMASK, nullptr, &blocked);
  EXPECT_EQ(sigismember(&blocked, GetParam()), 0) << "children would inherit that";
}

INSTANTIATE_TEST_SUITE_P(Ending, SignalTerminationMonitorTest,
                         testing::Values(SIGTERM, SIGINT, SIGHUP), [](const auto &test) {
                           return "SIG" + std::string(sigabbrev_np(test.param));
                         });

}  // namespace
}  // namespace lanternix
