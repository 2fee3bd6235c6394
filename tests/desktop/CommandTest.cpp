#include "desktop/DesktopTest.h"

#include <QtCore/QDir>
#include <QtCore/QJsonDocument>

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using testing::HasSubstr;

class CommandTest : public DesktopTest {
 protected:
  /// Starts the program over one command, runs it by Return and returns what it wrote to the file
  /// "result" of the home directory once it has left the mark "done".
  QByteArray run(const QString &commandLine) {
    start(SampleGroups()
              .group(u"Commands"_s)
              .command(u"It"_s, commandLine + u"; "_s + marking(u"done"_s)));
    input().tap(XK_Return);
    EXPECT_TRUE(becomesMarked(u"done"_s));
    return ProgramEnvironment::read(result()).value_or(QByteArray());
  }

  QString result() { return session().home().path(u"result"_s); }

  /// The processes whose parent is the program, as "state name".
  QStringList children() {
    QStringList found;
    const QStringList processes =
        QDir(u"/proc"_s).entryList({u"[0-9]*"_s}, QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &process : processes) {
      const QString stat =
          QString::fromUtf8(ProgramEnvironment::read(u"/proc/%1/stat"_s.arg(process)).value_or(""));
      const QStringList fields = stat.mid(stat.lastIndexOf(u')') + 2).split(u' ');
      if (fields.value(1).toLongLong() == program().processId()) {
        found.append(fields.value(0) + u' ' + stat.section(u'(', 1).section(u')', 0, 0));
      }
    }
    return found;
  }
};

TEST_F(CommandTest, WholeLine_GoesToTheShell) {
  EXPECT_EQ(run(u"echo one > '%1'; echo two | tr a-z A-Z >> '%1'"_s.arg(result())), "one\nTWO\n");
}

TEST_F(CommandTest, Access_IsInTheFileBeforeTheCommandRuns) {
  const QByteArray seen = run(u"cp '%1' '%2'"_s.arg(session().home().dataFile(), result()));
  const QJsonObject item = QJsonDocument::fromJson(seen)["items"_L1].toArray().first().toObject();
  EXPECT_TRUE(item["lastAccessed"_L1].isDouble());
}

TEST_F(CommandTest, RunningCommand_OutlivesTheProgram) {
  const QString go = session().home().path(u"go"_s);
  start(SampleGroups()
            .group(u"Commands"_s)
            .command(u"It"_s, u"%1; until [ -e '%2' ]; do sleep 0.02; done; %3"_s.arg(
                                  marking(u"begun"_s), go, marking(u"done"_s))));
  input().tap(XK_Return);
  ASSERT_TRUE(becomesMarked(u"begun"_s));
  program().terminate();
  ASSERT_FALSE(program().isRunning());
  ProgramEnvironment::write(go, "");
  EXPECT_TRUE(becomesMarked(u"done"_s));
}

TEST_F(CommandTest, EndedCommand_LeavesNoProcessBehind) {
  run(u"true"_s);
  EXPECT_TRUE(waitUntil([&] { return children().isEmpty(); }))
      << children().join(u", "_s).toStdString();
}

TEST_F(CommandTest, EnvironmentAndDirectory_AreTheProgramsOwn) {
  session().home().set(u"LANTERNIX_TEST_VALUE"_s, u"kept"_s);
  const QByteArray seen = run(u"{ env; pwd; } > '%1'"_s.arg(result()));
  EXPECT_THAT(seen.toStdString(), HasSubstr("LANTERNIX_TEST_VALUE=kept\n"));
  EXPECT_THAT(seen.toStdString(),
              HasSubstr(QFile::decodeName(QDir::currentPath().toUtf8()).toStdString() + "\n"));
}

TEST_F(CommandTest, Output_IsTheProgramsOwn) {
  run(u"echo printed; echo complained >&2"_s);
  EXPECT_TRUE(waitUntil([&] { return program().output().contains("printed\n"); }));
  EXPECT_TRUE(waitUntil([&] { return program().errors().contains("complained\n"); }));
}

TEST_F(CommandTest, NoDescriptorButTheThreeStandardOnes_IsInherited) {
  // The fourth is the one through which "ls" looks.
  EXPECT_EQ(run(u"ls /proc/self/fd > '%1'"_s.arg(result())), "0\n1\n2\n3\n");
}

TEST_F(CommandTest, SignalDispositions_AreTheDefaultOnes) {
  const QByteArray seen = run(u"grep -E '^Sig(Blk|Ign)' /proc/self/status > '%1'"_s.arg(result()));
  // Of the signals above these, the C library keeps the first two for itself.
  constexpr quint64 namedSignals = (quint64{1} << 31) - 1;
  for (const QByteArray &line : seen.trimmed().split('\n')) {
    EXPECT_EQ(line.split('\t').value(1).toULongLong(nullptr, 16) & namedSignals, 0)
        << line.toStdString();
  }
  EXPECT_EQ(seen.count('\n'), 2);
}

TEST_F(CommandTest, FailingCommand_LeavesTheProgramRunning) {
  start(SampleGroups()
            .group(u"Commands"_s)
            .command(u"It"_s, u"exit 3"_s)
            .command(u"Other"_s, marking(u"other"_s)));
  input().tap(XK_Return);
  ASSERT_TRUE(becomesHidden());
  showByShortcut();
  input().type(u"Other"_s);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"other"_s));
}

}  // namespace
}  // namespace lanternix
