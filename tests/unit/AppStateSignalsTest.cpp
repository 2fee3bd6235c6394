#include "support/ChangeRecorder.h"
#include "support/StoreFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace lanternix {

namespace {

// A store with one folded group of two items, and a note of the signals it emits.
class AppStateSignals : public testing::Test, public StoreFixture {
 protected:
  const PathGroup group = foldedGroup(u"Group"_s);
  const PathItem first = item(u"First"_s, group, 0);
  const PathItem second = item(u"Second"_s, group, 1);
  const std::unique_ptr<AppState> state = makeState({group}, {first, second});
  ChangeRecorder changes{*state};
};

}  // namespace

TEST_F(AppStateSignals, GroupOperations_AnnounceTheGroups) {
  const QStringList groupsAlone{u"groups"_s};
  state->addGroup(StoreFixture::group(u"Other"_s));
  EXPECT_EQ(changes.take(), groupsAlone);
  state->moveGroup({0}, 2);
  EXPECT_EQ(changes.take(), groupsAlone);
  state->toggleGroup(group.id);
  EXPECT_EQ(changes.take(), groupsAlone);
  PathGroup renamed = state->groups()[0];
  renamed.name = u"Renamed"_s;
  state->updateGroup(renamed);
  EXPECT_EQ(changes.take(), groupsAlone);
  state->deleteGroup(renamed.id);
  EXPECT_EQ(changes.take(), groupsAlone);
}

TEST_F(AppStateSignals, ItemOperations_AnnounceTheItems) {
  const QStringList itemsAlone{u"items"_s};
  state->addItem(item(u"Third"_s, group));
  EXPECT_EQ(changes.take(), itemsAlone);
  state->moveItems({0}, 3, group.id);
  EXPECT_EQ(changes.take(), itemsAlone);
  state->duplicateItem(first);
  EXPECT_EQ(changes.take(), itemsAlone);
  PathItem renamed = first;
  renamed.name = u"Renamed"_s;
  state->updateItem(renamed);
  EXPECT_EQ(changes.take(), itemsAlone);
  state->deleteItem(first.id);
  EXPECT_EQ(changes.take(), itemsAlone);
}

TEST_F(AppStateSignals, MoveItem_ToAnotherGroup_AnnouncesTheItems) {
  const PathGroup other = StoreFixture::group(u"Other"_s);
  state->addGroup(other);
  changes.take();
  state->moveItem(first.id, other.id);
  EXPECT_EQ(changes.take(), QStringList{u"items"_s});
}

TEST_F(AppStateSignals, DeleteGroup_WithItems_AnnouncesBothOnce) {
  state->deleteGroup(group.id);
  EXPECT_EQ(changes.take(), (QStringList{u"groups"_s, u"items"_s}));
}

TEST_F(AppStateSignals, OperationsWithoutEffect_AnnounceNothing) {
  const QUuid unknown = QUuid::createUuid();
  state->updateGroup(group);
  state->updateGroup(StoreFixture::group(u"Unknown"_s));
  state->updateItem(first);
  state->updateItem(item(u"Unknown"_s, group));
  state->deleteGroup(unknown);
  state->deleteItem(unknown);
  state->toggleGroup(unknown);
  state->moveGroup({0}, 1);
  state->moveItems({0}, 0, group.id);
  state->moveItem(first.id, group.id);
  state->setSearchQuery(QString());
  state->setSelectedItemId({});
  state->setPanelVisible(false);
  state->hidePanel();
  state->importData("no document");
  state->importData(*state->exportData());
  EXPECT_EQ(changes.take(), QStringList());
}

TEST_F(AppStateSignals, SetSearchQuery_FirstLetter_AnnouncesEachPropertyOnce) {
  state->setSearchQuery(u"s"_s);
  EXPECT_EQ(changes.take(), (QStringList{u"groups"_s, u"searchQuery"_s, u"selectedItemId"_s}));
}

TEST_F(AppStateSignals, SetSearchQuery_NextLetter_AnnouncesWhatChanges) {
  state->setSearchQuery(u"s"_s);
  changes.take();
  state->setSearchQuery(u"se"_s);
  EXPECT_EQ(changes.take(), (QStringList{u"searchQuery"_s, u"selectedItemId"_s}));
  state->setSearchQuery(u"sec"_s);
  EXPECT_EQ(changes.take(), QStringList{u"searchQuery"_s});
  state->setSearchQuery(u"sec"_s);
  EXPECT_EQ(changes.take(), QStringList());
}

