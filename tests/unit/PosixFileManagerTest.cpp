#include "Platform/Linux/PosixFileManager.h"
#include "support/TemporaryHome.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <array>
#include <cmath>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// Gives up the rights of the system's administrator, who may write everywhere, for a while.
class AsNobody {
 public:
  AsNobody() : m_user(geteuid()) {
    constexpr uid_t nobody = 65534;
    EXPECT_EQ(m_user == 0 ? seteuid(nobody) : 0, 0);
  }
  ~AsNobody() { EXPECT_EQ(seteuid(m_user), 0); }
  Q_DISABLE_COPY_MOVE(AsNobody)

 private:
  uid_t m_user;
};

class PosixFileManagerTest : public testing::Test {
 protected:
  QString path(const QString &name) const { return home.root() + u'/' + name; }

  static mode_t modeOf(const QString &path) {
    struct stat status {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777U : 0U;
  }

  TemporaryHome home;
  PosixFileManager files;
};

TEST_F(PosixFileManagerTest, DataDirectory_IsTheOneOfTheEnvironment) {
  EXPECT_EQ(files.applicationSupportDirectory(), home.dataHome());
}

TEST_F(PosixFileManagerTest, DataDirectory_WithoutAnAbsoluteOne_IsInTheHomeDirectory) {
  for (const char *value : {"", "relative/path", "~/data"}) {
    qputenv("XDG_DATA_HOME", value);
    EXPECT_EQ(files.applicationSupportDirectory(), home.root() + u"/.local/share"_s) << value;
  }
  qunsetenv("XDG_DATA_HOME");
  EXPECT_EQ(files.applicationSupportDirectory(), home.root() + u"/.local/share"_s);
}

TEST_F(PosixFileManagerTest, DataDirectory_WithoutHome_IsInTheOneOfTheUserDatabase) {
  const passwd *const entry = getpwuid(getuid());
  ASSERT_NE(entry, nullptr);
  qunsetenv("XDG_DATA_HOME");
  qunsetenv("HOME");
  EXPECT_EQ(files.applicationSupportDirectory(),
            QFile::decodeName(entry->pw_dir) + u"/.local/share"_s);
  qputenv("HOME", "relative");
  EXPECT_EQ(files.applicationSupportDirectory(),
            QFile::decodeName(entry->pw_dir) + u"/.local/share"_s);
}

TEST_F(PosixFileManagerTest, CreateDirectory_MakesParentsAndTakesWhatIsThere) {
  EXPECT_TRUE(files.createDirectory(path(u"a/b/c"_s)));
  EXPECT_TRUE(files.createDirectory(path(u"a/b/c"_s)));
  EXPECT_TRUE(QFileInfo(path(u"a/b/c"_s)).isDir());
}

TEST_F(PosixFileManagerTest, CreateDirectory_OverOrBelowAFile_Fails) {
  ASSERT_TRUE(home.write(path(u"file"_s), "x"));
  EXPECT_FALSE(files.createDirectory(path(u"file"_s)));
  EXPECT_FALSE(files.createDirectory(path(u"file/below"_s)));
}

TEST_F(PosixFileManagerTest, Contents_GivesEveryByte) {
  const QByteArray bytes = QByteArray("\0\xff\r\n", 4).repeated(100'000);
  ASSERT_TRUE(home.write(path(u"file"_s), bytes));
  EXPECT_EQ(files.contents(path(u"file"_s)), bytes);
}

TEST_F(PosixFileManagerTest, Contents_OfAnEmptyFile_IsEmptyAndNotNone) {
  ASSERT_TRUE(home.write(path(u"file"_s), ""));
  EXPECT_EQ(files.contents(path(u"file"_s)), QByteArray());
}

TEST_F(PosixFileManagerTest, Contents_ThroughALink_AreThoseOfItsTarget) {
  ASSERT_TRUE(home.write(path(u"file"_s), "x"));
  ASSERT_TRUE(QFile::link(u"file"_s, path(u"link"_s)));
  EXPECT_EQ(files.contents(path(u"link"_s)), "x");
}

TEST_F(PosixFileManagerTest, Contents_OfMissingFileOrDirectory_IsNone) {
  EXPECT_EQ(files.contents(path(u"missing"_s)), std::nullopt);
  EXPECT_EQ(files.contents(home.root()), std::nullopt);
  EXPECT_EQ(files.contents(QString()), std::nullopt);
}

TEST_F(PosixFileManagerTest, Contents_OfAPipe_IsNoneAtOnce) {
  ASSERT_EQ(mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), 0600), 0);
  EXPECT_EQ(files.contents(path(u"pipe"_s)), std::nullopt);
}

