#include "App/AppState.h"
#include "support/StoreFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace lanternix {

namespace {

constexpr qint64 largestOrder = std::numeric_limits<qint64>::max();

class AppStateOperations : public testing::Test, public StoreFixture {
 protected:
  template <typename Record>
  static QList<qint64> orders(const QList<Record> &records) {
    QList<qint64> result;
    for (const Record &record : records) {
      result.append(record.order);
    }
    return result;
  }

  void expectSaved(const AppState &state) const {
    EXPECT_EQ(savedData(), (DataDocument{state.groups(), state.items()}));
  }
};

}  // namespace

// --- Groups -------------------------------------------------------------------------------------

TEST_F(AppStateOperations, AddGroup_ToNone_GetsOrderZero) {
  const auto state = makeState();
  state->addGroup(group(u"First"_s, 77));
  EXPECT_THAT(orders(state->groups()), ElementsAre(0));
  expectSaved(*state);
}

TEST_F(AppStateOperations, AddGroup_GetsTheLargestOrderPlusOne) {
  const auto state = makeState({group(u"a"_s, 0), group(u"b"_s, 5), group(u"c"_s, 2)}, {});
  state->addGroup(group(u"d"_s));
  EXPECT_THAT(orders(state->groups()), ElementsAre(0, 5, 2, 6));
  expectSaved(*state);
}

TEST_F(AppStateOperations, AddGroup_NegativeOrders_GetsTheLargestPlusOne) {
  const auto state = makeState({group(u"a"_s, -7), group(u"b"_s, -5)}, {});
  state->addGroup(group(u"c"_s));
  EXPECT_EQ(state->groups()[2].order, -4);
}

TEST_F(AppStateOperations, AddGroup_LargestPossibleOrderTaken_RenumbersFirst) {
  const auto state = makeState({group(u"b"_s, largestOrder), group(u"a"_s, 3)}, {});
  state->addGroup(group(u"c"_s));
  EXPECT_THAT(orders(state->groups()), ElementsAre(1, 0, 2));
  expectSaved(*state);
}

TEST_F(AppStateOperations, UpdateGroup_ReplacesTheFirstWithTheIdWhole) {
  const PathGroup before = group(u"Old"_s, 4);
  PathGroup twin = group(u"Twin"_s, 1);
  twin.id = before.id;
  const auto state = makeState({group(u"Other"_s), before, twin}, {});
  const PathGroup after{before.id, u"New"_s, u"star"_s, u"red"_s, 9, false};
  state->updateGroup(after);
  EXPECT_EQ(state->groups()[1], after);
  EXPECT_EQ(state->groups()[2], twin);
  expectSaved(*state);
}

TEST_F(AppStateOperations, UpdateGroup_UnknownId_NeitherChangesNorSaves) {
  const PathGroup only = group(u"Only"_s);
  const auto state = makeState({only}, {});
  EXPECT_FALSE(saves([&] { state->updateGroup(group(u"Unknown"_s)); }));
  EXPECT_THAT(state->groups(), ElementsAre(only));
}

TEST_F(AppStateOperations, DeleteGroup_RemovesItsItemsInTheSameSave) {
  const PathGroup a = group(u"a"_s, 0);
  const PathGroup b = group(u"b"_s, 1);
  const PathGroup c = group(u"c"_s, 2);
  const auto state = makeState({a, b, c}, {item(u"1"_s, a), item(u"2"_s, b), item(u"3"_s, b, 1)});
  state->deleteGroup(b.id);
  EXPECT_EQ(names(state->groups()), (QStringList{u"a"_s, u"c"_s}));
  EXPECT_THAT(orders(state->groups()), ElementsAre(0, 2));
  EXPECT_EQ(names(state->items()), QStringList{u"1"_s});
  expectSaved(*state);
}

