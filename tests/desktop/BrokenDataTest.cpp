#include "desktop/DesktopTest.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <X11/keysym.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class BrokenDataTest : public DesktopTest {
 protected:
  QByteArray dataBytes() {
    return ProgramEnvironment::read(session().home().dataFile()).value_or("no data file");
  }

  /// Shows and hides the panel, types and presses Return over whatever it shows, ends the program.
  void useAndEnd() {
    start();
    input().type(u"a"_s);
    input().tap(XK_Down);
    input().tap(XK_Return);
    input().tap(XK_Escape);
    EXPECT_TRUE(becomesHidden());
    program().terminate();
  }

  void expectUntouched(const QByteArray &bytes) {
    ProgramEnvironment::write(session().home().dataFile(), bytes);
    useAndEnd();
    EXPECT_EQ(dataBytes(), bytes);
  }
};

TEST_F(BrokenDataTest, CutOffFile_IsLeftAsItIs) {
  const QByteArray whole = commands({u"Build"_s}).json();
  expectUntouched(whole.first(whole.size() / 2));
}

TEST_F(BrokenDataTest, FileWithOneBadItem_IsLeftAsItIs) {
  expectUntouched(commands({u"Build"_s}).json().replace("\"command\"", "\"url\""));
}

TEST_F(BrokenDataTest, FileThatIsNoText_IsLeftAsItIs) {
  expectUntouched(QByteArray("\xff\xfe\x00{]\x80", 6));
}

TEST_F(BrokenDataTest, EmptyFile_IsLeftAsItIs) {
  expectUntouched(QByteArray());
}

TEST_F(BrokenDataTest, DirectoryInTheFilesPlace_LeavesThePanelUsable) {
  QDir().mkpath(session().home().dataFile());
  useAndEnd();
  EXPECT_TRUE(QFileInfo(session().home().dataFile()).isDir());
}

TEST_F(BrokenDataTest, GoodFileOpenedAndNotChanged_IsLeftAsItIs) {
  const QByteArray bytes = commands({u"Build"_s}).json();
  ProgramEnvironment::write(session().home().dataFile(), bytes);
  start();
  input().type(u"no such thing"_s);
  input().tap(XK_Return);
  input().tap(XK_Escape);
  ASSERT_TRUE(becomesHidden());
  EXPECT_EQ(dataBytes(), bytes);
}

TEST_F(BrokenDataTest, PreferencesOfWrongTypes_CountAsAbsent) {
  session().home().writePreferences(
      "showURLs=banana\nshowRecentItems=[]\npanelItemSize=huge\nbackupRetentionDays=many\n"
      "panelWidth=wide\npanelHeight=@Invalid()\nlastBackupDate=yesterday\nglobalShortcut=7");
  start(commands({u"Build"_s}));
  EXPECT_EQ(panelGeometry().size(), QSize(700, 500));
  pressShortcut();
  EXPECT_TRUE(becomesHidden());
  EXPECT_EQ(session().home().preference(u"globalShortcut"_s), u"7"_s);
}

TEST_F(BrokenDataTest, PreferencesThatAreNoText_CountAsAbsent) {
  ProgramEnvironment::write(session().home().preferencesFile(), QByteArray("\0\xff[[=\n]", 7));
  start(commands({u"Build"_s}));
  EXPECT_EQ(panelGeometry().size(), QSize(700, 500));
}

TEST_F(BrokenDataTest, DataDirectoryThatCannotBeMade_LeavesThePanelUsable) {
  // Nobody, not even root, makes a directory here.
  session().home().set(u"XDG_DATA_HOME"_s, u"/proc/lanternix"_s);
  useAndEnd();
}

TEST_F(BrokenDataTest, FullDisk_KeepsTheFileAndStillRunsTheCommand) {
  const QByteArray bytes = commands({u"Build"_s}).json();
  ProgramEnvironment::write(session().home().dataFile(), bytes);
  start(Program::Disk::full);
  input().tap(XK_Return);
  EXPECT_TRUE(becomesMarked(u"Build"_s));
  EXPECT_TRUE(becomesHidden());
  EXPECT_EQ(dataBytes(), bytes);
  EXPECT_EQ(QFileInfo(session().home().dataFile()).dir().entryList(QDir::Files | QDir::Hidden),
            QStringList{u"data.json"_s});
}

}  // namespace
}  // namespace lanternix
