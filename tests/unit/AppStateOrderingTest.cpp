#include "support/StoreFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr qsizetype farAway = std::numeric_limits<qsizetype>::max();

class AppStateOrdering : public testing::Test, public StoreFixture {
 protected:
  // Each record as its name and its order, in storage order: "A0 B1".
  template <typename Record>
  static QString told(const QList<Record> &records) {
    QStringList result;
    for (const Record &record : records) {
      result.append(record.name + QString::number(record.order));
    }
    return result.join(u' ');
  }

  static QList<PathGroup> groupsABCD() {
    return {StoreFixture::group(u"A"_s, 0), StoreFixture::group(u"B"_s, 1),
            StoreFixture::group(u"C"_s, 2), StoreFixture::group(u"D"_s, 3)};
  }

  QList<PathItem> itemsABCD() const {
    return {item(u"A"_s, group, 0), item(u"B"_s, group, 1), item(u"C"_s, group, 2),
            item(u"D"_s, group, 3)};
  }

  const PathGroup group = StoreFixture::group(u"Group"_s, 0);
  const PathGroup other = StoreFixture::group(u"Other"_s, 1);
};

}  // namespace

// --- Repair at start-up -------------------------------------------------------------------------

TEST_F(AppStateOrdering, Start_EqualOrders_KeepStorageOrder) {
  const auto state =
      makeState({group}, {item(u"X"_s, group, 3), item(u"Y"_s, group, 3), item(u"Z"_s, group, 7)});
  EXPECT_EQ(told(state->items()), u"X0 Y1 Z2"_s);
}

TEST_F(AppStateOrdering, Start_OrdersAgainstStorage_KeepTheirSense) {
  const auto state = makeState({group}, {item(u"P"_s, group, 5), item(u"Q"_s, group, 1)});
  EXPECT_EQ(told(state->items()), u"P1 Q0"_s);
}

TEST_F(AppStateOrdering, Start_ItemWithoutOrderInTheFile_KeepsStorageOrder) {
  DataDocument document{{group}, {item(u"X"_s, group, 0), item(u"Y"_s, group, 0)}};
  QByteArray bytes = *document.encoded();
  const qsizetype at = bytes.indexOf("\"order\" : 0", bytes.indexOf("\"name\" : \"Y\""));
  ASSERT_GT(at, 0);
  bytes.remove(at, bytes.indexOf('"', at + 9) - at);
  ASSERT_EQ(DataDocument::decoded(bytes), document);
  TemporaryHome::write(home.dataFile(), bytes);
  EXPECT_EQ(told(makeState()->items()), u"X0 Y1"_s);
}

TEST_F(AppStateOrdering, Start_ItemsOfEachGroup_AreNumberedApart) {
  const PathGroup missing = StoreFixture::group(u"Missing"_s);
  const auto state = makeState(
      {group, other}, {item(u"A"_s, group, 9), item(u"M"_s, missing, -4), item(u"B"_s, other, 9),
                       item(u"C"_s, group, 2), item(u"N"_s, missing, -8)});
  EXPECT_EQ(told(state->items()), u"A1 M1 B0 C0 N0"_s);
}

TEST_F(AppStateOrdering, Start_GroupOrders_StayAsTheyAre) {
  const auto state =
      makeState({StoreFixture::group(u"A"_s, 7), StoreFixture::group(u"B"_s, 7)}, {});
  EXPECT_EQ(told(state->groups()), u"A7 B7"_s);
}

TEST_F(AppStateOrdering, Start_RepairedOrders_ReachTheFileWithTheNextSave) {
  const auto state = makeState({group}, {item(u"P"_s, group, 5), item(u"Q"_s, group, 1)});
  state->deleteItem(QUuid::createUuid());
  EXPECT_EQ(told(savedData()->items), u"P1 Q0"_s);
}

// --- Moving groups ------------------------------------------------------------------------------

TEST_F(AppStateOrdering, MoveGroup_Down_LandsBeforeTheDestination) {
  const auto state = makeState(groupsABCD(), {});
  state->moveGroup({0}, 3);
  EXPECT_EQ(told(state->groups()), u"B0 C1 A2 D3"_s);
}

