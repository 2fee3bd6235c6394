#include "desktop/FileManagerService.h"
#include "support/ChildProcess.h"
#include "support/ProgramEnvironment.h"
#include "support/SessionBus.h"
#include "support/WaitUntil.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QUrl>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

/// A program that asks the desktop for one thing.
class Request : public ChildProcess {
 public:
  Request(const QStringList &arguments, const QProcessEnvironment &environment)
      : ChildProcess(QStringLiteral(WORKSPACE_PROBE), u"lanternix"_s) {
    start(arguments, environment);
  }
  bool ends() {
    return waitUntil([this] { return exitCode() == 0; });
  }
};

/// A request that starts nothing is followed by one that does, because what is started writes its
/// record only some time after the request.
class WorkspaceTest : public testing::Test {
 protected:
  WorkspaceTest() {
    home.set(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address());
    folder = home.path(u"My Documents"_s);
    QDir().mkpath(folder);
    file = folder + u"/100% böse #1?.txt"_s;
    ProgramEnvironment::write(file, "text");
  }

  void ask(const QStringList &request) {
    Request probe(request, home.variables());
    EXPECT_TRUE(probe.ends()) << probe.errors().toStdString();
  }

  /// The one argument that the application was started with.
  static QString argument(const QString &record) {
    EXPECT_TRUE(waitUntil([&] { return ProgramEnvironment::read(record).has_value(); }));
    return QString::fromUtf8(ProgramEnvironment::read(record).value_or(QByteArray()).chopped(1));
  }

  /// The same for an application that is given a file: a path or a URL, which it takes alike.
  static QString fileArgument(const QString &record) {
    const QString text = argument(record);
    return text.startsWith(u'/') ? text : QUrl(text).toLocalFile();
  }

  /// What each of its starts was given, once it has been started; a file's path where it is a file.
  static QStringList starts(const QString &record) {
    EXPECT_TRUE(waitUntil([&] { return QFile::exists(record); }));
    QStringList starts = ProgramEnvironment::starts(record);
    for (QString &start : starts) {
      start = start.startsWith("file:"_L1) ? QUrl(start).toLocalFile() : start;
    }
    return starts;
  }

  /// States of the processes whose parent is \p process.
  static QByteArray childStates(qint64 process) {
    QFile children(u"/proc/%1/task/%1/children"_s.arg(process));
    QByteArray states;
    if (children.open(QIODevice::ReadOnly)) {
      for (const QByteArray &child : children.readAll().simplified().split(' ')) {
        QFile stat(u"/proc/%1/stat"_s.arg(QString::fromLatin1(child)));
        if (!child.isEmpty() && stat.open(QIODevice::ReadOnly)) {
          const QByteArray line = stat.readAll();
          states += line.at(line.lastIndexOf(')') + 2);
        }
      }
    }
    return states;
  }

  ProgramEnvironment home;
  SessionBus bus;
  QString folder;
  QString file;
};

TEST_F(WorkspaceTest, File_OpensInTheDefaultApplicationOfItsType) {
  const QString record = home.installApplication(u"reader"_s, {u"text/plain"_s});
  ask({u"file"_s, file});
  EXPECT_EQ(fileArgument(record), file);
}

TEST_F(WorkspaceTest, FileItemThatIsADirectory_OpensInTheDefaultFileViewer) {
  const QString record = home.installApplication(u"viewer"_s, {u"inode/directory"_s});
  ask({u"file"_s, folder});
  EXPECT_EQ(fileArgument(record), folder);
}

TEST_F(WorkspaceTest, MissingFile_EndsSilently) {
  const QString record = home.installApplication(u"reader"_s, {u"text/plain"_s});
  ask({u"file"_s, folder + u"/missing.txt"_s});
  ask({u"file"_s, file});
  EXPECT_THAT(starts(record), ElementsAre(file));
}

