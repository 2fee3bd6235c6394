#include "support/ChildProcess.h"
#include "support/SessionBus.h"
#include "support/WaitUntil.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

#include <csignal>
#include <gtest/gtest.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// One start of the program.
class Start : public ChildProcess {
 public:
  explicit Start(const QProcessEnvironment &environment)
      : ChildProcess(QStringLiteral(INSTANCE_PROBE), u"lanternix"_s) {
    start({}, environment);
  }
  bool isFirst() { return firstLine() == "first"; }
  bool isShown() {
    return waitUntil([this] { return output().contains("shown\n"); });
  }
  bool endsWell() {
    return waitUntil([this] { return exitCode() == 0; });
  }
};

class SingleInstanceTest : public testing::Test {
 protected:
  SingleInstanceTest() {
    environment.insert(u"XDG_RUNTIME_DIR"_s, directory.path());
    environment.insert(u"XDG_DATA_HOME"_s, directory.filePath(u"data"_s));
    environment.insert(u"HOME"_s, directory.path());
    environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
    environment.remove(u"DISPLAY"_s);
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

  QTemporaryDir directory;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

TEST_F(SingleInstanceTest, WithoutBus_SecondStartShowsTheFirstAndEnds) {
  expectOneProgram();
}

TEST_F(SingleInstanceTest, WithoutBus_EveryFurtherStartShowsTheFirst) {
  Start first(environment);
  ASSERT_TRUE(first.isFirst());
  for (int i = 1; i <= 3; ++i) {
    EXPECT_TRUE(Start(environment).endsWell());
    EXPECT_TRUE(waitUntil([&] { return first.output().count("shown\n") == i; }));
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

TEST_F(SingleInstanceTest, WithBusAddressThatIsDead_TheLockServes) {
  environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nonexistent/bus"_s);
  expectOneProgram();
}

class SingleInstanceOnBusTest : public SingleInstanceTest {
 protected:
  SingleInstanceOnBusTest() { environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address()); }

  /// Calls a running program as a desktop shell does.
  static bool call(const QString &address, const QString &method, const QVariantList &arguments) {
    const QString name = u"shell"_s;
    bool answered = false;
    {
      QDBusConnection connection = QDBusConnection::connectToBus(address, name);
      auto message = QDBusMessage::createMethodCall(u"org.lanternix.Lanternix"_s,
                                                    u"/org/lanternix/Lanternix"_s,
                                                    u"org.freedesktop.Application"_s, method);
      message.setArguments(arguments);
      answered = connection.call(message).type() == QDBusMessage::ReplyMessage;
    }
    QDBusConnection::disconnectFromBus(name);
    return answered;
  }

  SessionBus bus;
};

TEST_F(SingleInstanceOnBusTest, SecondStart_ShowsTheFirstAndEnds) {
  expectOneProgram();
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

TEST_F(SingleInstanceOnBusTest, EveryCallOfTheInterface_Shows) {
  const QVariantMap platformData;
  const QList<std::pair<QString, QVariantList>> calls{
      {u"Activate"_s, {platformData}},
      {u"Open"_s, {QStringList{u"file:///"_s}, platformData}},
      {u"ActivateAction"_s, {u"show"_s, QVariantList(), platformData}}};
  Start first(environment);
  ASSERT_TRUE(first.isFirst());
  int shown = 0;
  for (const auto &[method, arguments] : calls) {
    EXPECT_TRUE(call(bus.address(), method, arguments)) << method.toStdString();
    ++shown;
    EXPECT_TRUE(waitUntil([&] { return first.output().count("shown\n") == shown; }));
  }
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

}  // namespace
}  // namespace lanternix
