#include "Platform/Linux/SpawnProcessLauncher.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <array>
#include <climits>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <memory>
#include <pthread.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class SpawnProcessLauncherTest : public testing::Test {
 protected:
  /// Runs \p script with $OUT standing for a file, and gives what it left there.
  QByteArray outputOf(const QString &script) {
    qputenv("OUT", QFile::encodeName(outputPath() + u".part"_s));
    qputenv("DONE", QFile::encodeName(outputPath()));
    EXPECT_TRUE(launcher.launch(u"/bin/sh"_s, {u"-c"_s, script + u"; mv \"$OUT\" \"$DONE\""_s}));
    qunsetenv("OUT");
    qunsetenv("DONE");
    EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(outputPath()); }));
    QFile file(outputPath());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray output = file.readAll();
    file.remove();
    return output;
  }

  /// One line of the child's /proc status, such as "SigIgn".
  QByteArray statusOf(const QString &field) {
    return outputOf(u"sed -n 's/^%1:[[:space:]]*//p' /proc/self/status > \"$OUT\""_s.arg(field))
        .trimmed();
  }

  /// The state letters of our children, zombies among them.
  static QByteArray childStates() {
    QFile file(u"/proc/self/task/%1/children"_s.arg(gettid()));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray states;
    for (const QByteArray &child : file.readAll().simplified().split(' ')) {
      QFile stat(u"/proc/%1/stat"_s.arg(QString::fromLatin1(child)));
      if (!child.isEmpty() && stat.open(QIODevice::ReadOnly)) {
        const QByteArray line = stat.readAll();
        states += line.at(line.lastIndexOf(')') + 2);
      }
    }
    return states;
  }

  QString outputPath() const { return directory.filePath(u"out"_s); }

  /// Every child is reaped before the launcher goes, so that no test meets those of another.
  void TearDown() override {
    EXPECT_TRUE(QTest::qWaitFor([] { return childStates().isEmpty(); }))
        << childStates().toStdString();
  }

  QTemporaryDir directory;
  SpawnProcessLauncher launcher;
};

TEST_F(SpawnProcessLauncherTest, WholeLine_RunsInOneShell) {
  EXPECT_EQ(outputOf(u"echo one > \"$OUT\"; echo two >> \"$OUT\""_s), "one\ntwo\n");
}

TEST_F(SpawnProcessLauncherTest, Arguments_ArriveExactly) {
  const QString path = outputPath();
  ASSERT_TRUE(launcher.launch(
      u"/bin/sh"_s, {u"-c"_s, u"printf '%s|' \"$@\" > \"$0.part\"; mv \"$0.part\" \"$0\""_s, path,
                     u""_s, u" a  b "_s, u"ä'\"$\\"_s}));
  ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(path); }));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), u"| a  b |ä'\"$\\|"_s.toUtf8());
}

TEST_F(SpawnProcessLauncherTest, MissingExecutable_IsFalse) {
  EXPECT_FALSE(launcher.launch(u"/no/such/program"_s, {}));
  EXPECT_FALSE(launcher.launch(u""_s, {}));
}

TEST_F(SpawnProcessLauncherTest, Environment_IsInheritedExactly) {
  qputenv("LANTERNIX_TEST", "two\nlines = ä");
  const QByteArray output = outputOf(u"cat /proc/self/environ > \"$OUT\""_s);
  EXPECT_TRUE(output.contains(QByteArray("LANTERNIX_TEST=two\nlines = ä") + '\0'));
  qunsetenv("LANTERNIX_TEST");
}

TEST_F(SpawnProcessLauncherTest, WorkingDirectory_IsInherited) {
  const QString before = QDir::currentPath();
  ASSERT_TRUE(QDir::setCurrent(directory.path()));
  EXPECT_EQ(outputOf(u"pwd -P > \"$OUT\""_s).trimmed(),
            QFile::encodeName(QDir(directory.path()).canonicalPath()));
  QDir::setCurrent(before);
}

TEST_F(SpawnProcessLauncherTest, StandardStreams_AreInherited) {
  const auto target = [](int descriptor) {
    std::array<char, PATH_MAX> text{};
    const QByteArray link = "/proc/self/fd/" + QByteArray::number(descriptor);
    const auto length = readlink(link.constData(), text.data(), text.size());
    return QByteArray(text.data(), length);
  };
  // By substitution, lest the shell's own output be sent elsewhere while it is asked where it goes.
  const QByteArray streams = outputOf(
      u"streams=$(cd /proc/$$/fd; readlink 0 1 2); printf '%s\\n' \"$streams\" > \"$OUT\""_s);
  EXPECT_EQ(streams, target(0) + '\n' + target(1) + '\n' + target(2) + '\n');
}

