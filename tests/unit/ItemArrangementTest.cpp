#include "App/ItemArrangement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace lanternix {

namespace {

const QUuid home = QUuid::createUuid();
const QUuid work = QUuid::createUuid();

PathItem item(const QUuid &groupId, qint64 order, const QUuid &id = QUuid::createUuid()) {
  return {id, QString(), QString(), ItemType::file, groupId, Date(), {}, order};
}

}  // namespace

TEST(ItemArrangement, ItemsOfGroup_SortsByOrder) {
  const ItemArrangement arrangement({item(home, 5), item(work, 1), item(home, -2), item(home, 0)});
  EXPECT_THAT(arrangement.itemsOfGroup(home), ElementsAre(2, 3, 0));
  EXPECT_THAT(arrangement.itemsOfGroup(work), ElementsAre(1));
}

TEST(ItemArrangement, ItemsOfGroup_EqualOrders_KeepStorageOrder) {
  const ItemArrangement arrangement({item(home, 3), item(home, 7), item(home, 3), item(home, 3)});
  EXPECT_THAT(arrangement.itemsOfGroup(home), ElementsAre(0, 2, 3, 1));
}

TEST(ItemArrangement, ItemsOfGroup_ExtremeOrders_AreCompared) {
  constexpr qint64 largest = std::numeric_limits<qint64>::max();
  constexpr qint64 smallest = std::numeric_limits<qint64>::min();
  const ItemArrangement arrangement({item(home, largest), item(home, smallest), item(home, 0)});
  EXPECT_THAT(arrangement.itemsOfGroup(home), ElementsAre(1, 2, 0));
}

TEST(ItemArrangement, ItemsOfGroup_UnknownGroup_IsEmpty) {
  const ItemArrangement arrangement({item(home, 0)});
  EXPECT_THAT(arrangement.itemsOfGroup(work), IsEmpty());
  EXPECT_EQ(arrangement.bucketOf(work), std::nullopt);
}

TEST(ItemArrangement, NoItems_HasNoBuckets) {
  const ItemArrangement arrangement({});
  EXPECT_EQ(arrangement.bucketCount(), 0);
  EXPECT_EQ(arrangement.firstWithId(home), std::nullopt);
}

TEST(ItemArrangement, Buckets_TogetherHoldEveryItemOnce) {
  const ItemArrangement arrangement(
      {item(home, 0), item(work, 0), item(QUuid(), 0), item(home, 1)});
  ASSERT_EQ(arrangement.bucketCount(), 3);
  EXPECT_THAT(arrangement.bucket(*arrangement.bucketOf(home)), ElementsAre(0, 3));
  EXPECT_THAT(arrangement.bucket(*arrangement.bucketOf(work)), ElementsAre(1));
  EXPECT_THAT(arrangement.bucket(*arrangement.bucketOf(QUuid())), ElementsAre(2));
}

TEST(ItemArrangement, FirstWithId_RepeatedId_IsTheFirstInStorageOrder) {
  const QUuid twice = QUuid::createUuid();
  const ItemArrangement arrangement({item(home, 0), item(home, 9, twice), item(work, 0, twice)});
  EXPECT_EQ(arrangement.firstWithId(twice), 1);
  EXPECT_EQ(arrangement.identityOf(2), 1);
  EXPECT_EQ(arrangement.identityOf(0), 0);
}

}  // namespace lanternix
