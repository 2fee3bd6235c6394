#include "SingleInstanceTest.h"

#include "Platform/ActivationToken.h"
#include "Platform/Linux/BusSingleInstance.h"
#include "support/TemporaryVariable.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <csignal>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

TEST_F(SingleInstanceTest, WithoutBus_SecondStartShowsTheFirstAndEnds) {
  expectOneProgram();
}

TEST_F(SingleInstanceTest, WithoutBus_EveryFurtherStartShowsTheFirst) {
  Start first(environment);
  ASSERT_TRUE(first.isFirst());
  for (int i = 1; i <= 3; ++i) {
    EXPECT_TRUE(Start(environment).endsWell());
    EXPECT_TRUE(waitUntil([&] { return first.heard().size() == i; }));
  }
}

TEST_F(SingleInstanceTest, WithoutBus_StartAfterAnEndIsTheProgram) {
  expectAnotherAfter(&ChildProcess::stop);
}

TEST_F(SingleInstanceTest, WithoutBus_StartAfterACrashIsTheProgram) {
  expectAnotherAfter(&ChildProcess::kill);
}

TEST_F(SingleInstanceTest, WithoutBusAndRuntimeDirectory_TheDataDirectoryServes) {
  environment.remove(u"XDG_RUNTIME_DIR"_s);
  expectOneProgram();
  EXPECT_TRUE(QFile::exists(directory.filePath(u"data/Lanternix/lanternix.lock"_s)));
}

TEST_F(SingleInstanceTest, WithoutBus_LongDirectoryServesAlike) {
  const QString deep = directory.filePath(QString(150, u'd'));
  ASSERT_TRUE(QDir().mkpath(deep));
  environment.insert(u"XDG_RUNTIME_DIR"_s, deep);
  expectOneProgram();
}

TEST_F(SingleInstanceTest, WithoutBus_ForeignFileInTheLocksPlace_IsLeftAndTheProgramStarts) {
  const QString lock = directory.filePath(u"lanternix.lock"_s);
  QFile file(lock);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("mine");
  file.close();
  EXPECT_TRUE(Start(environment).isFirst());
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "mine");
}

TEST_F(SingleInstanceTest, WithoutBus_SecondStartHandsItsTokenOver) {
  expectTokenHandedOver();
}

TEST_F(SingleInstanceTest, WithoutBus_TokenThatThePipeCannotTakeWhole_IsLeftOut) {
  for (const QString &token : {QString(70000, u't'), u"two\nlines"_s, u"two\tfields"_s}) {
    Start first(environment);
    ASSERT_TRUE(first.isFirst());
    EXPECT_TRUE(Start(withToken(token, {})).endsWell());
    EXPECT_TRUE(first.hears({u"showPanel token= id="_s}));
  }
}

TEST_F(SingleInstanceTest, WithBusAddressThatIsDead_TheLockServes) {
  environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nonexistent/bus"_s);
  expectOneProgram();
}

TEST_F(SingleInstanceOnBusTest, SecondStart_ShowsTheFirstAndEnds) {
  expectOneProgram();
}

TEST_F(SingleInstanceOnBusTest, SecondStart_HandsItsTokenOver) {
  expectTokenHandedOver();
}

TEST_F(SingleInstanceOnBusTest, StartAfterAnEnd_IsTheProgram) {
  expectAnotherAfter(&ChildProcess::stop);
}

TEST_F(SingleInstanceOnBusTest, StartAfterACrash_IsTheProgram) {
  expectAnotherAfter(&ChildProcess::kill);
}

TEST_F(SingleInstanceOnBusTest, SecondStartOverOneThatHangs_EndsAllTheSame) {
  Start first(environment);
  ASSERT_TRUE(first.isFirst());
  ::kill(static_cast<pid_t>(first.processId()), SIGSTOP);
  Start second(environment);
  EXPECT_TRUE(second.endsWell());
  ::kill(static_cast<pid_t>(first.processId()), SIGCONT);
  EXPECT_TRUE(first.isShown());
}

TEST_F(SingleInstanceOnBusTest, BusInTheRuntimeDirectory_ServesWithoutAVariable) {
  const QString address = bus.address();  // such as "unix:path=/run/user/1000/bus,guid=..."
  const qsizetype start = address.indexOf(u'=') + 1;
  const QString runtimeDirectory =
      QFileInfo(address.mid(start, address.indexOf(u',') - start)).path();
  environment.insert(u"XDG_RUNTIME_DIR"_s, runtimeDirectory);
  environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
  expectOneProgram();
  EXPECT_FALSE(QFile::exists(runtimeDirectory + u"/lanternix.lock"_s));
}

TEST(BusSingleInstanceTest, ToggleLongAfterTheBusHasStartedTheProgram_Toggles) {
  using Request = SingleInstance::Request;
  QList<Request> requests;
  const auto note = [&](Request request) { requests.append(request); };
  for (const auto due : {std::chrono::milliseconds::max(), std::chrono::milliseconds(0)}) {
    const TemporaryVariable startedBy("DBUS_STARTER_BUS_TYPE", "session");
    BusSingleInstance instance(due);
    QObject::connect(&instance, &SingleInstance::requested, note);
    instance.receive(Request::togglePanel, {});
    instance.receive(Request::togglePanel, {});
  }
  EXPECT_EQ(requests, QList({Request::showPanel, Request::togglePanel, Request::togglePanel,
                             Request::togglePanel}));
}

}  // namespace
}  // namespace lanternix
