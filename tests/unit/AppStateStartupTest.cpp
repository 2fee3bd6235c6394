#include "Services/Preferences.h"
#include "support/StoreFixture.h"

#include <QtCore/QDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace lanternix {

namespace {

class AppStateStartup : public testing::Test, public StoreFixture {
 protected:
  QStringList backups() const {
    return QDir(home.backupDirectory()).entryList(QDir::Files, QDir::Name);
  }

  std::optional<DataDocument> onlyBackup() const {
    const QStringList files = backups();
    if (files.size() != 1) {
      return {};
    }
    return DataDocument::decoded(
        TemporaryHome::read(home.backupDirectory() + u'/' + files.front()).value_or(QByteArray()));
  }
};

}  // namespace

TEST_F(AppStateStartup, FirstStart_IsEmptyWithDefaultPreferences) {
  const auto state = makeState();
  EXPECT_THAT(state->groups(), IsEmpty());
  EXPECT_THAT(state->items(), IsEmpty());
  EXPECT_EQ(state->searchQuery(), u""_s);
  EXPECT_EQ(state->selectedItemId(), std::nullopt);
  EXPECT_FALSE(state->isPanelVisible());
  EXPECT_TRUE(state->showURLs());
  EXPECT_TRUE(state->showRecentItems());
  EXPECT_EQ(state->panelItemSize(), PanelItemSize::medium);
  EXPECT_EQ(state->backupRetentionDays(), 15);
}

TEST_F(AppStateStartup, FirstStart_WritesNoDataFile) {
  makeState();
  EXPECT_FALSE(QFile::exists(home.dataFile()));
}

TEST_F(AppStateStartup, Start_ReadsGroupsAndItemsInStorageOrder) {
  const PathGroup second = group(u"Second"_s, 1);
  const PathGroup first = group(u"First"_s, 0);
  const PathItem a = opened(item(u"a"_s, first, 0), 12.5);
  const PathItem b = item(u"b"_s, second, 0);
  const auto state = makeState({second, first}, {a, b});
  EXPECT_THAT(state->groups(), ElementsAre(second, first));
  EXPECT_THAT(state->items(), ElementsAre(a, b));
}

TEST_F(AppStateStartup, Start_BrokenDataFile_IsEmptyAndLeavesTheFileUntouched) {
  const QByteArray broken = R"({"groups" : []})";
  TemporaryHome::write(home.dataFile(), broken);
  const auto state = makeState();
  EXPECT_THAT(state->groups(), IsEmpty());
  EXPECT_THAT(state->items(), IsEmpty());
  EXPECT_EQ(TemporaryHome::read(home.dataFile()), broken);
}

TEST_F(AppStateStartup, Start_RepairsItemOrdersInMemoryOnly) {
  const PathGroup only = group(u"Only"_s);
  writeData({only}, {item(u"x"_s, only, 3), item(u"y"_s, only, 3), item(u"z"_s, only, 7)});
  const std::optional<DataDocument> before = savedData();
  const auto state = makeState();
  EXPECT_EQ(state->items()[2].order, 2);
  EXPECT_EQ(savedData(), before);
}

TEST_F(AppStateStartup, Start_RegistersTheShortcut) {
  const auto state = makeState();
  EXPECT_TRUE(hotkeyRegistrar.registered.has_value());
}

TEST_F(AppStateStartup, Start_ShortcutHeldByAnotherProgram_StartsAllTheSame) {
  hotkeyRegistrar.refuses = true;
  const auto state = makeState();
  EXPECT_FALSE(state->hotkeyService().isRegistered());
}

TEST_F(AppStateStartup, Start_BacksUpTheDataAsTheyWereRead) {
  const PathGroup only = group(u"Only"_s);
  const DataDocument data{{only}, {item(u"p"_s, only, 5), item(u"q"_s, only, 1)}};
  const auto state = makeState(data.groups, data.items);
  EXPECT_EQ(onlyBackup(), data);
  EXPECT_EQ(state->items()[0].order, 1);  // in memory they were repaired
}

TEST_F(AppStateStartup, Start_WithoutData_BacksUpAnEmptyDocument) {
  makeState();
  EXPECT_EQ(onlyBackup(), DataDocument());
}

TEST_F(AppStateStartup, Start_TwiceADay_BacksUpOnce) {
  makeState();
  clock.advance(60);
  makeState();
  EXPECT_EQ(backups().size(), 1);
}

TEST_F(AppStateStartup, Start_KeepsAsManyBackupsAsPreferred) {
  userDefaults.setInteger(2, Preferences::backupRetentionDays.key);
  for (int day = 0; day < 4; ++day) {
    makeState();
    clock.advance(86'400);
  }
  EXPECT_EQ(backups().size(), 2);
}

TEST_F(AppStateStartup, Start_NegativeRetention_KeepsTheBackups) {
  makeState();
  clock.advance(86'400);
  userDefaults.setInteger(-3, Preferences::backupRetentionDays.key);
  const auto state = makeState();
  EXPECT_EQ(backups().size(), 2);
  EXPECT_EQ(state->backupRetentionDays(), 15);
}

}  // namespace lanternix