TEST_F(PosixFileManagerTest, Contents_OfADevice_IsNone) {
  EXPECT_EQ(files.contents(u"/dev/zero"_s), std::nullopt);
}

TEST_F(PosixFileManagerTest, Contents_OfAFileTooGreat_IsNone) {
  ASSERT_TRUE(home.write(path(u"file"_s), "x"));
  ASSERT_EQ(
      truncate(QFile::encodeName(path(u"file"_s)).constData(), PosixFileManager::largestFile + 1),
      0);
  EXPECT_EQ(files.contents(path(u"file"_s)), std::nullopt);
}

TEST_F(PosixFileManagerTest, PathWithNul_NamesNothing) {
  ASSERT_TRUE(home.write(path(u"file"_s), "x"));
  const QString cut = path(u"file"_s) + QChar::Null + u"more"_s;
  EXPECT_EQ(files.contents(cut), std::nullopt);
  EXPECT_EQ(files.creationDate(cut), std::nullopt);
  EXPECT_FALSE(files.writeAtomically("y", cut));
  files.removeItem(cut);
  EXPECT_EQ(home.read(path(u"file"_s)), "x");
}

TEST_F(PosixFileManagerTest, Write_MakesAFileAsTheUsersMaskHasIt) {
  const mode_t mask = umask(027);
  EXPECT_TRUE(files.writeAtomically("x", path(u"file"_s)));
  umask(mask);
  EXPECT_EQ(home.read(path(u"file"_s)), "x");
  EXPECT_EQ(modeOf(path(u"file"_s)), 0640U);
}

TEST_F(PosixFileManagerTest, Write_OverAFile_KeepsItsMode) {
  ASSERT_TRUE(home.write(path(u"file"_s), "old and longer"));
  ASSERT_EQ(chmod(QFile::encodeName(path(u"file"_s)).constData(), 0604), 0);
  EXPECT_TRUE(files.writeAtomically("new", path(u"file"_s)));
  EXPECT_EQ(home.read(path(u"file"_s)), "new");
  EXPECT_EQ(modeOf(path(u"file"_s)), 0604U);
}

