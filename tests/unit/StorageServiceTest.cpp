#include "Platform/Linux/PosixFileManager.h"
#include "Services/StorageService.h"
#include "support/HomelessFileManager.h"
#include "support/TemporaryHome.h"

#include <QtCore/QFileInfo>

#include <gtest/gtest.h>
#include <limits>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

class StorageServiceTest : public testing::Test {
 public:
  static DataDocument sampleData() {
    const PathGroup group{QUuid::createUuid(), u"Work"_s, u"star"_s, u"red"_s, 0, true};
    return {{group},
            {{QUuid::createUuid(),
              u"Documents"_s,
              u"/Users/me/Documents"_s,
              ItemType::directory,
              group.id,
              Date{5},
              {},
              1}}};
  }

 protected:
  void writeDataFile(const QByteArray &bytes) { ASSERT_TRUE(home.write(home.dataFile(), bytes)); }

  TemporaryHome home;
  PosixFileManager fileManager;
  StorageService service{fileManager};
};

TEST_F(StorageServiceTest, Load_AtFirstStart_CreatesTheDirectoryAndNoFile) {
  EXPECT_EQ(service.load(), DataDocument());
  EXPECT_TRUE(QFileInfo(home.dataHome() + u"/Lanternix"_s).isDir());
  EXPECT_FALSE(QFileInfo::exists(home.dataFile()));
}

TEST_F(StorageServiceTest, Load_AfterSave_GivesTheSameData) {
  const DataDocument data = sampleData();
  service.save(data.groups, data.items);
  EXPECT_EQ(service.load(), data);
}

TEST_F(StorageServiceTest, Load_WithoutItemsKey_GivesNoGroupsEither) {
  const QByteArray groups = sampleData().encoded()->split('[').at(1);
  writeDataFile("{\"groups\":[" + groups.left(groups.lastIndexOf(']')) + "]}");
  EXPECT_EQ(service.load(), DataDocument());
}

TEST_F(StorageServiceTest, Load_OfABrokenFile_LeavesItUntilTheNextSave) {
  QByteArray bytes = *sampleData().encoded();
  bytes.replace("\"directory\"", "\"url\"");
  writeDataFile(bytes);
  EXPECT_EQ(service.load(), DataDocument());
  EXPECT_EQ(home.read(home.dataFile()), bytes);
  service.save({}, {});
  EXPECT_EQ(home.read(home.dataFile()), DataDocument().encoded());
}

TEST_F(StorageServiceTest, Load_OfAnEmptyFile_GivesEmptyLists) {
  writeDataFile("");
  EXPECT_EQ(service.load(), DataDocument());
}

TEST_F(StorageServiceTest, Load_WithADirectoryInPlaceOfTheFile_GivesEmptyLists) {
  ASSERT_TRUE(QDir().mkpath(home.dataFile()));
  EXPECT_EQ(service.load(), DataDocument());
}

TEST_F(StorageServiceTest, Load_KeepsTheOrderOfTheFile) {
  DataDocument data = sampleData();
  data.items.append(data.items.first());
  data.items.last().order = -5;
  writeDataFile(*data.encoded());
  EXPECT_EQ(service.load(), data);
}

TEST_F(StorageServiceTest, Save_Twice_GivesTheSameBytes) {
  const DataDocument data = sampleData();
  service.save(data.groups, data.items);
  const auto first = home.read(home.dataFile());
  service.save(data.groups, data.items);
  EXPECT_EQ(home.read(home.dataFile()), first);
  EXPECT_EQ(first, data.encoded());
}

TEST_F(StorageServiceTest, Save_WithTheDirectoryRemoved_MakesItAnew) {
  service.load();
  ASSERT_TRUE(QDir(home.dataHome()).removeRecursively());
  service.save({}, {});
  EXPECT_EQ(home.read(home.dataFile()), DataDocument().encoded());
}

TEST_F(StorageServiceTest, Save_OfWhatCannotBeEncoded_LeavesTheFile) {
  service.save({}, {});
  DataDocument data = sampleData();
  data.items.first().dateAdded = Date{std::numeric_limits<double>::quiet_NaN()};
  service.save(data.groups, data.items);
  EXPECT_EQ(home.read(home.dataFile()), DataDocument().encoded());
}

TEST_F(StorageServiceTest, Save_WithADirectoryInPlaceOfTheFile_LeavesIt) {
  ASSERT_TRUE(QDir().mkpath(home.dataFile() + u"/inside"_s));
  service.save({}, {});
  EXPECT_TRUE(QFileInfo(home.dataFile() + u"/inside"_s).isDir());
}

TEST_F(StorageServiceTest, SaveAndLoad_BelowAFile_DoNothing) {
  ASSERT_TRUE(home.write(home.dataHome(), "a file where the directory should be"));
  const DataDocument data = sampleData();
  service.save(data.groups, data.items);
  EXPECT_EQ(service.load(), DataDocument());
  EXPECT_EQ(home.read(home.dataHome()), "a file where the directory should be");
}

TEST_F(StorageServiceTest, Export_GivesWhatSaveWrites) {
  const DataDocument data = sampleData();
  service.save(data.groups, data.items);
  EXPECT_EQ(service.exportJSON(data.groups, data.items), home.read(home.dataFile()));
}

TEST_F(StorageServiceTest, Export_OfWhatCannotBeEncoded_IsNone) {
  DataDocument data = sampleData();
  data.items.first().lastAccessed = Date{std::numeric_limits<double>::infinity()};
  EXPECT_EQ(service.exportJSON(data.groups, data.items), std::nullopt);
}

TEST_F(StorageServiceTest, Export_WritesNothingToDisk) {
  service.exportJSON({}, {});
  EXPECT_FALSE(QFileInfo::exists(home.dataHome()));
}

TEST_F(StorageServiceTest, Import_OfAnExport_GivesTheSameData) {
  const DataDocument data = sampleData();
  EXPECT_EQ(service.importJSON(*service.exportJSON(data.groups, data.items)), data);
}

TEST_F(StorageServiceTest, Import_OfAnythingElse_IsNone) {
  EXPECT_EQ(service.importJSON("{\"groups\":[]}"), std::nullopt);
}

TEST_F(StorageServiceTest, Save_ThroughALink_ReplacesItsTarget) {
  const QString target = home.root() + u"/elsewhere/my.json"_s;
  ASSERT_TRUE(home.write(target, "old"));
  ASSERT_TRUE(QDir().mkpath(home.dataHome() + u"/Lanternix"_s));
  ASSERT_TRUE(QFile::link(target, home.dataFile()));
  service.save({}, {});
  EXPECT_TRUE(QFileInfo(home.dataFile()).isSymLink());
  EXPECT_EQ(home.read(target), DataDocument().encoded());
}

using StorageServiceDeathTest = StorageServiceTest;

TEST_F(StorageServiceDeathTest, WithoutAPlaceForData_TheProgramStops) {
  HomelessFileManager homeless;
  StorageService homelessService(homeless);
  EXPECT_DEATH(homelessService.load(), "no place for its data");
}

}  // namespace
}  // namespace lanternix
