#include "desktop/FileManagerService.h"
#include "support/ChildProcess.h"
#include "support/ProgramEnvironment.h"
#include "support/SessionBus.h"
#include "support/WaitUntil.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QUrl>

#include <gtest/gtest.h>
#include <memory>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

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

  /// Whether the application was started with \p argument alone.
  static bool arrives(const QString &record, const QString &argument) {
    return waitUntil([&] { return ProgramEnvironment::read(record).has_value(); }) &&
           *ProgramEnvironment::read(record) == argument.toUtf8() + '\n';
  }

  static QString uri(const QString &path) {
    return QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
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
  ASSERT_TRUE(waitUntil([&] { return ProgramEnvironment::read(record).has_value(); }));
  const auto argument = QString::fromUtf8(*ProgramEnvironment::read(record)).trimmed();
  EXPECT_EQ(QUrl(argument).toLocalFile(), file);
}

TEST_F(WorkspaceTest, FileItemThatIsADirectory_OpensInTheDefaultFileViewer) {
  const QString record = home.installApplication(u"viewer"_s, {u"inode/directory"_s});
  ask({u"file"_s, folder});
  EXPECT_TRUE(waitUntil([&] { return ProgramEnvironment::read(record).has_value(); }));
}

TEST_F(WorkspaceTest, MissingFile_EndsSilently) {
  const QString record = home.installApplication(u"reader"_s, {u"text/plain"_s});
  ask({u"file"_s, folder + u"/missing.txt"_s});
  EXPECT_FALSE(QFile::exists(record));
}

TEST_F(WorkspaceTest, Url_ReachesTheHandlerOfItsSchemeExactlyAsWritten) {
  const QString record = home.installApplication(u"browser"_s, {u"x-scheme-handler/https"_s});
  const QString url = u"https://example.org/a%20b?q='x y'&$HOME=ä#top"_s;
  ask({u"url"_s, url});
  EXPECT_TRUE(arrives(record, url));
}

TEST_F(WorkspaceTest, UrlOfUnknownSchemeOrNone_EndsSilently) {
  const QString record = home.installApplication(u"browser"_s, {u"x-scheme-handler/https"_s});
  ask({u"url"_s, u"example.org"_s});
  ask({u"url"_s, u"nobody:knows"_s});
  EXPECT_FALSE(QFile::exists(record));
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
  EXPECT_TRUE(arrives(record, uri(folder)));
}

TEST_F(WorkspaceTest, Reveal_AsksTheFileManager) {
  const FileManagerService fileManager(bus.address());
  const QString record = home.installApplication(u"viewer"_s, {u"inode/directory"_s});
  Request probe({u"reveal"_s, file}, home.variables());
  ASSERT_TRUE(waitUntil([&] { return !fileManager.shownItems().isEmpty(); }));
  EXPECT_EQ(fileManager.shownItems().size(), 1);
  EXPECT_EQ(QUrl(fileManager.shownItems().first()).toLocalFile(), file);
  EXPECT_TRUE(probe.ends());
  EXPECT_FALSE(QFile::exists(record));
}

TEST_F(WorkspaceTest, Reveal_WithoutFileManager_OpensTheEnclosingFolder) {
  const QString record = home.installApplication(u"viewer"_s, {u"inode/directory"_s});
  ask({u"reveal"_s, file});
  EXPECT_TRUE(arrives(record, uri(folder)));
}

TEST_F(WorkspaceTest, Reveal_WithoutBus_OpensTheEnclosingFolder) {
  const QString record = home.installApplication(u"viewer"_s, {u"inode/directory"_s});
  home.set(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nonexistent/bus"_s);
  ask({u"reveal"_s, file});
  EXPECT_TRUE(arrives(record, uri(folder)));
}

TEST_F(WorkspaceTest, RevealWithoutFileManager_WhileTheProgramLives_OpensTheEnclosingFolder) {
  const QString record = home.installApplication(u"viewer"_s, {u"inode/directory"_s});
  const Request probe({u"stay"_s, u"reveal"_s, file}, home.variables());
  EXPECT_TRUE(arrives(record, uri(folder)));
}

TEST_F(WorkspaceTest, StartedApplication_IsNobodysZombie) {
  const QString record = home.installApplication(u"browser"_s, {u"x-scheme-handler/https"_s});
  const Request probe({u"stay"_s, u"url"_s, u"https://example.org"_s}, home.variables());
  ASSERT_TRUE(arrives(record, u"https://example.org"_s));
  EXPECT_TRUE(waitUntil([&] { return childStates(probe.processId()).isEmpty(); }))
      << childStates(probe.processId()).toStdString();
}

TEST_F(WorkspaceTest, EndOfTheBusAfterALaunch_DoesNotEndTheProgram) {
  auto passing = std::make_unique<SessionBus>();
  home.set(u"DBUS_SESSION_BUS_ADDRESS"_s, passing->address());
  const QString record = home.installApplication(u"browser"_s, {u"x-scheme-handler/https"_s});
  Request probe({u"stay"_s, u"url"_s, u"https://example.org"_s}, home.variables());
  ASSERT_TRUE(arrives(record, u"https://example.org"_s));
  passing.reset();
  EXPECT_FALSE(waitUntil([&] { return !probe.isRunning(); }, std::chrono::milliseconds(500)));
}

}  // namespace
}  // namespace lanternix