TEST_F(AppStateOperations, DeleteGroup_RepeatedId_RemovesEveryOne) {
  const PathGroup a = group(u"a"_s);
  PathGroup twin = group(u"twin"_s);
  twin.id = a.id;
  const auto state = makeState({a, group(u"b"_s), twin}, {});
  state->deleteGroup(state->groups()[0].id);  // an id that goes while it is being compared
  EXPECT_EQ(names(state->groups()), QStringList{u"b"_s});
}

TEST_F(AppStateOperations, DeleteGroup_UnknownId_RemovesItsItemsAndSaves) {
  const PathGroup gone = group(u"gone"_s);
  const auto state = makeState({}, {item(u"orphan"_s, gone)});
  EXPECT_TRUE(saves([&] { state->deleteGroup(gone.id); }));
  EXPECT_THAT(state->items(), IsEmpty());
  EXPECT_TRUE(saves([&] { state->deleteGroup(gone.id); }));
}

TEST_F(AppStateOperations, ToggleGroup_FoldsTheFirstWithTheIdAndSaves) {
  const PathGroup a = group(u"a"_s);
  PathGroup twin = a;
  const auto state = makeState({a, twin}, {});
  state->toggleGroup(a.id);
  EXPECT_FALSE(state->groups()[0].isExpanded);
  EXPECT_TRUE(state->groups()[1].isExpanded);
  expectSaved(*state);
  state->toggleGroup(a.id);
  EXPECT_TRUE(state->groups()[0].isExpanded);
  expectSaved(*state);
}

TEST_F(AppStateOperations, ToggleGroup_UnknownId_DoesNotSave) {
  const auto state = makeState({group(u"a"_s)}, {});
  EXPECT_FALSE(saves([&] { state->toggleGroup(QUuid::createUuid()); }));
}

TEST_F(AppStateOperations, GroupWithId_IsTheFirstInStorageOrder) {
  const PathGroup a = group(u"a"_s, 5);
  PathGroup twin = group(u"twin"_s, 0);
  twin.id = a.id;
  const auto state = makeState({a, twin}, {});
  ASSERT_NE(state->groupWithId(a.id), nullptr);
  EXPECT_EQ(state->groupWithId(a.id)->name, u"a"_s);
  EXPECT_EQ(state->groupWithId(QUuid::createUuid()), nullptr);
}

// --- Items --------------------------------------------------------------------------------------

TEST_F(AppStateOperations, AddItem_InEmptyGroup_GetsOrderZero) {
  const PathGroup a = group(u"a"_s);
  const PathGroup b = group(u"b"_s);
  const auto state = makeState({a, b}, {item(u"1"_s, b)});
  state->addItem(item(u"2"_s, a, 77));
  EXPECT_EQ(state->items()[1].order, 0);
  expectSaved(*state);
}

TEST_F(AppStateOperations, AddItem_GetsTheLargestOrderOfItsGroupPlusOne) {
  const PathGroup a = group(u"a"_s);
  const PathGroup b = group(u"b"_s);
  const auto state = makeState({a, b}, {item(u"1"_s, a), item(u"2"_s, a, 1), item(u"3"_s, b)});
  state->addItem(item(u"4"_s, a));
  EXPECT_EQ(state->items()[3].order, 2);
}

TEST_F(AppStateOperations, AddItem_LargestPossibleOrderTaken_RenumbersItsGroupFirst) {
  const PathGroup a = group(u"a"_s);
  const PathGroup b = group(u"b"_s);
  const auto state = makeState({a, b}, {item(u"1"_s, a), item(u"2"_s, a), item(u"3"_s, b)});
  PathItem far = state->items()[0];
  far.order = largestOrder;
  state->updateItem(far);
  PathItem other = state->items()[2];
  other.order = 8;
  state->updateItem(other);
  state->addItem(item(u"4"_s, a));
  EXPECT_THAT(orders(state->items()), ElementsAre(1, 0, 8, 2));
  expectSaved(*state);
}

