#include "desktop/DesktopTest.h"

#include <QtCore/QDirIterator>
#include <QtCore/QRegularExpression>

#include <X11/keysym.h>
#include <csignal>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// How the system ends the program: a session's end, an interrupt typed at the terminal, the end of
/// the terminal.
class EndTest : public DesktopTest, public testing::WithParamInterface<int> {
 protected:
  explicit EndTest(DesktopSession::WithBus withBus = DesktopSession::WithBus::yes)
      : DesktopTest(DesktopSession::WithManager::yes, withBus) {}

  bool endsWell() {
    ::kill(static_cast<pid_t>(program().processId()), GetParam());
    return waitUntil([this] { return program().exitCode() == 0; });
  }

  /// Every file of the home directory.
  QStringList files() {
    QStringList files;
    QDirIterator each(session().home().home(), QDir::AllEntries | QDir::Hidden | QDir::System,
                      QDirIterator::Subdirectories);
    while (each.hasNext()) {
      const QFileInfo file(each.next());
      if (!file.isDir()) {
        files.append(file.fileName());
      }
    }
    files.sort();
    return files;
  }
};

TEST_P(EndTest, Signal_EndsTheProgramWith0) {
  startHidden(commands({u"Build"_s}));
  EXPECT_TRUE(endsWell());
}

TEST_P(EndTest, SignalOverTheShownPanel_EndsTheProgramWith0) {
  start(commands({u"Build"_s}));
  EXPECT_TRUE(endsWell());
}

TEST_P(EndTest, SignalOverAnOpenMenu_EndsTheProgramWith0) {
  start(commands({u"Build"_s}));
  selectNextRow();
  input().tap(XK_Menu);
  require(u"the menu"_s, [this] { return !session().windows().menus(u"lanternix"_s).isEmpty(); });
  EXPECT_TRUE(endsWell());
}

TEST_P(EndTest, Signal_LeavesTheShortcutToOthers) {
  startHidden(commands({u"Build"_s}));
  OtherClient other(session().displayName());
  ASSERT_FALSE(other.holdKey(XK_space, XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT));
  ASSERT_TRUE(endsWell());
  EXPECT_TRUE(other.holdKey(XK_space, XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT));
}

TEST_P(EndTest, Signal_LeavesTheDataAndNothingElse) {
  start(commands({u"Build"_s}));
  input().tap(XK_Return);
  ASSERT_TRUE(becomesMarked(u"Build"_s));
  ASSERT_TRUE(endsWell());
  const QStringList left = files().filter(QRegularExpression(u"^(?!backup)"_s));
  EXPECT_THAT(left, testing::ElementsAre(u"Lanternix.conf"_s, u"data.json"_s));
}

TEST_P(EndTest, Signal_LeavesALaunchedCommandRunning) {
  const QString go = session().home().path(u"go"_s);
  SampleGroups groups;
  groups.group(u"Commands"_s);
  groups.command(u"Wait"_s, marking(u"begun"_s) +
                                u"; until [ -e '%1' ]; do sleep 0.01; done; "_s.arg(go) +
                                marking(u"ended"_s));
  start(groups);
  input().tap(XK_Return);
  ASSERT_TRUE(becomesMarked(u"begun"_s));
  ASSERT_TRUE(endsWell());
  ProgramEnvironment::write(go, "");
  EXPECT_TRUE(becomesMarked(u"ended"_s));
}

class EndWithoutBusTest : public EndTest {
 protected:
  EndWithoutBusTest() : EndTest(DesktopSession::WithBus::no) {}
};

TEST_P(EndWithoutBusTest, Signal_LeavesNoLock) {
  const QString lock = session().home().path(u"run/lanternix.lock"_s);
  startHidden(commands({u"Build"_s}));
  ASSERT_TRUE(QFile::exists(lock));
  ASSERT_TRUE(endsWell());
  EXPECT_FALSE(QFile::exists(lock));
}

std::string nameOf(const testing::TestParamInfo<int> &test) {
  return "SIG" + std::string(sigabbrev_np(test.param));
}

INSTANTIATE_TEST_SUITE_P(Ended, EndTest, testing::Values(SIGTERM, SIGINT, SIGHUP), nameOf);
INSTANTIATE_TEST_SUITE_P(Ended, EndWithoutBusTest, testing::Values(SIGTERM, SIGINT, SIGHUP),
                         nameOf);

}  // namespace
}  // namespace lanternix