TEST_F(AppStateSignals, SetSelectedItemId_AnnouncesARealChangeOnly) {
  state->setSelectedItemId(first.id);
  EXPECT_EQ(changes.take(), QStringList{u"selectedItemId"_s});
  state->setSelectedItemId(first.id);
  EXPECT_EQ(changes.take(), QStringList());
  state->setSelectedItemId({});
  EXPECT_EQ(changes.take(), QStringList{u"selectedItemId"_s});
}

TEST_F(AppStateSignals, Navigate_OneItem_AnnouncesItsSelectionOnce) {
  state->deleteItem(second.id);
  state->toggleGroup(group.id);
  changes.take();
  state->navigateDown();
  EXPECT_EQ(changes.take(), QStringList{u"selectedItemId"_s});
  state->navigateDown();
  state->navigateUp();
  EXPECT_EQ(changes.take(), QStringList());
}

TEST_F(AppStateSignals, OpenItem_WhileSearching_AnnouncesEachPropertyOnce) {
  state->setPanelVisible(true);
  state->setSearchQuery(u"first"_s);
  changes.take();
  state->openSelectedOrFirstItem();
  EXPECT_EQ(changes.take(),
            (QStringList{u"isPanelVisible"_s, u"items"_s, u"searchQuery"_s, u"selectedItemId"_s}));
}

TEST_F(AppStateSignals, SetSearchQuery_EverySlot_SeesTheFinishedState) {
  int seen = 0;
  const auto check = [&] {
    ++seen;
    EXPECT_EQ(state->searchQuery(), u"second"_s);
    EXPECT_EQ(state->selectedItemId(), second.id);
    EXPECT_TRUE(state->groups()[0].isExpanded);
    EXPECT_THAT(state->navigationItems(), ElementsAre(second));
  };
  QObject context;
  QObject::connect(state.get(), &AppState::searchQueryChanged, &context, check);
  QObject::connect(state.get(), &AppState::selectedItemIdChanged, &context, check);
  QObject::connect(state.get(), &AppState::groupsChanged, &context, check);
  state->setSearchQuery(u"second"_s);
  EXPECT_EQ(seen, 3);
}

TEST_F(AppStateSignals, DeleteGroup_EverySlot_SeesTheFinishedStateOnDisk) {
  int seen = 0;
  const auto check = [&] {
    ++seen;
    EXPECT_THAT(state->groups(), IsEmpty());
    EXPECT_THAT(state->items(), IsEmpty());
    EXPECT_EQ(savedData(), DataDocument());
  };
  QObject context;
  QObject::connect(state.get(), &AppState::groupsChanged, &context, check);
  QObject::connect(state.get(), &AppState::itemsChanged, &context, check);
  state->deleteGroup(group.id);
  EXPECT_EQ(seen, 2);
}

TEST_F(AppStateSignals, OpenItem_EverySlot_SeesTheFinishedState) {
  state->setPanelVisible(true);
  state->setSearchQuery(u"f"_s);
  int seen = 0;
  const auto check = [&] {
    ++seen;
    EXPECT_EQ(state->items()[0].lastAccessed, clock.now());
    EXPECT_EQ(state->searchQuery(), u""_s);
    EXPECT_EQ(state->selectedItemId(), std::nullopt);
    EXPECT_FALSE(state->isPanelVisible());
  };
  QObject context;
  QObject::connect(state.get(), &AppState::itemsChanged, &context, check);
  QObject::connect(state.get(), &AppState::searchQueryChanged, &context, check);
  QObject::connect(state.get(), &AppState::isPanelVisibleChanged, &context, check);
  state->openItem(first);
  EXPECT_EQ(seen, 3);
}

TEST_F(AppStateSignals, SlotThatCallsAnOperation_LeavesOneConsistentEnd) {
  QObject context;
  QObject::connect(state.get(), &AppState::searchQueryChanged, &context, [this] {
    if (!state->searchQuery().isEmpty()) {
      state->deleteItem(first.id);
      state->hidePanel();
    }
  });
  state->setSearchQuery(u"first"_s);
  EXPECT_EQ(state->searchQuery(), u""_s);
  EXPECT_EQ(state->selectedItemId(), std::nullopt);
  EXPECT_THAT(state->items(), ElementsAre(second));
  EXPECT_THAT(state->navigationItems(), ElementsAre(second));
  EXPECT_EQ(savedData(), (DataDocument{state->groups(), state->items()}));
}

TEST_F(AppStateSignals, CallbackThatCallsAnOperation_LeavesOneConsistentEnd) {
  state->onHide = [this] { state->deleteGroup(group.id); };
  state->openItem(first);
  EXPECT_THAT(state->items(), IsEmpty());
  EXPECT_THAT(state->filteredGroups(), IsEmpty());
  EXPECT_EQ(changes.take(), (QStringList{u"groups"_s, u"items"_s}));
}

}  // namespace lanternix