TEST_F(AppStateOperations, UpdateItem_ReplacesTheFirstWithTheIdWhole) {
  const PathGroup a = group(u"a"_s);
  const PathItem before = opened(item(u"Old"_s, a), 5);
  PathItem twin = item(u"Twin"_s, a, 1);
  twin.id = before.id;
  const auto state = makeState({a}, {before, twin});
  const PathItem after{before.id,           u"New"_s, u"/new"_s, ItemType::link,
                       QUuid::createUuid(), Date{7},  {},        9};
  state->updateItem(after);
  EXPECT_THAT(state->items(), ElementsAre(after, twin));
  expectSaved(*state);
}

TEST_F(AppStateOperations, UpdateItem_UnknownId_NeitherChangesNorSaves) {
  const PathGroup a = group(u"a"_s);
  const PathItem only = item(u"Only"_s, a);
  const auto state = makeState({a}, {only});
  EXPECT_FALSE(saves([&] { state->updateItem(item(u"Unknown"_s, a)); }));
  EXPECT_THAT(state->items(), ElementsAre(only));
}

TEST_F(AppStateOperations, DeleteItem_LeavesTheOthersOrders) {
  const PathGroup a = group(u"a"_s);
  const auto state = makeState({a}, {item(u"1"_s, a, 0), item(u"2"_s, a, 1), item(u"3"_s, a, 2)});
  state->deleteItem(state->items()[1].id);
  EXPECT_EQ(names(state->items()), (QStringList{u"1"_s, u"3"_s}));
  EXPECT_THAT(orders(state->items()), ElementsAre(0, 2));
  expectSaved(*state);
}

TEST_F(AppStateOperations, DeleteItem_RepeatedId_RemovesEveryOne) {
  const PathGroup a = group(u"a"_s);
  const PathItem once = item(u"once"_s, a);
  const auto state = makeState({a}, {once, item(u"other"_s, a, 1), once});
  state->deleteItem(state->items()[0].id);  // an id that goes while it is being compared
  EXPECT_EQ(names(state->items()), QStringList{u"other"_s});
}

TEST_F(AppStateOperations, DeleteItem_UnknownId_SavesAllTheSame) {
  const auto state = makeState();
  EXPECT_TRUE(saves([&] { state->deleteItem(QUuid::createUuid()); }));
}

TEST_F(AppStateOperations, DuplicateItem_AppendsACopyThatWasNeverOpened) {
  const PathGroup a = group(u"a"_s);
  PathItem source = opened(item(u"Docs"_s, a, 0, u"https://docs.example"_s), 5);
  source.type = ItemType::link;
  const auto state = makeState({a}, {source, item(u"Other"_s, a, 1)});
  state->duplicateItem(source);
  ASSERT_EQ(state->items().size(), 3);
  PathItem expected = source;
  expected.id = state->items()[2].id;
  expected.name = u"Docs Copy"_s;
  expected.dateAdded = clock.now();
  expected.lastAccessed.reset();
  expected.order = 2;
  EXPECT_EQ(state->items()[2], expected);
  EXPECT_NE(state->items()[2].id, source.id);
  expectSaved(*state);
}

TEST_F(AppStateOperations, DuplicateItem_OfACopy_IsNamedCopyCopy) {
  const PathGroup a = group(u"a"_s);
  const auto state = makeState({a}, {item(u"X Copy"_s, a)});
  state->duplicateItem(state->items()[0]);
  EXPECT_EQ(state->items()[1].name, u"X Copy Copy"_s);
}

TEST_F(AppStateOperations, ItemWithId_IsTheFirstInStorageOrder) {
  const PathGroup a = group(u"a"_s);
  const PathItem first = item(u"first"_s, a, 1);
  PathItem twin = item(u"twin"_s, a, 0);
  twin.id = first.id;
  const auto state = makeState({a}, {item(u"other"_s, a, 2), first, twin});
  ASSERT_NE(state->itemWithId(first.id), nullptr);
  EXPECT_EQ(state->itemWithId(first.id)->name, u"first"_s);
  EXPECT_EQ(state->itemWithId(QUuid::createUuid()), nullptr);
}

}  // namespace lanternix