TEST_F(PosixFileManagerTest, Write_LeavesNoOtherFile) {
  EXPECT_TRUE(files.writeAtomically("x", path(u"file"_s)));
  EXPECT_TRUE(files.writeAtomically("y", path(u"file"_s)));
  EXPECT_EQ(QDir(home.root()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList({u"file"_s}));
}

TEST_F(PosixFileManagerTest, Write_ReplacesTheFileInsteadOfItsContent) {
  ASSERT_TRUE(home.write(path(u"file"_s), "old"));
  QFile open(path(u"file"_s));
  ASSERT_TRUE(open.open(QIODevice::ReadOnly));
  EXPECT_TRUE(files.writeAtomically("new", path(u"file"_s)));
  EXPECT_EQ(open.readAll(), "old") << "a reader that came before still has the old file whole";
}

TEST_F(PosixFileManagerTest, Write_ThroughAChainOfLinks_ReplacesTheFileAtItsEnd) {
  ASSERT_TRUE(home.write(path(u"real/file"_s), "old"));
  ASSERT_TRUE(QFile::link(path(u"real/file"_s), path(u"second"_s)));
  ASSERT_TRUE(QFile::link(u"second"_s, path(u"first"_s)));
  EXPECT_TRUE(files.writeAtomically("new", path(u"first"_s)));
  EXPECT_TRUE(QFileInfo(path(u"first"_s)).isSymLink());
  EXPECT_TRUE(QFileInfo(path(u"second"_s)).isSymLink());
  EXPECT_EQ(home.read(path(u"real/file"_s)), "new");
}

TEST_F(PosixFileManagerTest, Write_ThroughALinkToNothing_MakesItsTarget) {
  ASSERT_TRUE(QFile::link(u"target"_s, path(u"link"_s)));
  EXPECT_TRUE(files.writeAtomically("new", path(u"link"_s)));
  EXPECT_TRUE(QFileInfo(path(u"link"_s)).isSymLink());
  EXPECT_EQ(home.read(path(u"target"_s)), "new");
}

TEST_F(PosixFileManagerTest, Write_ThroughLinksInACircle_Fails) {
  ASSERT_TRUE(QFile::link(u"b"_s, path(u"a"_s)));
  ASSERT_TRUE(QFile::link(u"a"_s, path(u"b"_s)));
  EXPECT_FALSE(files.writeAtomically("x", path(u"a"_s)));
}

TEST_F(PosixFileManagerTest, Write_OverADirectoryPipeOrDevice_FailsAndLeavesIt) {
  ASSERT_TRUE(QDir().mkpath(path(u"directory"_s)));
  ASSERT_EQ(mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), 0600), 0);
  EXPECT_FALSE(files.writeAtomically("x", path(u"directory"_s)));
  EXPECT_FALSE(files.writeAtomically("x", path(u"pipe"_s)));
  EXPECT_FALSE(files.writeAtomically("x", u"/dev/null"_s));
  EXPECT_TRUE(QFileInfo(path(u"directory"_s)).isDir());
}

TEST_F(PosixFileManagerTest, Write_IntoAMissingDirectory_Fails) {
  EXPECT_FALSE(files.writeAtomically("x", path(u"missing/file"_s)));
}

TEST_F(PosixFileManagerTest, WriteOver_AFileInADirectoryThatMayNotBeWritten_Works) {
  TemporaryHome::write(path(u"place/file"_s), QByteArray(100, 'x'));
  chmod(QFile::encodeName(home.root()).constData(), 0755);
  chmod(QFile::encodeName(path(u"place/file"_s)).constData(), 0666);
  chmod(QFile::encodeName(path(u"place"_s)).constData(), 0555);
  const AsNobody nobody;
  EXPECT_FALSE(files.writeAtomically("new", path(u"place/file"_s)));
  EXPECT_TRUE(files.write("new", path(u"place/file"_s)));
  EXPECT_EQ(files.contents(path(u"place/file"_s)), "new");
  EXPECT_FALSE(files.write("new", path(u"place/other"_s)));
}

TEST_F(PosixFileManagerTest, WriteOver_AFileElsewhere_ReplacesItInOneStep) {
  TemporaryHome::write(path(u"file"_s), "old");
  const auto inode = [this] {
    struct stat status {};
    stat(QFile::encodeName(path(u"file"_s)).constData(), &status);
    return status.st_ino;
  };
  const ino_t before = inode();
  EXPECT_TRUE(files.write("new", path(u"file"_s)));
  EXPECT_EQ(files.contents(path(u"file"_s)), "new");
  EXPECT_NE(inode(), before);
}

TEST_F(PosixFileManagerTest, Directory_ListsNamesWithoutTheHiddenOnes) {
  for (const QString &name : {u"b"_s, u"a b"_s, u".hidden"_s, u"ä"_s, u"sub/deeper"_s}) {
    ASSERT_TRUE(home.write(path(u"list/"_s + name), ""));
  }
  QStringList names = files.contentsOfDirectory(path(u"list"_s)).value_or(QStringList());
  names.sort();
  EXPECT_EQ(names, QStringList({u"a b"_s, u"b"_s, u"sub"_s, u"ä"_s}));
}