TEST_F(WorkspaceTest, Url_ReachesTheHandlerOfItsSchemeExactlyAsWritten) {
  const QString record = home.installApplication(u"browser"_s, {u"x-scheme-handler/https"_s});
  const QString url = u"https://example.org/a%20b?q='x y'&$HOME=ä#top"_s;
  ask({u"url"_s, url});
  EXPECT_EQ(argument(record), url);
}

TEST_F(WorkspaceTest, UrlOfUnknownSchemeOrNone_EndsSilently) {
  const QString record = home.installApplication(u"browser"_s, {u"x-scheme-handler/https"_s});
  ask({u"url"_s, u"example.org"_s});
  ask({u"url"_s, u"nobody:knows"_s});
  ask({u"url"_s, u"https://example.org"_s});
  EXPECT_THAT(starts(record), ElementsAre(u"https://example.org"_s));
}

TEST_F(WorkspaceTest, HasApplication_KnowsInstalledOnes) {
  home.installApplication(u"org.example.Files"_s, {u"inode/directory"_s});
  EXPECT_EQ(Request({u"has"_s, u"org.example.Files"_s}, home.variables()).firstLine(), "yes");
  EXPECT_EQ(Request({u"has"_s, u"org.example.Other"_s}, home.variables()).firstLine(), "no");
  EXPECT_EQ(Request({u"has"_s, u""_s}, home.variables()).firstLine(), "no");
}

TEST_F(WorkspaceTest, Directory_OpensInTheNamedApplication) {
  home.installApplication(u"viewer"_s, {u"inode/directory"_s});
  const QString record = home.installApplication(u"org.example.Files"_s, {});
  ask({u"directory"_s, folder, u"org.example.Files"_s});
  EXPECT_EQ(fileArgument(record), folder);
}

TEST_F(WorkspaceTest, Reveal_AsksTheFileManager) {
  const FileManagerService fileManager(bus.address());
  const QString record = home.installApplication(u"viewer"_s, {u"inode/directory"_s});
  Request probe({u"reveal"_s, file}, home.variables());
  ASSERT_TRUE(waitUntil([&] { return !fileManager.shownItems().isEmpty(); }));
  EXPECT_EQ(fileManager.shownItems().size(), 1);
  EXPECT_EQ(QUrl(fileManager.shownItems().first()).toLocalFile(), file);
  EXPECT_TRUE(probe.ends());
  ask({u"file"_s, home.home()});
  EXPECT_THAT(starts(record), ElementsAre(home.home()));
}

TEST_F(WorkspaceTest, Reveal_WithoutFileManager_OpensTheEnclosingFolder) {
  const QString record = home.installApplication(u"viewer"_s, {u"inode/directory"_s});
  ask({u"reveal"_s, file});
  EXPECT_EQ(fileArgument(record), folder);
}

TEST_F(WorkspaceTest, Reveal_WithoutBus_OpensTheEnclosingFolder) {
  const QString record = home.installApplication(u"viewer"_s, {u"inode/directory"_s});
  home.set(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nonexistent/bus"_s);
  ask({u"reveal"_s, file});
  EXPECT_EQ(fileArgument(record), folder);
}

TEST_F(WorkspaceTest, RevealWithoutFileManager_WhileTheProgramLives_OpensTheEnclosingFolder) {
  const QString record = home.installApplication(u"viewer"_s, {u"inode/directory"_s});
  const Request probe({u"stay"_s, u"reveal"_s, file}, home.variables());
  EXPECT_EQ(fileArgument(record), folder);
}

TEST_F(WorkspaceTest, StartedApplication_IsNobodysZombie) {
  const QString record = home.installApplication(u"browser"_s, {u"x-scheme-handler/https"_s});
  const Request probe({u"stay"_s, u"url"_s, u"https://example.org"_s}, home.variables());
  ASSERT_EQ(argument(record), u"https://example.org"_s);
  EXPECT_TRUE(waitUntil([&] { return childStates(probe.processId()).isEmpty(); }))
      << childStates(probe.processId()).toStdString();
}

}  // namespace
}  // namespace lanternix
