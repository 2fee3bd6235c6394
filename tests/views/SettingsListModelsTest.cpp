#include "Views/Settings/GroupListModel.h"
#include "Views/Settings/ItemListModel.h"
#include "views/ViewTest.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

class SettingsListModelsTest : public ViewTest {
 protected:
  PathGroup work = group(u"Work"_s, 1);
  PathGroup home_ = group(u"Home"_s, 0);
  PathItem report = item(u"Report"_s, work, 1);
  PathItem notes = item(u"Notes"_s, work, 0);
  std::unique_ptr<AppState> state = makeState({work, home_}, {report, notes});
};

QStringList shown(const QAbstractItemModel &model) {
  QStringList names;
  for (int row = 0; row < model.rowCount(); ++row) {
    names.append(model.index(row, 0).data().toString());
  }
  return names;
}

}  // namespace

TEST_F(SettingsListModelsTest, Groups_AreInDisplayOrder_WithTheirCounts) {
  const GroupListModel model(*state);
  EXPECT_EQ(shown(model), (QStringList{u"Home"_s, u"Work"_s}));
  EXPECT_EQ(model.index(0).data(GroupListModel::CountRole).toInt(), 0);
  EXPECT_EQ(model.index(1).data(GroupListModel::CountRole).toInt(), 2);
}

TEST_F(SettingsListModelsTest, Items_AreThoseOfTheGroup_InDisplayOrder) {
  ItemListModel model(*state);
  EXPECT_EQ(model.rowCount(), 0);
  model.setGroupId(work.id);
  EXPECT_EQ(shown(model), (QStringList{u"Notes"_s, u"Report"_s}));
  model.setGroupId(QUuid::createUuid());
  EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(SettingsListModelsTest, ABrokenItem_IsDescribedAsSuch) {
  notes.type = ItemType::file;
  notes.path = u"/nowhere"_s;
  state->updateItem(notes);
  ItemListModel model(*state);
  model.setGroupId(work.id);
  EXPECT_EQ(model.index(0).data(Qt::AccessibleDescriptionRole).toString(),
            u"File, not found, /nowhere"_s);
}

TEST_F(SettingsListModelsTest, WhatIsBroken_DependsOnTheType) {
  ItemListModel model(*state);
  model.setGroupId(work.id);
  const auto description = [&](ItemType type, const QString &path) {
    notes.type = type;
    notes.path = path;
    state->updateItem(notes);
    return model.index(0).data(Qt::AccessibleDescriptionRole).toString();
  };
  EXPECT_EQ(description(ItemType::link, u"http://["_s), u"Link, not a valid address, http://["_s);
  EXPECT_EQ(description(ItemType::command, u" "_s), u"Command, empty command,  "_s);
  EXPECT_EQ(description(ItemType::command, {}), u"Command, empty command"_s);
}

TEST_F(SettingsListModelsTest, WhatIsHeard_IsNoLongerThanAnybodyListens) {
  const QString endless(100'000, u'x');
  report.name = endless;
  notes.name = u"two\nlines"_s;
  notes.path = endless;
  work.name = endless;
  state = makeState({work}, {report, notes});
  GroupListModel groups(*state);
  ItemListModel items(*state);
  items.setGroupId(work.id);
  constexpr qsizetype longest = 1100;
  const auto heard = [](const QAbstractItemModel &model, int row, int role) {
    return model.index(row, 0).data(role).toString();
  };
  EXPECT_EQ(heard(items, 0, Qt::AccessibleTextRole), u"two lines"_s);
  EXPECT_LT(heard(items, 0, Qt::AccessibleDescriptionRole).size(), longest);
  EXPECT_LT(heard(items, 1, Qt::AccessibleTextRole).size(), longest);
  EXPECT_LT(heard(groups, 0, Qt::AccessibleTextRole).size(), longest);
  EXPECT_EQ(heard(groups, 0, Qt::DisplayRole), endless);
}

TEST_F(SettingsListModelsTest, AChangeOfContent_IsNoNewList) {
  GroupListModel groups(*state);
  ItemListModel items(*state);
  items.setGroupId(work.id);
  const QSignalSpy groupResets(&groups, &QAbstractItemModel::modelReset);
  const QSignalSpy itemResets(&items, &QAbstractItemModel::modelReset);
  const QSignalSpy groupChanges(&groups, &QAbstractItemModel::dataChanged);
  const QSignalSpy itemChanges(&items, &QAbstractItemModel::dataChanged);
  work.name = u"Office"_s;
  state->updateGroup(work);
  state->openItem(report);
  EXPECT_EQ(groupResets.count(), 0);
  EXPECT_EQ(itemResets.count(), 0);
  EXPECT_GT(groupChanges.count(), 0);
  EXPECT_GT(itemChanges.count(), 0);
}

TEST_F(SettingsListModelsTest, KeepTheContractOfModels_ThroughEveryChange) {
  GroupListModel groups(*state);
  ItemListModel items(*state);
  const QAbstractItemModelTester groupTester(&groups,
                                             QAbstractItemModelTester::FailureReportingMode::Fatal);
  const QAbstractItemModelTester itemTester(&items,
                                            QAbstractItemModelTester::FailureReportingMode::Fatal);
  items.setGroupId(work.id);
  groups.moveRow(0, 2);
  items.moveRow(1, 0);
  state->addItem(item(u"New"_s, work));
  state->moveItem(notes.id, home_.id);
  state->setSearchQuery(u"rep"_s);
  state->setSearchQuery(u"hom:"_s);
  state->setSearchQuery({});
  state->deleteGroup(work.id);
  EXPECT_EQ(items.rowCount(), 0);
  state->deleteGroup(home_.id);
  EXPECT_EQ(groups.rowCount(), 0);
}

TEST_F(SettingsListModelsTest, RepeatedIds_AreNoMatter) {
  state = makeState({work, work}, {report, report});
  GroupListModel groups(*state);
  ItemListModel items(*state);
  items.setGroupId(work.id);
  EXPECT_EQ(groups.rowCount(), 2);
  EXPECT_EQ(items.rowCount(), 2);
  EXPECT_EQ(items.rowOf(report.id), 0);
  groups.moveRow(1, 0);
  items.moveRow(1, 0);
  EXPECT_EQ(groups.rowCount(), 2);
}

}  // namespace lanternix