TEST_F(PosixFileManagerTest, Directory_ThatIsMissingOrAFile_IsNone) {
  ASSERT_TRUE(home.write(path(u"file"_s), ""));
  EXPECT_EQ(files.contentsOfDirectory(path(u"file"_s)), std::nullopt);
  EXPECT_EQ(files.contentsOfDirectory(path(u"missing"_s)), std::nullopt);
}

TEST_F(PosixFileManagerTest, CreationDate_OfANewFile_IsNow) {
  const QDateTime before = QDateTime::currentDateTimeUtc();
  ASSERT_TRUE(home.write(path(u"file"_s), "x"));
  const auto created = files.creationDate(path(u"file"_s));
  ASSERT_TRUE(created);
  constexpr qint64 slackSeconds = 2;  // clocks of file systems are coarse
  EXPECT_LE(std::abs(before.secsTo(created->toDateTime())), slackSeconds);
}

TEST_F(PosixFileManagerTest, CreationDate_IsNotTheModificationTimeWhereThereIsABirthTime) {
  ASSERT_TRUE(home.write(path(u"file"_s), "x"));
  const QByteArray name = QFile::encodeName(path(u"file"_s));
  struct statx status {};
  ASSERT_EQ(statx(AT_FDCWD, name.constData(), 0, STATX_BTIME, &status), 0);
  if ((status.stx_mask & STATX_BTIME) == 0) {
    GTEST_SKIP() << "this file system keeps no birth times";
  }
  const timespec past{1'000'000'000, 0};
  const std::array<timespec, 2> times{past, past};
  ASSERT_EQ(utimensat(AT_FDCWD, name.constData(), times.data(), 0), 0);
  EXPECT_GT(files.creationDate(path(u"file"_s))->toDateTime().toSecsSinceEpoch(), 1'500'000'000);
}

TEST_F(PosixFileManagerTest, CreationDate_WhereThereIsNoBirthTime_IsTheModificationTime) {
  // The kernel's own file systems keep none.
  const QString file = u"/proc/self/status"_s;
  struct statx status {};
  ASSERT_EQ(statx(AT_FDCWD, "/proc/self/status", 0, STATX_BTIME | STATX_MTIME, &status), 0);
  if ((status.stx_mask & STATX_BTIME) != 0) {
    GTEST_SKIP() << "this kernel keeps birth times everywhere";
  }
  const auto created = files.creationDate(file);
  ASSERT_TRUE(created);
  EXPECT_LE(std::abs(created->toDateTime().secsTo(QDateTime::currentDateTime())), 60);
}

TEST_F(PosixFileManagerTest, CreationDate_OfAMissingFile_IsNone) {
  EXPECT_EQ(files.creationDate(path(u"missing"_s)), std::nullopt);
}

TEST_F(PosixFileManagerTest, FileSize_CountsBytes_AndIsNoneOfAMissingFile) {
  ASSERT_TRUE(home.write(path(u"file"_s), QByteArray(1234, 'x')));
  EXPECT_EQ(files.fileSize(path(u"file"_s)), 1234);
  EXPECT_EQ(files.fileSize(path(u"missing"_s)), std::nullopt);
}

TEST_F(PosixFileManagerTest, Remove_TakesAFileAndIsContentWithoutOne) {
  ASSERT_TRUE(home.write(path(u"file"_s), "x"));
  EXPECT_TRUE(files.removeItem(path(u"file"_s)));
  EXPECT_FALSE(QFileInfo::exists(path(u"file"_s)));
  EXPECT_TRUE(files.removeItem(path(u"file"_s)));
}

TEST_F(PosixFileManagerTest, Remove_OfADirectory_Fails) {
  ASSERT_TRUE(QDir().mkpath(path(u"directory"_s)));
  EXPECT_FALSE(files.removeItem(path(u"directory"_s)));
  EXPECT_TRUE(QFileInfo(path(u"directory"_s)).isDir());
}

}  // namespace
}  // namespace lanternix
