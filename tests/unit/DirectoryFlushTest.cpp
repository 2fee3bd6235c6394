#include "Platform/Linux/PosixFileManager.h"
#include "support/TemporaryHome.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <gtest/gtest.h>
#include <optional>
#include <sys/syscall.h>
#include <unistd.h>

// What reaches the disk, and when: a machine may lose its power at any moment.

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

/// What is flushed, its bytes where it is a file, and those that the file under test has then.
struct Flush {
  QString path;
  std::optional<QByteArray> bytes;
  std::optional<QByteArray> inPlace;
};

/// The file under test, while there is one, and the flushes since.
QString watchedFile;
QList<Flush> flushes;

void note(int descriptor) {
  if (!watchedFile.isEmpty()) {
    const QString link = u"/proc/self/fd/%1"_s.arg(descriptor);
    flushes.append(
        {QFile::symLinkTarget(link), TemporaryHome::read(link), TemporaryHome::read(watchedFile)});
  }
}

}  // namespace
}  // namespace lanternix

// In the place of the system's own, for this whole program, and as good as that.
extern "C" int fsync(int descriptor) {
  lanternix::note(descriptor);
  return static_cast<int>(syscall(SYS_fsync, descriptor));
}

namespace lanternix {
namespace {

class DirectoryFlushTest : public testing::Test {
 protected:
  DirectoryFlushTest() {
    QDir().mkpath(directory);
    flushes.clear();
    watchedFile = directory + u"/data.json"_s;
  }
  ~DirectoryFlushTest() override { watchedFile.clear(); }

  TemporaryHome home;
  PosixFileManager fileManager;
  const QString directory = home.root() + u"/documents"_s;
};

TEST_F(DirectoryFlushTest, ReplacedFile_ReachesTheDiskBeforeItsNameDoes) {
  ASSERT_TRUE(fileManager.writeAtomically("old", watchedFile));
  flushes.clear();
  ASSERT_TRUE(fileManager.writeAtomically("new", watchedFile));
  ASSERT_EQ(flushes.size(), 2);
  EXPECT_EQ(QFileInfo(flushes[0].path).path(), directory);
  EXPECT_EQ(flushes[0].bytes, "new");
  EXPECT_EQ(flushes[0].inPlace, "old");
  EXPECT_EQ(flushes[1].path, directory);
  EXPECT_EQ(flushes[1].inPlace, "new");
}

TEST_F(DirectoryFlushTest, NewFile_HasItsDirectoryFlushedToo) {
  ASSERT_TRUE(fileManager.writeAtomically("new", watchedFile));
  ASSERT_EQ(flushes.size(), 2);
  EXPECT_EQ(flushes[0].bytes, "new");
  EXPECT_EQ(flushes[0].inPlace, std::nullopt);
  EXPECT_EQ(flushes[1].path, directory);
  EXPECT_EQ(flushes[1].inPlace, "new");
}

TEST_F(DirectoryFlushTest, FileBehindALink_HasItsOwnDirectoryFlushed) {
  const QString elsewhere = home.root() + u"/elsewhere"_s;
  QDir().mkpath(elsewhere);
  ASSERT_TRUE(QFile::link(elsewhere + u"/data.json"_s, watchedFile));
  ASSERT_TRUE(fileManager.writeAtomically("new", watchedFile));
  ASSERT_EQ(flushes.size(), 2);
  EXPECT_EQ(flushes[1].path, elsewhere);
}

}  // namespace
}  // namespace lanternix