TEST_F(SpawnProcessLauncherTest, OurDescriptors_AreNotInherited) {
  // One that forgot to close itself on exec, with a high number.
  const int leaking = fcntl(STDIN_FILENO, F_DUPFD, 200);
  ASSERT_GE(leaking, 200);
  QByteArray descriptors = outputOf(u"ls /proc/$$/fd > \"$OUT\""_s);
  close(leaking);
  descriptors.replace("10\n", "");  // where the shell keeps its output while it redirects
  EXPECT_EQ(descriptors, "0\n1\n2\n");
}

TEST_F(SpawnProcessLauncherTest, IgnoredSignals_AreNotInherited) {
  const auto beforePipe = signal(SIGPIPE, SIG_IGN);
  const auto beforeChild = signal(SIGUSR1, SIG_IGN);
  EXPECT_EQ(statusOf(u"SigIgn"_s), "0000000000000000");
  signal(SIGPIPE, beforePipe);
  signal(SIGUSR1, beforeChild);
}

TEST_F(SpawnProcessLauncherTest, BlockedSignals_AreNotInherited) {
  sigset_t blocked;
  sigset_t before;
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGTERM);
  sigaddset(&blocked, SIGCHLD);
  pthread_sigmask(SIG_BLOCK, &blocked, &before);
  EXPECT_EQ(statusOf(u"SigBlk"_s), "0000000000000000");
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

TEST_F(SpawnProcessLauncherTest, EndedChildren_LeaveNoZombie) {
  for (int i = 0; i < 20; ++i) {
    ASSERT_TRUE(launcher.launch(u"/bin/true"_s, {}));
  }
  EXPECT_TRUE(QTest::qWaitFor([] { return childStates().isEmpty(); }))
      << childStates().toStdString();
}

TEST_F(SpawnProcessLauncherTest, EndedChildren_GiveTheirDescriptorsBack) {
  const auto openDescriptors = [] { return QDir(u"/proc/self/fd"_s).entryList().size(); };
  const auto before = openDescriptors();
  for (int i = 0; i < 20; ++i) {
    ASSERT_TRUE(launcher.launch(u"/bin/true"_s, {}));
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return openDescriptors() <= before; }));
}

TEST_F(SpawnProcessLauncherTest, ChildrenOfOthers_AreLeftToThem) {
  const pid_t theirs = fork();
  if (theirs == 0) {
    _exit(7);
  }
  ASSERT_TRUE(launcher.launch(u"/bin/true"_s, {}));
  ASSERT_TRUE(QTest::qWaitFor([] { return childStates() == "Z"; })) << childStates().toStdString();
  int status = 0;
  EXPECT_EQ(waitpid(theirs, &status, 0), theirs);
  EXPECT_EQ(WEXITSTATUS(status), 7);
}

TEST_F(SpawnProcessLauncherTest, RunningChild_OutlivesTheLauncher) {
  auto shortLived = std::make_unique<SpawnProcessLauncher>();
  const QString go = directory.filePath(u"go"_s);
  qputenv("GO", QFile::encodeName(go));
  qputenv("DONE", QFile::encodeName(outputPath()));
  ASSERT_TRUE(shortLived->launch(
      u"/bin/sh"_s, {u"-c"_s, u"until [ -e \"$GO\" ]; do sleep 0.01; done; echo > \"$DONE\""_s}));
  qunsetenv("GO");
  qunsetenv("DONE");
  shortLived.reset();
  QFile(go).open(QIODevice::WriteOnly);
  EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(outputPath()); }));
  while (waitpid(-1, nullptr, 0) > 0) {
  }
}

TEST_F(SpawnProcessLauncherTest, Child_HasASessionOfItsOwn) {
  // So that an interrupt at our terminal does not reach it.
  const QByteArray session = outputOf(u"cut -d' ' -f6 /proc/$$/stat > \"$OUT\""_s).trimmed();
  EXPECT_NE(session.toInt(), getsid(0));
  EXPECT_GT(session.toInt(), 1);
}

}  // namespace
}  // namespace lanternix
