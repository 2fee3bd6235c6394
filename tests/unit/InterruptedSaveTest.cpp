#include "Platform/Linux/PosixFileManager.h"
#include "Services/StorageService.h"
#include "support/TemporaryHome.h"

#include <QtCore/QDir>

#include <array>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

// What goes wrong on a real machine: the disk is full, the directory may not be written to, the
// program is killed in the middle. A process of its own stands for the program each time.

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class InterruptedSaveTest : public testing::Test {
 protected:
  void SetUp() override { service.save(small.groups, small.items); }

  /// A document of some hundred kilobytes whose items all have the same name.
  static DataDocument greatDocument(const QString &name) {
    DataDocument document;
    for (qint64 i = 0; i < 500; ++i) {
      document.items.append(
          {QUuid::createUuid(), name, QString(200, u'/'), ItemType::file, QUuid(), Date{1}, {}, i});
    }
    return document;
  }

  QStringList namesBesideDataFile() const {
    return QDir(home.dataHome() + u"/Lanternix"_s)
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

  TemporaryHome home;
  PosixFileManager fileManager;
  StorageService service{fileManager};
  DataDocument small;
};

/// From now on no file of this process grows beyond \p size, as on a disk that is full.
void limitFiles(rlim_t size) {
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit limit{size, size};
  setrlimit(RLIMIT_FSIZE, &limit);
}

TEST_F(InterruptedSaveTest, Save_OnAFullDisk_LeavesTheOldFileAndNoOther) {
  const DataDocument great = greatDocument(u"great"_s);
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    limitFiles(10'000);
    _exit(fileManager.writeAtomically(*great.encoded(), home.dataFile()) ? 1 : 0);
  }
  int status = -1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0) << "the write is to fail";
  EXPECT_EQ(home.read(home.dataFile()), small.encoded());
  EXPECT_EQ(namesBesideDataFile(), QStringList({u"data.json"_s}));
}

TEST_F(InterruptedSaveTest, Save_WithNoRoomAtAll_LeavesTheOldFileAndNoOther) {
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    limitFiles(0);
    _exit(fileManager.writeAtomically("short", home.dataFile()) ? 1 : 0);
  }
  int status = -1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0) << "the write is to fail";
  EXPECT_EQ(home.read(home.dataFile()), small.encoded());
  EXPECT_EQ(namesBesideDataFile(), QStringList({u"data.json"_s}));
}

TEST_F(InterruptedSaveTest, Save_IntoADirectoryNotToBeWritten_LeavesTheOldFile) {
  const QByteArray directory = QFile::encodeName(home.dataHome() + u"/Lanternix"_s);
  ASSERT_EQ(chmod(QFile::encodeName(home.root()).constData(), 0755), 0);
  ASSERT_EQ(chmod(directory.constData(), 0555), 0);
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    constexpr uid_t nobody = 65534;
    if (geteuid() == 0 && seteuid(nobody) != 0) {  // nothing is forbidden to root
      _exit(2);
    }
    _exit(fileManager.writeAtomically("new", home.dataFile()) ? 1 : 0);
  }
  int status = -1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0) << "the write is to fail";
  EXPECT_EQ(home.read(home.dataFile()), small.encoded());
  EXPECT_EQ(chmod(directory.constData(), 0755), 0);
}

/// Saves two documents in turn until it is killed, and writes a byte to \p report after each.
[[noreturn]] void saveForEver(StorageService &service, const DataDocument &first,
                              const DataDocument &second, int report) {
  for (;;) {
    service.save(first.groups, first.items);
    service.save(second.groups, second.items);
    if (write(report, "", 1) != 1) {
      _exit(1);
    }
  }
}

TEST_F(InterruptedSaveTest, Save_KilledInTheMiddle_LeavesTheOldOrTheNewFileWhole) {
  const DataDocument first = greatDocument(u"first"_s);
  const DataDocument second = greatDocument(u"second and longer"_s);
  for (int round = 0; round < 20; ++round) {
    std::array<int, 2> report{};
    ASSERT_EQ(pipe(report.data()), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      saveForEver(service, first, second, report[1]);
    }
    std::array<char, 3> reports{};
    ASSERT_GT(read(report[0], reports.data(), reports.size()), 0);
    usleep(static_cast<useconds_t>(137 * round));  // somewhere in the saves that follow
    ASSERT_EQ(kill(child, SIGKILL), 0);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    close(report[0]);
    close(report[1]);
    const DataDocument stored = service.load();
    ASSERT_TRUE(stored == first || stored == second) << "round " << round;
  }
}

}  // namespace
}  // namespace lanternix
