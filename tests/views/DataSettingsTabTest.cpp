#include "views/DataSettingsTabTest.h"

using namespace Qt::StringLiterals;

namespace lanternix {

TEST_F(DataSettingsTabTest, TheTab_HasItsSectionsAndRowsInOrder) {
  QDir(home.backupDirectory()).removeRecursively();
  show();
  EXPECT_EQ(texts(*tab), (QStringList{u"Export / Import"_s,
                                      u"Export Data"_s,
                                      u"Save your groups and items as a JSON backup file"_s,
                                      u"Import Data"_s,
                                      u"Restore groups and items from a JSON backup file"_s,
                                      u"Automatic Backups"_s,
                                      u"Backup Retention"_s,
                                      u"Number of daily backups to keep"_s,
                                      u"Create Backup Now"_s,
                                      u"Manually save a snapshot of current data"_s,
                                      u"Saved Backups (0)"_s,
                                      u"Statistics"_s,
                                      u"Groups"_s,
                                      u"0"_s,
                                      u"Total Items"_s,
                                      u"0"_s,
                                      u"Directories"_s,
                                      u"0"_s,
                                      u"Files"_s,
                                      u"0"_s,
                                      u"Links"_s,
                                      u"0"_s}));
  for (const QString &text : {u"Export..."_s, u"Import..."_s, u"Create Backup"_s}) {
    EXPECT_NE(button(*tab, text), nullptr);
  }
}

TEST_F(DataSettingsTabTest, WhatTheKeyboardReaches_ComesIntoSight) {
  show();
  tab->resize(600, 200);
  QAbstractButton *restore = button(*tab, u"Restore"_s);
  restore->setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(waitUntil([&] {
    return tab->rect().contains(restore->mapTo(tab.get(), restore->rect().bottomRight()));
  }));
}

TEST_F(DataSettingsTabTest, Statistics_FollowTheStore) {
  const PathGroup group = this->group(u"Work"_s);
  show();
  state->addGroup(group);
  for (const ItemType type : {ItemType::directory, ItemType::file, ItemType::file, ItemType::link,
                              ItemType::link, ItemType::link}) {
    state->addItem(typed(type, group));
  }
  EXPECT_EQ(figure(u"Groups"_s), u"1"_s);
  EXPECT_EQ(figure(u"Total Items"_s), u"6"_s);
  EXPECT_EQ(figure(u"Directories"_s), u"1"_s);
  EXPECT_EQ(figure(u"Files"_s), u"2"_s);
  EXPECT_EQ(figure(u"Links"_s), u"3"_s);
}

TEST_F(DataSettingsTabTest, Commands_CountInTheTotalOnly) {
  const PathGroup group = this->group(u"Work"_s);
  state = makeState({group}, {typed(ItemType::command, group)});
  show();
  EXPECT_EQ(figure(u"Total Items"_s), u"1"_s);
  for (const QString &title : {u"Directories"_s, u"Files"_s, u"Links"_s}) {
    EXPECT_EQ(figure(title), u"0"_s);
  }
}

}  // namespace lanternix
