#include "Services/Preferences.h"
#include "support/ChangeRecorder.h"
#include "support/StoreFixture.h"

#include <QtCore/QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

class AppStatePreferences : public testing::Test, public StoreFixture {};

}  // namespace

TEST_F(AppStatePreferences, ShowURLs_Stored_IsRead) {
  userDefaults.setBoolean(false, "showURLs");
  EXPECT_FALSE(makeState()->showURLs());
}

TEST_F(AppStatePreferences, ShowURLs_NotABoolean_ReadsAsTrue) {
  userDefaults.setString(u"perhaps"_s, "showURLs");
  EXPECT_TRUE(makeState()->showURLs());
}

TEST_F(AppStatePreferences, ShowRecentItems_Stored_IsRead) {
  userDefaults.setBoolean(false, "showRecentItems");
  EXPECT_FALSE(makeState()->showRecentItems());
}

TEST_F(AppStatePreferences, ShowRecentItems_NotABoolean_ReadsAsTrue) {
  userDefaults.setString(u"perhaps"_s, "showRecentItems");
  EXPECT_TRUE(makeState()->showRecentItems());
}

TEST_F(AppStatePreferences, PanelItemSize_EachSize_IsRead) {
  for (const PanelItemSize size : allPanelItemSizes) {
    userDefaults.setString(rawValue(size), "panelItemSize");
    EXPECT_EQ(makeState()->panelItemSize(), size);
  }
}

TEST_F(AppStatePreferences, PanelItemSize_UnknownText_ReadsAsMedium) {
  for (const QString &text : {u"huge"_s, u"Large"_s, u""_s}) {
    userDefaults.setString(text, "panelItemSize");
    EXPECT_EQ(makeState()->panelItemSize(), PanelItemSize::medium);
  }
}

TEST_F(AppStatePreferences, BackupRetentionDays_Three_ReadsAsThree) {
  userDefaults.setInteger(3, "backupRetentionDays");
  EXPECT_EQ(makeState()->backupRetentionDays(), 3);
}

TEST_F(AppStatePreferences, BackupRetentionDays_Zero_ReadsAsFifteen) {
  userDefaults.setInteger(0, "backupRetentionDays");
  EXPECT_EQ(makeState()->backupRetentionDays(), 15);
}

TEST_F(AppStatePreferences, BackupRetentionDays_NotANumber_ReadsAsFifteen) {
  userDefaults.setString(u"many"_s, "backupRetentionDays");
  EXPECT_EQ(makeState()->backupRetentionDays(), 15);
}

TEST_F(AppStatePreferences, Setters_NewValues_AreFoundAtTheNextStart) {
  auto state = makeState();
  state->setShowURLs(false);
  state->setShowRecentItems(false);
  state->setPanelItemSize(PanelItemSize::large);
  state->setBackupRetentionDays(7);
  state = makeState();
  EXPECT_FALSE(state->showURLs());
  EXPECT_FALSE(state->showRecentItems());
  EXPECT_EQ(state->panelItemSize(), PanelItemSize::large);
  EXPECT_EQ(state->backupRetentionDays(), 7);
}

TEST_F(AppStatePreferences, Setters_NewValue_AnnounceTheirPropertyAlone) {
  const auto state = makeState();
  ChangeRecorder changes(*state);
  state->setShowURLs(false);
  EXPECT_EQ(changes.take(), QStringList{u"showURLs"_s});
  state->setShowRecentItems(false);
  EXPECT_EQ(changes.take(), QStringList{u"showRecentItems"_s});
  state->setPanelItemSize(PanelItemSize::small);
  EXPECT_EQ(changes.take(), QStringList{u"panelItemSize"_s});
  state->setBackupRetentionDays(1);
  EXPECT_EQ(changes.take(), QStringList{u"backupRetentionDays"_s});
}

TEST_F(AppStatePreferences, Setters_SameValue_WriteItAndAnnounceNothing) {
  const auto state = makeState();
  ChangeRecorder changes(*state);
  userDefaults.setBoolean(false, "showURLs");  // as another program might meanwhile
  userDefaults.setBoolean(false, "showRecentItems");
  userDefaults.setString(u"small"_s, "panelItemSize");
  userDefaults.setInteger(2, "backupRetentionDays");
  state->setShowURLs(true);
  state->setShowRecentItems(true);
  state->setPanelItemSize(PanelItemSize::medium);
  state->setBackupRetentionDays(15);
  EXPECT_TRUE(userDefaults.boolean("showURLs").value);
  EXPECT_TRUE(userDefaults.boolean("showRecentItems").value);
  EXPECT_EQ(userDefaults.string("panelItemSize").value, u"medium"_s);
  EXPECT_EQ(userDefaults.integer("backupRetentionDays").value, 15);
  EXPECT_EQ(changes.take(), QStringList());
}

TEST_F(AppStatePreferences, Setters_DoNotSaveTheData) {
  const auto state = makeState();
  EXPECT_FALSE(saves([&] {
    state->setShowURLs(false);
    state->setShowRecentItems(false);
    state->setPanelItemSize(PanelItemSize::large);
    state->setBackupRetentionDays(3);
  }));
}

TEST_F(AppStatePreferences, SetBackupRetentionDays_PrunesNothing) {
  for (int day = 0; day < 3; ++day) {
    makeState();
    clock.advance(86'400);
  }
  const auto state = makeState();
  state->setBackupRetentionDays(1);
  EXPECT_EQ(QDir(home.backupDirectory()).entryList(QDir::Files).size(), 4);
}

}  // namespace lanternix
