// What an assignment of the query does, and the recently opened items.
#include "support/StoreFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using testing::IsEmpty;

namespace lanternix {

namespace {

class AppStateSelection : public testing::Test, public StoreFixture {
 protected:
  const PathGroup open = group(u"Open"_s, 0);
  const PathGroup folded = foldedGroup(u"Folded"_s, 1);
  const PathItem apple = item(u"Apple"_s, open, 0);
  const PathItem apricot = item(u"Apricot"_s, folded, 0);
  const std::unique_ptr<AppState> state = makeState({folded, open}, {apricot, apple});
};

}  // namespace

TEST_F(AppStateSelection, SetSearchQuery_FirstCharacter_ExpandsEveryGroupWithoutSaving) {
  EXPECT_FALSE(saves([&] { state->setSearchQuery(u"a"_s); }));
  EXPECT_TRUE(state->groups()[0].isExpanded);
  state->setSearchQuery(QString());
  EXPECT_TRUE(state->groups()[0].isExpanded);
}

TEST_F(AppStateSelection, SetSearchQuery_ExpandedGroups_ReachTheFileWithTheNextSave) {
  state->setSearchQuery(u"a"_s);
  state->deleteItem(QUuid::createUuid());
  EXPECT_TRUE(savedData()->groups[0].isExpanded);
}

TEST_F(AppStateSelection, SetSearchQuery_SelectsTheFirstMatchInPanelOrder) {
  state->setSearchQuery(u"ap"_s);
  EXPECT_EQ(state->selectedItemId(), apple.id);
  state->setSearchQuery(u"apr"_s);
  EXPECT_EQ(state->selectedItemId(), apricot.id);
}

TEST_F(AppStateSelection, SetSearchQuery_NoMatch_SelectsNothing) {
  state->setSearchQuery(u"ap"_s);
  state->setSearchQuery(u"apx"_s);
  EXPECT_EQ(state->selectedItemId(), std::nullopt);
}

TEST_F(AppStateSelection, SetSearchQuery_Empty_ClearsTheSelection) {
  state->setSelectedItemId(apple.id);
  state->setSearchQuery(QString());
  EXPECT_EQ(state->selectedItemId(), std::nullopt);
}

TEST_F(AppStateSelection, SetSearchQuery_UnchangedText_SelectsAndExpandsAgain) {
  state->setSearchQuery(u"ap"_s);
  state->setSelectedItemId(apricot.id);
  state->toggleGroup(folded.id);
  state->setSearchQuery(state->searchQuery());
  EXPECT_EQ(state->selectedItemId(), apple.id);
  EXPECT_TRUE(state->groups()[0].isExpanded);
}

TEST_F(AppStateSelection, RecentItems_NeverOpened_AreNotListed) {
  EXPECT_THAT(state->recentItems(), IsEmpty());
  state->openItem(apricot);
  EXPECT_EQ(names(state->recentItems()), QStringList{u"Apricot"_s});
}

TEST_F(AppStateSelection, RecentItems_SixOpened_AreTheFiveNewestFirst) {
  QList<PathItem> items;
  for (const double seconds : {30.0, 10.0, 60.0, 20.0, 50.0, 40.0}) {
    items.append(opened(item(QString::number(seconds), open), seconds));
  }
  const auto busy = makeState({open}, items);
  EXPECT_EQ(names(busy->recentItems()), (QStringList{u"60"_s, u"50"_s, u"40"_s, u"30"_s, u"20"_s}));
}

TEST_F(AppStateSelection, RecentItems_EqualDates_KeepStorageOrder) {
  QList<PathItem> items;
  for (const QString &name : {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s, u"g"_s}) {
    items.append(opened(item(name, open), name == u"g"_s ? 8 : 7));
  }
  const auto busy = makeState({open}, items);
  EXPECT_EQ(names(busy->recentItems()), (QStringList{u"g"_s, u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
}

TEST_F(AppStateSelection, RecentItems_IgnoreQueryScopeAndPreference) {
  state->openItem(apple);
  state->setShowRecentItems(false);
  state->setSearchQuery(u"folded: zzz"_s);
  EXPECT_EQ(names(state->recentItems()), QStringList{u"Apple"_s});
}

TEST_F(AppStateSelection, RecentItems_OpenedAgain_ComeFirst) {
  state->openItem(apple);
  clock.advance(1);
  state->openItem(apricot);
  clock.advance(1);
  EXPECT_EQ(names(state->recentItems()), (QStringList{u"Apricot"_s, u"Apple"_s}));
  state->openItem(apple);
  EXPECT_EQ(names(state->recentItems()), (QStringList{u"Apple"_s, u"Apricot"_s}));
}

}  // namespace lanternix