TEST_F(AppStateOrdering, MoveGroup_Up_LandsBeforeTheDestination) {
  const auto state = makeState(groupsABCD(), {});
  state->moveGroup({3}, 0);
  EXPECT_EQ(told(state->groups()), u"D0 A1 B2 C3"_s);
}

TEST_F(AppStateOrdering, MoveGroup_Several_KeepTheirOrderAtTheEnd) {
  const auto state = makeState(groupsABCD(), {});
  state->moveGroup({2, 0}, 4);
  EXPECT_EQ(told(state->groups()), u"B0 D1 A2 C3"_s);
}

TEST_F(AppStateOrdering, MoveGroup_AroundTheDestination_GatherThere) {
  const auto state = makeState(groupsABCD(), {});
  state->moveGroup({0, 3}, 2);
  EXPECT_EQ(told(state->groups()), u"B0 A1 D2 C3"_s);
}

TEST_F(AppStateOrdering, MoveGroup_OffsetsCountInDisplayOrder) {
  const auto state =
      makeState({StoreFixture::group(u"B"_s, 1), StoreFixture::group(u"A"_s, 0)}, {});
  state->moveGroup({0}, 2);
  EXPECT_EQ(told(state->groups()), u"B0 A1"_s);
  EXPECT_EQ(savedData()->groups, state->groups());
}

TEST_F(AppStateOrdering, MoveGroup_Nowhere_NumbersInDisplayOrderAndSaves) {
  const auto state =
      makeState({StoreFixture::group(u"B"_s, 8), StoreFixture::group(u"A"_s, -3)}, {});
  EXPECT_TRUE(saves([&] { state->moveGroup({}, 0); }));
  EXPECT_EQ(told(state->groups()), u"A0 B1"_s);
}

TEST_F(AppStateOrdering, MoveGroup_OffsetsOutsideTheList_ArePassedOver) {
  const auto state = makeState(groupsABCD(), {});
  state->moveGroup({-1, 4, farAway, 1}, 0);
  EXPECT_EQ(told(state->groups()), u"B0 A1 C2 D3"_s);
}

TEST_F(AppStateOrdering, MoveGroup_DestinationOutsideTheList_MeansItsNearerEnd) {
  const auto state = makeState(groupsABCD(), {});
  state->moveGroup({0}, farAway);
  EXPECT_EQ(told(state->groups()), u"B0 C1 D2 A3"_s);
  state->moveGroup({3}, -farAway);
  EXPECT_EQ(told(state->groups()), u"A0 B1 C2 D3"_s);
}

TEST_F(AppStateOrdering, MoveGroup_NoGroups_DoesNoHarm) {
  const auto state = makeState();
  state->moveGroup({0}, 1);
  EXPECT_TRUE(state->groups().isEmpty());
}

// --- Moving items within their group ------------------------------------------------------------

TEST_F(AppStateOrdering, MoveItems_RenumbersAndKeepsStorageOrder) {
  const auto state = makeState({group}, itemsABCD());
  state->moveItems({0}, 3, group.id);
  EXPECT_EQ(told(state->items()), u"A2 B0 C1 D3"_s);
  EXPECT_EQ(names(state->itemsForGroup(group.id)), (QStringList{u"B"_s, u"C"_s, u"A"_s, u"D"_s}));
  EXPECT_EQ(savedData()->items, state->items());
}

TEST_F(AppStateOrdering, MoveItems_Several_KeepTheirOrderAtTheEnd) {
  const auto state = makeState({group}, itemsABCD());
  state->moveItems({0, 2}, 4, group.id);
  EXPECT_EQ(told(state->items()), u"A2 B0 C3 D1"_s);
}

TEST_F(AppStateOrdering, MoveItems_OtherGroups_StayAsTheyAre) {
  QList<PathItem> items = itemsABCD();
  items.insert(1, item(u"X"_s, other, 0));
  const auto state = makeState({group, other}, items);
  state->moveItems({3}, 0, group.id);
  EXPECT_EQ(told(state->items()), u"A1 X0 B2 C3 D0"_s);
}

TEST_F(AppStateOrdering, MoveItems_WhileSearching_CountsAllItemsOfTheGroup) {
  const auto state = makeState({group}, itemsABCD());
  state->setSearchQuery(u"d"_s);
  state->moveItems({3}, 0, group.id);
  EXPECT_EQ(told(state->items()), u"A1 B2 C3 D0"_s);
}

