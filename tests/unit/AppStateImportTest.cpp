#include "support/StoreFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace lanternix {

namespace {

class AppStateImport : public testing::Test, public StoreFixture {
 protected:
  const PathGroup group = foldedGroup(u"Group"_s, 3);
  const PathItem first = opened(item(u"First"_s, group, 1, u"/a/ß"_s), 12.25);
  const PathItem second = item(u"Second"_s, group, 0);
  const DataDocument document{{group}, {first, second}};

  static void expectData(const AppState &state, const DataDocument &expected) {
    EXPECT_EQ(state.groups(), expected.groups);
    EXPECT_EQ(state.items(), expected.items);
  }
};

}  // namespace

TEST_F(AppStateImport, ExportThenImport_RestoresTheDataExactly) {
  const auto state = makeState(document.groups, document.items);
  const std::optional<QByteArray> exported = state->exportData();
  ASSERT_TRUE(exported.has_value());
  state->deleteGroup(group.id);
  state->importData(*exported);
  expectData(*state, document);
  EXPECT_EQ(savedData(), document);
}

TEST_F(AppStateImport, ExportData_IsTheDataFileByteForByte) {
  const auto state = makeState(document.groups, document.items);
  state->deleteItem(QUuid::createUuid());
  EXPECT_EQ(state->exportData(), TemporaryHome::read(home.dataFile()));
}

TEST_F(AppStateImport, ExportData_DateThatJsonCannotExpress_GivesNone) {
  const auto state = makeState();
  PathItem timeless = first;
  timeless.dateAdded = Date{std::numeric_limits<double>::infinity()};
  state->addItem(timeless);
  EXPECT_EQ(state->exportData(), std::nullopt);
}

TEST_F(AppStateImport, ImportData_ReplacesEverythingAndSaves) {
  const auto state = makeState({StoreFixture::group(u"Old"_s)}, {});
  state->importData(*document.encoded());
  expectData(*state, document);
  EXPECT_EQ(savedData(), document);
}

TEST_F(AppStateImport, ImportData_RepairsNoOrders) {
  const DataDocument gaps{{group}, {item(u"a"_s, group, 7), item(u"b"_s, group, 7)}};
  const auto state = makeState();
  state->importData(*gaps.encoded());
  expectData(*state, gaps);
}

TEST_F(AppStateImport, ImportData_ItemsOfMissingGroups_AreKept) {
  const DataDocument orphans{{}, {first, second}};
  const auto state = makeState();
  state->importData(*orphans.encoded());
  expectData(*state, orphans);
  EXPECT_EQ(savedData(), orphans);
}

TEST_F(AppStateImport, ImportData_NoDocument_NeitherChangesNorSaves) {
  const auto state = makeState(document.groups, document.items);
  const QList<PathItem> before = state->items();
  EXPECT_FALSE(saves([&] {
    state->importData(R"({"groups" : []})");
    state->importData(R"({"items" : []})");
    state->importData("");
    state->importData("[]");
    state->importData("\xff\xfe");
  }));
  EXPECT_EQ(state->items(), before);
}

TEST_F(AppStateImport, ImportData_TheSameData_SavesAllTheSame) {
  const auto state = makeState(document.groups, document.items);
  EXPECT_TRUE(saves([&] { state->importData(*state->exportData()); }));
}

TEST_F(AppStateImport, ImportData_LeavesSearchSelectionAndPreferences) {
  const auto state = makeState({StoreFixture::group(u"Old"_s)}, {});
  state->setShowURLs(false);
  state->setSearchQuery(u"sec"_s);
  state->setSelectedItemId(first.id);
  state->importData(*document.encoded());
  EXPECT_EQ(state->searchQuery(), u"sec"_s);
  EXPECT_EQ(state->selectedItemId(), first.id);
  EXPECT_FALSE(state->showURLs());
  EXPECT_EQ(names(state->navigationItems()), QStringList{u"Second"_s});
}

TEST_F(AppStateImport, ImportData_OfTheDataFile_Works) {
  writeData(document.groups, document.items);
  const QByteArray file = *TemporaryHome::read(home.dataFile());
  QFile::remove(home.dataFile());
  const auto state = makeState();
  state->importData(file);
  expectData(*state, document);
}

TEST_F(AppStateImport, RestoreFromBackup_ReplacesEverythingAndSaves) {
  const auto state = makeState(document.groups, document.items);  // which backs the file up
  const QList<BackupInfo> backups = state->backupService().listBackups();
  ASSERT_EQ(backups.size(), 1);
  state->deleteGroup(group.id);
  state->restoreFromBackup(backups[0]);
  expectData(*state, document);
  EXPECT_EQ(savedData(), document);
}

TEST_F(AppStateImport, RestoreFromBackup_NextDay_BacksUpTheRestoredData) {
  auto state = makeState(document.groups, document.items);
  const BackupInfo backup = state->backupService().listBackups().value(0);
  state->deleteGroup(group.id);
  state->restoreFromBackup(backup);
  clock.advance(86'400);
  state = makeState();
  ASSERT_EQ(state->backupService().listBackups().size(), 2);
  EXPECT_EQ(state->backupService().restore(state->backupService().listBackups()[0]), document);
}

TEST_F(AppStateImport, RestoreFromBackup_UnreadableOrBroken_NeitherChangesNorSaves) {
  const auto state = makeState(document.groups, document.items);
  const QList<PathItem> before = state->items();
  const QString broken = home.backupDirectory() + u"/backup-broken.json"_s;
  TemporaryHome::write(broken, "{");
  EXPECT_FALSE(saves([&] {
    state->restoreFromBackup({QUuid(), Date(), home.backupDirectory() + u"/backup-gone.json"_s});
    state->restoreFromBackup({QUuid(), Date(), broken});
  }));
  EXPECT_EQ(state->items(), before);
}

}  // namespace lanternix