TEST_F(AppStateOrdering, MoveItems_AfterADeletion_ClosesTheGap) {
  const auto state = makeState({group}, itemsABCD());
  state->deleteItem(state->items()[1].id);
  state->moveItems({}, 0, group.id);
  EXPECT_EQ(told(state->items()), u"A0 C1 D2"_s);
}

TEST_F(AppStateOrdering, MoveItems_RepeatedId_NumbersTheFirstInStorageOrder) {
  QList<PathItem> items{item(u"A"_s, group, 0), item(u"B"_s, group, 1), item(u"X"_s, other, 0)};
  items[1].id = items[2].id;  // B and X are one as far as a look-up goes
  const auto state = makeState({group, other}, items);
  state->moveItems({0}, 1, other.id);
  EXPECT_EQ(told(state->items()), u"A0 B0 X0"_s);
}

TEST_F(AppStateOrdering, MoveItems_UnknownGroup_ChangesNothingAndSaves) {
  const auto state = makeState({group}, itemsABCD());
  EXPECT_TRUE(saves([&] { state->moveItems({0}, 2, QUuid::createUuid()); }));
  EXPECT_EQ(told(state->items()), u"A0 B1 C2 D3"_s);
}

TEST_F(AppStateOrdering, MoveItems_OffsetsOutsideTheList_ArePassedOver) {
  const auto state = makeState({group}, itemsABCD());
  state->moveItems({-5, 4, farAway, 0}, farAway, group.id);
  EXPECT_EQ(told(state->items()), u"A3 B0 C1 D2"_s);
}

// --- Moving an item to another group ------------------------------------------------------------

TEST_F(AppStateOrdering, MoveItem_KeepsItsOrder) {
  const auto state = makeState({group, other}, itemsABCD());
  state->moveItem(state->items()[2].id, other.id);
  EXPECT_EQ(state->items()[2].groupId, other.id);
  EXPECT_EQ(told(state->items()), u"A0 B1 C2 D3"_s);
  EXPECT_EQ(savedData()->items, state->items());
}

TEST_F(AppStateOrdering, MoveItem_OntoAnEqualOrder_ComesFirstWhenStoredFirst) {
  QList<PathItem> items = itemsABCD();
  items.append(item(u"X"_s, other, 0));
  items.append(item(u"Y"_s, other, 1));
  const auto state = makeState({group, other}, items);
  state->moveItem(items[1].id, other.id);
  EXPECT_EQ(names(state->itemsForGroup(other.id)), (QStringList{u"X"_s, u"B"_s, u"Y"_s}));
  state->moveItem(items[5].id, group.id);
  EXPECT_EQ(names(state->itemsForGroup(group.id)), (QStringList{u"A"_s, u"Y"_s, u"C"_s, u"D"_s}));
}

TEST_F(AppStateOrdering, MoveItem_NextStart_RepairsTheOrders) {
  auto state = makeState({group, other}, itemsABCD() + QList{item(u"X"_s, other, 0)});
  state->moveItem(state->items()[0].id, other.id);
  EXPECT_EQ(told(state->items()), u"A0 B1 C2 D3 X0"_s);
  state = makeState();
  EXPECT_EQ(told(state->items()), u"A0 B0 C1 D2 X1"_s);
}

TEST_F(AppStateOrdering, MoveItem_UnknownIdsOrOwnGroup_NeitherChangesNorSaves) {
  const auto state = makeState({group, other}, itemsABCD());
  const QList<PathItem> before = state->items();
  EXPECT_FALSE(saves([&] {
    state->moveItem(before[0].id, group.id);
    state->moveItem(before[0].id, QUuid::createUuid());
    state->moveItem(QUuid::createUuid(), other.id);
  }));
  EXPECT_EQ(state->items(), before);
}

TEST_F(AppStateOrdering, MoveItem_RepeatedId_MovesTheFirst) {
  QList<PathItem> items = itemsABCD();
  items[3].id = items[1].id;
  const auto state = makeState({group, other}, items);
  state->moveItem(items[1].id, other.id);
  EXPECT_EQ(state->items()[1].groupId, other.id);
  EXPECT_EQ(state->items()[3].groupId, group.id);
}

}  // namespace lanternix
